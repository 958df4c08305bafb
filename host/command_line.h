#pragma once

#include <chrono>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

/// What the user asked for when starting the program; paths are UTF-8.
struct CommandLine
{
    std::optional<std::string> drawing;                      ///< nothing: the drawing that comes with the program
    std::optional<std::string> play;                         ///< script to play
    std::chrono::seconds timeout = std::chrono::minutes{2};  ///< of a play
};

/// The program is not to start: the text says why, or is the help that was asked for.
class CommandLineExit : public std::runtime_error
{
public:
    CommandLineExit(const std::string& text, int exitCode) : std::runtime_error(text), m_exitCode(exitCode) {}

    /// 0 for the help, 2 for a mistake.
    int ExitCode() const { return m_exitCode; }

private:
    int m_exitCode;
};

/// Reads the arguments, without the program's name. Throws CommandLineExit.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);
