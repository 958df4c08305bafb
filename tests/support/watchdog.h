#pragma once

#include <memory>

namespace testing
{
class TestEventListener;
}

/// Makes a test that takes too long fail instead of hang: the loops of the main thread are told to quit, and when the
/// test does not end then either, the program ends with a message and exit code 1.
std::unique_ptr<testing::TestEventListener> MakeWatchdog();
