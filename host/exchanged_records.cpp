#include "host/exchanged_records.h"

#include "calc/centre_of_grouping.h"
#include "calc/distribution_laws.h"
#include "platform/text/text_encoding.h"

namespace
{

// The module keeps the kind of a link as a picture, which only these kinds have.
std::int32_t KindInList(std::int32_t kind)
{
    return kind >= 1 && kind <= 3 ? kind : 0;
}

}  // namespace

CDimParams ToParams(const DrawingDimension& dimension)
{
    return {.tolField = FromUtf8(dimension.field),
            .nominal = FromUtf8(dimension.nominal),
            .name = FromUtf8(dimension.name),
            .upperDev = FromUtf8(dimension.upper),
            .lowerDev = FromUtf8(dimension.lower),
            .caption = FromUtf8(dimension.caption),
            .weightFixed = dimension.weightFixed,
            .increasing = dimension.increasing,
            .dimKind = dimension.kind};
}

void LoadRecord(CCalcTolDlgBase& dialog, RecordLoader loader, CDimParams params)
{
    int weightFixed = params.weightFixed;
    int increasing = params.increasing;
    (dialog.*loader)(params.name, params.nominal, params.caption, weightFixed, params.tolField, params.upperDev,
                     params.lowerDev, params.dimKind, increasing);
}

CopiedLink ToCopy(const CDimParams& params)
{
    CopiedLink link{.name = ToUtf8(params.name),
                    .nominal = ToUtf8(params.nominal),
                    .field = ToUtf8(params.tolField),
                    .upperDev = ToUtf8(params.upperDev),
                    .lowerDev = ToUtf8(params.lowerDev),
                    .kind = params.dimKind,
                    .increasing = params.increasing,
                    .law = kNormalLaw,
                    .mean = 0.0};
    link.mean = CentreOfGrouping(link.nominal, link.upperDev, link.lowerDev);
    return link;
}

CopiedLink Rewritten(const CopiedLink& link, const CDimParams& params)
{
    CopiedLink rewritten = ToCopy(params);
    rewritten.nominal = link.nominal;  // the row keeps it, while the mean is computed from the record's
    rewritten.kind = link.kind;
    rewritten.law = link.law;
    return rewritten;
}

bool MayShow(const CDimParams& params, const CopiedLink& link)
{
    const CopiedLink shown = ToCopy(params);
    return shown.name == link.name && shown.nominal == link.nominal && shown.field == link.field &&
           shown.upperDev == link.upperDev && shown.lowerDev == link.lowerDev && shown.increasing == link.increasing &&
           shown.kind == KindInList(link.kind);
}

bool MayShow(const CVariableParams& params, const CopiedLink& link)
{
    return ToUtf8(params.name) == link.name && ToUtf8(params.nominal) == link.nominal &&
           ToUtf8(params.upperDev) == link.upperDev && ToUtf8(params.lowerDev) == link.lowerDev &&
           params.dimKind == KindInList(link.kind) && params.law == link.law && params.mean == link.mean;
}

bool operator==(const CDimParams& left, const CDimParams& right)
{
    return left.tolField == right.tolField && left.nominal == right.nominal && left.name == right.name &&
           left.upperDev == right.upperDev && left.lowerDev == right.lowerDev && left.caption == right.caption &&
           left.weightFixed == right.weightFixed && left.increasing == right.increasing &&
           left.dimKind == right.dimKind;
}
