#pragma once

#include <optional>

#include <afxwin.h>

#include "tolerance/deviation_text.h"
#include "tolerance/tol_box.h"

/// Replaces the entries of the box by the library's tolerance fields: all of them with the short list's marked, or the
/// short list alone. The entry that equals the edit part's text is selected (the last one when it occurs twice); a text
/// that is not listed stays in the edit part with nothing selected. The box stays empty when the library has no list.
/// The controls tell their parent of changes here that are not the user's.
/// @throws the invalid-argument exception, with the box empty, when all fields are asked of a library that has fields
///         but an empty short list
void FillTolBox(CTolBox& box, bool listedOnly);

/// The limit deviations of a field as the dialogs show them, in millimetres; nothing when the library doesn't know the
/// field for this nominal size.
/// @param nominal  decimal text, millimetres; without a number it is 0
/// @param field    any text
std::optional<DeviationPair> FieldDeviations(const CString& nominal, const CString& field);
