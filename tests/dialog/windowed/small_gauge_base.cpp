#include "platform/gaugebase/gauge_base.h"

#include <string_view>

// A library in the place of GaugeBase.dll that knows one field, so that the tolerance dialogs, which list all fields,
// open fast.

int GetTolList(CStringArray& first, CStringArray& second, CStringArray& shortList)
{
    first.Add(L"H");
    second.Add(L"7");
    shortList.Add(L"H7");
    return 1;
}

// The deviations that the standard gives for 18 to 30 mm, for every size.
int GetDimTol(float /*nominal*/, const char* field, float* lower, float* upper)
{
    if (field == nullptr || std::string_view(field) != "H7")
        return 0;
    *lower = 0.0F;
    *upper = 21.0F;
    return 1;
}
