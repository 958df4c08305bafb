#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "interface/calc_tol_dlg_base.h"

namespace
{

/// The place of a virtual operation in its class's table, counted in operations.
///
/// A pointer to a virtual member is the operation's offset in the table plus 1, in bytes, followed by the adjustment of
/// the object pointer.
template <typename Operation>
std::ptrdiff_t Slot(Operation operation)
{
    struct Words
    {
        std::ptrdiff_t offsetPlusOne;
        std::ptrdiff_t adjustment;
    };
    const auto words = std::bit_cast<Words>(operation);
    EXPECT_EQ(words.offsetPlusOne % 2, 1) << "not virtual";
    EXPECT_EQ(words.adjustment, 0);
    return (words.offsetPlusOne - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

// The last virtual operation that the framework's dialog adds.
class LastOfDialog : public CDialog
{
public:
    static std::ptrdiff_t Slot() { return ::Slot(&LastOfDialog::OnCancel); }
};

using Base = CCalcTolDlgBase;
using LoadDimension = void (Base::*)(CString&, CString&, CString&, int&, CString&, CString&, CString&, int, int&);

// Each line also pins the operation's signature.
std::vector<std::ptrdiff_t> SlotsInContractOrder()
{
    return {Slot(static_cast<BOOL (Base::*)(CWnd*)>(&Base::Create)),
            Slot<void (Base::*)(CString)>(&Base::SetFileName),
            Slot<void (Base::*)()>(&Base::EndModal),
            Slot<LoadDimension>(&Base::SetDlgParams),
            Slot<void (Base::*)(CDimParams&)>(&Base::GetDimDlgParams),
            Slot<void (Base::*)(CVariableParams&)>(&Base::GetVariableDlgParams),
            Slot<void (Base::*)(CDimParams&)>(&Base::GetCloseDimDlgParams),
            Slot<void (Base::*)(CArray<void*, void*>&)>(&Base::GetArrayObject),
            Slot<void (Base::*)(void*)>(&Base::GetCurrentObject),
            Slot<void (Base::*)(CDimParams&)>(&Base::SetCurrentFRowData),
            Slot<void (Base::*)(CVariableParams&)>(&Base::SetVariableFRowData),
            Slot<void (Base::*)(CVariableParams&)>(&Base::SetVariableCloseFRowData),
            Slot<void (Base::*)(void*)>(&Base::AddToList),
            Slot<void (Base::*)(void*)>(&Base::AddCloseDimToList),
            Slot<void* (Base::*)()>(&Base::GetCloseObject),
            Slot<void (Base::*)(CDimParams&)>(&Base::SetCloseFRowData),
            Slot<LoadDimension>(&Base::SetCloseDimDlgParams),
            Slot<void (Base::*)()>(&Base::CancelDialog)};
}

TEST(Slots, FollowEachOtherInTheOrderOfTheContract)
{
    const std::vector<std::ptrdiff_t> slots = SlotsInContractOrder();
    ASSERT_EQ(slots.size(), 18U);
    for (std::size_t i = 1; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slots[i - 1] + 1) << "operation " << i + 1;
}

TEST(Slots, FollowThoseOfTheFrameworksDialog)
{
    EXPECT_EQ(SlotsInContractOrder().front(), LastOfDialog::Slot() + 1);
}

TEST(Slots, LeaveTheDestructorVirtual)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<Base>);
    EXPECT_TRUE(std::is_abstract_v<Base>);
}

TEST(Slots, BelongToADialog)
{
    EXPECT_TRUE((std::is_base_of_v<CDialog, Base>));
    EXPECT_TRUE((std::is_constructible_v<CDialog, UINT, CWnd*>));
}

}  // namespace
