#include <gtest/gtest.h>

#include "tests/platform/framework/second_module.h"
#include "tests/platform/framework/string_ids.h"
#include "tests/support/framework_printers.h"

namespace
{
// Every test ends with the resource module that it began with.
struct ResourceLookup : testing::Test
{
    ResourceLookup() : former(AfxGetResourceHandle()) {}
    ~ResourceLookup() override { AfxSetResourceHandle(former); }

    HINSTANCE former;
};

CString Loaded(UINT id)
{
    CString text(L"before");
    return text.LoadString(id) ? text : CString(L"missing, text is ") + text;
}
}  // namespace

TEST_F(ResourceLookup, TheProgramIsTheResourceModuleAtFirst)
{
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandleW(nullptr));
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
}

TEST_F(ResourceLookup, AnotherResourceModuleCanBeSetForTheProcess)
{
    ASSERT_NE(SecondModuleInstance(), AfxGetInstanceHandle());
    AfxSetResourceHandle(SecondModuleInstance());
    EXPECT_EQ(AfxGetResourceHandle(), SecondModuleInstance());
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandleW(nullptr));
}

TEST_F(ResourceLookup, FindsAResourceInTheCurrentModuleAndElseInTheProgram)
{
    const LPCWSTR inSecond = MAKEINTRESOURCEW(IDS_IN_SECOND_MODULE);
    const LPCWSTR inProgram = MAKEINTRESOURCEW(IDS_IN_PROGRAM);
    AfxSetResourceHandle(SecondModuleInstance());
    EXPECT_EQ(AfxFindResourceHandle(inSecond, RT_RCDATA), SecondModuleInstance());
    EXPECT_EQ(AfxFindResourceHandle(inProgram, RT_RCDATA), AfxGetInstanceHandle());
    AfxSetResourceHandle(AfxGetInstanceHandle());
    EXPECT_EQ(AfxFindResourceHandle(inProgram, RT_RCDATA), AfxGetInstanceHandle());
}

TEST_F(ResourceLookup, AResourceFoundNowhereIsExpectedInTheCurrentModule)
{
    AfxSetResourceHandle(SecondModuleInstance());
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(IDS_NOWHERE), RT_RCDATA), SecondModuleInstance());
}

TEST_F(ResourceLookup, TheCurrentModulesStringComesFirst)
{
    EXPECT_EQ(Loaded(IDS_IN_BOTH), L"of the program");
    AfxSetResourceHandle(SecondModuleInstance());
    EXPECT_EQ(Loaded(IDS_IN_BOTH), L"of the second module");
    EXPECT_EQ(Loaded(IDS_IN_SECOND_MODULE), L"\u00D8 of the second module alone");
}

// Strings are stored in blocks of 16; the second module has this block, but not this string.
TEST_F(ResourceLookup, AStringMissingInTheCurrentModuleComesFromTheProgram)
{
    static_assert(IDS_IN_PROGRAM / 16 == IDS_NEIGHBOUR_IN_SECOND_MODULE / 16);
    AfxSetResourceHandle(SecondModuleInstance());
    EXPECT_EQ(Loaded(IDS_IN_PROGRAM), L"of the program alone");
}

TEST_F(ResourceLookup, AMissingStringLeavesTheText)
{
    EXPECT_EQ(Loaded(IDS_NOWHERE), L"missing, text is before");
    EXPECT_EQ(Loaded(IDS_IN_SECOND_MODULE), L"missing, text is before");
}

TEST_F(ResourceLookup, AStringCanBeLoadedFromAGivenModule)
{
    CString text;
    EXPECT_TRUE(text.LoadString(SecondModuleInstance(), IDS_IN_BOTH));
    EXPECT_EQ(text, L"of the second module");
    EXPECT_FALSE(text.LoadString(SecondModuleInstance(), IDS_IN_PROGRAM));
    EXPECT_EQ(text, L"of the second module");
}

TEST_F(ResourceLookup, LoadsAStringIntoABufferAndCutsIt)
{
    wchar_t buffer[8] = {};
    EXPECT_EQ(AfxLoadString(IDS_IN_BOTH, buffer, 7), 6);
    EXPECT_STREQ(buffer, L"of the");
    EXPECT_EQ(AfxLoadString(IDS_NOWHERE, buffer, 7), 0);
    EXPECT_STREQ(buffer, L"");
}
