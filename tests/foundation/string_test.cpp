#include "orx/foundation/string.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

namespace {
wchar_t const* const kNoText = nullptr;
}  // namespace

TEST(COrxStringTest, NullAndEmptyAreEqualInOrderButNotInEquality) {
    COrxString const none;
    COrxString const empty(L"");
    EXPECT_TRUE(none.isNull());
    EXPECT_FALSE(empty.isNull());
    EXPECT_EQ(none, COrxString::kNull);
    EXPECT_FALSE(none == empty);
    EXPECT_FALSE(none < empty);
    EXPECT_FALSE(empty < none);
    EXPECT_LE(none, empty);
    EXPECT_GE(none, empty);
    EXPECT_EQ(none, kNoText);
    EXPECT_FALSE(none == L"");
    EXPECT_EQ(static_cast<wchar_t const*>(none), nullptr);

    // Copies and assignments keep the distinction.
    COrxString copy(empty);
    EXPECT_FALSE(copy.isNull());
    copy = none;
    EXPECT_TRUE(copy.isNull());
    copy = L"x";
    copy = kNoText;
    EXPECT_TRUE(copy.isNull());
}

TEST(COrxStringTest, ComparisonIsByCharacterCode) {
    COrxString const abc(L"abc");
    EXPECT_EQ(L"abc", abc);
    EXPECT_FALSE(abc == L"ABC");
    EXPECT_LT(abc, L"abd");
    EXPECT_LT(abc, L"abcd");
    EXPECT_GT(abc, kNoText);
    wchar_t const high[] = {static_cast<wchar_t>(0xE9), 0};
    EXPECT_LT(abc, high);  // codes compare unsigned on both platforms
}

TEST(COrxStringTest, IndexesCountFromTheEndAndPastTheEndGiveZero) {
    COrxString const s(L"abcd");
    EXPECT_EQ(s[-1], L'd');
    EXPECT_EQ(s[-4], L'a');
    EXPECT_EQ(s[4], 0);
    EXPECT_EQ(s[-5], L'd');  // folds as COrxArrayTempl's: (4 - 5) mod 2^32 mod 4 = 3
    EXPECT_EQ(COrxString()[-1], 0);
}

TEST(COrxStringTest, SetAtStoresAndKeepsTheLength) {
    COrxString s(L"abc");
    s.setAt(-1, L'z').setAt(3, L'!');
    EXPECT_EQ(s, L"abz!");
    s.setAt(1, 0);
    EXPECT_EQ(s.len(), 1);
    s.setAt(40, L'q');  // past the end: the text still ends at its terminator
    EXPECT_EQ(s, L"a");
    EXPECT_EQ(COrxString().setAt(0, L'k'), L"k");
}

TEST(COrxStringTest, BufferStartsAt16DoublesAndNeverShrinks) {
    COrxString s;
    wchar_t* const first = s.GetBuffer(0);
    s.ReleaseBuffer();
    EXPECT_FALSE(s.isNull());
    EXPECT_EQ(s.GetBuffer(16), first);  // 16 fit from the start
    s.ReleaseBuffer();
    wchar_t* const second = s.GetBuffer(17);  // 32 now
    EXPECT_NE(second, first);
    s.ReleaseBuffer();
    EXPECT_EQ(s.GetBuffer(32), second);
    s.ReleaseBuffer();
    s = L"short";
    s.trim();
    EXPECT_EQ(s.GetBuffer(0), second);  // never shrinks
    s.ReleaseBuffer();
    EXPECT_EQ(s, L"short");
}

TEST(COrxStringTest, GetBufferSuspendsTheLengthUntilReleased) {
    COrxString s(L"abc");
    wchar_t* buffer = s.GetBuffer(40);
    std::wcscpy(buffer, L"written by the caller");
    EXPECT_EQ(s.len(), 21);  // counted while suspended
    s += L"!";
    EXPECT_EQ(s, L"written by the caller!");
    buffer = s.GetBuffer(10);
    buffer[3] = 0;
    s.ReleaseBuffer();
    EXPECT_EQ(s.len(), 3);
    // A buffer filled to its capacity without a terminator is cut at the capacity.
    COrxString full;
    std::wmemset(full.GetBuffer(16), L'x', 16);
    full.ReleaseBuffer();
    EXPECT_EQ(full.len(), 16);
}

