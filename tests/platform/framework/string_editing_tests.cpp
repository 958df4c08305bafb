// CString: everything that changes a text.

#include <gtest/gtest.h>

#include "tests/platform/framework/raised.h"
#include "tests/support/framework_printers.h"

TEST(CStringEditing, EmptiesTheText)
{
    CString text(L"abc");
    text.Empty();
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
}

TEST(CStringEditing, SettingAUnitOutsideRaisesInvalidArgument)
{
    CString text(L"H7");
    text.SetAt(1, L'8');
    EXPECT_EQ(text, L"H8");
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { text.SetAt(2, L'x'); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { text.SetAt(-1, L'x'); }));
    EXPECT_EQ(text, L"H8");
}

TEST(CStringEditing, AppendsEveryKindOfText)
{
    CString text(L"a");
    text += L"b";
    text += "c";
    text += L'd';
    text += CString(L"e");
    text.Append(L"f");
    text.Append(L"ghi", 1);
    text.AppendChar(L'h');
    EXPECT_EQ(text, L"abcdefgh");
}

TEST(CStringEditing, CanBeAppendedToItself)
{
    CString text(L"0123456789abcdef");
    text += text;
    text += text.GetString();
    EXPECT_EQ(text.GetLength(), 64);
    EXPECT_EQ(text.Right(17), L"f0123456789abcdef");
}

TEST(CStringEditing, TrimsWhiteSpaceAtBothEnds)
{
    EXPECT_EQ(CString(L" \t\r\n25 H7\n ").Trim(), L"25 H7");
    EXPECT_EQ(CString(L"  a ").TrimLeft(), L"a ");
    EXPECT_EQ(CString(L"  a ").TrimRight(), L"  a");
    EXPECT_EQ(CString(L" \t ").Trim(), L"");
}

TEST(CStringEditing, TrimsAUnit)
{
    EXPECT_EQ(CString(L"00.500").Trim(L'0'), L".5");
    EXPECT_EQ(CString(L"00.500").TrimLeft(L'0'), L".500");
    EXPECT_EQ(CString(L"00.500").TrimRight(L'0'), L"00.5");
}

TEST(CStringEditing, TrimsASetOfUnits)
{
    EXPECT_EQ(CString(L"+-1-+").Trim(L"+-"), L"1");
    EXPECT_EQ(CString(L"+-1-+").TrimLeft(L"-+"), L"1-+");
    EXPECT_EQ(CString(L"+-1-+").TrimRight(L"-+"), L"+-1");
    EXPECT_EQ(CString(L" 1 ").Trim(L""), L" 1 ");
}

TEST(CStringEditing, RemovesAUnitEverywhereAndCounts)
{
    CString text(L"1 000 000");
    EXPECT_EQ(text.Remove(L' '), 2);
    EXPECT_EQ(text, L"1000000");
    EXPECT_EQ(text.Remove(L'x'), 0);
}

TEST(CStringEditing, ReplacesAUnitEverywhereAndCounts)
{
    CString text(L"1,5/2,5");
    EXPECT_EQ(text.Replace(L',', L'.'), 2);
    EXPECT_EQ(text, L"1.5/2.5");
    EXPECT_EQ(text.Replace(L'x', L'y'), 0);
}

TEST(CStringEditing, ReplacesATextFromTheLeftAndCounts)
{
    CString text(L"aaaaa");
    EXPECT_EQ(text.Replace(L"aa", L"b"), 2);
    EXPECT_EQ(text, L"bba");
    EXPECT_EQ(text.Replace(L"b", L"bbb"), 2);
    EXPECT_EQ(text, L"bbbbbba");
    EXPECT_EQ(text.Replace(L"bb", nullptr), 3);
    EXPECT_EQ(text, L"a");
}

TEST(CStringEditing, ReplacesNothingForAnEmptyText)
{
    CString text(L"abc");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text, L"abc");
}

TEST(CStringEditing, InsertsBeforeAPositionAndGivesTheNewLength)
{
    CString text(L"ad");
    EXPECT_EQ(text.Insert(1, L"bc"), 4);
    EXPECT_EQ(text, L"abcd");
    EXPECT_EQ(text.Insert(-3, L'<'), 5);
    EXPECT_EQ(text.Insert(99, L'>'), 6);
    EXPECT_EQ(text, L"<abcd>");
}

TEST(CStringEditing, DeletesWhatExistsOfARange)
{
    CString text(L"abcdef");
    EXPECT_EQ(text.Delete(1), 5);
    EXPECT_EQ(text, L"acdef");
    EXPECT_EQ(text.Delete(3, 99), 3);
    EXPECT_EQ(text, L"acd");
    EXPECT_EQ(text.Delete(9, 1), 3);
    EXPECT_EQ(text.Delete(-1, 1), 2);
    EXPECT_EQ(text, L"cd");
    EXPECT_EQ(text.Delete(0, -1), 2);
}

TEST(CStringEditing, ChangesCaseBeyondAscii)
{
    EXPECT_EQ(CString(L"js6 \u0436").MakeUpper(), L"JS6 \u0416");  // Cyrillic letter zhe
    EXPECT_EQ(CString(L"JS6 \u0416").MakeLower(), L"js6 \u0436");
}

TEST(CStringEditing, Reverses)
{
    EXPECT_EQ(CString(L"abc").MakeReverse(), L"cba");
}
