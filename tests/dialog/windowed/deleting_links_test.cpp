// Deleting links, and reading back what is left.

#include "tests/dialog/windowed/calc_dialog_test.h"

namespace
{

class DeletingLinks : public CalcDialogTest
{
protected:
    DeletingLinks()
    {
        OpenWith(kAnalytic);
        AddLinks({{Dimension(L"A", L"1", L"", L""), &objects[0]},
                  {Dimension(L"B", L"2", L"", L""), &objects[1]},
                  {Dimension(L"C", L"3", L"", L""), &objects[2]}});
    }
};

TEST_F(DeletingLinks, TakesTheFocusLinkAlone)
{
    FocusOnLink(1);
    Command(ID_LINK_DELETE);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[2]}));
    ASSERT_EQ(Links().Rows(), 3);
    EXPECT_EQ(Links().Text(1, 0), L"A");
    EXPECT_EQ(Links().Text(2, 0), L"C");
}

TEST_F(DeletingLinks, RepaintsOnceAndTellsTheHostNothing)
{
    FocusOnLink(1);
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_DELETE); }), 1);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(DeletingLinks, WorksFromTheContextMenuAlike)
{
    FocusOnLink(0);
    Command(ID_CONTEXT_LINK_DELETE);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[1], &objects[2]}));
    Command(ID_CONTEXT_LINK_DELETE_ALL);
    EXPECT_TRUE(Objects().empty());
}

TEST_F(DeletingLinks, HandsTheFocusToTheNextLinkThenToThePreviousThenToTheChain)
{
    FocusOnLink(1);
    Command(ID_LINK_DELETE);
    EXPECT_EQ(Links().Text(Links().FocusRow(), 0), L"C");
    Command(ID_LINK_DELETE);
    EXPECT_EQ(Links().Text(Links().FocusRow(), 0), L"A");
    Command(ID_LINK_DELETE);
    EXPECT_EQ(Links().FocusRow(), 0);
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Links().Rows(), 1) << "the chain row stays";
}

TEST_F(DeletingLinks, DoesNothingWithTheFocusOnTheChainRow)
{
    FocusOnChain();
    ExpectNoRepaintBy([this] { Command(ID_LINK_DELETE); });
    EXPECT_EQ(Objects().size(), 3U);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(DeletingLinks, DoesNothingWithoutAFocusRow)
{
    Close();
    dialog = std::make_unique<WatchedDialog>();
    OpenWith(kAnalytic);
    ASSERT_EQ(Links().FocusRow(), -1);
    ExpectNoRepaintBy([this] { Command(ID_LINK_DELETE); });
    EXPECT_EQ(Links().Rows(), 1);
}

TEST_F(DeletingLinks, WorksOnALinkWhoseCellIsBeingChosen)
{
    ClickCell(Links(), 2, 5);
    ASSERT_TRUE(Links().Grid().HasEditor());
    Command(ID_LINK_DELETE);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[2]}));
    EXPECT_EQ(Links().Rows(), 3);
}

TEST_F(DeletingLinks, TakesAllLinksAtOnce)
{
    FocusOnLink(1);
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_DELETE_ALL); }), 1);
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Links().Rows(), 1);
    EXPECT_EQ(Links().Row(0).ChildCount(), 0);
    EXPECT_EQ(Links().FocusRow(), 0);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(DeletingLinks, TakesAllLinksOfACollapsedChain)
{
    PostClick(Links().Window(), Links().ExpandPoint(0));
    PumpUntilIdle();
    ASSERT_EQ(Links().Rows(), 1);
    Command(ID_LINK_DELETE_ALL);
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(Links().Row(0).ChildCount(), 0);
}

TEST_F(DeletingLinks, TakesAllLinksWithTheFocusOnTheChainRow)
{
    FocusOnChain();
    Command(ID_LINK_DELETE_ALL);
    EXPECT_TRUE(Objects().empty());
}

TEST_F(DeletingLinks, OnlyRepaintsAnEmptyChain)
{
    Command(ID_LINK_DELETE_ALL);
    EXPECT_EQ(RepaintsOf([this] { Command(ID_LINK_DELETE_ALL); }), 1);
    EXPECT_TRUE(Codes().empty());
}

TEST_F(DeletingLinks, LeavesTheClosingLinkAlone)
{
    AddClosing(Dimension(L"", L"6", L"0.1", L"0"), &closingObject);
    Command(ID_LINK_DELETE_ALL);
    EXPECT_EQ(dialog->GetCloseObject(), &closingObject);
    EXPECT_EQ(Closing().Text(0, 1), L"6");
}

TEST_F(DeletingLinks, LeavesRoomForNewOnes)
{
    Command(ID_LINK_DELETE_ALL);
    AddLink(Dimension(L"D", L"4", L"", L""), &objects[3]);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[3]}));
    ASSERT_EQ(Links().Rows(), 2);
    EXPECT_EQ(Links().Text(1, 0), L"D");
}

using ReadingBack = DeletingLinks;

TEST_F(ReadingBack, AppendsToWhatTheArrayHolds)
{
    CArray<void*, void*> array;
    array.Add(&closingObject);
    dialog->GetArrayObject(array);
    ASSERT_EQ(array.GetSize(), 4);
    EXPECT_EQ(array[0], &closingObject);
    EXPECT_EQ(array[1], &objects[0]);
    EXPECT_EQ(array[2], &objects[1]);
    EXPECT_EQ(array[3], &objects[2]);
    dialog->GetArrayObject(array);
    EXPECT_EQ(array.GetSize(), 7);
}

TEST_F(ReadingBack, LeavesTheArrayUnchangedWithoutLinks)
{
    Command(ID_LINK_DELETE_ALL);
    CArray<void*, void*> array;
    dialog->GetArrayObject(array);
    EXPECT_EQ(array.GetSize(), 0);
    array.Add(&closingObject);
    dialog->GetArrayObject(array);
    ASSERT_EQ(array.GetSize(), 1);
    EXPECT_EQ(array[0], &closingObject);
}

TEST_F(ReadingBack, ReadsACollapsedChainAllTheSame)
{
    PostClick(Links().Window(), Links().ExpandPoint(0));
    PumpUntilIdle();
    ASSERT_EQ(Links().Rows(), 1);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[1], &objects[2]}));
}

TEST_F(ReadingBack, GivesNullForALinkWithoutAnObject)
{
    AddLink(Dimension(L"D", L"4", L"", L""), nullptr);
    EXPECT_EQ(Objects(), (std::vector<void*>{&objects[0], &objects[1], &objects[2], nullptr}));
}

TEST_F(ReadingBack, CurrentObjectHasNoEffect)
{
    FocusOnLink(1);
    int object = 42;
    const int repaints = RepaintsOf([&] {
        dialog->GetCurrentObject(&object);
        dialog->GetCurrentObject(nullptr);
    });
    EXPECT_EQ(object, 42);
    EXPECT_EQ(repaints, 0);
    EXPECT_EQ(Links().FocusRow(), 2);
    EXPECT_EQ(Objects().size(), 3U);
}

}  // namespace
