// The smaller text helpers: markup, markers, list replacement, fields, paths, hex text and
// UUIDs.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "orx/foundation/hex_text.h"
#include "orx/foundation/text.h"
#include "orx/foundation/text_markers.h"
#include "orx/foundation/text_markup.h"
#include "orx/foundation/uuid.h"
#include "tests/support/lists.h"

using orx_test::list;

namespace {

std::wstring text(COrxString const& s) {
    return s.isNull() ? std::wstring(L"<null>") : std::wstring(s);
}

}  // namespace

TEST(MarkupTest, HtmlSpecialCharsAndRtf) {
    EXPECT_EQ(text(ORX::htmlSpecialChars(L"<a href=\"x\">Beam & column's</a>")),
              L"&lt;a href=&quot;x&quot;&gt;Beam &amp; column&#39;s&lt;/a&gt;");
    EXPECT_TRUE(ORX::htmlSpecialChars(nullptr).isNull());

    EXPECT_EQ(text(ORX::txtToRTF(L"a{b}\\c\r\nd\ne\rf\tg\x01")),
              L"{\\rtf1\\ansi\\deff0 a\\{b\\}\\\\c\\par\nd\\par\ne\\par\nf\\tab g}");
    EXPECT_EQ(text(ORX::txtToRTF(L"\u00e4\u20ac\U0001F600")),
              L"{\\rtf1\\ansi\\deff0 \\u228?\\u8364?\\u-10179?\\u-8704?}");
    EXPECT_EQ(text(ORX::txtToRTF(L"")), L"{\\rtf1\\ansi\\deff0 }");
    EXPECT_TRUE(ORX::txtToRTF(nullptr).isNull());
}

TEST(MarkerTest, ListsClearsAndRemovesMarkers) {
    wchar_t const* const plate = L"<POS>: <PROFILE> <_x1> <POS> a < b <> <1st> <two words> <POS";
    EXPECT_EQ(ORX::getMarkerList(plate), list({L"POS", L"PROFILE", L"_x1"}));
    EXPECT_TRUE(ORX::getMarkerList(nullptr).isEmpty());

    COrxString cleared(plate);
    EXPECT_EQ(ORX::clearMarker(cleared), 4ul);
    EXPECT_EQ(text(cleared), L":    a < b <> <1st> <two words> <POS");

    COrxString removed(plate);
    EXPECT_EQ(ORX::removeMarker(removed, L"POS"), 2ul);
    EXPECT_EQ(text(removed), L": <PROFILE> <_x1>  a < b <> <1st> <two words> <POS");
    EXPECT_EQ(ORX::removeMarker(removed, L"pos"), 0ul);  // names are case-sensitive
    EXPECT_EQ(ORX::removeMarker(removed, nullptr) + ORX::removeMarker(removed, L""), 0ul);
    COrxString null;
    EXPECT_EQ(ORX::clearMarker(null), 0ul);
    EXPECT_TRUE(null.isNull());
}

TEST(TxtListReplaceTest, ReplacesInOnePassLongestFirst) {
    COrxString swapped(L"ab ba");
    EXPECT_EQ(ORX::txtListReplace(swapped, list({L"a", L"b"}), list({L"b", L"a"})), 4);
    EXPECT_EQ(text(swapped), L"ba ab");

    COrxString filled(L"<POS>/<POSITION>");
    EXPECT_EQ(ORX::txtListReplace(filled, list({L"<POS", L"<POSITION>", L""}),
                                  list({L"#", L"12", L"never"})),
              2);
    EXPECT_EQ(text(filled), L"#>/12");

    COrxString untouched(L"abc");
    EXPECT_EQ(ORX::txtListReplace(untouched, list({L"a"}), COrxArrayTempl<COrxString>()), -1);
    EXPECT_EQ(ORX::txtListReplace(untouched, list({L"x"}), list({L"y"})), 0);
    EXPECT_EQ(text(untouched), L"abc");
}

TEST(ParseTest, SplitsFieldsWithQuotes) {
    struct Case {
        wchar_t const* line;
        wchar_t const* sep;
        std::initializer_list<wchar_t const*> fields;
    };
    Case const cases[] = {
        {L"HEA 200, \"Plate, 10 mm\"", L",", {L"HEA 200", L"Plate, 10 mm"}},
        {L"a,,b,", L",", {L"a", L"", L"b", L""}},
        {L"\"say \"\"hi\"\"\" ;x", L";", {L"say \"hi\"", L"x"}},
        {L"a\tb c", L"\t", {L"a", L"b c"}},
        {L"\"two\nlines\"", L",", {L"two\nlines"}},
        {L"", L",", {L""}},
        {L"a,b", nullptr, {L"a,b"}},
    };
    for (Case const& c : cases) {
        COrxArrayTempl<COrxString> fields;
        ASSERT_TRUE(ORX::parse(fields, c.line, c.sep)) << c.line;
        EXPECT_EQ(fields, list(c.fields)) << c.line;
    }
    for (wchar_t const* bad : {L"\"open", L"\"a\"b,c", L"x,\"y"}) {
        COrxArrayTempl<COrxString> untouched = list({L"kept"});
        EXPECT_FALSE(ORX::parse(untouched, bad, L",")) << bad;
        EXPECT_EQ(untouched, list({L"kept"})) << bad;
    }
    COrxArrayTempl<COrxString> fields;
    EXPECT_FALSE(ORX::parse(fields, nullptr, L","));
}

