// CArray, CStringArray, CList, CMap.
#include "TextPrinter.h"
#include "afx.h"
#include "afxcoll.h"

#include <random>
#include <string>
#include <vector>

namespace {

// Counts what is alive, so that every construction must meet its destruction.
struct Counted {
    static inline int alive = 0;
    int value = 0;
    Counted() { ++alive; }
    Counted(int v) : value(v) { ++alive; }
    Counted(const Counted& other) : value(other.value) { ++alive; }
    Counted(Counted&& other) noexcept : value(std::exchange(other.value, -1)) { ++alive; }
    Counted& operator=(const Counted&) = default;
    Counted& operator=(Counted&& other) noexcept {
        value = std::exchange(other.value, -1);
        return *this;
    }
    ~Counted() { --alive; }
    bool operator==(const Counted& other) const { return value == other.value; }
};

typedef CArray<Counted, const Counted&> CountedArray;

std::vector<int> Values(const CountedArray& array) {
    std::vector<int> values;
    for (const Counted& element : array)
        values.push_back(element.value);
    return values;
}

template <class Action> bool ThrowsInvalidArgument(Action action) {
    try {
        action();
    } catch (CInvalidArgException* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

TEST(Arrays, StartEmpty) {
    const CountedArray array;
    EXPECT_EQ(0, array.GetSize());
    EXPECT_EQ(0, array.GetCount());
    EXPECT_EQ(-1, array.GetUpperBound());
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(nullptr, array.GetData());
}

TEST(Arrays, SetSizeMakesDefaultElements) {
    CArray<int, int> numbers;
    numbers.SetSize(5);
    for (INT_PTR i = 0; i < 5; ++i)
        EXPECT_EQ(0, numbers[i]);
    numbers[4] = 7;
    numbers.SetSize(3);
    numbers.SetSize(5);
    EXPECT_EQ(0, numbers[4]) << "elements cut off do not come back";
    numbers.SetSize(0);
    EXPECT_EQ(nullptr, numbers.GetData()) << "size 0 gives the memory back";
    EXPECT_TRUE(ThrowsInvalidArgument([&numbers] { numbers.SetSize(-1); }));
}

TEST(Arrays, IndexesOutsideThrow) {
    CountedArray array;
    array.Add(1);
    const CountedArray& constant = array;
    for (const INT_PTR index : {INT_PTR{-1}, INT_PTR{1}, INTPTR_MAX, INTPTR_MIN}) {
        EXPECT_TRUE(ThrowsInvalidArgument([&] { array.GetAt(index); })) << index;
        EXPECT_TRUE(ThrowsInvalidArgument([&] { (void)array[index]; })) << index;
        EXPECT_TRUE(ThrowsInvalidArgument([&] { constant.GetAt(index); })) << index;
        EXPECT_TRUE(ThrowsInvalidArgument([&] { array.SetAt(index, 5); })) << index;
        EXPECT_TRUE(ThrowsInvalidArgument([&] { array.RemoveAt(index, 1); })) << index;
    }
    EXPECT_TRUE(ThrowsInvalidArgument([&] { array.SetAtGrow(-1, 5); }));
    EXPECT_TRUE(ThrowsInvalidArgument([&] { array.InsertAt(-1, 5); }));
    EXPECT_TRUE(ThrowsInvalidArgument([&] { array.InsertAt(0, 5, 0); }));
    EXPECT_TRUE(ThrowsInvalidArgument([&] { array.InsertAt(0, nullptr); }));
    EXPECT_TRUE(ThrowsInvalidArgument([&] { array.RemoveAt(0, 2); }));
    EXPECT_TRUE(ThrowsInvalidArgument([&] { array.RemoveAt(0, -1); }));
    EXPECT_EQ((std::vector<int>{1}), Values(array));
}

TEST(Arrays, SizesBeyondMemoryThrow) {
    CArray<int, int> array;
    array.Add(3);
    bool thrown = false;
    try {
        array.SetSize(INTPTR_MAX);
    } catch (CMemoryException* exception) {
        exception->Delete();
        thrown = true;
    }
    EXPECT_TRUE(thrown);
    EXPECT_EQ(1, array.GetSize());
    EXPECT_EQ(3, array[0]);
}

TEST(Arrays, InsertRemoveAppendCopy) {
    CountedArray array;
    EXPECT_EQ(0, array.Add(1));
    EXPECT_EQ(1, array.Add(3));
    array.InsertAt(1, 2);
    array.InsertAt(0, 0, 2);
    EXPECT_EQ((std::vector<int>{0, 0, 1, 2, 3}), Values(array));
    array.InsertAt(7, 9);
    EXPECT_EQ((std::vector<int>{0, 0, 1, 2, 3, 0, 0, 9}), Values(array)) << "behind the end: filled up";
    array.RemoveAt(5, 3);
    array.RemoveAt(0);
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), Values(array));
    array.RemoveAt(4, 0);
    array.SetAtGrow(5, 6);
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 0, 6}), Values(array));
    CountedArray other;
    other.Copy(array);
    EXPECT_EQ(6, other.Append(array));
    EXPECT_EQ(12, other.GetSize());
    other.Copy(other);
    EXPECT_EQ(12, other.GetSize());
    other.Append(other);
    EXPECT_EQ(24, other.GetSize());
    EXPECT_EQ(6, other[23].value);
    other.InsertAt(1, &array);
    EXPECT_EQ(30, other.GetSize());
    EXPECT_EQ(6, other[6].value);
    array.InsertAt(2, &array);
    EXPECT_EQ((std::vector<int>{0, 1, 0, 1, 2, 3, 0, 6, 2, 3, 0, 6}), Values(array));
    array.FreeExtra();
    EXPECT_EQ(12, array.GetSize());
}

