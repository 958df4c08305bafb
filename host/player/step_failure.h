#pragma once

#include <stdexcept>
#include <string>

/// A step could not be done, or its expectation does not hold.
class StepFailure : public std::runtime_error
{
public:
    explicit StepFailure(const std::string& reason) : std::runtime_error(reason) {}
    StepFailure(const std::string& expected, const std::string& found)
        : std::runtime_error("expected " + expected + ", found " + found)
    {
    }
};