TEST(COrxStringTest, AppendingIsSafeWhenTheTextIsTheStringItself) {
    COrxString s(L"abc");
    s += s;
    EXPECT_EQ(s, L"abcabc");
    for (int k = 0; k < 5; ++k) {
        s += s;  // grows through several reallocations
    }
    EXPECT_EQ(s.len(), 6 * 32);
    EXPECT_EQ(s[-1], L'c');

    COrxString t(L"0123456789abcdef");  // exactly at capacity: the next append moves it
    t += static_cast<wchar_t const*>(t) + 10;
    EXPECT_EQ(t, L"0123456789abcdefabcdef");
    t = static_cast<wchar_t const*>(t) + 16;  // assigning its own tail
    EXPECT_EQ(t, L"abcdef");
    t.insertAt(3, static_cast<wchar_t const*>(t));
    EXPECT_EQ(t, L"abcabcdefdef");
}

TEST(COrxStringTest, AppendingNothingKeepsTheNullString) {
    COrxString s;
    s += COrxString();
    s += kNoText;
    s += wchar_t(0);
    EXPECT_TRUE(s.isNull());
    s += L"";
    EXPECT_FALSE(s.isNull());
    EXPECT_EQ(L"<" + (s + L'a') + COrxString(L"b"), L"<ab");
    EXPECT_TRUE((kNoText + COrxString()).isNull());
}

TEST(COrxStringTest, InsertLeftRightMid) {
    COrxString s(L"held");
    s.insertAt(2, L"LLO WOR").insertAt(11, L'!');
    EXPECT_EQ(s, L"heLLO WORld!");
    s.insertAt(13, L"beyond").insertAt(0, kNoText);
    EXPECT_EQ(s, L"heLLO WORld!");

    COrxString const t(L"abcdef");
    EXPECT_EQ(t.left(99), L"abcdef");
    EXPECT_EQ(t.right(2), L"ef");
    EXPECT_EQ(t.mid(2, 3), L"cde");
    EXPECT_EQ(t.mid(4, 99), L"ef");
    EXPECT_EQ(t.mid(6, 1), L"");  // empty, not null
    EXPECT_TRUE(COrxString().mid(0, 3).isNull());
}

TEST(COrxStringTest, FillReplaceAndTrim) {
    COrxString n(L"42");
    EXPECT_EQ(n.lfill(5, L'0'), L"00042");
    EXPECT_EQ(n.lfill(3, L'0').rfill(7, L'.'), L"00042..");
    EXPECT_EQ(COrxString().rfill(2, L'-'), L"--");

    COrxString r(L"a--b--c");
    EXPECT_EQ(r.replace(L"--", L"+"), L"a+b+c");
    EXPECT_EQ(r.replace(L"+", L"").replace(L"b", kNoText), L"ac");
    EXPECT_EQ(r.replace(L"", L"x").replace(L"zz", L"x"), L"ac");
    EXPECT_EQ(COrxString(L"aaaa").replace(L"aa", L"b"), L"bb");  // left to right
    EXPECT_EQ(COrxString(L"x.y").replace(L'.', L'/').replace(L"/", L"::"), L"x::y");
    EXPECT_EQ(COrxString(L"name=value").replace(L'=', 0), L"name");

    COrxString t(L" \t\r\n text \n\v");
    EXPECT_EQ(COrxString(t).trimRight(), t);  // \v is not trimmed
    EXPECT_EQ(COrxString(t).trimLeft(), L"text \n\v");
    EXPECT_EQ(COrxString(L"\f x \r\n").trim(), L"\f x");
    EXPECT_EQ(COrxString(L" \t ").trim(), L"");
    EXPECT_TRUE(COrxString().trim().isNull());
}

TEST(COrxStringTest, CaseMappingCoversMoreThanAscii) {
    wchar_t const mixed[] = {L'a', L'B', 0xE9, 0xC4, 0xFF, 0x3B1, 0x430, 0xDF, L'1', 0};
    wchar_t const upper[] = {L'A', L'B', 0xC9, 0xC4, 0x178, 0x391, 0x410, 0xDF, L'1', 0};
    wchar_t const lower[] = {L'a', L'b', 0xE9, 0xE4, 0xFF, 0x3B1, 0x430, 0xDF, L'1', 0};
    EXPECT_EQ(COrxString(mixed).makeUpper(), upper);
    EXPECT_EQ(COrxString(mixed).makeLower(), lower);
    EXPECT_TRUE(COrxString().makeUpper().isNull());
}

