// CString: formats and string resources.

#include <gtest/gtest.h>

#include "tests/platform/framework/raised.h"
#include "tests/platform/framework/string_ids.h"
#include "tests/support/framework_printers.h"

TEST(CStringFormat, TakesWideTextForS)
{
    CString text;
    text.Format(L"%s = %s", L"\u00D825", CString(L"H7").GetString());
    EXPECT_EQ(text, L"\u00D825 = H7");
}

TEST(CStringFormat, FormatsWholeNumbersAndUnits)
{
    CString text;
    text.Format(L"%d|%3d|%-3d|%03d|%u|%X|%c|%%", -5, 7, 7, 7, 4000000000U, 255U, L'\u00D8');
    EXPECT_EQ(text, L"-5|  7|7  |007|4000000000|FF|\u00D8|%");
}

TEST(CStringFormat, HasNoLimitOfLength)
{
    const CString part(L'x', 3000);
    CString text;
    text.Format(L"%s-%s", part.GetString(), part.GetString());
    EXPECT_EQ(text.GetLength(), 6001);
    EXPECT_EQ(text.Mid(2999, 3), L"x-x");
}

TEST(CStringFormat, MayTakeItsOwnTextAsArgument)
{
    CString text(L"chain");
    text.Format(L"<%s>", text.GetString());
    EXPECT_EQ(text, L"<chain>");
}

TEST(CStringFormat, AnEmptyResultReplacesTheText)
{
    CString text(L"before");
    text.Format(L"%s", L"");
    EXPECT_EQ(text, L"");
}

TEST(CStringFormat, AppendsBehindTheText)
{
    CString text(L"A");
    text.AppendFormat(L"%d", 1);
    text.AppendFormat(L"-%s", text.GetString());
    EXPECT_EQ(text, L"A1-A1");
}

TEST(CStringFormat, TakesTheFormatFromAStringResource)
{
    CString text;
    text.Format(IDS_FORMAT, L"chain", 3);
    EXPECT_EQ(text, L"chain has 3 links");
    text.AppendFormat(IDS_FORMAT, L"; other", 4);
    EXPECT_EQ(text, L"chain has 3 links; other has 4 links");
}

TEST(CStringFormat, AMissingFormatResourceRaisesAResourceException)
{
    CString text(L"kept");
    EXPECT_TRUE(Raises<CResourceException>([&] { text.Format(IDS_NOWHERE, 1); }));
    EXPECT_TRUE(Raises<CResourceException>([&] { text.AppendFormat(IDS_NOWHERE, 1); }));
    EXPECT_EQ(text, L"kept");
}

TEST(CStringFormat, ANullFormatRaisesInvalidArgument)
{
    CString text(L"kept");
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { text.Format(static_cast<LPCWSTR>(nullptr)); }));
    EXPECT_EQ(text, L"kept");
}
