// CString: making, reading, comparing, taking parts, searching, writing through a pointer.

#include <compare>
#include <cwchar>
#include <utility>

#include <gtest/gtest.h>

#include "tests/platform/framework/raised.h"
#include "tests/support/framework_printers.h"

TEST(CString, StartsEmpty)
{
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_STREQ(text.GetString(), L"");
}

TEST(CString, ANullPointerIsTheEmptyText)
{
    const CString wide(static_cast<LPCWSTR>(nullptr));
    const CString narrow(static_cast<LPCSTR>(nullptr));
    CString assigned(L"x");
    assigned = static_cast<LPCWSTR>(nullptr);
    EXPECT_TRUE(wide.IsEmpty());
    EXPECT_TRUE(narrow.IsEmpty());
    EXPECT_TRUE(assigned.IsEmpty());
}

TEST(CString, TakesWideTextUnchanged)
{
    const CString text(L"\u00D825 H7");
    EXPECT_EQ(text.GetLength(), 6);
    EXPECT_EQ(text[0], L'\u00D8');
    EXPECT_STREQ(text, L"\u00D825 H7");
}

TEST(CString, TakesTheGivenNumberOfUnits)
{
    EXPECT_EQ(CString(L"H7/g6", 2), L"H7");
    EXPECT_EQ(CString("H7/g6", 2), L"H7");
    EXPECT_EQ(CString(L"H7", -1), L"");
}

TEST(CString, RepeatsAUnit)
{
    EXPECT_EQ(CString(L'0', 3), L"000");
    EXPECT_EQ(CString(L'0', 0), L"");
    EXPECT_EQ(CString(L'0', -2), L"");
}

// Byte 0xB5 stands for a character that every single-byte ANSI code page maps on its own; Windows is asked which one.
TEST(CString, ReadsNarrowTextInTheAnsiCodePage)
{
    const char narrow[] = {'\xB5', 'm', '\0'};
    wchar_t expected[8] = {};
    ASSERT_GT(::MultiByteToWideChar(CP_ACP, 0, narrow, -1, expected, 8), 0);
    EXPECT_STREQ(CString(narrow), expected);
}

TEST(CString, IsAValueOfItsOwnAfterCopying)
{
    CString original(L"A1");
    CString copy(original);
    copy.SetAt(0, L'B');
    EXPECT_EQ(original, L"A1");
    EXPECT_EQ(copy, L"B1");
    original = copy;
    copy += L"x";
    EXPECT_EQ(original, L"B1");
}

TEST(CString, MovingHandsTheTextOver)
{
    CString original(L"a text that is too long for a small buffer");
    const CString moved(std::move(original));
    EXPECT_EQ(moved, L"a text that is too long for a small buffer");
}

TEST(CString, AssignsEveryKindOfText)
{
    CString text;
    text = L"wide";
    EXPECT_EQ(text, L"wide");
    text = "narrow";
    EXPECT_EQ(text, L"narrow");
    text = L'u';
    EXPECT_EQ(text, L"u");
    text.SetString(L"part of it", 4);
    EXPECT_EQ(text, L"part");
    text.SetString(L"all");
    EXPECT_EQ(text, L"all");
}

TEST(CString, CanBeAssignedAPartOfItself)
{
    CString text(L"a beginning and an end that is long enough");
    text = text.GetString() + 16;
    EXPECT_EQ(text, L"an end that is long enough");
}

