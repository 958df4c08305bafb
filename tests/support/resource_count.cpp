#include "tests/support/resource_count.h"

#include <cstdint>
#include <vector>

#include <windows.h>

namespace
{
// Where GetGuiResources counts nothing, the process environment block leads to the table of GDI handles.
struct GdiTableEntry
{
    std::uint64_t object;
    std::uint16_t process;
    std::uint16_t count;
    std::uint16_t unique;
    std::uint8_t type;  // 0 for a free entry
    std::uint8_t flags;
    std::uint64_t user;
};

int CountGdiTable()
{
    constexpr int kEntries = 0x10000;
    constexpr int kOffsetOfTable = 0xF8;
    const auto environmentOfProcess = reinterpret_cast<char* (*)()>(
        reinterpret_cast<void (*)()>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    char* environment = environmentOfProcess();
    const GdiTableEntry* table = *reinterpret_cast<GdiTableEntry**>(environment + kOffsetOfTable);
    int used = 0;
    for (int i = 0; table != nullptr && i < kEntries; ++i)
        used += table[i].type != 0;
    return used;
}
}  // namespace

int GdiObjectCount()
{
    const DWORD counted = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
    return counted != 0 ? static_cast<int>(counted) : CountGdiTable();
}

std::size_t HeapBlockCount()
{
    std::vector<HANDLE> heaps(::GetProcessHeaps(0, nullptr) + 8);
    heaps.resize(::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    std::size_t blocks = 0;
    for (const HANDLE heap : heaps)
    {
        ::HeapLock(heap);
        PROCESS_HEAP_ENTRY entry = {};
        while (::HeapWalk(heap, &entry))
            blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
        ::HeapUnlock(heap);
    }
    return blocks;
}
