#include <gtest/gtest.h>

#include <set>
#include <string>

#include <afxwin.h>

#include "platform/moduleskin/resource.h"
#include "skin_dialog.h"
#include "texts.h"

namespace
{

constexpr int kEdge = 60;  // pixels that the pictures keep free beside their outermost marker

HFONT DrawingFont()
{
    return static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
}

class EveryString : public testing::TestWithParam<UINT>
{
};

TEST_P(EveryString, HasATextWithoutBlanksAround)
{
    const std::wstring text = SkinText(GetParam());
    ASSERT_FALSE(text.empty());
    EXPECT_NE(text.front(), L' ');
    EXPECT_NE(text.back(), L' ');
}

INSTANTIATE_TEST_SUITE_P(Ids, EveryString,
                         testing::Values(IDS_COLUMN_LINK, IDS_COLUMN_NOMINAL, IDS_COLUMN_FIELD, IDS_COLUMN_WEIGHT_FIXED,
                                         IDS_COLUMN_WEIGHT, IDS_COLUMN_UPPER_DEV, IDS_COLUMN_LOWER_DEV,
                                         IDS_UPPER_DEV_MALFORMED, IDS_LOWER_DEV_MALFORMED, IDS_DEVIATIONS_INCONSISTENT,
                                         IDS_MEAN_MISSING, IDS_MEAN_OUTSIDE_FIELD, IDS_NAME_MISSING,
                                         IDS_DEVIATIONS_MISSING, IDS_UPPER_LIMIT, IDS_LOWER_LIMIT, IDS_DIAGRAM_CAPTION,
                                         IDS_MISMATCH_LINE_1, IDS_MISMATCH_LINE_2, IDS_MISMATCH_LINE_3,
                                         IDS_NOMINAL_CAPTION, IDS_WEIGHT_FIXED_YES, IDS_WEIGHT_FIXED_NO, IDS_INCREASING,
                                         IDS_DECREASING, IDS_LAW_UNIFORM, IDS_LAW_NORMAL, IDS_LAW_TRIANGULAR));

class EveryMessage : public testing::TestWithParam<UINT>
{
};

TEST_P(EveryMessage, IsASentence)
{
    const std::wstring text = SkinText(GetParam());
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(text.back(), L'.');
    EXPECT_GE(text.size(), 40U) << "says what is wrong and what is expected";
}

INSTANTIATE_TEST_SUITE_P(Ids, EveryMessage,
                         testing::Values(IDS_UPPER_DEV_MALFORMED, IDS_LOWER_DEV_MALFORMED, IDS_DEVIATIONS_INCONSISTENT,
                                         IDS_MEAN_MISSING, IDS_MEAN_OUTSIDE_FIELD, IDS_NAME_MISSING,
                                         IDS_DEVIATIONS_MISSING));

TEST(SkinStrings, TellTheMessagesApart)
{
    std::set<std::wstring> messages;
    for (const UINT id : {IDS_UPPER_DEV_MALFORMED, IDS_LOWER_DEV_MALFORMED, IDS_DEVIATIONS_INCONSISTENT,
                          IDS_MEAN_MISSING, IDS_MEAN_OUTSIDE_FIELD, IDS_NAME_MISSING, IDS_DEVIATIONS_MISSING})
        messages.insert(SkinText(id));
    EXPECT_EQ(messages.size(), 7U);
}

// These are compared with texts that stand in cells.
TEST(SkinStrings, TellTheStatesOfAWeightApart)
{
    EXPECT_NE(SkinText(IDS_WEIGHT_FIXED_YES), SkinText(IDS_WEIGHT_FIXED_NO));
}

TEST(SkinStrings, TellDirectionsAndLawsApart)
{
    std::set<std::wstring> entries;
    for (const UINT id : {IDS_INCREASING, IDS_DECREASING, IDS_LAW_UNIFORM, IDS_LAW_NORMAL, IDS_LAW_TRIANGULAR})
        entries.insert(SkinText(id));
    EXPECT_EQ(entries.size(), 5U);
}

struct Heading
{
    UINT id;
    int columnWidth;  // pixels
};

void PrintTo(const Heading& heading, std::ostream* out)
{
    *out << heading.id;
}

class ColumnHeadings : public testing::TestWithParam<Heading>
{
};

TEST_P(ColumnHeadings, FitTheirColumn)
{
    constexpr int kHeadingPadding = 6;  // pixels on either side
    const SkinDialog dialog(IDD_CALC_TOL);
    const int width = WidthIn(dialog.Item(IDC_CHAIN_LIST), SkinText(GetParam().id));
    EXPECT_GT(width, 0);
    EXPECT_LE(width, GetParam().columnWidth - 2 * kHeadingPadding);
}

INSTANTIATE_TEST_SUITE_P(Columns, ColumnHeadings,
                         testing::Values(Heading{IDS_COLUMN_LINK, 130}, Heading{IDS_COLUMN_NOMINAL, 60},
                                         Heading{IDS_COLUMN_FIELD, 60}, Heading{IDS_COLUMN_UPPER_DEV, 60},
                                         Heading{IDS_COLUMN_LOWER_DEV, 60}, Heading{IDS_COLUMN_WEIGHT_FIXED, 50},
                                         Heading{IDS_COLUMN_WEIGHT, 60}));

TEST(SkinStrings, LimitWordsFitBesideTheOutermostMarker)
{
    for (const UINT id : {IDS_UPPER_LIMIT, IDS_LOWER_LIMIT})
        EXPECT_LE(WidthIn(DrawingFont(), SkinText(id)), kEdge - 1) << id;
}

TEST(SkinStrings, CaptionFitsTheDiagram)
{
    const SkinDialog dialog(IDD_CALC_TOL);
    RECT area;
    ::GetClientRect(dialog.Item(IDC_CHAIN_DIAGRAM), &area);
    EXPECT_LE(WidthIn(DrawingFont(), SkinText(IDS_DIAGRAM_CAPTION)), ::MulDiv(area.right, 6, dialog.BaseUnits().cx));
}

// The marker of the other nominal stands 40 pixels inside either edge.
TEST(SkinStrings, MismatchLinesFitBetweenTheMarkers)
{
    const SkinDialog dialog(IDD_CALC_TOL);
    RECT area;
    ::GetClientRect(dialog.Item(IDC_CHAIN_DIAGRAM), &area);
    const int between = ::MulDiv(area.right, 6, dialog.BaseUnits().cx) - 2 * 41;
    for (const UINT id : {IDS_MISMATCH_LINE_1, IDS_MISMATCH_LINE_2, IDS_MISMATCH_LINE_3})
        EXPECT_LE(WidthIn(DrawingFont(), SkinText(id)), between) << id;
}

}  // namespace
