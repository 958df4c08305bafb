#include <gtest/gtest.h>

#include "interface/calc_tol_dlg_base.h"
#include "platform/moduleskin/module_skin.h"
#include "platform/moduleskin/resource.h"
#include "tests/support/framework_printers.h"
#include "tests/support/planned_actions.h"
#include "tests/support/recording_window.h"

namespace
{

/// What a host may derive at the least.
class BareDialog : public CCalcTolDlgBase
{
public:
    explicit BareDialog(CWnd* parent = nullptr) : CCalcTolDlgBase(IDD_WEIGHT, parent) {}

    BOOL Create(CWnd* /*parent*/) override { return FALSE; }
};

// The test calls it as a host does: through the base.
struct BaseDefaults : testing::Test
{
    BareDialog bare;
    CCalcTolDlgBase& dialog = bare;

    CDimParams dimension{.tolField = L"H7",
                         .nominal = L"25",
                         .name = L"A1",
                         .upperDev = L"0.021",
                         .lowerDev = L"0",
                         .caption = L"Size",
                         .weightFixed = 1,
                         .increasing = 1,
                         .dimKind = 3};
    CVariableParams distribution{.nominal = L"25",
                                 .name = L"A1",
                                 .caption = L"Size",
                                 .upperDev = L"0.021",
                                 .lowerDev = L"0",
                                 .dimKind = 3,
                                 .law = 2,
                                 .mean = 25.01};

    void ExpectDimensionUntouched() const
    {
        EXPECT_EQ(dimension.tolField, L"H7");
        EXPECT_EQ(dimension.nominal, L"25");
        EXPECT_EQ(dimension.name, L"A1");
        EXPECT_EQ(dimension.upperDev, L"0.021");
        EXPECT_EQ(dimension.lowerDev, L"0");
        EXPECT_EQ(dimension.caption, L"Size");
        EXPECT_EQ(dimension.weightFixed, 1);
        EXPECT_EQ(dimension.increasing, 1);
        EXPECT_EQ(dimension.dimKind, 3);
    }

    void ExpectDistributionUntouched() const
    {
        EXPECT_EQ(distribution.nominal, L"25");
        EXPECT_EQ(distribution.name, L"A1");
        EXPECT_EQ(distribution.caption, L"Size");
        EXPECT_EQ(distribution.upperDev, L"0.021");
        EXPECT_EQ(distribution.lowerDev, L"0");
        EXPECT_EQ(distribution.dimKind, 3);
        EXPECT_EQ(distribution.law, 2);
        EXPECT_EQ(distribution.mean, 25.01);
    }
};

TEST_F(BaseDefaults, LeaveTheArgumentsOfSetDlgParamsAlone)
{
    CDimParams& d = dimension;
    dialog.SetDlgParams(d.name, d.nominal, d.caption, d.weightFixed, d.tolField, d.upperDev, d.lowerDev, 2,
                        d.increasing);
    ExpectDimensionUntouched();
}

TEST_F(BaseDefaults, LeaveTheArgumentsOfSetCloseDimDlgParamsAlone)
{
    CDimParams& d = dimension;
    dialog.SetCloseDimDlgParams(d.name, d.nominal, d.caption, d.weightFixed, d.tolField, d.upperDev, d.lowerDev, 2,
                                d.increasing);
    ExpectDimensionUntouched();
}

TEST_F(BaseDefaults, GiveNothingBackInTheRecords)
{
    dialog.GetDimDlgParams(dimension);
    dialog.GetCloseDimDlgParams(dimension);
    dialog.GetVariableDlgParams(distribution);
    ExpectDimensionUntouched();
    ExpectDistributionUntouched();
}

TEST_F(BaseDefaults, LeaveWhatIsWrittenBackAlone)
{
    dialog.SetCurrentFRowData(dimension);
    dialog.SetCloseFRowData(dimension);
    dialog.SetVariableFRowData(distribution);
    dialog.SetVariableCloseFRowData(distribution);
    ExpectDimensionUntouched();
    ExpectDistributionUntouched();
}

TEST_F(BaseDefaults, HaveNoObjects)
{
    int object = 0;
    dialog.AddToList(&object);
    dialog.AddCloseDimToList(&object);
    dialog.GetCurrentObject(&object);
    CArray<void*, void*> objects;
    objects.Add(this);
    dialog.GetArrayObject(objects);
    ASSERT_EQ(objects.GetSize(), 1);
    EXPECT_EQ(objects[0], this);
    EXPECT_EQ(dialog.GetCloseObject(), nullptr);
    EXPECT_EQ(object, 0);
}

TEST_F(BaseDefaults, LeaveTheWindowAlone)
{
    RecordingWindow owner;
    const CModuleSkin skin(kModuleCalcTol);
    ASSERT_TRUE(dialog.CDialog::Create(IDD_WEIGHT, &owner));
    const HWND window = dialog.m_hWnd;
    CString former;
    dialog.GetWindowText(former);

    const CString name = L"chain";
    dialog.SetFileName(name);
    dialog.EndModal();
    dialog.CancelDialog();

    EXPECT_EQ(name, L"chain");
    EXPECT_EQ(dialog.m_hWnd, window);
    EXPECT_TRUE(::IsWindow(window));
    CString now;
    dialog.GetWindowText(now);
    EXPECT_EQ(now, former);
    dialog.DestroyWindow();
}

TEST_F(BaseDefaults, PassTemplateAndParentToTheFrameworksDialog)
{
    RecordingWindow owner;
    BareDialog owned(&owner);
    HWND shownOwner = nullptr;
    bool hasTemplatesControl = false;
    DoWhen([&] { return owned.m_hWnd != nullptr; },
           [&] {
               shownOwner = ::GetWindow(owned.m_hWnd, GW_OWNER);
               hasTemplatesControl = ::GetDlgItem(owned.m_hWnd, IDC_WEIGHT_SLIDER) != nullptr;
               owned.EndDialog(IDCANCEL);
           });
    const CModuleSkin skin(kModuleCalcTol);
    EXPECT_EQ(owned.DoModal(), IDCANCEL);
    EXPECT_EQ(shownOwner, owner.m_hWnd);
    EXPECT_TRUE(hasTemplatesControl);
}

TEST_F(BaseDefaults, CarrySixTextsBesideTheFrameworksDialog)
{
    EXPECT_EQ(sizeof(CCalcTolDlgBase), sizeof(CDialog) + 6 * sizeof(CString));
}

}  // namespace
