#include <initializer_list>

#include <afxcoll.h>
#include <afxtempl.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/raised.h"
#include "tests/platform/framework/second_module.h"
#include "tests/support/framework_printers.h"

namespace
{
using NumberArray = CArray<int, int>;

void AddAll(NumberArray& numbers, std::initializer_list<int> added)
{
    for (const int number : added)
        numbers.Add(number);
}

CString Shown(const NumberArray& numbers)
{
    CString text;
    for (INT_PTR index = 0; index < numbers.GetSize(); ++index)
        text.AppendFormat(index == 0 ? L"%d" : L" %d", numbers[index]);
    return text;
}

// Counts the objects that exist and the copies made, to see what an array does with its elements.
struct Counted
{
    Counted() { ++living; }
    Counted(const Counted& other) : value(other.value)
    {
        ++living;
        ++copies;
    }
    Counted(Counted&& other) noexcept : value(other.value) { ++living; }
    Counted& operator=(const Counted&) = default;
    ~Counted() { --living; }

    int value = 0;
    static int living;
    static int copies;
};

int Counted::living = 0;
int Counted::copies = 0;
}  // namespace

TEST(CArray, StartsEmpty)
{
    const NumberArray numbers;
    EXPECT_TRUE(numbers.IsEmpty());
    EXPECT_EQ(numbers.GetSize(), 0);
    EXPECT_EQ(numbers.GetCount(), 0);
    EXPECT_EQ(numbers.GetUpperBound(), -1);
    EXPECT_EQ(numbers.GetData(), nullptr);
}

TEST(CArray, AddGivesTheIndexOfTheNewElement)
{
    NumberArray numbers;
    EXPECT_EQ(numbers.Add(5), 0);
    EXPECT_EQ(numbers.Add(6), 1);
    EXPECT_EQ(Shown(numbers), L"5 6");
    EXPECT_EQ(numbers.GetUpperBound(), 1);
    EXPECT_FALSE(numbers.IsEmpty());
}

TEST(CArray, EveryAccessOutsideRaisesInvalidArgument)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2});
    const NumberArray& unchangeable = numbers;
    for (const INT_PTR index : {INT_PTR{-1}, INT_PTR{2}, INT_PTR{1000}})
    {
        SCOPED_TRACE(index);
        EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.GetAt(index); }));
        EXPECT_TRUE(Raises<CInvalidArgException>([&] { unchangeable.GetAt(index); }));
        EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.ElementAt(index); }));
        EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers[index] = 3; }));
        EXPECT_TRUE(Raises<CInvalidArgException>([&] { static_cast<void>(unchangeable[index]); }));
        EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.SetAt(index, 3); }));
    }
    EXPECT_EQ(Shown(numbers), L"1 2");
}

TEST(CArray, ElementsCanBeChangedInPlace)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2, 3, 4});
    numbers[0] = 10;
    numbers.SetAt(1, 20);
    numbers.ElementAt(2) = 30;
    numbers.GetData()[3] = 40;
    EXPECT_EQ(Shown(numbers), L"10 20 30 40");
}

TEST(CArray, SetSizeAddsZerosOrCuts)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2});
    numbers.SetSize(4);
    EXPECT_EQ(Shown(numbers), L"1 2 0 0");
    numbers.SetSize(1);
    EXPECT_EQ(Shown(numbers), L"1");
    numbers.SetSize(0);
    EXPECT_TRUE(numbers.IsEmpty());
}

TEST(CArray, ANegativeSizeRaisesInvalidArgument)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2});
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.SetSize(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.SetSize(-2); }));
    EXPECT_EQ(Shown(numbers), L"1 2");
}

TEST(CArray, AGrowByKeepsTheElementsInPlaceWhileItLasts)
{
    NumberArray numbers;
    numbers.SetSize(1, 100);  // makes room for 100 elements
    const int* const place = numbers.GetData();
    for (int added = 0; added < 99; ++added)
        numbers.Add(added);
    EXPECT_EQ(numbers.GetData(), place);
}

