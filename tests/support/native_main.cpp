#include <gtest/gtest.h>

#include "tests/support/seed_printer.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new SeedPrinter);  // the list deletes it
    return RUN_ALL_TESTS();
}