TEST(CString, ReadingAUnitOutsideRaisesInvalidArgument)
{
    const CString text(L"H7");
    EXPECT_EQ(text.GetAt(0), L'H');
    EXPECT_EQ(text.GetAt(1), L'7');
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { text.GetAt(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { text.GetAt(2); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { static_cast<void>(text[2]); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([] { CString().GetAt(0); }));
}

TEST(CString, ComparesByUnitValueAndByCase)
{
    const CString text(L"H7");
    EXPECT_EQ(text.Compare(L"H7"), 0);
    EXPECT_LT(text.Compare(L"h7"), 0);
    EXPECT_GT(text.Compare(L"H"), 0);
    EXPECT_GT(CString(L"\u0416").Compare(L"Z"), 0);
}

TEST(CString, ComparesWithoutCaseWhenAsked)
{
    EXPECT_EQ(CString(L"js6").CompareNoCase(L"JS6"), 0);
    EXPECT_EQ(CString(L"\u0436").CompareNoCase(L"\u0416"), 0);  // Cyrillic letter zhe
    EXPECT_LT(CString(L"g6").CompareNoCase(L"H6"), 0);
    EXPECT_GT(CString(L"h7").CompareNoCase(L"H6"), 0);
}

TEST(CString, HasAllComparisonOperatorsWithTextsAndPointers)
{
    const CString a(L"a");
    const CString b(L"b");
    EXPECT_TRUE(a == CString(L"a") && a == L"a" && L"a" == a);
    EXPECT_TRUE(a != b && a != L"b" && L"b" != a);
    EXPECT_TRUE(a < b && a < L"b" && L"a" < b);
    EXPECT_TRUE(b > a && b > L"a" && L"b" > a);
    EXPECT_TRUE(a <= b && a <= L"a" && L"a" <= a);
    EXPECT_TRUE(b >= a && a >= L"a" && L"a" >= a);
    EXPECT_FALSE(a == b || a == L"b" || L"b" == a || a > b || a >= L"b" || L"b" <= a);
}

TEST(CString, JoinsEveryKindOfText)
{
    const CString h(L"H");
    EXPECT_EQ(h + CString(L"7"), L"H7");
    EXPECT_EQ(h + L"7", L"H7");
    EXPECT_EQ(L"7" + h, L"7H");
    EXPECT_EQ(h + "7", L"H7");
    EXPECT_EQ("7" + h, L"7H");
    EXPECT_EQ(h + L'7', L"H7");
    EXPECT_EQ(L'7' + h, L"7H");
    EXPECT_EQ(h, L"H");
}

TEST(CString, MidCutsToWhatExists)
{
    const CString text(L"abcdef");
    EXPECT_EQ(text.Mid(2), L"cdef");
    EXPECT_EQ(text.Mid(2, 3), L"cde");
    EXPECT_EQ(text.Mid(4, 9), L"ef");
    EXPECT_EQ(text.Mid(6, 1), L"");
    EXPECT_EQ(text.Mid(9), L"");
    EXPECT_EQ(text.Mid(-2, 3), L"abc");
    EXPECT_EQ(text.Mid(1, -1), L"");
}

TEST(CString, LeftAndRightCutToWhatExists)
{
    const CString text(L"abcdef");
    EXPECT_EQ(text.Left(2), L"ab");
    EXPECT_EQ(text.Left(9), L"abcdef");
    EXPECT_EQ(text.Left(-1), L"");
    EXPECT_EQ(text.Right(2), L"ef");
    EXPECT_EQ(text.Right(9), L"abcdef");
    EXPECT_EQ(text.Right(0), L"");
    EXPECT_EQ(text.Right(-1), L"");
}

TEST(CString, SpansGiveTheBeginning)
{
    const CString text(L"12.5 mm");
    EXPECT_EQ(text.SpanIncluding(L"0123456789."), L"12.5");
    EXPECT_EQ(text.SpanIncluding(L"m"), L"");
    EXPECT_EQ(text.SpanExcluding(L" "), L"12.5");
    EXPECT_EQ(text.SpanExcluding(L"xyz"), L"12.5 mm");
    EXPECT_EQ(text.SpanIncluding(L"0123456789. m"), L"12.5 mm");
}

TEST(CString, FindsUnitsAndTextsFromAStart)
{
    const CString text(L"+0.5/-0.5");
    EXPECT_EQ(text.Find(L'0'), 1);
    EXPECT_EQ(text.Find(L'0', 2), 6);
    EXPECT_EQ(text.Find(L'x'), -1);
    EXPECT_EQ(text.Find(L"0.5"), 1);
    EXPECT_EQ(text.Find(L"0.5", 2), 6);
    EXPECT_EQ(text.Find(L"0.5", 7), -1);
    EXPECT_EQ(text.Find(L"5", 8), 8);
}

TEST(CString, FindsNothingWhenTheStartLiesOutside)
{
    const CString text(L"abc");
    EXPECT_EQ(text.Find(L'a', -1), -1);
    EXPECT_EQ(text.Find(L'a', 3), -1);
    EXPECT_EQ(text.Find(L"a", -1), -1);
    EXPECT_EQ(text.Find(L"a", 99), -1);
    EXPECT_EQ(CString().Find(L'a'), -1);
    EXPECT_EQ(text.Find(L"", 0), 0);
    EXPECT_EQ(text.Find(L"", 3), -1);
}

TEST(CString, FindsTheLastUnit)
{
    const CString text(L"a\\b\\c");
    EXPECT_EQ(text.ReverseFind(L'\\'), 3);
    EXPECT_EQ(text.ReverseFind(L'a'), 0);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
    EXPECT_EQ(CString().ReverseFind(L'x'), -1);
}

TEST(CString, FindsTheFirstUnitOfASet)
{
    const CString text(L"12,5");
    EXPECT_EQ(text.FindOneOf(L".,"), 2);
    EXPECT_EQ(text.FindOneOf(L"abc"), -1);
}

TEST(CString, BufferKeepsTheTextAndGivesRoom)
{
    CString text(L"abc");
    wchar_t* const buffer = text.GetBuffer(10);
    EXPECT_STREQ(buffer, L"abc");
    std::wcscpy(buffer, L"0123456789");
    text.ReleaseBuffer();
    EXPECT_EQ(text, L"0123456789");
    EXPECT_EQ(text.GetLength(), 10);
}

TEST(CString, ReleasingTheBufferTakesTheLengthUpToTheTerminator)
{
    CString text;
    std::wcscpy(text.GetBuffer(64), L"short");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 5);
    text.GetBuffer();
    text.ReleaseBuffer(2);
    EXPECT_EQ(text, L"sh");
}

TEST(CString, ASmallerBufferWishDoesNotShortenTheText)
{
    CString text(L"abcdef");
    EXPECT_STREQ(text.GetBuffer(2), L"abcdef");
    text.ReleaseBuffer();
    EXPECT_EQ(text, L"abcdef");
}

TEST(CString, SettingTheLengthCutsOrMakesRoom)
{
    CString text(L"abcdef");
    text.GetBufferSetLength(3);
    EXPECT_EQ(text, L"abc");
    wchar_t* const buffer = text.GetBufferSetLength(4);
    buffer[3] = L'd';
    EXPECT_EQ(text, L"abcd");
    EXPECT_EQ(text.GetLength(), 4);
}

TEST(CString, BufferLengthsOutsideRaiseInvalidArgument)
{
    CString text(L"abc");
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { text.GetBufferSetLength(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { text.ReleaseBuffer(4); }));
    EXPECT_EQ(text, L"abc");
}
