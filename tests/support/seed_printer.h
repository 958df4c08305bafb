#pragma once

#include <cstdio>

#include <gtest/gtest.h>

/// Prints the seed that the tests of a program are shuffled with: GoogleTest's brief listener keeps it to itself.
class SeedPrinter : public testing::EmptyTestEventListener
{
    void OnTestIterationStart(const testing::UnitTest& program, int) override
    {
        if (testing::GTEST_FLAG(shuffle))
            std::printf("shuffled with seed %d\n", program.random_seed());
    }
};