TEST(RemoveLastSlashTest, KeepsRoots) {
    struct Case {
        wchar_t const* path;
        wchar_t const* trimmed;
    };
    Case const cases[] = {
        {L"C:\\plans\\", L"C:\\plans"},
        {L"/home/user//", L"/home/user"},
        {L"dir\\/", L"dir"},
        {L"C:\\", L"C:\\"},
        {L"C:/\\", L"C:/"},
        {L"/", L"/"},
        {L"\\\\", L"\\"},
        {L"plain", L"plain"},
        {L"", L""},
    };
    for (Case const& c : cases) {
        COrxString path(c.path);
        EXPECT_EQ(text(ORX::removeLastSlash(path)), c.trimmed) << c.path;
    }
    COrxString null;
    EXPECT_TRUE(ORX::removeLastSlash(null).isNull());
}

TEST(HexTextTest, NumbersAndDumps) {
    EXPECT_EQ(text(ORX::ltox(0)), L"0");
    EXPECT_EQ(text(ORX::ltox(255)), L"ff");
    EXPECT_EQ(text(ORX::ltox(0xFFFFFFFFFFFFFFFFull)), L"ffffffffffffffff");

    struct Case {
        wchar_t const* text;
        unsigned long long value;
    };
    Case const good[] = {{L"ff", 255},
                         {L"  0x1F\t", 31},
                         {L"0XaBc", 0xABC},
                         {L"ffffffffffffffff", 0xFFFFFFFFFFFFFFFFull},
                         {L"00000000000000000001", 1}};
    for (Case const& c : good) {
        unsigned long long value = 7;
        EXPECT_TRUE(ORX::xtol(c.text, value)) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
        EXPECT_TRUE(ORX::xtol(ORX::ltox(c.value), value)) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    for (wchar_t const* bad : {L"", L"0x", L"  ", L"12g", L"-1", L"1 2", L"10000000000000000"}) {
        unsigned long long value = 7;
        EXPECT_FALSE(ORX::xtol(bad, value)) << bad;
        EXPECT_EQ(value, 7u) << bad;
    }
    unsigned long long value = 7;
    EXPECT_FALSE(ORX::xtol(nullptr, value));

    unsigned char const bytes[] = {'O', 'r', 'x', ' ', 'b', 'a', 's',  'e',  ' ',  'l',
                                   'i', 'b', 'r', 'a', 'r', 'y', 0x0A, 0x00, 0xFF, 'A'};
    EXPECT_EQ(text(ORX::dump(bytes, sizeof bytes)),
              L"00000000  4f 72 78 20 62 61 73 65  20 6c 69 62 72 61 72 79  |Orx base library|\n"
              L"00000010  0a 00 ff 41                                       |...A|\n");
    EXPECT_EQ(text(ORX::dump(bytes, 0)), L"");
    EXPECT_TRUE(ORX::dump(nullptr, 1).isNull());
}

TEST(StrUuidCreateTest, IsARandomVersion4UuidInBraces) {
    std::set<std::wstring> seen;
    for (int k = 0; k < 100; ++k) {
        std::wstring const id = text(ORX::strUuidCreate());
        ASSERT_EQ(id.size(), 38u) << id;
        EXPECT_EQ(id.front(), L'{');
        EXPECT_EQ(id.back(), L'}');
        for (std::size_t i = 1; i < 37; ++i) {
            bool const dash = i == 9 || i == 14 || i == 19 || i == 24;
            if (dash) {
                EXPECT_EQ(id[i], L'-') << id;
            } else {
                EXPECT_NE(std::wstring(L"0123456789ABCDEF").find(id[i]), std::wstring::npos) << id;
            }
        }
        EXPECT_EQ(id[15], L'4') << id;                                            // version
        EXPECT_NE(std::wstring(L"89AB").find(id[20]), std::wstring::npos) << id;  // variant
        seen.insert(id);
    }
    EXPECT_EQ(seen.size(), 100u);
}
