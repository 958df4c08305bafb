#include "host/player/resource_count.h"

#include <cstdint>

#include <windows.h>

#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_roles.h"
#include "host/player/window_text.h"

namespace
{

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

// Windows of this thread with all their children. The input method's window comes by itself at some time.
int CountWindows()
{
    int count = 0;
    for (const HWND window : TopLevelWindows())
    {
        const std::wstring name = WindowClass(window);
        if (name == L"IME" || name == L"MSCTFIME UI")
            continue;
        ++count;
        EnumChildWindows(window, CountWindow, reinterpret_cast<LPARAM>(&count));
    }
    return count;
}

// One entry of the table of GDI handles that every process has, where the system doesn't count them for us.
struct GdiEntry
{
    std::uint64_t object;
    std::uint16_t process;
    std::uint16_t count;
    std::uint16_t unique;
    std::uint8_t type;  // 0: free
    std::uint8_t flags;
    std::uint64_t user;
};
static_assert(sizeof(GdiEntry) == 24);

constexpr int kHandles = 0x10000;

int CountGdiEntries()
{
    constexpr std::size_t kTableInBlock = 0xF8;
    using ProcessBlock = const std::uint8_t*(NTAPI*)();
    const auto processBlock = reinterpret_cast<ProcessBlock>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    if (processBlock == nullptr)
        return 0;
    const std::uint8_t* const block = processBlock();
    const auto* const table = *reinterpret_cast<const GdiEntry* const*>(block + kTableInBlock);
    int count = 0;
    for (int i = 0; table != nullptr && i < kHandles; ++i)
        count += table[i].type != 0 ? 1 : 0;
    return count;
}

int CountMenuHandles()
{
    int count = 0;
    for (std::uintptr_t handle = 2; handle < kHandles; handle += 2)
        count += IsMenu(reinterpret_cast<HMENU>(handle)) ? 1 : 0;
    return count;
}

}  // namespace

ResourceCount ResourceCount::Now()
{
    ResourceCount count;
    count.windows = CountWindows();
    const auto gdiObjects = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    if (gdiObjects > 0)
    {
        // The system counts; its user objects are windows, menus and a few more.
        count.gdiObjects = gdiObjects;
        count.menus = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) - count.windows;
    }
    else
    {
        // An emulation that doesn't count: its handle tables are open to be read.
        count.gdiObjects = CountGdiEntries();
        count.menus = CountMenuHandles();
    }
    return count;
}

std::string ResourceCount::InWords() const
{
    return std::to_string(windows) + " windows, " + std::to_string(menus) + " menus, " + std::to_string(gdiObjects) +
           " GDI objects";
}

namespace
{

void Mark(const StepContext& context)
{
    context.play.marked = ResourceCount::Now();
}

void ExpectSteady(const StepContext& context)
{
    const ResourceCount now = ResourceCount::Now();
    if (now != context.play.marked)
        throw StepFailure(context.play.marked.InWords(), now.InWords());
}

constexpr StepHandler kResourceSteps[] = {
    {.name = "mark", .atOnce = Mark},
    {.name = "expect-steady", .atOnce = ExpectSteady},
};

}  // namespace

std::span<const StepHandler> ResourceSteps()
{
    return kResourceSteps;
}
