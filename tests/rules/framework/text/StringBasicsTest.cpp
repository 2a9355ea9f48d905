// CString: construction, assignment, sharing, buffers, appending.
#include "TextPrinter.h"

#include <atomic>
#include <thread>
#include <vector>

namespace {

TEST(StringBasics, DefaultIsEmptyAndTerminated) {
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(0, text.GetLength());
    ASSERT_NE(nullptr, text.GetString());
    EXPECT_EQ(L'\0', text.GetString()[0]);
}

TEST(StringBasics, NullPointersAreEmptyTexts) {
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(static_cast<LPCSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(static_cast<LPCWSTR>(nullptr), 5).IsEmpty());
    CString text = L"abc";
    text = static_cast<LPCWSTR>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
    text += static_cast<LPCWSTR>(nullptr);
    text += static_cast<LPCSTR>(nullptr);
    text.Append(nullptr, 3);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(SameText(L"x", L"x" + CString(static_cast<LPCWSTR>(nullptr))));
    EXPECT_TRUE(SameText(L"x", CString(L"x") + static_cast<LPCWSTR>(nullptr)));
}

TEST(StringBasics, ConstructsFromPartsAndRepeats) {
    EXPECT_TRUE(SameText(L"abc", CString(L"abcdef", 3)));
    EXPECT_TRUE(SameText(L"", CString(L"abcdef", 0)));
    EXPECT_TRUE(SameText(L"", CString(L"abcdef", -1)));
    EXPECT_TRUE(SameText(L"ab", CString("abcdef", 2)));
    EXPECT_TRUE(SameText(L"zzz", CString(L'z', 3)));
    EXPECT_TRUE(SameText(L"z", CString(L'z')));
    EXPECT_TRUE(SameText(L"", CString(L'z', 0)));
    EXPECT_TRUE(SameText(L"", CString(L'z', -4)));
    EXPECT_TRUE(SameText(L"q", CString('q')));
    EXPECT_TRUE(SameText(L"narrow", CString(reinterpret_cast<const unsigned char*>("narrow"))));
    const CString holdsNul(L"a\0b", 3);
    EXPECT_EQ(3, holdsNul.GetLength());
    EXPECT_EQ(L'b', holdsNul[2]);
}

TEST(StringBasics, CopySharesAndWriteSeparates) {
    CString first = L"shared";
    CString second = first;
    EXPECT_EQ(first.GetString(), second.GetString());
    second.SetAt(0, L'S');
    EXPECT_TRUE(SameText(L"shared", first));
    EXPECT_TRUE(SameText(L"Shared", second));
    EXPECT_NE(first.GetString(), second.GetString());
    CString third;
    third = first;
    EXPECT_EQ(first.GetString(), third.GetString());
    first.Empty();
    EXPECT_TRUE(SameText(L"shared", third));
}

TEST(StringBasics, EveryWriterSeparatesASharedText) {
    typedef void (*Writer)(CString&);
    const Writer writers[] = {
        [](CString& s) { s += L"x"; },
        [](CString& s) { s += L'x'; },
        [](CString& s) { s.SetAt(1, L'x'); },
        [](CString& s) { s.Insert(0, L"x"); },
        [](CString& s) { s.Delete(0); },
        [](CString& s) { s.Remove(L'b'); },
        [](CString& s) { s.Replace(L'b', L'x'); },
        [](CString& s) { s.Replace(L"b", L"xyz"); },
        [](CString& s) { s.MakeUpper(); },
        [](CString& s) { s.MakeReverse(); },
        [](CString& s) { s.TrimLeft(L'a'); },
        [](CString& s) { s.TrimRight(L'c'); },
        [](CString& s) { s.GetBuffer()[0] = L'x'; },
        [](CString& s) { s.GetBuffer(50)[1] = L'x'; },
        [](CString& s) { s.GetBufferSetLength(2); },
        [](CString& s) { s.Truncate(1); },
        [](CString& s) { s.Format(L"%d", 5); },
        [](CString& s) { s.AppendFormat(L"%d", 5); },
        [](CString& s) { s.Empty(); },
        [](CString& s) { s = L"other"; },
        [](CString& s) {
            *s.LockBuffer() = L'x';
            s.UnlockBuffer();
        },
    };
    for (const Writer writer : writers) {
        const CString original = L"abc";
        CString copy = original;
        writer(copy);
        EXPECT_TRUE(SameText(L"abc", original));
        EXPECT_NE(0, copy.Compare(original));
    }
}

TEST(StringBasics, MoveLeavesAUsableText) {
    CString source = L"moved";
    CString target = std::move(source);
    EXPECT_TRUE(SameText(L"moved", target));
    source = L"again"; // NOLINT(bugprone-use-after-move): a moved-from text may be assigned
    EXPECT_TRUE(SameText(L"again", source));
    CString& alias = target;
    target = std::move(alias);
    EXPECT_TRUE(SameText(L"moved", target));
    target = static_cast<const CString&>(target);
    EXPECT_TRUE(SameText(L"moved", target));
}

TEST(StringBasics, GetAtOutsideTheTextIsNul) {
    CString text = L"ab";
    EXPECT_EQ(L'a', text[0]);
    EXPECT_EQ(L'b', text.GetAt(1));
    EXPECT_EQ(L'\0', text[2]);
    for (const int index : {-1, 3, INT_MAX, INT_MIN}) {
        EXPECT_EQ(L'\0', text[index]) << index;
        text.SetAt(index, L'x');
    }
    text.SetAt(2, L'x');
    EXPECT_TRUE(SameText(L"ab", text));
}

TEST(StringBasics, BuffersHoldWhatWasAskedFor) {
    CString text = L"abc";
    LPWSTR buffer = text.GetBuffer(100);
    EXPECT_GE(text.GetAllocLength(), 100);
    EXPECT_STREQ(L"abc", buffer);
    wcscpy(buffer, L"longer text");
    text.ReleaseBuffer();
    EXPECT_TRUE(SameText(L"longer text", text));
    text.GetBuffer(20)[6] = L'\0';
    text.ReleaseBuffer();
    EXPECT_TRUE(SameText(L"longer", text));
    text.ReleaseBuffer(3);
    EXPECT_TRUE(SameText(L"lon", text));
    text.ReleaseBuffer(INT_MAX);
    EXPECT_EQ(text.GetAllocLength(), text.GetLength());
    text.ReleaseBufferSetLength(-5);
    EXPECT_TRUE(text.IsEmpty());
    wmemset(text.GetBufferSetLength(4), L'y', 4);
    EXPECT_TRUE(SameText(L"yyyy", text));
    text.GetBufferSetLength(-1);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringBasics, TheSharedEmptyTextStaysEmpty) {
    CString text;
    text.ReleaseBuffer();
    text.ReleaseBuffer(5);
    text.GetBufferSetLength(0);
    text.Truncate(0);
    text.FreeExtra();
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(CString().IsEmpty());
    text.GetBuffer(0);
    text.Preallocate(-3);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(StringBasics, RoomIsGivenBack) {
    CString text = L"abc";
    text.Preallocate(1000);
    EXPECT_GE(text.GetAllocLength(), 1000);
    text.FreeExtra();
    EXPECT_LT(text.GetAllocLength(), 100);
    EXPECT_TRUE(SameText(L"abc", text));
}

TEST(StringBasics, LockedBuffersAreNotShared) {
    CString text = L"abc";
    LPWSTR const locked = text.LockBuffer();
    const CString copy = text;
    EXPECT_NE(locked, copy.GetString());
    CString assigned;
    assigned = text;
    EXPECT_NE(locked, assigned.GetString());
    locked[0] = L'x';
    text = CString(L"xyz");
    text.Empty();
    text += L"more than there was room for at first";
    const CString second = text;
    EXPECT_NE(text.GetString(), second.GetString());
    text.UnlockBuffer();
    const CString third = text;
    EXPECT_EQ(text.GetString(), third.GetString());
    EXPECT_TRUE(SameText(L"abc", copy));
    EXPECT_TRUE(SameText(L"abc", assigned));
}

TEST(StringBasics, AppendsItselfAndItsParts) {
    CString text = L"abc";
    text += text;
    EXPECT_TRUE(SameText(L"abcabc", text));
    text += text.GetString() + 4;
    EXPECT_TRUE(SameText(L"abcabcbc", text));
    text.Append(text.GetString() + 1, 2);
    EXPECT_TRUE(SameText(L"abcabcbcbc", text));
    text += static_cast<LPCWSTR>(text);
    EXPECT_TRUE(SameText(L"abcabcbcbcabcabcbcbc", text));
    text = text.GetString() + 17;
    EXPECT_TRUE(SameText(L"cbc", text));
    text.SetString(text.GetString() + 1, 1);
    EXPECT_TRUE(SameText(L"b", text));
    text = text.Mid(0);
    EXPECT_TRUE(SameText(L"b", text));
    text = L"abcdef";
    text = text.Mid(2, 3);
    EXPECT_TRUE(SameText(L"cde", text));
    text = text + text + text[0] + L"-" + text;
    EXPECT_TRUE(SameText(L"cdecdec-cde", text));
    CString room = L"ab";
    room.Preallocate(64);
    room += room;
    room.Insert(1, room);
    EXPECT_TRUE(SameText(L"aababbab", room));
    room.SetString(room.GetString() + 2, 4);
    EXPECT_TRUE(SameText(L"babb", room));
}

TEST(StringBasics, AppendsOneUnitAMillionTimes) {
    constexpr int kCount = 1'000'000;
    CString text;
    int moves = 0;
    LPCWSTR last = nullptr;
    for (int i = 0; i < kCount; ++i) {
        text += static_cast<WCHAR>(L'a' + i % 26);
        moves += text.GetString() != last ? 1 : 0;
        last = text.GetString();
    }
    EXPECT_EQ(kCount, text.GetLength());
    EXPECT_EQ(L'a' + (kCount - 1) % 26, text[kCount - 1]);
    EXPECT_LT(moves, 64); // geometric growth
}

TEST(StringBasics, HugeTexts) {
    constexpr int kUnits = 20'000'000;
    CString text(L'x', kUnits);
    text += text;
    EXPECT_EQ(2 * kUnits, text.GetLength());
    EXPECT_EQ(-1, text.Find(L'y'));
    EXPECT_EQ(2 * kUnits, text.Replace(L'x', L'y'));
    EXPECT_EQ(2 * kUnits - 1, text.ReverseFind(L'y'));
    EXPECT_EQ(0, text.Delete(0, INT_MAX));
}

TEST(StringBasics, PlusJoinsAllKinds) {
    const CString a = L"a", b = L"b";
    EXPECT_TRUE(SameText(L"ab", a + b));
    EXPECT_TRUE(SameText(L"ab", a + L"b"));
    EXPECT_TRUE(SameText(L"ab", a + L'b'));
    EXPECT_TRUE(SameText(L"ab", a + "b"));
    EXPECT_TRUE(SameText(L"ab", L"a" + b));
    EXPECT_TRUE(SameText(L"ab", "a" + b));
    EXPECT_TRUE(SameText(L"ab", L'a' + b));
    EXPECT_TRUE(SameText(L"abba", a + b + b + a));
    EXPECT_TRUE(SameText(L"a", a)) << "operands stay";
    EXPECT_TRUE(SameText(L"", CString() + CString()));
    const CString nul(L"x\0y", 3);
    EXPECT_EQ(6, (nul + nul).GetLength());
}

TEST(StringBasics, CopiesInManyThreadsKeepTheText) {
    const CString text = L"one text for all threads";
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&text, &wrong] {
            for (int i = 0; i < 20'000; ++i) {
                CString copy = text;
                CString second = copy;
                copy += L"!";
                if (second != text || copy.GetLength() != text.GetLength() + 1)
                    ++wrong;
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(0, wrong);
    EXPECT_TRUE(SameText(L"one text for all threads", text));
}

TEST(StringBasics, SystemStrings) {
    const CString text(L"a\0b", 3);
    BSTR string = text.AllocSysString();
    ASSERT_NE(nullptr, string);
    EXPECT_EQ(3u, SysStringLen(string));
    EXPECT_EQ(string, CString(L"longer").SetSysString(&string));
    EXPECT_STREQ(L"longer", string);
    EXPECT_EQ(nullptr, text.SetSysString(nullptr));
    SysFreeString(string);
}

TEST(StringBasics, EnvironmentVariables) {
    ASSERT_TRUE(SetEnvironmentVariableW(L"QV_STRING_TEST", L"value"));
    CString text = L"before";
    EXPECT_TRUE(text.GetEnvironmentVariable(L"QV_STRING_TEST"));
    EXPECT_TRUE(SameText(L"value", text));
    SetEnvironmentVariableW(L"QV_STRING_TEST", nullptr);
    EXPECT_FALSE(text.GetEnvironmentVariable(L"QV_STRING_TEST"));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_FALSE(text.GetEnvironmentVariable(nullptr));
}

TEST(StringBasics, NarrowTextsAreConverted) {
    CString text = "abc";
    EXPECT_TRUE(SameText(L"abc", text));
    text = 'd';
    EXPECT_TRUE(SameText(L"d", text));
    text += 'e';
    text += "fg";
    EXPECT_TRUE(SameText(L"defg", text));
    char bytes[8] = {};
    const WCHAR unit =
        L'\u00E9'; // in the code page or replaced: what comes back is what the system makes of it
    const int count = WideCharToMultiByte(CP_ACP, 0, &unit, 1, bytes, 8, nullptr, nullptr);
    WCHAR back[8] = {};
    MultiByteToWideChar(CP_ACP, 0, bytes, count, back, 8);
    EXPECT_TRUE(SameText(back, CString(bytes)));
}

} // namespace
