#pragma once

#include <filesystem>

#include "host/player/picture.h"

/// Writes a picture as a PNG file; throws StepFailure when it can't be written.
void WritePng(const Picture& picture, const std::filesystem::path& file);
