#pragma once

#include "calc/chain_calculation.h"
#include "grid/f_list_ctrl.h"
#include "interface/dim_link.h"
#include "interface/dim_params.h"

// The values of a row: texts in its cells, the rest in the record that is its user data.

/// The record of a link row or of the closing row; null when the row has none.
inline CDimLink* RecordOf(const CFListCtrl::CFListRow& row)
{
    return static_cast<CDimLink*>(row.UserData());
}

/// The middle of the tolerance field of what the host gave.
double MeanOf(const CDimParams& params);

/// A link row as the calculation takes it. The row has a record.
ComponentLink ComponentLinkOf(const CFListCtrl::CFListRow& row);

/// The closing row as the calculation takes it. The row has a record.
ClosingLink ClosingLinkOf(const CFListCtrl::CFListRow& row);