TEST(Arrays, ArgumentsMayBeElements) {
    CountedArray array;
    array.Add(1);
    for (int i = 0; i < 100; ++i)
        array.Add(array[0]);
    array.InsertAt(0, array[100], 3);
    array.SetAtGrow(500, array[0]);
    EXPECT_EQ(1, array[100].value);
    EXPECT_EQ(1, array[2].value);
    EXPECT_EQ(1, array[500].value);
    EXPECT_EQ(0, array[499].value);
}

TEST(Arrays, EveryElementIsDestroyed) {
    const int before = Counted::alive;
    {
        CountedArray array, other;
        for (int i = 0; i < 100; ++i)
            array.Add(i);
        array.RemoveAt(10, 50);
        array.InsertAt(5, 7, 20);
        array.SetSize(30);
        other.Append(array);
        array.RemoveAll();
        EXPECT_EQ(before + 30, Counted::alive);
        other.SetAtGrow(60, 1);
        EXPECT_EQ(before + 61, Counted::alive);
    }
    EXPECT_EQ(before, Counted::alive);
}

TEST(Arrays, RandomChangesAgreeWithAModel) {
    std::mt19937 random(1);
    const auto pick = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    const int before = Counted::alive;
    {
        CountedArray array;
        std::vector<int> model;
        for (int step = 0; step < 20'000; ++step) {
            const int size = static_cast<int>(model.size());
            const int at = pick(0, size), count = pick(1, 3);
            switch (size > 60 ? 1 : pick(0, 4)) {
            case 0:
                array.Add(step);
                model.push_back(step);
                break;
            case 1: {
                const int removed = std::min(size > 60 ? 40 : count, size - at);
                array.RemoveAt(at, removed);
                model.erase(model.begin() + at, model.begin() + at + removed);
                break;
            }
            case 2:
                array.InsertAt(at, step, count);
                model.insert(model.begin() + at, static_cast<size_t>(count), step);
                break;
            case 3:
                array.SetSize(at, pick(-1, 3));
                model.resize(static_cast<size_t>(at));
                break;
            default:
                array.SetAtGrow(at + count, step);
                if (at + count >= size)
                    model.resize(static_cast<size_t>(at + count + 1));
                model[static_cast<size_t>(at + count)] = step;
            }
            ASSERT_EQ(model, Values(array)) << step;
            ASSERT_EQ(before + static_cast<int>(model.size()), Counted::alive);
        }
    }
    EXPECT_EQ(before, Counted::alive);
}

