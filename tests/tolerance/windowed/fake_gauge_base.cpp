#include "fake_gauge_base.h"

#include <ostream>

namespace
{

void Copy(const std::vector<CString>& from, CStringArray& to)
{
    for (const CString& text : from)
        to.Add(text);
}

}  // namespace

void PrintTo(const DimTolCall& call, std::ostream* out)
{
    *out << call.nominal << ' ' << call.field;
}

FakeGaugeBase& TheGaugeBase()
{
    static FakeGaugeBase library;
    return library;
}

int GetTolList(CStringArray& first, CStringArray& second, CStringArray& shortList)
{
    FakeGaugeBase& library = TheGaugeBase();
    ++library.listCalls;
    Copy(library.first, first);
    Copy(library.second, second);
    Copy(library.shortList, shortList);
    return library.listResult;
}

int GetDimTol(float nominal, const char* field, float* lower, float* upper)
{
    FakeGaugeBase& library = TheGaugeBase();
    library.calls.push_back({nominal, field});
    const auto found = library.fields.find(field);
    if (found == library.fields.end())
        return 0;
    *lower = found->second.lower;
    *upper = found->second.upper;
    return library.knownResult;
}
