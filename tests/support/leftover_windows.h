#pragma once

#include <memory>

namespace testing
{
class TestEventListener;
}

/// After each test: fails it when it left a window behind or did not reach what it planned, and clears both, as well as
/// the message queue, for the next test.
std::unique_ptr<testing::TestEventListener> MakeLeftoverCheck();
