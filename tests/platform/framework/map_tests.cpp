#include <set>
#include <utility>

#include <afxcoll.h>
#include <afxtempl.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/raised.h"
#include "tests/platform/framework/second_module.h"
#include "tests/support/framework_printers.h"

namespace
{
using NumberMap = CMap<int, int, int, int>;

// A key of a type of its own: a hole or a shaft of a grade, such as H7 or g6. Case makes no difference to it.
struct Field
{
    wchar_t letter;
    int grade;
};
}  // namespace

template <>
UINT HashKey<const Field&>(const Field& field)
{
    return static_cast<UINT>(field.grade);
}

template <>
BOOL CompareElements<Field, Field>(const Field* first, const Field* second)
{
    return (first->letter | 0x20) == (second->letter | 0x20) && first->grade == second->grade;
}

TEST(CMap, StartsEmpty)
{
    const NumberMap numbers;
    EXPECT_TRUE(numbers.IsEmpty());
    EXPECT_EQ(numbers.GetCount(), 0);
    EXPECT_EQ(numbers.GetSize(), 0);
    EXPECT_EQ(numbers.GetStartPosition(), nullptr);
}

TEST(CMap, LooksUpWhatWasSet)
{
    NumberMap numbers;
    numbers.SetAt(7, 70);
    numbers[8] = 80;
    int value = -1;
    EXPECT_TRUE(numbers.Lookup(7, value));
    EXPECT_EQ(value, 70);
    EXPECT_TRUE(numbers.Lookup(8, value));
    EXPECT_EQ(value, 80);
    EXPECT_EQ(numbers.GetCount(), 2);
}

TEST(CMap, AFailedLookupLeavesTheValue)
{
    const NumberMap numbers;
    int value = -1;
    EXPECT_FALSE(numbers.Lookup(7, value));
    EXPECT_EQ(value, -1);
}

TEST(CMap, SettingAKeyAgainReplacesItsValue)
{
    NumberMap numbers;
    numbers.SetAt(7, 70);
    numbers.SetAt(7, 71);
    int value = -1;
    EXPECT_TRUE(numbers.Lookup(7, value));
    EXPECT_EQ(value, 71);
    EXPECT_EQ(numbers.GetCount(), 1);
}

TEST(CMap, ABracketedMissingKeyEntersWithZero)
{
    NumberMap numbers;
    EXPECT_EQ(numbers[5], 0);
    EXPECT_EQ(numbers.GetCount(), 1);
}

TEST(CMap, RemovesKeys)
{
    NumberMap numbers;
    numbers.SetAt(7, 70);
    numbers.SetAt(8, 80);
    EXPECT_TRUE(numbers.RemoveKey(7));
    EXPECT_FALSE(numbers.RemoveKey(7));
    EXPECT_EQ(numbers.GetCount(), 1);
    numbers.RemoveAll();
    EXPECT_TRUE(numbers.IsEmpty());
}

TEST(CMap, AWalkMeetsEveryPairOnce)
{
    NumberMap numbers;
    SetSquares(numbers, 500);
    std::set<std::pair<int, int>> met;
    for (POSITION position = numbers.GetStartPosition(); position != nullptr;)
    {
        int key = -1;
        int value = -1;
        numbers.GetNextAssoc(position, key, value);
        EXPECT_EQ(value, key * key);
        EXPECT_TRUE(met.emplace(key, value).second) << key << " twice";
    }
    EXPECT_EQ(met.size(), 500U);
}

TEST(CMap, APairMayBeRemovedWhileWalking)
{
    NumberMap numbers;
    SetSquares(numbers, 500);
    for (POSITION position = numbers.GetStartPosition(); position != nullptr;)
    {
        int key = -1;
        int value = -1;
        numbers.GetNextAssoc(position, key, value);
        if (key % 2 != 0)
            numbers.RemoveKey(key);
    }
    EXPECT_EQ(numbers.GetCount(), 250);
    int value = -1;
    EXPECT_TRUE(numbers.Lookup(498, value));
    EXPECT_FALSE(numbers.Lookup(499, value));
}

TEST(CMap, TheNullPositionRaisesInvalidArgument)
{
    NumberMap numbers;
    numbers.SetAt(1, 1);
    POSITION none = nullptr;
    int key = -1;
    int value = -1;
    EXPECT_TRUE(Raises<CInvalidArgException>([&] { numbers.GetNextAssoc(none, key, value); }));
}

TEST(CMap, TextKeysAreComparedByTheirText)
{
    CMap<CString, LPCWSTR, int, int> grades;
    grades.SetAt(L"H7", 7);
    wchar_t elsewhere[] = L"H7";
    int grade = 0;
    EXPECT_TRUE(grades.Lookup(elsewhere, grade));
    EXPECT_EQ(grade, 7);
    EXPECT_FALSE(grades.Lookup(L"h7", grade));

    CMap<CString, const CString&, CString, const CString&> words;
    words.SetAt(L"ES", L"upper");
    EXPECT_EQ(words[L"ES"], L"upper");
}

TEST(CMap, KeysOfOtherTypesBringTheirOwnHashAndComparison)
{
    CMap<Field, const Field&, int, int> limits;
    limits.SetAt(Field{L'H', 7}, 21);
    int limit = 0;
    EXPECT_TRUE(limits.Lookup(Field{L'h', 7}, limit));
    EXPECT_EQ(limit, 21);
    EXPECT_FALSE(limits.Lookup(Field{L'g', 7}, limit));
}

TEST(CMapPtrToPtr, FindsPointersByPointers)
{
    int first = 0;
    int second = 0;
    CMapPtrToPtr pointers;
    pointers.SetAt(&first, &second);
    pointers[nullptr] = &first;
    void* value = nullptr;
    EXPECT_TRUE(pointers.Lookup(&first, value));
    EXPECT_EQ(value, &second);
    EXPECT_TRUE(pointers.Lookup(nullptr, value));
    EXPECT_EQ(value, &first);
    EXPECT_FALSE(pointers.Lookup(&second, value));
    EXPECT_TRUE(pointers.RemoveKey(&first));
    POSITION position = pointers.GetStartPosition();
    void* key = &first;
    pointers.GetNextAssoc(position, key, value);
    EXPECT_EQ(key, nullptr);
    EXPECT_EQ(position, nullptr);
}
