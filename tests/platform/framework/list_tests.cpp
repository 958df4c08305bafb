#include <afxcoll.h>
#include <afxtempl.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/raised.h"
#include "tests/platform/framework/second_module.h"
#include "tests/support/framework_printers.h"

namespace
{
using NumberList = CList<int, int>;

// The numbers from the head on; walked back from the tail as well, so that a broken chain shows.
CString Shown(const NumberList& numbers)
{
    CString forwards;
    for (POSITION position = numbers.GetHeadPosition(); position != nullptr;)
        forwards.AppendFormat(L" %d", numbers.GetNext(position));
    CString backwards;
    for (POSITION position = numbers.GetTailPosition(); position != nullptr;)
    {
        CString number;
        number.Format(L" %d", numbers.GetPrev(position));
        backwards = number + backwards;
    }
    return forwards == backwards ? forwards.TrimLeft() : forwards + L" but backwards" + backwards;
}

struct OneTwoThree : testing::Test
{
    OneTwoThree()
    {
        one = numbers.AddTail(1);
        two = numbers.AddTail(2);
        three = numbers.AddTail(3);
    }

    NumberList numbers;
    POSITION one;
    POSITION two;
    POSITION three;
};

using CListTest = OneTwoThree;
}  // namespace

TEST(CList, StartsEmpty)
{
    const NumberList numbers;
    EXPECT_TRUE(numbers.IsEmpty());
    EXPECT_EQ(numbers.GetCount(), 0);
    EXPECT_EQ(numbers.GetSize(), 0);
    EXPECT_EQ(numbers.GetHeadPosition(), nullptr);
    EXPECT_EQ(numbers.GetTailPosition(), nullptr);
}

TEST(CList, TheEndsOfAnEmptyListRaiseInvalidArgument)
{
    NumberList numbers;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.GetHead(); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.GetTail(); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.RemoveHead(); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.RemoveTail(); }));
}

TEST(CList, TheNullPositionRaisesInvalidArgument)
{
    NumberList numbers;
    numbers.AddTail(1);
    POSITION none = nullptr;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.GetNext(none); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.GetPrev(none); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.GetAt(nullptr); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.SetAt(nullptr, 2); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.RemoveAt(nullptr); }));
    EXPECT_EQ(Shown(numbers), L"1");
}

TEST_F(CListTest, AddsAtBothEnds)
{
    numbers.AddHead(0);
    EXPECT_EQ(Shown(numbers), L"0 1 2 3");
    EXPECT_EQ(numbers.GetHead(), 0);
    EXPECT_EQ(numbers.GetTail(), 3);
    EXPECT_EQ(numbers.GetCount(), 4);
}

TEST_F(CListTest, RemovesAtBothEnds)
{
    EXPECT_EQ(numbers.RemoveHead(), 1);
    EXPECT_EQ(numbers.RemoveTail(), 3);
    EXPECT_EQ(Shown(numbers), L"2");
    EXPECT_EQ(numbers.RemoveTail(), 2);
    EXPECT_TRUE(numbers.IsEmpty());
    EXPECT_EQ(numbers.GetHeadPosition(), nullptr);
    EXPECT_EQ(numbers.GetTailPosition(), nullptr);
}

TEST_F(CListTest, PositionsLastWhileOthersComeAndGo)
{
    numbers.RemoveHead();
    numbers.AddHead(9);
    numbers.RemoveAt(three);
    EXPECT_EQ(numbers.GetAt(two), 2);
}

TEST_F(CListTest, ElementsCanBeChangedInPlace)
{
    numbers.SetAt(two, 20);
    numbers.GetAt(three) = 30;
    numbers.GetHead() = 10;
    EXPECT_EQ(Shown(numbers), L"10 20 30");
}

TEST_F(CListTest, RemovesInTheMiddle)
{
    numbers.RemoveAt(two);
    EXPECT_EQ(Shown(numbers), L"1 3");
    EXPECT_EQ(numbers.GetCount(), 2);
}

TEST_F(CListTest, AnElementMayBeRemovedWhileWalking)
{
    for (POSITION position = numbers.GetHeadPosition(); position != nullptr;)
    {
        const POSITION current = position;
        if (numbers.GetNext(position) != 2)
            numbers.RemoveAt(current);
    }
    EXPECT_EQ(Shown(numbers), L"2");
}

TEST_F(CListTest, InsertsBeforeAndAfterAPosition)
{
    numbers.InsertBefore(two, 15);
    const POSITION added = numbers.InsertAfter(two, 25);
    EXPECT_EQ(Shown(numbers), L"1 15 2 25 3");
    EXPECT_EQ(numbers.GetAt(added), 25);
    numbers.InsertBefore(one, 5);
    numbers.InsertAfter(three, 35);
    EXPECT_EQ(Shown(numbers), L"5 1 15 2 25 3 35");
    EXPECT_EQ(numbers.GetCount(), 7);
}

