#include "platform/moduleskin/module_skin.h"

#include <gtest/gtest.h>

#include <afxwin.h>

#include "platform/moduleskin/resource.h"
#include "tests/support/framework_printers.h"

namespace
{

HINSTANCE Library()
{
    return ::GetModuleHandleW(L"ModuleSkin.dll");
}

TEST(ModuleSkin, TurnsTheLookUpToTheLibrary)
{
    const CModuleSkin skin(kModuleCalcTol);
    ASSERT_NE(Library(), nullptr);
    EXPECT_EQ(AfxGetResourceHandle(), Library());
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_INCREASING));
}

TEST(ModuleSkin, BringsTheFormerLookUpBack)
{
    const HINSTANCE former = AfxGetResourceHandle();
    {
        const CModuleSkin skin(kModuleCalcTol);
        ASSERT_NE(AfxGetResourceHandle(), former);
    }
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

TEST(ModuleSkin, StaysInForceWhenAnInnerGuardEnds)
{
    const HINSTANCE former = AfxGetResourceHandle();
    {
        const CModuleSkin outer(kModuleCalcTol);
        {
            const CModuleSkin inner(kModuleCalcTol);
        }
        EXPECT_EQ(AfxGetResourceHandle(), Library());
    }
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

// A host may have libraries of its own in force.
TEST(ModuleSkin, BringsBackAnotherLibraryThatWasInForce)
{
    const HINSTANCE former = AfxGetResourceHandle();
    const HINSTANCE other = ::GetModuleHandleW(L"framework.dll");
    AfxSetResourceHandle(other);
    {
        const CModuleSkin skin(kModuleCalcTol);
        EXPECT_EQ(AfxGetResourceHandle(), Library());
    }
    EXPECT_EQ(AfxGetResourceHandle(), other);
    AfxSetResourceHandle(former);
}

}  // namespace
