#pragma once

#include <vector>

#include <afxwin.h>

#include "interface/dim_link.h"

/// A link as the weight dialog lists it: the texts and the image of its row in the chain list, and its record.
struct WeightLink
{
    CString name;                // column 0
    int image = -1;              // of column 0
    CString nominal;             // column 1
    CString tolField;            // column 2
    CString weightFixed;         // column 5
    CDimLink* record = nullptr;  // never null in a chain; the weight is written to it
};

/// The chain whose weights are edited, as the weight dialog asks for it when it opens.
class WeightChain
{
public:
    virtual ~WeightChain() = default;

    /// Text of the chain row.
    virtual CString ChainText() const = 0;
    /// All links, in chain order, shown or not.
    virtual std::vector<WeightLink> Links() const = 0;
};
