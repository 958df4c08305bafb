#include "platform/gaugebase/gauge_base.h"

#include "platform/gaugebase/limit_deviations.h"
#include "platform/gaugebase/tolerance_classes.h"

#include <span>
#include <string>
#include <string_view>

namespace
{

void Append(CStringArray& list, std::span<const std::string_view> entries)
{
    for (const std::string_view entry : entries)
        list.Add(std::wstring(entry.begin(), entry.end()).c_str());  // ASCII: widening keeps every character
}

}  // namespace

int GetTolList(CStringArray& first, CStringArray& second, CStringArray& shortList)
{
    Append(first, iso286::DeviationLetters());
    Append(second, iso286::Grades());
    Append(shortList, iso286::PreferredClasses());
    return 1;
}

int GetDimTol(float nominal, const char* field, float* lower, float* upper)
{
    const auto limits = iso286::FindLimitDeviations(nominal, field ? field : "");
    if (!limits)
        return 0;
    *lower = limits->lower;
    *upper = limits->upper;
    return 1;
}
