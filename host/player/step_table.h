#pragma once

#include <span>
#include <string_view>

/// The form of a step: its name and what stands behind it.
///
/// The pattern is read word by word. A word in capitals is a value of that kind, small words joined by | are a choice
/// between exactly these words, [ ] encloses what may be left out (neighbouring ones in any order), and ... behind a
/// word takes all words that are left, also none.
struct StepForm
{
    std::string_view name;
    std::string_view pattern;
};

/// Every step of the language.
std::span<const StepForm> StepForms();

/// Null for a name that is no step.
const StepForm* FindStepForm(std::string_view name);

/// What the operations of `call` and `on` take.
enum class CallForm
{
    kNothing,
    kText,         ///< a text
    kObject,       ///< a dimension or null
    kDimension,    ///< fields of a dimension's record, behind the dimension whose record they change or alone
    kDistribution  ///< fields of a distribution's record
};

struct Operation
{
    std::string_view name;
    CallForm form;
};

/// Every operation that `call` and `on` know.
std::span<const Operation> Operations();

/// Null for a name that is no operation.
const Operation* FindOperation(std::string_view name);
