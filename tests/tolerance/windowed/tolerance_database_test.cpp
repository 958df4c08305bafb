#include "tolerance/tolerance_database.h"

#include <gtest/gtest.h>

#include "box_in_window.h"
#include "fake_gauge_base.h"
#include "tests/support/framework_printers.h"

namespace
{

class FilledBox : public testing::Test
{
protected:
    FilledBox()
    {
        TheGaugeBase() = FakeGaugeBase{};
        TheGaugeBase().first = {L"H", L"k"};
        TheGaugeBase().second = {L"6", L"7"};
        TheGaugeBase().shortList = {L"k6", L"H7", L"special"};
    }

    std::vector<DWORD_PTR> Data()
    {
        std::vector<DWORD_PTR> data;
        for (int index = 0; index < m_box->GetCount(); ++index)
            data.push_back(m_box->GetItemData(index));
        return data;
    }

    BoxInWindow<CTolBox> m_box;
};

TEST_F(FilledBox, ListsEveryFirstPartWithEverySecondPartInOrder)
{
    FillTolBox(*m_box, false);
    EXPECT_EQ(m_box.Codes(), (std::vector<CString>{L"H6", L"H7", L"k6", L"k7"}));
}

TEST_F(FilledBox, MarksTheFieldsOfTheShortList)
{
    FillTolBox(*m_box, false);
    EXPECT_EQ(Data(), (std::vector<DWORD_PTR>{0, 1, 1, 0}));
}

TEST_F(FilledBox, ComparesWithTheShortListCaseByCase)
{
    TheGaugeBase().shortList = {L"K6", L"h7"};
    FillTolBox(*m_box, false);
    EXPECT_EQ(Data(), (std::vector<DWORD_PTR>{0, 0, 0, 0}));
}

TEST_F(FilledBox, ListsTheShortListAloneWithTheFilter)
{
    FillTolBox(*m_box, true);
    EXPECT_EQ(m_box.Codes(), (std::vector<CString>{L"k6", L"H7", L"special"}));
    EXPECT_EQ(Data(), (std::vector<DWORD_PTR>{1, 1, 1}));
}

TEST_F(FilledBox, ReplacesTheEntriesBefore)
{
    FillTolBox(*m_box, false);
    FillTolBox(*m_box, true);
    FillTolBox(*m_box, false);
    EXPECT_EQ(m_box.Codes(), (std::vector<CString>{L"H6", L"H7", L"k6", L"k7"}));
}

TEST_F(FilledBox, SelectsTheEntryOfItsText)
{
    m_box->SetEditText(L"k6");
    FillTolBox(*m_box, false);
    EXPECT_EQ(m_box->GetCurSel(), 2);
    EXPECT_EQ(m_box->EditText(), L"k6");
}

TEST_F(FilledBox, SelectsTheLastOfTwoEqualEntries)
{
    TheGaugeBase().first = {L"H", L"k", L"H"};
    m_box->SetEditText(L"H7");
    FillTolBox(*m_box, false);
    EXPECT_EQ(m_box->GetCount(), 6);
    EXPECT_EQ(m_box->GetCurSel(), 5);
}

TEST_F(FilledBox, SelectsTheLastOfTwoEqualEntriesWithTheFilter)
{
    TheGaugeBase().shortList = {L"H7", L"k6", L"H7", L"g6"};
    m_box->SetEditText(L"H7");
    FillTolBox(*m_box, true);
    EXPECT_EQ(m_box->GetCurSel(), 2);
}

TEST_F(FilledBox, SelectsNothingForATextThatDiffersInCase)
{
    m_box->SetEditText(L"h7");
    FillTolBox(*m_box, false);
    EXPECT_EQ(m_box->GetCurSel(), CB_ERR);
    EXPECT_EQ(m_box->EditText(), L"h7");
}

TEST_F(FilledBox, SelectsNothingForNoText)
{
    FillTolBox(*m_box, false);
    EXPECT_EQ(m_box->GetCurSel(), CB_ERR);
}

TEST_F(FilledBox, KeepsATextThatTheFilterDropsAndSelectsNothing)
{
    m_box->SetEditText(L"k7");
    FillTolBox(*m_box, false);
    ASSERT_EQ(m_box->GetCurSel(), 3);
    FillTolBox(*m_box, true);
    EXPECT_EQ(m_box->GetCurSel(), CB_ERR);
    EXPECT_EQ(m_box->EditText(), L"k7");
}

TEST_F(FilledBox, IsEmptyWhenTheLibraryHasNoList)
{
    FillTolBox(*m_box, false);
    m_box->SetEditText(L"k7");
    TheGaugeBase().listResult = 0;
    FillTolBox(*m_box, false);
    EXPECT_EQ(m_box->GetCount(), 0);
    EXPECT_EQ(m_box->GetCurSel(), CB_ERR);
    EXPECT_EQ(m_box->EditText(), L"k7");
}

TEST_F(FilledBox, TakesTheListOfEveryResultButZero)
{
    for (const int result : {-1, 2})
    {
        TheGaugeBase().listResult = result;
        FillTolBox(*m_box, false);
        EXPECT_EQ(m_box->GetCount(), 4) << result;
    }
}

TEST_F(FilledBox, IsEmptyForAnEmptyFirstOrSecondListEvenWithoutAShortList)
{
    for (const bool withShortList : {true, false})
    {
        SCOPED_TRACE(withShortList);
        TheGaugeBase().shortList.clear();
        if (withShortList)
            TheGaugeBase().shortList.push_back(L"H7");
        TheGaugeBase().first.clear();
        TheGaugeBase().second = {L"7"};
        FillTolBox(*m_box, false);
        EXPECT_EQ(m_box->GetCount(), 0);
        TheGaugeBase().first = {L"H"};
        TheGaugeBase().second.clear();
        FillTolBox(*m_box, false);
        EXPECT_EQ(m_box->GetCount(), 0);
    }
}

TEST_F(FilledBox, IsEmptyWithTheFilterAndAnEmptyShortList)
{
    TheGaugeBase().shortList.clear();
    m_box->SetEditText(L"H7");
    FillTolBox(*m_box, true);
    EXPECT_EQ(m_box->GetCount(), 0);
    EXPECT_EQ(m_box->GetCurSel(), CB_ERR);
}

TEST_F(FilledBox, RaisesTheInvalidArgumentExceptionForFieldsWithoutAShortListAndStaysEmpty)
{
    FillTolBox(*m_box, false);
    m_box->SetEditText(L"H7");
    TheGaugeBase().shortList.clear();
    bool raised = false;
    try
    {
        FillTolBox(*m_box, false);
    }
    catch (CInvalidArgException* exception)
    {
        raised = true;
        exception->Delete();
    }
    EXPECT_TRUE(raised);
    EXPECT_EQ(m_box->GetCount(), 0);
    EXPECT_EQ(m_box->EditText(), L"H7");
}

class FieldDeviationsOfLibrary : public testing::Test
{
protected:
    FieldDeviationsOfLibrary()
    {
        TheGaugeBase() = FakeGaugeBase{};
        TheGaugeBase().fields = {{"H7", {.lower = 0.0F, .upper = 21.0F}},
                                 {"a", {.lower = -3.0F, .upper = 12.5F}},
                                 {"b", {.lower = -1234.0F, .upper = 1234.0F}}};
    }
};

TEST_F(FieldDeviationsOfLibrary, AreMillimetresWithThreeDigitsAndASign)
{
    const auto a = FieldDeviations(L"25", L"a");
    ASSERT_TRUE(a.has_value());
    EXPECT_EQ(a->upper, "+0.0125");
    EXPECT_EQ(a->lower, "-0.003");
    const auto b = FieldDeviations(L"25", L"b");
    ASSERT_TRUE(b.has_value());
    EXPECT_EQ(b->upper, "+1.23");
    EXPECT_EQ(b->lower, "-1.23");
}

TEST_F(FieldDeviationsOfLibrary, AreEmptyForExactlyZero)
{
    const auto fit = FieldDeviations(L"25", L"H7");
    ASSERT_TRUE(fit.has_value());
    EXPECT_EQ(fit->upper, "+0.021");
    EXPECT_EQ(fit->lower, "");
}

// 0.01125 and 0.004125 are ties of the third digit. The single-precision products lie beside them, at 0.0112500004 and
// 0.0041249999; those in double precision at 0.01125 (rounded to even) and 0.0041250000000000002.
TEST_F(FieldDeviationsOfLibrary, AreMultipliedInSinglePrecision)
{
    TheGaugeBase().fields["c"] = {.lower = 4.125F, .upper = 11.25F};
    const auto c = FieldDeviations(L"25", L"c");
    ASSERT_TRUE(c.has_value());
    EXPECT_EQ(c->upper, "+0.0113");
    EXPECT_EQ(c->lower, "+0.00412");
}

TEST_F(FieldDeviationsOfLibrary, AreTheAnswerOfEveryResultButZero)
{
    for (const int result : {-1, 2})
    {
        TheGaugeBase().knownResult = result;
        EXPECT_TRUE(FieldDeviations(L"25", L"H7").has_value()) << result;
    }
}

TEST_F(FieldDeviationsOfLibrary, AreNoneForAFieldThatTheLibraryDoesNotKnow)
{
    EXPECT_FALSE(FieldDeviations(L"25", L"zz").has_value());
    EXPECT_FALSE(FieldDeviations(L"25", L"").has_value());
    EXPECT_FALSE(FieldDeviations(L"25", L"h7").has_value());
}

TEST_F(FieldDeviationsOfLibrary, AreAskedForTheNominalInSinglePrecision)
{
    FieldDeviations(L"0.1", L"H7");
    FieldDeviations(L"12,5", L"H7");
    FieldDeviations(L"25 mm", L"H7");
    FieldDeviations(L"", L"H7");
    FieldDeviations(L"abc", L"H7");
    EXPECT_EQ(TheGaugeBase().calls,
              (std::vector<DimTolCall>{{0.1F, "H7"}, {12.0F, "H7"}, {25.0F, "H7"}, {0.0F, "H7"}, {0.0F, "H7"}}));
}

// A full-width H looks like the letter and must not become it.
TEST_F(FieldDeviationsOfLibrary, AreAskedForTheFieldAsItIsWritten)
{
    FieldDeviations(L"25", L"\xFF28\x0037");
    EXPECT_EQ(TheGaugeBase().calls.back(), (DimTolCall{25.0F, "\xEF\xBC\xA8"
                                                              "7"}));
}

}  // namespace
