#include "dialog/row_values.h"

#include "calc/centre_of_grouping.h"
#include "calc/number_text.h"
#include "dialog/columns.h"
#include "platform/text/text_encoding.h"

namespace
{

double CellNumber(const CFListCtrl::CFListRow& row, int column)
{
    return TextToNumber(ToUtf8(row.Text(column)));
}

}  // namespace

double MeanOf(const CDimParams& params)
{
    return CentreOfGrouping(ToUtf8(params.nominal), ToUtf8(params.upperDev), ToUtf8(params.lowerDev));
}

ComponentLink ComponentLinkOf(const CFListCtrl::CFListRow& row)
{
    const CDimLink& record = *RecordOf(row);
    return {.nominal = CellNumber(row, kColumnNominal),
            .upperDev = CellNumber(row, kColumnUpperDev),
            .lowerDev = CellNumber(row, kColumnLowerDev),
            .increasing = record.increasing,
            .law = record.law,
            .mean = record.mean};
}

ClosingLink ClosingLinkOf(const CFListCtrl::CFListRow& row)
{
    return {.nominal = CellNumber(row, kColumnNominal),
            .upperDev = CellNumber(row, kColumnUpperDev),
            .lowerDev = CellNumber(row, kColumnLowerDev),
            .law = RecordOf(row)->law};
}