TEST(Arrays, StringArraysOwnTheirTexts) {
    CStringArray names;
    {
        CString local = L"local";
        names.Add(local);
        names.Add(L"literal");
        local = L"changed";
    }
    names.InsertAt(0, L"first");
    names.SetAtGrow(4, L"fifth");
    names[1] += L"!";
    EXPECT_TRUE(SameText(L"first", names.GetAt(0)));
    EXPECT_TRUE(SameText(L"local!", names[1]));
    EXPECT_TRUE(SameText(L"literal", names[2]));
    EXPECT_TRUE(names[3].IsEmpty());
    EXPECT_EQ(5, names.GetSize());
    names.SetAt(3, names[0]);
    EXPECT_EQ(names[0].GetString(), names[3].GetString()) << "texts are shared, not copied";
}

TEST(Arrays, PlainElementTypes) {
    CPtrArray pointers;
    pointers.Add(&pointers);
    EXPECT_EQ(&pointers, pointers[0]);
    CUIntArray numbers;
    numbers.SetAtGrow(2, 5);
    EXPECT_EQ(5u, numbers[2]);
    CByteArray bytes;
    bytes.SetSize(1000);
    EXPECT_EQ(0, bytes[999]);
    CDWordArray words;
    words.Add(0xFFFFFFFF);
    EXPECT_EQ(0xFFFFFFFFu, words[0]);
}

TEST(Lists, WalkInsertRemove) {
    const int before = Counted::alive;
    {
        CList<Counted, const Counted&> list;
        EXPECT_TRUE(list.IsEmpty());
        EXPECT_TRUE(ThrowsInvalidArgument([&list] { list.GetHead(); }));
        EXPECT_TRUE(ThrowsInvalidArgument([&list] { list.RemoveTail(); }));
        EXPECT_TRUE(ThrowsInvalidArgument([&list] { list.RemoveAt(nullptr); }));
        const POSITION two = list.AddTail(2);
        list.AddHead(1);
        list.AddTail(4);
        list.InsertAfter(two, 3);
        list.InsertBefore(nullptr, 0);
        list.InsertAfter(nullptr, 5);
        int expected = 0;
        for (POSITION at = list.GetHeadPosition(); at;)
            EXPECT_EQ(expected++, list.GetNext(at).value);
        EXPECT_EQ(6, expected);
        for (POSITION at = list.GetTailPosition(); at;)
            EXPECT_EQ(--expected, list.GetPrev(at).value);
        EXPECT_EQ(two, list.Find(2));
        EXPECT_EQ(nullptr, list.Find(2, two));
        EXPECT_EQ(two, list.FindIndex(2));
        EXPECT_EQ(nullptr, list.FindIndex(6));
        EXPECT_EQ(nullptr, list.FindIndex(-1));
        list.RemoveAt(two);
        list.SetAt(list.FindIndex(2), 30);
        EXPECT_EQ(0, list.RemoveHead().value);
        EXPECT_EQ(5, list.RemoveTail().value);
        EXPECT_EQ(3, list.GetCount());
        EXPECT_EQ(30, list.GetAt(list.FindIndex(1)).value);
        EXPECT_EQ(1, list.GetHead().value);
        EXPECT_EQ(4, list.GetTail().value);
    }
    EXPECT_EQ(before, Counted::alive);
}

