// Fuzz target: the text functions of COrxString on decoded wide text. Each function is
// checked against a plain std::wstring model or by its round trip: replace and find against
// the standard library, the escapes and the narrow code pages give the text back, and a
// wildcard pattern made from a text matches it.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "orx/foundation/string.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/wide_text.h"

namespace {

constexpr std::size_t kMaxText = 48;

// Code pages of both kinds: UTF-8, single-byte Western and Central European, the DOS code
// page, Japanese multi-byte, the placeholders of the system code pages, and one no system
// knows.
int const kCodePages[] = {65001, 1252, 1250, 850, 437, 932, 0, 1, 3, 28591, 12345};
constexpr unsigned kCodePageCount = sizeof(kCodePages) / sizeof(kCodePages[0]);

std::wstring textOf(COrxString const& s) {
    return s.isNull() ? std::wstring() : std::wstring(static_cast<wchar_t const*>(s));
}

void expectText(COrxString const& got, std::wstring const& expected, char const* what,
                std::wstring const& input) {
    if (textOf(got) != expected) {
        std::fprintf(stderr, "input    %s\nexpected %s\ngot      %s\n", printable(input).c_str(),
                     printable(expected).c_str(), printable(textOf(got)).c_str());
    }
    fuzzCheck(textOf(got) == expected, what);
}

std::wstring replacedModel(std::wstring text, std::wstring const& from, std::wstring const& to) {
    if (from.empty()) {
        return text;
    }
    for (std::size_t at = text.find(from); at != std::wstring::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

void checkReplaceAndFind(FuzzInput& in, std::wstring const& text) {
    std::wstring const from = decodeWideText(in, 3, true);
    std::wstring const to = decodeWideText(in, 4, true);
    COrxString s(text.c_str());
    s.replace(from.c_str(), to.c_str());
    expectText(s, replacedModel(text, from, to), "replace agrees with the model", text);

    std::size_t const at = text.find(from);
    int const found = COrxString(text.c_str()).find(from.c_str());
    fuzzCheck(found == (at == std::wstring::npos ? -1 : static_cast<int>(at)),
              "find agrees with std::wstring::find");
}

void checkEscapes(std::wstring const& text, bool wellFormed) {
    COrxString s(text.c_str());
    expectText(s.escape().unEscape(), text, "unEscape undoes escape", text);
    COrxString markup(text.c_str());
    expectText(markup.escapeHtmlSpecial().unEscapeHtml(), text,
               "unEscapeHtml undoes escapeHtmlSpecial", text);
    if (!wellFormed) {
        // Unpaired surrogates have no code point to write as a reference; the calls must
        // merely survive them.
        COrxString(text.c_str()).escapeHtml(L"xU").unEscapeHtml();
        COrxString(text.c_str()).escapeWideChar().unEscapeWideChar();
        return;
    }
    COrxString html(text.c_str());
    expectText(html.escapeHtml(L"xU").unEscapeHtml(), text, "unEscapeHtml undoes escapeHtml", text);
    COrxString wide(text.c_str());
    wide.escapeWideChar();
    for (int i = 0; i < wide.len(); ++i) {
        fuzzCheck(wide[i] < 0x80, "escapeWideChar leaves only ASCII");
    }
    expectText(wide.unEscapeWideChar(), text, "unEscapeWideChar undoes escapeWideChar", text);
}

void checkCodePage(FuzzInput& in, std::wstring const& text, bool wellFormed) {
    int const codePage = kCodePages[in.below(kCodePageCount)];
    COrxString const s(text.c_str());
    char* narrow = nullptr;
    s.toMultiByte(narrow, codePage);
    if (narrow != nullptr) {
        COrxString back;
        back.fromMultiByte(narrow, codePage);
        delete[] narrow;
        if (wellFormed) {
            expectText(back, text, "a narrow code page gives the text back", text);
        }
    }
    // Whatever bytes come in, the conversion gives a text (or the null string).
    std::string const bytes = in.bytes(32);
    COrxString read;
    read.fromMultiByte(bytes.c_str(), codePage);
}

// A pattern made from the text: some characters become '?', some runs '*'.
std::wstring patternOf(FuzzInput& in, std::wstring const& text) {
    std::wstring pattern;
    for (std::size_t i = 0; i < text.size();) {
        switch (in.below(6)) {
            case 0:
                pattern += L'?';
                ++i;
                break;
            case 1: {
                pattern += L'*';
                i += in.below(static_cast<unsigned>(text.size() - i) + 1);
                break;
            }
            default:
                pattern += text[i++];
                break;
        }
    }
    return pattern;
}

bool hasWildcard(std::wstring const& text) {
    return text.find_first_of(L"*?") != std::wstring::npos;
}

void checkMatch(FuzzInput& in, std::wstring const& text) {
    COrxString const s(text.c_str());
    fuzzCheck(s.match(L"*", 0), "* matches every text");
    // Wildcard characters in the text itself would be read as wildcards, and commas split
    // the recursive matches (deliberately), so the made patterns avoid both.
    if (text.find_first_of(L"*?,") == std::wstring::npos) {
        std::wstring const pattern = patternOf(in, text);
        if (!s.match(pattern.c_str(), 0)) {
            std::fprintf(stderr, "text %s\npattern %s\n", printable(text).c_str(),
                         printable(pattern).c_str());
        }
        fuzzCheck(s.match(pattern.c_str(), 0), "a pattern made from the text matches it");
        if (pattern.find(L';') == std::wstring::npos) {
            std::wstring const alternatives = L"a;" + pattern;
            fuzzCheck(s.match(alternatives.c_str(), L';'), "one matching alternative is enough");
        }
    }
    std::wstring const pattern = decodeWideText(in, 6, true);
    bool const matched = s.match(pattern.c_str(), 0);
    if (!hasWildcard(pattern)) {
        fuzzCheck(matched == (pattern == text), "a pattern without wildcards matches itself only");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzInput in(data, size);
    bool const wellFormed = in.below(8) != 0;
    std::wstring const text = decodeWideText(in, kMaxText, wellFormed);
    switch (in.below(4)) {
        case 0:
            checkReplaceAndFind(in, text);
            break;
        case 1:
            checkEscapes(text, wellFormed);
            break;
        case 2:
            checkCodePage(in, text, wellFormed);
            break;
        default:
            checkMatch(in, text);
            break;
    }
    return 0;
}
