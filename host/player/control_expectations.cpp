#include <string>

#include "host/player/grid_view.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"

#include <commctrl.h>

namespace
{

HWND ControlOf(const StepContext& context)
{
    return RequireControl(context.window, context.step.control);
}

void Compare(const std::string& expected, const std::string& found)
{
    if (expected != found)
        throw StepFailure(expected, found);
}

void CompareNumber(const StepContext& context, LRESULT found)
{
    Compare(std::to_string(*context.step.number), std::to_string(found));
}

void CompareYesNo(const StepContext& context, bool found)
{
    Compare(context.step.Chose("yes") ? "yes" : "no", found ? "yes" : "no");
}

// A step with expect-open has its window when it comes here: the player has waited for it.
void ExpectOpen(const StepContext&) {}

void ExpectClosed(const StepContext& context)
{
    if (FindRole(*context.step.window, context.play.host.MainWindow()) != nullptr)
        throw StepFailure(std::string(RoleName(*context.step.window)) + " closed",
                          OpenRoles(context.play.host.MainWindow()));
}

void ExpectText(const StepContext& context)
{
    Compare(Quoted(ResolveText(*context.step.text)), Quoted(WindowText(ControlOf(context))));
}

void ExpectMessage(const StepContext& context)
{
    ControlPath text;
    text.ids.push_back(ControlPath::kMessageText);
    Compare(Quoted(ResourceString(static_cast<int>(*context.step.number))),
            Quoted(WindowText(RequireControl(context.window, text))));
}

void ExpectEnabled(const StepContext& context)
{
    CompareYesNo(context, IsWindowEnabled(ControlOf(context)) != FALSE);
}

void ExpectVisible(const StepContext& context)
{
    CompareYesNo(context, IsWindowVisible(ControlOf(context)) != FALSE);
}

void ExpectChecked(const StepContext& context)
{
    const HWND control = ControlOf(context);
    if (WindowClass(control) != WC_BUTTONW)
        throw StepFailure("the control is no check box but a " + ToUtf8(WindowClass(control)));
    CompareYesNo(context, SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED);
}

bool IsCombo(HWND control)
{
    const std::wstring name = WindowClass(control);
    return name == WC_COMBOBOXW || name == WC_COMBOBOXEXW;
}

void ExpectSelected(const StepContext& context)
{
    const HWND control = ControlOf(context);
    if (IsCombo(control))
        CompareNumber(context, static_cast<int>(SendMessageW(control, CB_GETCURSEL, 0, 0)));
    else if (WindowClass(control) == TRACKBAR_CLASSW)
        CompareNumber(context, static_cast<int>(SendMessageW(control, TBM_GETPOS, 0, 0)));
    else
        throw StepFailure("the control is neither combo box nor slider but a " + ToUtf8(WindowClass(control)));
}

void ExpectCount(const StepContext& context)
{
    const HWND control = ControlOf(context);
    if (WindowClass(control) == WC_LISTVIEWW)
        CompareNumber(context, GridView(control).Columns());
    else if (IsCombo(control))
        CompareNumber(context, SendMessageW(control, CB_GETCOUNT, 0, 0));
    else
        throw StepFailure("the control is neither combo box nor grid but a " + ToUtf8(WindowClass(control)));
}

// The keyboard's place in words: the role and the IDs from the window down, as a script would write it.
std::string KeyboardPlace(const StepContext& context)
{
    HWND focus = GetFocus();
    if (focus == nullptr)
        return "none";
    const HWND root = GetAncestor(focus, GA_ROOT);
    std::string path;
    for (; focus != root; focus = GetAncestor(focus, GA_PARENT))
        path = std::to_string(GetDlgCtrlID(focus)) + (path.empty() ? "" : "/") + path;
    std::string role = "another window";
    for (const WindowRole known : {WindowRole::kHost, WindowRole::kCalc, WindowRole::kLink, WindowRole::kClosing,
                                   WindowRole::kDistribution, WindowRole::kWeight, WindowRole::kMessage})
    {
        if (FindRole(known, context.play.host.MainWindow()) == root)
            role = RoleName(known);
    }
    return role + " " + (path.empty() ? "window" : path);
}

void ExpectFocused(const StepContext& context)
{
    const HWND focus = GetFocus();
    if (context.step.Chose("none"))
    {
        const bool inWindow = context.step.window && focus != nullptr && GetAncestor(focus, GA_ROOT) == context.window;
        if (context.step.window ? inWindow && focus != context.window : focus != nullptr)
            throw StepFailure("the keyboard at none", KeyboardPlace(context));
        return;
    }
    const HWND control = ControlOf(context);
    // A combo box has the keyboard when its edit part has; an editor in a grid is a control of its own.
    if (focus != control && !(IsCombo(control) && IsChild(control, focus)))
        throw StepFailure("the keyboard at " + std::string(RoleName(*context.step.window)) + " " +
                              context.step.control.name,
                          KeyboardPlace(context));
}

std::string Hex(std::uint64_t number)
{
    char text[20] = {};
    std::snprintf(text, sizeof(text), "0x%llX", static_cast<unsigned long long>(number));
    return text;
}

void ExpectStyle(const StepContext& context)
{
    const Step& step = context.step;
    const HWND control = ControlOf(context);
    LRESULT bits = 0;
    if (step.Chose("style"))
        bits = GetWindowLongPtrW(control, GWL_STYLE);
    else if (step.Chose("exstyle"))
        bits = GetWindowLongPtrW(control, GWL_EXSTYLE);
    else if (step.Chose("list"))
        bits = SendMessageW(GridView(control).Window(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    else if (WindowClass(control) == WC_COMBOBOXEXW)
        bits = SendMessageW(control, CBEM_GETEXTENDEDSTYLE, 0, 0);
    else
        throw StepFailure("the control has no extended combo box style");
    const auto mask = static_cast<std::uint32_t>(*step.number);
    const std::uint32_t found = static_cast<std::uint32_t>(bits) & mask;
    if (found != static_cast<std::uint32_t>(*step.second))
        throw StepFailure(Hex(static_cast<std::uint32_t>(*step.second)), Hex(found));
}

std::string InWords(const RECT& place)
{
    return std::to_string(place.left) + " " + std::to_string(place.top) + " " +
           std::to_string(place.right - place.left) + " " + std::to_string(place.bottom - place.top);
}

void ExpectRect(const StepContext& context)
{
    const Step& step = context.step;
    const HWND control = ControlOf(context);
    const HWND parent = step.control.IsWindow() ? nullptr : GetAncestor(control, GA_PARENT);
    RECT place = {};
    GetWindowRect(control, &place);
    RECT area = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    if (parent != nullptr)
    {
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
        GetClientRect(parent, &area);
    }
    if (step.cell)
    {
        area = GridView(parent).CellArea(*step.cell);
        OffsetRect(&place, -area.left, -area.top);
    }
    const int found[] = {place.left, place.top, place.right - place.left, place.bottom - place.top};
    std::string expected;
    bool holds = true;
    for (std::size_t i = 0; i < std::size(found); ++i)
    {
        const Measure& measure = step.measures[i];
        const int wanted = measure.Of(area.right - area.left, area.bottom - area.top);
        expected += (i == 0 ? "" : " ") + (measure.IsAny() ? measure.Text() : std::to_string(wanted));
        holds = holds && (measure.IsAny() || wanted == found[i]);
    }
    if (!holds)
        throw StepFailure(expected, InWords(place));
}

constexpr StepHandler kControlExpectations[] = {
    {.name = "expect-open", .atOnce = ExpectOpen},       {.name = "expect-closed", .atOnce = ExpectClosed},
    {.name = "expect-text", .atOnce = ExpectText},       {.name = "expect-message", .atOnce = ExpectMessage},
    {.name = "expect-enabled", .atOnce = ExpectEnabled}, {.name = "expect-visible", .atOnce = ExpectVisible},
    {.name = "expect-checked", .atOnce = ExpectChecked}, {.name = "expect-selected", .atOnce = ExpectSelected},
    {.name = "expect-count", .atOnce = ExpectCount},     {.name = "expect-focused", .atOnce = ExpectFocused},
    {.name = "expect-style", .atOnce = ExpectStyle},     {.name = "expect-rect", .atOnce = ExpectRect},
};

}  // namespace

std::span<const StepHandler> ControlExpectations()
{
    return kControlExpectations;
}
