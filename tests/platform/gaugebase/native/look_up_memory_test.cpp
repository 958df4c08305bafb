#include "platform/gaugebase/limit_deviations.h"
#include "platform/gaugebase/tolerance_classes.h"

#include <cstdlib>
#include <new>
#include <string>

#include <gtest/gtest.h>

namespace
{

int g_allocations = 0;

}  // namespace

// Replaced for this program, so that the test below can count.
void* operator new(std::size_t size)
{
    ++g_allocations;
    if (void* const memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace
{

TEST(LookUpMemory, KnownUnknownAndMalformedCodesAllocateNothing)
{
    const std::string overLong = "H" + std::string(10000, '7');
    int known = 0;
    const int before = g_allocations;
    for (const float size : {0.5F, 18.0F, 300.0F, 2500.0F, 4000.0F})
        for (const char* const code : {"H7", "300 M6", "M6", "js7", "zc18", "K9", "", "H", overLong.c_str()})
            known += iso286::FindLimitDeviations(size, code).has_value() ? 1 : 0;
    const int after = g_allocations;
    EXPECT_EQ(after, before);
    EXPECT_GT(known, 10);
}

TEST(LookUpMemory, TheCounterCounts)
{
    const int before = g_allocations;
    delete new std::string(100, 'x');
    EXPECT_GT(g_allocations, before);
}

}  // namespace
