#include "host/player/interface_calls.h"

#include <string>

#include "calc/number_text.h"
#include "host/exchanged_records.h"
#include "host/player/notification_log.h"
#include "host/player/step_failure.h"
#include "host/player/window_text.h"
#include "interface/calc_tol_dlg_base.h"

namespace
{

struct Call
{
    PlayState& play;
    const Step& step;
    CCalcTolDlgBase& dialog;

    NotificationLog& Records() const { return play.notifications; }
};

CString TextOf(const ScriptText& text)
{
    return CString(ToWide(ResolveText(text)).c_str());
}

double NumberOf(const ScriptText& text)
{
    return TextToNumber(ResolveText(text));
}

std::int32_t WholeNumberOf(const ScriptText& text)
{
    return static_cast<std::int32_t>(NumberOf(text));
}

void SetField(CDimParams& params, const FieldValue& value)
{
    switch (value.field)
    {
    case RecordField::kTolField:
        params.tolField = TextOf(value.value);
        break;
    case RecordField::kNominal:
        params.nominal = TextOf(value.value);
        break;
    case RecordField::kName:
        params.name = TextOf(value.value);
        break;
    case RecordField::kUpperDev:
        params.upperDev = TextOf(value.value);
        break;
    case RecordField::kLowerDev:
        params.lowerDev = TextOf(value.value);
        break;
    case RecordField::kCaption:
        params.caption = TextOf(value.value);
        break;
    case RecordField::kWeightFixed:
        params.weightFixed = WholeNumberOf(value.value);
        break;
    case RecordField::kIncreasing:
        params.increasing = WholeNumberOf(value.value);
        break;
    case RecordField::kDimKind:
        params.dimKind = WholeNumberOf(value.value);
        break;
    case RecordField::kLaw:
    case RecordField::kMean:
        break;  // refused by the reader
    }
}

void SetField(CVariableParams& params, const FieldValue& value)
{
    switch (value.field)
    {
    case RecordField::kNominal:
        params.nominal = TextOf(value.value);
        break;
    case RecordField::kName:
        params.name = TextOf(value.value);
        break;
    case RecordField::kUpperDev:
        params.upperDev = TextOf(value.value);
        break;
    case RecordField::kLowerDev:
        params.lowerDev = TextOf(value.value);
        break;
    case RecordField::kCaption:
        params.caption = TextOf(value.value);
        break;
    case RecordField::kDimKind:
        params.dimKind = WholeNumberOf(value.value);
        break;
    case RecordField::kLaw:
        params.law = WholeNumberOf(value.value);
        break;
    case RecordField::kMean:
        params.mean = NumberOf(value.value);
        break;
    case RecordField::kTolField:
    case RecordField::kWeightFixed:
    case RecordField::kIncreasing:
        break;  // refused by the reader
    }
}

// The record of the dimension that the step names, else the one that was read last, with the step's fields.
CDimParams DimensionOf(const Call& call)
{
    const std::vector<std::string>& words = call.step.words;
    CDimParams params = words.size() > 1 ? call.play.host.RecordOf(words[1]) : call.Records().LastDimension();
    for (const FieldValue& field : call.step.fields)
        SetField(params, field);
    return params;
}

CVariableParams DistributionOf(const Call& call)
{
    CVariableParams params = call.Records().LastDistribution();
    for (const FieldValue& field : call.step.fields)
        SetField(params, field);
    return params;
}

void* ObjectOf(const Call& call)
{
    return call.step.Chose("null") ? nullptr : call.play.host.ObjectOf(call.step.words[1]);
}

void Load(const Call& call, RecordLoader loader)
{
    LoadRecord(call.dialog, loader, DimensionOf(call));
}

struct Operation
{
    std::string_view name;
    void (*make)(const Call& call);
};

// CancelDialog, EndModal, Destroy and Delete are the host's own and stand below.
constexpr Operation kCalls[] = {
    {"Create",
     [](const Call& call) {
         if (!call.dialog.Create(CWnd::FromHandle(call.play.host.MainWindow())))
             throw StepFailure("Create returns 0");
     }},
    {"SetFileName", [](const Call& call) { call.dialog.SetFileName(TextOf(*call.step.text)); }},
    {"SetDlgParams", [](const Call& call) { Load(call, &CCalcTolDlgBase::SetDlgParams); }},
    {"SetCloseDimDlgParams", [](const Call& call) { Load(call, &CCalcTolDlgBase::SetCloseDimDlgParams); }},
    {"GetDimDlgParams", [](const Call& call) { call.dialog.GetDimDlgParams(call.Records().LastDimension()); }},
    {"GetCloseDimDlgParams",
     [](const Call& call) { call.dialog.GetCloseDimDlgParams(call.Records().LastDimension()); }},
    {"GetVariableDlgParams",
     [](const Call& call) { call.dialog.GetVariableDlgParams(call.Records().LastDistribution()); }},
    {"GetArrayObject",
     [](const Call& call) {
         CArray<void*, void*> objects;
         call.dialog.GetArrayObject(objects);
     }},
    {"GetCloseObject", [](const Call& call) { call.dialog.GetCloseObject(); }},
    {"GetCurrentObject", [](const Call& call) { call.dialog.GetCurrentObject(ObjectOf(call)); }},
    {"AddToList", [](const Call& call) { call.dialog.AddToList(ObjectOf(call)); }},
    {"AddCloseDimToList", [](const Call& call) { call.dialog.AddCloseDimToList(ObjectOf(call)); }},
    {"SetCurrentFRowData",
     [](const Call& call) {
         CDimParams params = DimensionOf(call);
         call.dialog.SetCurrentFRowData(params);
     }},
    {"SetCloseFRowData",
     [](const Call& call) {
         CDimParams params = DimensionOf(call);
         call.dialog.SetCloseFRowData(params);
     }},
    {"SetVariableFRowData",
     [](const Call& call) {
         CVariableParams params = DistributionOf(call);
         call.dialog.SetVariableFRowData(params);
     }},
    {"SetVariableCloseFRowData",
     [](const Call& call) {
         CVariableParams params = DistributionOf(call);
         call.dialog.SetVariableCloseFRowData(params);
     }},
};

// The calls that the host keeps a record of its own about; false for any other.
bool MakeHostCall(PlayedHost& host, const std::string& name)
{
    if (name == "CancelDialog")
        host.CancelDialog();
    else if (name == "EndModal")
        host.EndModal();
    else if (name == "Destroy")
        host.DestroyDialog();
    else if (name == "Delete")
        host.DeleteDialog();
    else
        return false;
    return true;
}

}  // namespace

void MakeCall(PlayState& play, const Step& step)
{
    CCalcTolDlgBase* const dialog = play.host.Dialog();
    if (dialog == nullptr)
        throw StepFailure("there is no calculation dialog");
    const std::string& name = step.words.front();
    if (MakeHostCall(play.host, name))
        return;
    for (const Operation& operation : kCalls)
    {
        if (operation.name == name)
        {
            operation.make({play, step, *dialog});
            return;
        }
    }
    throw StepFailure("the player can't call " + name);
}
