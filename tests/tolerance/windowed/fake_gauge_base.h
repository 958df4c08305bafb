#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include <afxwin.h>

#include "platform/gaugebase/gauge_base.h"

struct DimTolCall
{
    float nominal;
    std::string field;

    bool operator==(const DimTolCall&) const = default;
};

GAUGEBASE_API void PrintTo(const DimTolCall& call, std::ostream* out);

/// Micrometres, as the library gives them.
struct LibraryDeviations
{
    float lower;
    float upper;
};

/// What a library in the place of GaugeBase.dll answers from, and its log of what it was asked.
struct FakeGaugeBase
{
    std::vector<CString> first;
    std::vector<CString> second;
    std::vector<CString> shortList;
    int listResult = 1;
    int knownResult = 1;  // for a field that it knows
    std::map<std::string, LibraryDeviations> fields;

    int listCalls = 0;
    std::vector<DimTolCall> calls;
};

/// The one that GetTolList and GetDimTol use.
GAUGEBASE_API FakeGaugeBase& TheGaugeBase();