// Doubling makes about log2(100000) = 17 moves; a fixed step makes one for every few elements.
TEST(CArray, AppendingMovesTheElementsSeldom)
{
    NumberArray numbers;
    int moves = 0;
    const int* place = nullptr;
    for (int added = 0; added < 100000; ++added)
    {
        numbers.Add(added);
        moves += numbers.GetData() != place ? 1 : 0;
        place = numbers.GetData();
    }
    EXPECT_EQ(numbers[99999], 99999);
    EXPECT_LE(moves, 20);
}

TEST(CArray, SetAtGrowFillsTheGapWithZeros)
{
    NumberArray numbers;
    numbers.SetAtGrow(3, 9);
    EXPECT_EQ(Shown(numbers), L"0 0 0 9");
    numbers.SetAtGrow(1, 5);
    EXPECT_EQ(Shown(numbers), L"0 5 0 9");
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.SetAtGrow(-1, 1); }));
}

TEST(CArray, InsertAtMovesTheFollowingElementsUp)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2, 3});
    numbers.InsertAt(1, 9);
    EXPECT_EQ(Shown(numbers), L"1 9 2 3");
    numbers.InsertAt(0, 7, 2);
    EXPECT_EQ(Shown(numbers), L"7 7 1 9 2 3");
    numbers.InsertAt(6, 8);
    EXPECT_EQ(Shown(numbers), L"7 7 1 9 2 3 8");
}

TEST(CArray, InsertAtBehindTheEndGrowsUpToIt)
{
    NumberArray numbers;
    AddAll(numbers, {1});
    numbers.InsertAt(3, 5, 2);
    EXPECT_EQ(Shown(numbers), L"1 0 0 5 5");
}

TEST(CArray, InsertAtTakesAnotherArray)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2});
    NumberArray others;
    AddAll(others, {8, 9});
    numbers.InsertAt(1, &others);
    EXPECT_EQ(Shown(numbers), L"1 8 9 2");
    EXPECT_EQ(Shown(others), L"8 9");
}

TEST(CArray, InsertingNothingOrNowhereRaisesInvalidArgument)
{
    NumberArray numbers;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.InsertAt(-1, 5); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.InsertAt(0, 5, 0); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.InsertAt(0, 5, -1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.InsertAt(0, static_cast<const NumberArray*>(nullptr)); }));
    EXPECT_TRUE(numbers.IsEmpty());
}

TEST(CArray, RemoveAtMovesTheFollowingElementsDown)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2, 3, 4});
    numbers.RemoveAt(0);
    EXPECT_EQ(Shown(numbers), L"2 3 4");
    numbers.RemoveAt(1, 2);
    EXPECT_EQ(Shown(numbers), L"2");
    numbers.RemoveAt(1, 0);
    EXPECT_EQ(Shown(numbers), L"2");
}

TEST(CArray, RemovingWhatIsNotThereRaisesInvalidArgument)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2});
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.RemoveAt(2); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.RemoveAt(-1); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.RemoveAt(1, 2); }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.RemoveAt(0, -1); }));
    EXPECT_EQ(Shown(numbers), L"1 2");
}

TEST(CArray, AppendGivesTheIndexOfTheFirstNewElement)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2});
    NumberArray others;
    AddAll(others, {8, 9});
    EXPECT_EQ(numbers.Append(others), 2);
    EXPECT_EQ(Shown(numbers), L"1 2 8 9");
    EXPECT_EQ(numbers.Append(numbers), 4);
    EXPECT_EQ(Shown(numbers), L"1 2 8 9 1 2 8 9");
}

TEST(CArray, CopyBecomesEqual)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2, 3});
    NumberArray others;
    AddAll(others, {8, 9});
    numbers.Copy(others);
    EXPECT_EQ(Shown(numbers), L"8 9");
    numbers.Copy(numbers);
    EXPECT_EQ(Shown(numbers), L"8 9");
    others[0] = 1;
    EXPECT_EQ(numbers[0], 8);
}

