#include "host/player/step_table.h"

namespace
{

constexpr StepForm kStepForms[] = {
    // what the host does
    {"drawing", "FILE"},
    {"open", "[TEXT]"},
    {"pick", "DIMENSION"},
    {"answer", "off|on CODE..."},
    {"call", "OPERATION ARGUMENT..."},
    {"on", "CODE OPERATION ARGUMENT..."},
    {"cancel-dialog", ""},
    {"end-modal", ""},
    {"print", ""},
    // what a person does
    {"command", "[WINDOW] ID"},
    {"press", "WINDOW CONTROL"},
    {"type", "WINDOW CONTROL TEXT"},
    {"choose", "WINDOW CONTROL N"},
    {"slide", "WINDOW CONTROL N"},
    {"click", "WINDOW CONTROL ROW COLUMN [left|double|right|check|expand]"},
    {"click-at", "WINDOW CONTROL X Y [left|double|right] [at ROW COLUMN]"},
    {"key", "WINDOW CONTROL KEY"},
    {"char", "WINDOW CONTROL TEXT"},
    {"menu-pick", "ID"},
    {"menu-dismiss", ""},
    {"close-dialog", ""},
    // what is seen
    {"expect-open", "WINDOW"},
    {"expect-closed", "WINDOW"},
    {"expect-text", "WINDOW CONTROL TEXT"},
    {"expect-enabled", "WINDOW CONTROL yes|no"},
    {"expect-visible", "WINDOW CONTROL yes|no"},
    {"expect-checked", "WINDOW CONTROL yes|no"},
    {"expect-selected", "WINDOW CONTROL N"},
    {"expect-count", "WINDOW CONTROL N"},
    {"expect-rows", "WINDOW CONTROL N"},
    {"expect-cell", "WINDOW CONTROL ROW COLUMN TEXT"},
    {"expect-focus", "WINDOW CONTROL ROW COLUMN"},
    {"expect-focused", "[WINDOW] CONTROL|none"},
    {"expect-menu", "ID enabled|disabled [checked|unchecked]"},
    {"expect-context", "GRID ID enabled|disabled"},
    {"expect-message", "N"},
    {"expect-column", "WINDOW CONTROL N TEXT left|center|right WIDTH"},
    {"expect-entry", "WINDOW CONTROL N TEXT [DATA] [bold|plain]"},
    {"expect-style", "WINDOW CONTROL style|exstyle|list|box MASK VALUE"},
    {"expect-rect", "WINDOW CONTROL X Y W H [at ROW COLUMN]"},
    {"expect-image", "WINDOW CONTROL N|none [ROW]"},
    {"expect-pixel", "WINDOW CONTROL X Y COLOUR [TOLERANCE] [at ROW COLUMN]"},
    {"screenshot", "WINDOW FILE"},
    {"mark", ""},
    {"expect-steady", ""},
    // what the host was told
    {"expect-notified", "CODE..."},
    {"expect-objects", "DIMENSION..."},
    {"expect-closing-object", "DIMENSION|none"},
    {"expect-record", "CODE|now dim|closing|variable FIELD TEXT"},
};

constexpr Operation kOperations[] = {
    {"Create", CallForm::kNothing},
    {"SetFileName", CallForm::kText},
    {"EndModal", CallForm::kNothing},
    {"SetDlgParams", CallForm::kDimension},
    {"GetDimDlgParams", CallForm::kNothing},
    {"GetVariableDlgParams", CallForm::kNothing},
    {"GetCloseDimDlgParams", CallForm::kNothing},
    {"GetArrayObject", CallForm::kNothing},
    {"GetCurrentObject", CallForm::kObject},
    {"SetCurrentFRowData", CallForm::kDimension},
    {"SetVariableFRowData", CallForm::kDistribution},
    {"SetVariableCloseFRowData", CallForm::kDistribution},
    {"AddToList", CallForm::kObject},
    {"AddCloseDimToList", CallForm::kObject},
    {"GetCloseObject", CallForm::kNothing},
    {"SetCloseFRowData", CallForm::kDimension},
    {"SetCloseDimDlgParams", CallForm::kDimension},
    {"CancelDialog", CallForm::kNothing},
    {"Destroy", CallForm::kNothing},
    {"Delete", CallForm::kNothing},
};

template <class Entry>
const Entry* Find(std::span<const Entry> entries, std::string_view name)
{
    for (const Entry& entry : entries)
    {
        if (entry.name == name)
            return &entry;
    }
    return nullptr;
}

}  // namespace

std::span<const StepForm> StepForms()
{
    return kStepForms;
}

const StepForm* FindStepForm(std::string_view name)
{
    return Find(StepForms(), name);
}

std::span<const Operation> Operations()
{
    return kOperations;
}

const Operation* FindOperation(std::string_view name)
{
    return Find(Operations(), name);
}
