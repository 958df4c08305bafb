#include <string>

#include "host/player/keyboard_input.h"
#include "host/player/menu_view.h"
#include "host/player/mouse_input.h"
#include "host/player/notification_log.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"

namespace
{

std::string EnabledWord(bool enabled)
{
    return enabled ? "enabled" : "disabled";
}

std::string CheckedWord(bool checked)
{
    return checked ? "checked" : "unchecked";
}

MenuItem RequireOpenItem(std::int64_t command)
{
    const std::optional<MenuItem> item = FindOpenItem(static_cast<UINT>(command));
    if (!item)
        throw StepFailure("the menu that is up has no item " + std::to_string(command));
    return *item;
}

// With the keyboard, since a menu takes keys in the same way wherever it stands: down to the item, then Enter.
StepTask MenuPick(StepContext context)
{
    const MenuItem item = RequireOpenItem(*context.step.number);
    if (!item.IsEnabled())
        throw StepFailure("item " + std::to_string(*context.step.number) + " is disabled");
    const HWND owner = MenuOwner();
    for (int press = 0; (item.State() & MF_HILITE) == 0; ++press)
    {
        if (press > GetMenuItemCount(item.menu))
            throw StepFailure("the keyboard doesn't reach item " + std::to_string(*context.step.number));
        PostKey(owner, *FindKey("Down"));
        co_await NextIdle();
    }
    context.play.notifications.NoteCommand(static_cast<int>(*context.step.number));
    PostKey(owner, *FindKey("Enter"));
    co_await NextIdle();
}

StepTask MenuDismiss(StepContext)
{
    constexpr int kMostLevels = 8;
    for (int level = 0; IsMenuOpen(); ++level)
    {
        if (level == kMostLevels)
            throw StepFailure("the menu stays open");
        PostKey(MenuOwner(), *FindKey("Escape"));
        co_await NextIdle();
    }
}

void ExpectMenu(const StepContext& context)
{
    const Step& step = context.step;
    const std::optional<MenuItem> item = DropDownTo(context.window, static_cast<UINT>(*step.number));
    if (!item)
        throw StepFailure("the dialog's menu has no item " + std::to_string(*step.number));
    std::string expected = EnabledWord(step.Chose("enabled"));
    std::string found = EnabledWord(item->IsEnabled());
    if (step.Chose("checked") || step.Chose("unchecked"))
    {
        expected += " " + CheckedWord(step.Chose("checked"));
        found += " " + CheckedWord(item->IsChecked());
    }
    if (expected != found)
        throw StepFailure(expected, found);
}

void ExpectContext(const StepContext& context)
{
    const Step& step = context.step;
    if (context.play.contextMenuGrid != 0 && context.play.contextMenuGrid != *step.number)
        throw StepFailure("the context menu of " + std::to_string(*step.number),
                          "that of " + std::to_string(context.play.contextMenuGrid));
    const std::string expected = EnabledWord(step.Chose("enabled"));
    const std::string found = EnabledWord(RequireOpenItem(*step.second).IsEnabled());
    if (expected != found)
        throw StepFailure(expected, found);
}

constexpr StepHandler kMenuSteps[] = {
    {.name = "menu-pick", .asTask = MenuPick},
    {.name = "menu-dismiss", .asTask = MenuDismiss},
    {.name = "expect-menu", .atOnce = ExpectMenu},
    {.name = "expect-context", .atOnce = ExpectContext},
};

}  // namespace

std::span<const StepHandler> MenuSteps()
{
    return kMenuSteps;
}
