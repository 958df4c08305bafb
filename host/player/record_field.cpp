#include "host/player/record_field.h"

#include <utility>

std::optional<RecordField> RecordFieldOf(std::string_view name)
{
    static constexpr std::pair<std::string_view, RecordField> kNames[] = {
        {"tolField", RecordField::kTolField},
        {"field", RecordField::kTolField},
        {"nominal", RecordField::kNominal},
        {"name", RecordField::kName},
        {"upperDev", RecordField::kUpperDev},
        {"upper", RecordField::kUpperDev},
        {"lowerDev", RecordField::kLowerDev},
        {"lower", RecordField::kLowerDev},
        {"caption", RecordField::kCaption},
        {"weightFixed", RecordField::kWeightFixed},
        {"increasing", RecordField::kIncreasing},
        {"dimKind", RecordField::kDimKind},
        {"kind", RecordField::kDimKind},
        {"law", RecordField::kLaw},
        {"mean", RecordField::kMean},
    };
    for (const auto& [known, field] : kNames)
    {
        if (known == name)
            return field;
    }
    return std::nullopt;
}

bool IsDimensionField(RecordField field)
{
    return field != RecordField::kLaw && field != RecordField::kMean;
}

bool IsDistributionField(RecordField field)
{
    return field != RecordField::kTolField && field != RecordField::kWeightFixed && field != RecordField::kIncreasing;
}
