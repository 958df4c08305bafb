#pragma once

#include <optional>
#include <string_view>

/// The fields of the two records that the host and the module exchange.
enum class RecordField
{
    kTolField,
    kNominal,
    kName,
    kUpperDev,
    kLowerDev,
    kCaption,
    kWeightFixed,
    kIncreasing,
    kDimKind,
    kLaw,
    kMean
};

/// A field by the name that drawings use ("field", "upper", "kind") or by its name in the record ("tolField").
std::optional<RecordField> RecordFieldOf(std::string_view name);

/// Whether the record of a dimension (else that of a distribution) has the field.
bool IsDimensionField(RecordField field);
bool IsDistributionField(RecordField field);
