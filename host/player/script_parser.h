#pragma once

#include <filesystem>
#include <stdexcept>
#include <string_view>

#include "host/player/script.h"

/// A script that can't be read; what() names the file, the line where there is one, and the reason.
class ScriptError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads a script's text, UTF-8 with or without a byte order mark. `file` is for messages and for relative paths.
/// Throws ScriptError at the first line that is no step.
Script ParseScript(std::string_view text, const std::filesystem::path& file);

/// The same from a file; throws ScriptError also when the file can't be read.
Script ParseScriptFile(const std::filesystem::path& file);
