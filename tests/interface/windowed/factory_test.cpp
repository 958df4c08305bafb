#include <memory>

#include <gtest/gtest.h>

#include "dialog/calc_tol_dlg.h"
#include "interface/calc_tol_dlg_base.h"
#include "tests/support/resource_count.h"

namespace
{

TEST(Factory, MakesACalculationDialogWithoutAWindow)
{
    const std::unique_ptr<CCalcTolDlgBase> dialog(CCalcTolDlgBase::CreateCalcTolDlg());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->m_hWnd, nullptr);
    EXPECT_EQ(dialog->GetRuntimeClass(), RUNTIME_CLASS(CCalcTolDlg));
    EXPECT_NE(dynamic_cast<CCalcTolDlg*>(dialog.get()), nullptr);
}

TEST(Factory, MakesTheSameAsTheDynamicCreation)
{
    const std::unique_ptr<CObject> dynamic(RUNTIME_CLASS(CCalcTolDlg)->CreateObject());
    const std::unique_ptr<CObject> direct(CCalcTolDlg::CreateObject());
    const std::unique_ptr<CCalcTolDlgBase> made(CCalcTolDlgBase::CreateCalcTolDlg());
    ASSERT_NE(dynamic, nullptr);
    ASSERT_NE(direct, nullptr);
    EXPECT_EQ(dynamic->GetRuntimeClass(), made->GetRuntimeClass());
    EXPECT_EQ(direct->GetRuntimeClass(), made->GetRuntimeClass());
}

TEST(Factory, MakesADialogOfTheFramework)
{
    const CRuntimeClass* const runtimeClass = RUNTIME_CLASS(CCalcTolDlg);
    EXPECT_STREQ(runtimeClass->m_lpszClassName, "CCalcTolDlg");
    EXPECT_TRUE(runtimeClass->IsDerivedFrom(RUNTIME_CLASS(CDialog)));
    EXPECT_EQ(CRuntimeClass::FromName("CCalcTolDlg"), runtimeClass) << "a host can make it by name";
}

// The class's own operation is the only one of that name: nothing has to be cast, no window comes without a host.
TEST(Factory, MakesADialogWhoseWindowIsCreatedThroughTheBase)
{
    const std::unique_ptr<CCalcTolDlgBase> dialog(CCalcTolDlgBase::CreateCalcTolDlg());
    ASSERT_TRUE(dialog->Create(nullptr));
    EXPECT_TRUE(::IsWindowVisible(dialog->m_hWnd));
    dialog->DestroyWindow();
}

TEST(Factory, MakesADialogThatIsGoneAfterDelete)
{
    for (int i = 0; i < 2; ++i)
        delete CCalcTolDlgBase::CreateCalcTolDlg();
    const std::size_t blocks = HeapBlockCount();
    for (int i = 0; i < 5; ++i)
        delete CCalcTolDlgBase::CreateCalcTolDlg();
    EXPECT_EQ(HeapBlockCount(), blocks);
}

TEST(Factory, MakesDialogsWithoutAParent)
{
    CCalcTolDlg byDefault;
    EXPECT_EQ(byDefault.m_hWnd, nullptr);
    EXPECT_EQ(byDefault.GetCloseObject(), nullptr);
}

}  // namespace