TEST(Maps, TextsToNumbers) {
    CMap<CString, LPCWSTR, int, int> map;
    int value = -1;
    EXPECT_FALSE(map.Lookup(L"a", value));
    EXPECT_EQ(-1, value);
    EXPECT_FALSE(map.RemoveKey(L"a"));
    EXPECT_EQ(nullptr, map.PLookup(L"a"));
    EXPECT_EQ(nullptr, map.GetStartPosition());
    constexpr int kCount = 1000;
    for (int i = 0; i < kCount; ++i) {
        CString key;
        key.Format(L"key %d", i);
        map[key] = i;
    }
    EXPECT_EQ(kCount, map.GetCount());
    EXPECT_TRUE(map.Lookup(L"key 777", value));
    EXPECT_EQ(777, value);
    map.SetAt(L"key 777", 5);
    EXPECT_EQ(kCount, map.GetCount());
    EXPECT_EQ(5, map.PLookup(L"key 777")->value);
    long long sum = 0;
    int visited = 0;
    for (POSITION at = map.GetStartPosition(); at; ++visited) {
        CString key;
        map.GetNextAssoc(at, key, value);
        sum += value;
        map.RemoveKey(key); // the element just visited may go
    }
    EXPECT_EQ(kCount, visited);
    EXPECT_EQ(kCount * (kCount - 1) / 2 - 777 + 5, sum);
    EXPECT_TRUE(map.IsEmpty());
}

TEST(Maps, PointersNumbersAndValuesInsideTheMap) {
    CMap<void*, void*, CString, const CString&> map;
    int target = 0;
    map.SetAt(&target, L"there");
    map.SetAt(nullptr, L"null");
    EXPECT_TRUE(SameText(L"there", map[&target]));
    map.SetAt(map[&target].IsEmpty() ? nullptr : &map, map[&target]);
    EXPECT_TRUE(SameText(L"there", map[&map]));
    CMap<int, int, int, int> numbers;
    numbers.InitHashTable(3, FALSE);
    for (int i = -50; i < 50; ++i)
        numbers[i] = -i;
    for (int i = -50; i < 50; ++i)
        EXPECT_EQ(-i, numbers[i]);
    EXPECT_TRUE(ThrowsInvalidArgument([&numbers] { numbers.InitHashTable(5); }));
    numbers.RemoveAll();
    EXPECT_TRUE(ThrowsInvalidArgument([&numbers] { numbers.InitHashTable(0); }));
    EXPECT_EQ(0, numbers[7]) << "a new key has a default value";
}

TEST(Exceptions, AreStaticAndSaySomething) {
    try {
        AfxThrowInvalidArgException();
    } catch (CException* exception) {
        WCHAR text[128] = {};
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CInvalidArgException)));
        EXPECT_TRUE(exception->GetErrorMessage(text, 128));
        EXPECT_NE(L'\0', text[0]);
        EXPECT_FALSE(exception->GetErrorMessage(nullptr, 0));
        exception->Delete();
    }
    EXPECT_TRUE(ThrowsInvalidArgument([] { AfxThrowInvalidArgException(); })) << "again after Delete";
}

TEST(Diagnostics, Addresses) {
    int local = 0;
    EXPECT_TRUE(AfxIsValidAddress(&local, sizeof(local)));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress(&local, UINTPTR_MAX));
    EXPECT_FALSE(AfxIsValidAddress(L"read only", 4, TRUE));
    EXPECT_TRUE(AfxIsValidAddress(L"read only", 4, FALSE));
    EXPECT_TRUE(AfxIsValidString(L"text"));
    EXPECT_TRUE(AfxIsValidString(L"text", 4));
    EXPECT_FALSE(AfxIsValidString(L"text", 3));
    EXPECT_FALSE(AfxIsValidString(nullptr));
    EXPECT_FALSE(AfxIsValidString(reinterpret_cast<LPCWSTR>(16)));
}

} // namespace
