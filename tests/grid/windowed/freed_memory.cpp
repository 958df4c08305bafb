#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

// What this program deletes is overwritten and kept for a while: a grid that goes on with a deleted row finds no valid
// pointer in it and crashes, instead of reading what happens to be there.

namespace
{
constexpr unsigned char kFreed = 0x5A;  // as an int it is the list index of a shown row

constexpr std::size_t kKept = 1000;
std::array<std::atomic<void*>, kKept> kept;
std::atomic<std::size_t> nextToGo = 0;
}  // namespace

void* operator new(std::size_t size)
{
    if (void* const memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t size) noexcept
{
    if (memory == nullptr)
        return;
    // volatile: the compiler may leave out what is written just before the memory goes
    std::fill_n(static_cast<volatile unsigned char*>(memory), size, kFreed);
    std::free(kept[nextToGo++ % kKept].exchange(memory));
}
