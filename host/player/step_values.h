#pragma once

#include <span>
#include <string_view>

#include "host/player/script.h"
#include "host/player/script_words.h"

/// Reads one word of a line as a value of the kind that a pattern names (WINDOW, CONTROL, TEXT, ...) into the step.
/// Throws std::invalid_argument with the reason when the word is not such a value.
void ReadValue(std::string_view kind, const ScriptWord& word, Step& step);

/// Whether the word could be a value of that kind, to decide about one that may be left out.
bool LooksLikeValue(std::string_view kind, const ScriptWord& word);

/// Reads the words behind the operation of `call` and `on`; the operation stands in step.words already.
/// Throws std::invalid_argument with the reason when they don't fit the operation.
void ReadArguments(std::span<const ScriptWord> words, Step& step);
