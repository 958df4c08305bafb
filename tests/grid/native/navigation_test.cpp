#include "grid/navigation.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

void PrintTo(const GridPlace& place, std::ostream* stream)
{
    *stream << "row " << place.row << " column " << place.column;
}

namespace
{
// 20 rows of 3 columns, 6 rows on a page: a page moves by 4.
constexpr GridExtent kGrid{.rows = 20, .columns = 3, .rowsPerPage = 6, .rowMode = false};
constexpr GridExtent kRowGrid{.rows = 20, .columns = 3, .rowsPerPage = 6, .rowMode = true};

struct MoveCase
{
    const char* name;
    GridPlace from;
    GridMove move;
    GridPlace to;
};

class NavigationByCells : public testing::TestWithParam<MoveCase>
{
};
class NavigationByRows : public testing::TestWithParam<MoveCase>
{
};

std::string CaseName(const testing::TestParamInfo<MoveCase>& info)
{
    return info.param.name;
}
}  // namespace

TEST_P(NavigationByCells, LeadsToTheTabulatedPlace)
{
    EXPECT_EQ(PlaceAfter(GetParam().from, GetParam().move, kGrid), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(
    Table, NavigationByCells,
    testing::Values(MoveCase{"TabToTheNextColumn", {4, 0}, GridMove::NextCell, {4, 1}},
                    MoveCase{"TabFromTheLastColumnToTheNextRow", {4, 2}, GridMove::NextCell, {5, 0}},
                    MoveCase{"TabOnTheLastCellStays", {19, 2}, GridMove::NextCell, {19, 2}},
                    MoveCase{"BackTabToThePreviousColumn", {4, 1}, GridMove::PreviousCell, {4, 0}},
                    MoveCase{"BackTabFromTheFirstColumnToThePreviousRow", {4, 0}, GridMove::PreviousCell, {3, 2}},
                    MoveCase{"BackTabOnTheFirstCellStays", {0, 0}, GridMove::PreviousCell, {0, 0}},
                    MoveCase{"PageDownByTwoLessThanAPage", {4, 1}, GridMove::PageDown, {8, 1}},
                    MoveCase{"PageDownNearTheEndToTheLastRow", {17, 1}, GridMove::PageDown, {19, 1}},
                    MoveCase{"PageUpByTwoLessThanAPage", {9, 1}, GridMove::PageUp, {5, 1}},
                    MoveCase{"PageUpNearTheTopToTheFirstRow", {2, 1}, GridMove::PageUp, {0, 1}},
                    MoveCase{"HomeToTheFirstColumn", {4, 2}, GridMove::FirstColumn, {4, 0}},
                    MoveCase{"EndToTheLastColumn", {4, 0}, GridMove::LastColumn, {4, 2}},
                    MoveCase{"LeftToThePreviousColumn", {4, 2}, GridMove::Left, {4, 1}},
                    MoveCase{"LeftOnTheFirstColumnStays", {4, 0}, GridMove::Left, {4, 0}},
                    MoveCase{"RightToTheNextColumn", {4, 1}, GridMove::Right, {4, 2}},
                    MoveCase{"RightOnTheLastColumnStays", {4, 2}, GridMove::Right, {4, 2}},
                    MoveCase{"UpKeepsTheColumn", {4, 2}, GridMove::Up, {3, 2}},
                    MoveCase{"UpOnTheFirstRowStays", {0, 2}, GridMove::Up, {0, 2}},
                    MoveCase{"DownKeepsTheColumn", {4, 2}, GridMove::Down, {5, 2}},
                    MoveCase{"DownOnTheLastRowStays", {19, 2}, GridMove::Down, {19, 2}},
                    MoveCase{"DownFromNowhereToTheFirstCell", {-1, -1}, GridMove::Down, {0, 0}},
                    MoveCase{"LeftFromNowhereToTheFirstCell", {-1, -1}, GridMove::Left, {0, 0}}),
    CaseName);

TEST_P(NavigationByRows, LeadsToTheTabulatedPlace)
{
    EXPECT_EQ(PlaceAfter(GetParam().from, GetParam().move, kRowGrid), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(
    Table, NavigationByRows,
    testing::Values(MoveCase{"TabLeadsNowhere", {4, -1}, GridMove::NextCell, {4, -1}},
                    MoveCase{"BackTabLeadsNowhere", {4, -1}, GridMove::PreviousCell, {4, -1}},
                    MoveCase{"HomeLeadsNowhere", {4, -1}, GridMove::FirstColumn, {4, -1}},
                    MoveCase{"EndLeadsNowhere", {4, -1}, GridMove::LastColumn, {4, -1}},
                    MoveCase{"LeftLeadsNowhere", {4, -1}, GridMove::Left, {4, -1}},
                    MoveCase{"RightLeadsNowhere", {4, -1}, GridMove::Right, {4, -1}},
                    MoveCase{"TabFromNowhere", {-1, -1}, GridMove::NextCell, {-1, -1}},
                    MoveCase{"BackTabFromNowhere", {-1, -1}, GridMove::PreviousCell, {-1, -1}},
                    MoveCase{"HomeFromNowhere", {-1, -1}, GridMove::FirstColumn, {-1, -1}},
                    MoveCase{"EndFromNowhere", {-1, -1}, GridMove::LastColumn, {-1, -1}},
                    MoveCase{"LeftFromNowhere", {-1, -1}, GridMove::Left, {-1, -1}},
                    MoveCase{"RightFromNowhere", {-1, -1}, GridMove::Right, {-1, -1}},
                    MoveCase{"UpToThePreviousRow", {4, -1}, GridMove::Up, {3, -1}},
                    MoveCase{"DownToTheNextRow", {4, -1}, GridMove::Down, {5, -1}},
                    MoveCase{"PageDown", {4, -1}, GridMove::PageDown, {8, -1}},
                    MoveCase{"PageUp", {4, -1}, GridMove::PageUp, {0, -1}},
                    MoveCase{"UpFromNowhereToTheFirstRow", {-1, -1}, GridMove::Up, {0, -1}},
                    MoveCase{"PageDownFromNowhereToTheFirstRow", {-1, -1}, GridMove::PageDown, {0, -1}}),
    CaseName);

TEST(Navigation, MoveShowsWhereItLeadsButByRowsNotToTheNeighbouringColumn)
{
    for (const GridMove move : {GridMove::NextCell, GridMove::PreviousCell, GridMove::Left, GridMove::Right})
    {
        EXPECT_FALSE(ShowsItsPlace(move, true));
        EXPECT_TRUE(ShowsItsPlace(move, false));
    }
    for (const GridMove move : {GridMove::PageUp, GridMove::PageDown, GridMove::FirstColumn, GridMove::LastColumn,
                                GridMove::Up, GridMove::Down})
    {
        EXPECT_TRUE(ShowsItsPlace(move, true));
        EXPECT_TRUE(ShowsItsPlace(move, false));
    }
}

// Two or fewer rows in sight would give a step of 0 or backwards.
TEST(Navigation, PageDownInAVeryLowGridStillMovesOneRow)
{
    EXPECT_EQ(PlaceAfter({4, 0}, GridMove::PageDown, {.rows = 20, .columns = 3, .rowsPerPage = 1}), (GridPlace{5, 0}));
    EXPECT_EQ(PlaceAfter({4, 0}, GridMove::PageUp, {.rows = 20, .columns = 3, .rowsPerPage = 2}), (GridPlace{3, 0}));
}

TEST(Navigation, EmptyGridLeadsNowhere)
{
    EXPECT_EQ(PlaceAfter({-1, -1}, GridMove::Down, {.rows = 0, .columns = 3}), (GridPlace{-1, -1}));
    EXPECT_EQ(PlaceAfter({-1, -1}, GridMove::Down, {.rows = 3, .columns = 0}), (GridPlace{-1, -1}));
}

TEST(TopRowToShow, RowsInSightDoNotScroll)
{
    EXPECT_EQ(TopRowToShow(5, 10, 5, 14), 5);
    EXPECT_EQ(TopRowToShow(0, 10, 3, 7), 0);
}

// Ten rows from 8 on end with 17.
TEST(TopRowToShow, LastRowComesToTheBottom)
{
    EXPECT_EQ(TopRowToShow(5, 10, 9, 17), 8);
}

TEST(TopRowToShow, FirstRowWinsWhenNotAllFit)
{
    EXPECT_EQ(TopRowToShow(5, 10, 9, 10'000), 9);
    EXPECT_EQ(TopRowToShow(0, 10, 0, 10'000), 0);
}

TEST(TopRowToShow, RowsAboveComeToTheTop)
{
    EXPECT_EQ(TopRowToShow(5, 10, 2, 4), 2);
}
