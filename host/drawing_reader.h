#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/drawing_model.h"

/// Why a file is not a drawing. what() is one line for a person: file, place in it, reason.
class DrawingError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads a drawing from JSON text. Missing texts are empty, missing numbers 0; members that a drawing doesn't know are
/// refused, so that a mistyped name doesn't silently become an empty value.
/// @param fileName  UTF-8, only for the message
/// Throws DrawingError.
Drawing ParseDrawing(std::string_view json, const std::string& fileName);

/// Reads a drawing file; the same rules. Throws DrawingError also when the file can't be read.
Drawing ReadDrawingFile(const std::filesystem::path& file);
