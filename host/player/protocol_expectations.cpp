#include <string>
#include <vector>

#include "calc/number_text.h"
#include "host/player/notification_log.h"
#include "host/player/step_failure.h"
#include "host/player/step_handler.h"
#include "host/player/window_text.h"
#include "interface/calc_tol_dlg_base.h"

namespace
{

template <class Code>
std::string CodesInWords(const std::vector<Code>& codes)
{
    std::string words;
    for (const Code code : codes)
        words += (words.empty() ? "" : " ") + std::to_string(code);
    return words.empty() ? "no notification" : words;
}

void ExpectNotified(const StepContext& context)
{
    const std::string expected = CodesInWords(context.step.codes);
    const std::string found = CodesInWords(context.play.notifications.TakeCodes());
    if (expected != found)
        throw StepFailure(expected, found);
}

CCalcTolDlgBase& DialogOf(const StepContext& context)
{
    CCalcTolDlgBase* const dialog = context.play.host.Dialog();
    if (dialog == nullptr)
        throw StepFailure("there is no calculation dialog");
    return *dialog;
}

std::string ObjectInWords(const StepContext& context, const void* object)
{
    if (object == nullptr)
        return "null";
    return context.play.host.DimensionOf(object).value_or("an object that the host never gave");
}

void ExpectObjects(const StepContext& context)
{
    CArray<void*, void*> objects;
    DialogOf(context).GetArrayObject(objects);
    std::string found;
    for (INT_PTR i = 0; i < objects.GetSize(); ++i)
        found += " " + ObjectInWords(context, objects[i]);
    std::string expected;
    for (const std::string& dimension : context.step.words)
        expected += " " + dimension;
    if (expected != found)
        throw StepFailure("objects:" + expected, "objects:" + found);
}

void ExpectClosingObject(const StepContext& context)
{
    const void* const object = DialogOf(context).GetCloseObject();
    const std::string expected = context.step.Chose("none") ? "none" : context.step.words.front();
    const std::string found = object == nullptr ? "none" : ObjectInWords(context, object);
    if (expected != found)
        throw StepFailure(expected, found);
}

std::string InWords(const CString& text)
{
    return ToUtf8({text.GetString(), static_cast<std::size_t>(text.GetLength())});
}

std::string FieldText(const CDimParams& params, RecordField field)
{
    switch (field)
    {
    case RecordField::kTolField:
        return InWords(params.tolField);
    case RecordField::kNominal:
        return InWords(params.nominal);
    case RecordField::kName:
        return InWords(params.name);
    case RecordField::kUpperDev:
        return InWords(params.upperDev);
    case RecordField::kLowerDev:
        return InWords(params.lowerDev);
    case RecordField::kCaption:
        return InWords(params.caption);
    case RecordField::kWeightFixed:
        return std::to_string(params.weightFixed);
    case RecordField::kIncreasing:
        return std::to_string(params.increasing);
    case RecordField::kDimKind:
        return std::to_string(params.dimKind);
    case RecordField::kLaw:
    case RecordField::kMean:
        break;
    }
    throw StepFailure("a dimension's record has no such field");
}

std::string FieldText(const CVariableParams& params, RecordField field)
{
    switch (field)
    {
    case RecordField::kNominal:
        return InWords(params.nominal);
    case RecordField::kName:
        return InWords(params.name);
    case RecordField::kUpperDev:
        return InWords(params.upperDev);
    case RecordField::kLowerDev:
        return InWords(params.lowerDev);
    case RecordField::kCaption:
        return InWords(params.caption);
    case RecordField::kDimKind:
        return std::to_string(params.dimKind);
    case RecordField::kLaw:
        return std::to_string(params.law);
    case RecordField::kMean:
        return NumberText9(params.mean);
    case RecordField::kTolField:
    case RecordField::kWeightFixed:
    case RecordField::kIncreasing:
        break;
    }
    throw StepFailure("a distribution's record has no such field");
}

template <class Record>
std::string FieldOf(const std::optional<Record>& record, RecordField field)
{
    if (!record)
        throw StepFailure("there was no dialog with that record");
    return FieldText(*record, field);
}

void ExpectRecord(const StepContext& context)
{
    const Step& step = context.step;
    ReadRecords records;
    if (step.number)
    {
        const ReadRecords* const inside = context.play.notifications.ReadInside(static_cast<UINT>(*step.number));
        if (inside == nullptr)
            throw StepFailure("there was no notification " + std::to_string(*step.number));
        records = *inside;
    }
    else
    {
        records = context.play.notifications.ReadNow();
    }
    const std::string expected = ResolveText(*step.text);
    std::string found;
    if (step.Chose("variable"))
        found = FieldOf(records.distribution, *step.field);
    else
        found = FieldOf(step.Chose("closing") ? records.closing : records.link, *step.field);
    if (expected != found)
        throw StepFailure(Quoted(expected), Quoted(found));
}

constexpr StepHandler kProtocolExpectations[] = {
    {.name = "expect-notified", .atOnce = ExpectNotified},
    {.name = "expect-objects", .atOnce = ExpectObjects},
    {.name = "expect-closing-object", .atOnce = ExpectClosingObject},
    {.name = "expect-record", .atOnce = ExpectRecord},
};

}  // namespace

std::span<const StepHandler> ProtocolExpectations()
{
    return kProtocolExpectations;
}