TEST_F(CListTest, InsertingAtTheNullPositionIsAtTheEnds)
{
    numbers.InsertBefore(nullptr, 0);
    numbers.InsertAfter(nullptr, 4);
    EXPECT_EQ(Shown(numbers), L"0 1 2 3 4");
    NumberList empty;
    empty.InsertAfter(nullptr, 1);
    EXPECT_EQ(Shown(empty), L"1");
    NumberList other;
    other.InsertBefore(nullptr, 1);
    EXPECT_EQ(Shown(other), L"1");
}

TEST_F(CListTest, FindsFromTheHeadOrBehindAPosition)
{
    const POSITION again = numbers.AddTail(2);
    EXPECT_EQ(numbers.Find(2), two);
    EXPECT_EQ(numbers.Find(2, two), again);
    EXPECT_EQ(numbers.Find(2, again), nullptr);
    EXPECT_EQ(numbers.Find(7), nullptr);
}

TEST_F(CListTest, FindsByIndex)
{
    EXPECT_EQ(numbers.FindIndex(0), one);
    EXPECT_EQ(numbers.FindIndex(2), three);
    EXPECT_EQ(numbers.FindIndex(3), nullptr);
    EXPECT_EQ(numbers.FindIndex(-1), nullptr);
}

TEST_F(CListTest, AddsAnotherListInItsOrder)
{
    NumberList others;
    others.AddTail(8);
    others.AddTail(9);
    numbers.AddTail(&others);
    EXPECT_EQ(Shown(numbers), L"1 2 3 8 9");
    numbers.AddHead(&others);
    EXPECT_EQ(Shown(numbers), L"8 9 1 2 3 8 9");
    NumberList empty;
    empty.AddHead(&others);
    EXPECT_EQ(Shown(empty), L"8 9");
    EXPECT_EQ(Shown(others), L"8 9");
    numbers.AddTail(&empty);
    EXPECT_EQ(numbers.GetCount(), 9);
}

TEST_F(CListTest, MayBeAddedToItself)
{
    numbers.AddTail(&numbers);
    EXPECT_EQ(Shown(numbers), L"1 2 3 1 2 3");
    numbers.RemoveAll();
    numbers.AddTail(1);
    numbers.AddTail(2);
    numbers.AddHead(&numbers);
    EXPECT_EQ(Shown(numbers), L"1 2 1 2");
}

TEST_F(CListTest, ANullListRaisesInvalidArgument)
{
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.AddTail(static_cast<const NumberList*>(nullptr)); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.AddHead(static_cast<const NumberList*>(nullptr)); }));
    EXPECT_EQ(Shown(numbers), L"1 2 3");
}

TEST_F(CListTest, RemoveAllLeavesAnEmptyListThatCanBeUsed)
{
    numbers.RemoveAll();
    EXPECT_TRUE(numbers.IsEmpty());
    numbers.AddTail(4);
    EXPECT_EQ(Shown(numbers), L"4");
}

TEST(CList, IsFilledInOneModuleAndFreedInTheOther)
{
    CList<CString, LPCWSTR> texts;
    AddNumbersToList(texts, 100);
    EXPECT_EQ(texts.GetCount(), 100);
    EXPECT_EQ(texts.RemoveHead(), L"0");
    EXPECT_EQ(texts.RemoveTail(), L"99");
    EXPECT_NE(texts.Find(L"50"), nullptr);
}

TEST(CPtrList, HoldsPointers)
{
    int first = 0;
    int second = 0;
    CPtrList pointers;
    pointers.AddTail(&first);
    const POSITION position = pointers.AddTail(&second);
    EXPECT_EQ(pointers.GetHead(), &first);
    EXPECT_EQ(pointers.Find(&second), position);
    EXPECT_EQ(pointers.RemoveHead(), &first);
    EXPECT_EQ(pointers.GetCount(), 1);
}

TEST(CTypedPtrList, GivesPointersOfItsType)
{
    CForeignObject first;
    CForeignObject second;
    CTypedPtrList<CPtrList, CForeignObject*> objects;
    objects.AddTail(&first);
    const POSITION place = objects.AddTail(&second);
    objects.GetHead()->m_value = 1;
    objects.GetAt(place)->m_value = 2;
    int sum = 0;
    for (POSITION position = objects.GetHeadPosition(); position != nullptr;)
        sum = 10 * sum + objects.GetNext(position)->m_value;
    EXPECT_EQ(sum, 12);
    EXPECT_EQ(objects.RemoveTail(), &second);
}