TEST(COrxStringTest, ReversalKeepsSurrogatePairsTogether) {
    EXPECT_EQ(COrxString(L"abc").reverse(), L"cba");
    EXPECT_TRUE(COrxString().reverse().isNull());
    // U+1F600 between two letters: one character on both platforms.
    COrxString const face = COrxString().fromMultiByte("\xF0\x9F\x98\x80", 65001);
    EXPECT_EQ((L"a" + face + L'b').revert(), L"b" + face + L'a');
}

TEST(COrxStringTest, QuoteAndUnquote) {
    EXPECT_EQ(COrxString(L"a b").quote(), L"\"a b\"");
    EXPECT_EQ(COrxString().quote(), L"\"\"");
    EXPECT_EQ(COrxString(L"\"a b\"").unQuote(), L"a b");
    EXPECT_EQ(COrxString(L"\"").unQuote(), L"\"");
    EXPECT_EQ(COrxString(L"\"\"x\"\"").unQuote(), L"\"x\"");  // one pair only
}

TEST(COrxStringTest, FindGivesTheFirstIndexOrMinusOne) {
    COrxString const s(L"abcabc");
    EXPECT_EQ(s.find(L"ca"), 2);
    EXPECT_EQ(s.find(L""), 0);
    EXPECT_EQ(s.find(kNoText), -1);
    EXPECT_EQ(s.find(wchar_t(0)), -1);
    EXPECT_EQ(COrxString().find(L'a'), -1);
}

TEST(COrxStringTest, MatchWildcardsAndAlternatives) {
    struct Case {
        wchar_t const* text;
        wchar_t const* pattern;
        wchar_t delimiter;
        bool matches;
    };
    Case const cases[] = {
        {L"drawing.dwg", L"*.dwg", 0, true},
        {L"drawing.dwg", L"*.dxf;*.dwg", L';', true},
        {L"drawing.dwg", L"draw?ng.*", 0, true},
        {L"drawing.dwg", L"Drawing.dwg", 0, false},  // case-sensitive
        {L"", L"*", 0, true},
        {L"", L"", 0, true},
        {L"", L"?", 0, false},
        {L"abcbc", L"a*bc", 0, true},  // the second occurrence of the piece
        {L"abcbd", L"a*bc", 0, false},
        {L"axbyc", L"a*b?c", 0, true},
        {L"abc", L"a**c", 0, true},
        {L"x", L"a,b,x", L',', true},
        {L"x", L"a,,b", L',', false},
        {L"", L"a,,b", L',', true},  // the empty alternative
        // The recursive match splits the rest of the pattern at ',' whatever the delimiter:
        // "*x*a,b" against "xb" tries "*a" and "b" after the x.
        {L"xb", L"*x*a,b", L';', true},
        {L"xb", L"x*a,b", 0, false},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(COrxString(c.text).match(c.pattern, c.delimiter), c.matches)
            << c.text << " ~ " << c.pattern;
    }
    EXPECT_FALSE(COrxString().match(L"*", 0));
    EXPECT_FALSE(COrxString(L"a").match(nullptr, 0));
}

TEST(COrxStringTest, MatchWithManyStarsFinishes) {
    COrxString const text(std::wstring(60, L'a').c_str());
    std::wstring pattern;
    for (int k = 0; k < 12; ++k) {
        pattern += L"*a";
    }
    EXPECT_TRUE(text.match((pattern + L"*").c_str(), 0));
    EXPECT_FALSE(text.match((pattern + L"*b").c_str(), 0));
}

TEST(COrxStringTest, StringListsSortStablyButSearchByEquality) {
    COrxArrayTempl<COrxString> list;
    list.append(COrxString(L"b")).append(COrxString()).append(COrxString(L"a"));
    list.append(COrxString(L""));
    list.sort();
    EXPECT_TRUE(list[0].isNull());  // null and empty are equal in order: the sort is stable
    EXPECT_EQ(list[1], L"");
    EXPECT_EQ(list[2], L"a");
    EXPECT_EQ(list.indexOf(COrxString(L"")), 1);  // but equality tells them apart
    EXPECT_EQ(list.indexOf(COrxString()), 0);
}