TEST(CArray, FreeExtraKeepsTheElements)
{
    NumberArray numbers;
    numbers.SetSize(0, 1000);
    AddAll(numbers, {1, 2, 3});
    numbers.FreeExtra();
    EXPECT_EQ(Shown(numbers), L"1 2 3");
}

TEST(CArray, RemoveAllGivesTheMemoryBack)
{
    NumberArray numbers;
    AddAll(numbers, {1, 2, 3});
    numbers.RemoveAll();
    EXPECT_TRUE(numbers.IsEmpty());
    EXPECT_EQ(numbers.GetData(), nullptr);
}

TEST(CArray, MayBeGivenAnElementOfItsOwn)
{
    CArray<CString, const CString&> texts;
    texts.Add(L"a text that is too long for a small buffer");
    for (int added = 0; added < 100; ++added)
    {
        texts.Add(texts[0]);
        texts.InsertAt(0, texts[texts.GetUpperBound()]);
        texts.SetAtGrow(texts.GetSize(), texts[0]);
    }
    ASSERT_EQ(texts.GetSize(), 301);
    for (INT_PTR index = 0; index < texts.GetSize(); ++index)
        ASSERT_EQ(texts[index], L"a text that is too long for a small buffer") << index;
}

TEST(CArray, DestroysEveryElementExactlyOnce)
{
    Counted::living = 0;
    {
        CArray<Counted, const Counted&> objects;
        objects.SetSize(5);
        objects.Add(Counted());
        objects.InsertAt(2, Counted(), 3);
        objects.RemoveAt(0, 2);
        EXPECT_EQ(Counted::living, 7);  // 5 + 1 + 3 - 2
    }
    EXPECT_EQ(Counted::living, 0);
}

TEST(CArray, GrowingCopiesNoElementThatCanBeMoved)
{
    CArray<Counted, const Counted&> objects;
    objects.SetSize(100);
    Counted::copies = 0;
    objects.SetSize(10000);
    EXPECT_EQ(Counted::copies, 0);
}

TEST(CStringArray, TakesTextsAndPointersToText)
{
    CStringArray texts;
    texts.Add(L"H7");
    texts.Add(CString(L"g6"));
    texts.SetAtGrow(2, L"js6");
    texts.InsertAt(0, L"first");
    EXPECT_EQ(texts[0], L"first");
    EXPECT_EQ(texts[1], L"H7");
    EXPECT_EQ(texts[2], L"g6");
    EXPECT_EQ(texts[3], L"js6");
}

TEST(CStringArray, IndexingAnEmptyArrayRaisesInvalidArgument)
{
    CStringArray texts;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { texts[0] = L"x"; }));
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { texts.GetAt(0); }));
}

TEST(CStringArray, GrowsInOneModuleAndIsFreedInTheOther)
{
    CStringArray texts;
    texts.Add(L"made in the program");
    AppendNumbers(texts, 1000);
    ASSERT_EQ(texts.GetSize(), 1001);
    EXPECT_EQ(texts[1000], L"number 999 of a text that is too long for a small buffer");
    texts.RemoveAll();
    AppendNumbers(texts, 2);
    EXPECT_EQ(texts.GetSize(), 2);
}

TEST(CPtrArray, HoldsPointersIncludingNull)
{
    int object = 0;
    CPtrArray pointers;
    pointers.Add(&object);
    pointers.SetAtGrow(2, &object);
    EXPECT_EQ(pointers[0], &object);
    EXPECT_EQ(pointers[1], nullptr);
    EXPECT_EQ(pointers[2], &object);
}

TEST(CTypedPtrArray, GivesPointersOfItsType)
{
    CTypedPtrArray<CPtrArray, CForeignObject*> objects;
    CForeignObject first;
    CForeignObject second;
    objects.Add(&first);
    objects.InsertAt(0, &second);
    objects[0]->m_value = 3;
    EXPECT_EQ(second.m_value, 3);
    EXPECT_EQ(objects.GetAt(1), &first);
    objects.SetAt(1, &second);
    EXPECT_EQ(objects[1], &second);
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { objects.GetAt(2); }));
}
