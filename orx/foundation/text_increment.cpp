#include "orx/foundation/text_increment.h"

#include <string>
#include <string_view>

namespace ORX {

namespace {

// The parts of a name around its run, as offsets into the name.
struct NameParts {
    std::size_t delimiterStart = 0;
    std::size_t runStart = 0;
    std::size_t runEnd = 0;
    IncrType type = IncrType::none;
};

bool isDigit(wchar_t c) {
    return c >= L'0' && c <= L'9';
}

bool isUpper(wchar_t c) {
    return c >= L'A' && c <= L'Z';
}

bool isLower(wchar_t c) {
    return c >= L'a' && c <= L'z';
}

// Space, tab and the ASCII punctuation characters.
bool isDelimiter(wchar_t c) {
    return c == L' ' || c == L'\t' || (c >= L'!' && c <= L'/') || (c >= L':' && c <= L'@') ||
           (c >= L'[' && c <= L'`') || (c >= L'{' && c <= L'~');
}

// The last digit run, or [0, 0) when there is no digit.
void findDigitRun(std::wstring_view name, NameParts& parts) {
    std::size_t end = name.size();
    while (end > 0 && !isDigit(name[end - 1])) {
        --end;
    }
    if (end == 0) {
        return;
    }
    std::size_t start = end;
    while (start > 0 && isDigit(name[start - 1])) {
        --start;
    }
    parts = {start, start, end, IncrType::digits};
}

// A one-case letter run that ends the name and begins it or follows a delimiter.
void findLetterRun(std::wstring_view name, NameParts& parts) {
    if (name.empty() || !(isUpper(name.back()) || isLower(name.back()))) {
        return;
    }
    bool (*const sameCase)(wchar_t) = isUpper(name.back()) ? isUpper : isLower;
    std::size_t start = name.size();
    while (start > 0 && sameCase(name[start - 1])) {
        --start;
    }
    if (start > 0 && !isDelimiter(name[start - 1])) {
        return;
    }
    IncrType const type = sameCase == isUpper ? IncrType::upperLetters : IncrType::lowerLetters;
    parts = {start, start, name.size(), type};
}

NameParts partsOf(std::wstring_view name) {
    NameParts parts;
    findDigitRun(name, parts);
    if (parts.type == IncrType::none) {
        findLetterRun(name, parts);
    }
    while (parts.type != IncrType::none && parts.delimiterStart > 0 &&
           isDelimiter(name[parts.delimiterStart - 1])) {
        --parts.delimiterStart;
    }
    return parts;
}

COrxString textOf(std::wstring_view part) {
    return COrxString(std::wstring(part).c_str());
}

// Decimal plus one; a carry out of the first digit adds a digit.
std::wstring nextDigits(std::wstring run) {
    for (std::size_t k = run.size(); k-- > 0;) {
        if (run[k] != L'9') {
            ++run[k];
            return run;
        }
        run[k] = L'0';
    }
    return L'1' + run;
}

// Bijective base 26 plus one: after the last letter comes the first one of a longer run.
std::wstring nextLetters(std::wstring run, wchar_t first) {
    wchar_t const last = static_cast<wchar_t>(first + 25);
    for (std::size_t k = run.size(); k-- > 0;) {
        if (run[k] != last) {
            ++run[k];
            return run;
        }
        run[k] = first;
    }
    return first + run;
}

}  // namespace

bool str_incr_parse(wchar_t const* name, COrxString& stem, COrxString& delimiter, COrxString& run,
                    COrxString& tail) {
    if (name == nullptr) {
        return false;
    }
    std::wstring_view const text(name);
    NameParts const parts = partsOf(text);
    if (parts.type == IncrType::none) {
        return false;
    }
    stem = textOf(text.substr(0, parts.delimiterStart));
    delimiter = textOf(text.substr(parts.delimiterStart, parts.runStart - parts.delimiterStart));
    run = textOf(text.substr(parts.runStart, parts.runEnd - parts.runStart));
    tail = textOf(text.substr(parts.runEnd));
    return true;
}

IncrType str_incr_type(wchar_t const* name) {
    return name == nullptr ? IncrType::none : partsOf(name).type;
}

COrxString str_incr_delimit(wchar_t const* name) {
    if (name == nullptr) {
        return COrxString::kNull;
    }
    NameParts const parts = partsOf(name);
    return textOf(std::wstring_view(name).substr(parts.delimiterStart,
                                                 parts.runStart - parts.delimiterStart));
}

COrxString str_name(wchar_t const* name) {
    if (name == nullptr) {
        return COrxString::kNull;
    }
    NameParts const parts = partsOf(name);
    return parts.type == IncrType::none
               ? COrxString(name)
               : textOf(std::wstring_view(name).substr(0, parts.delimiterStart));
}

COrxString str_increment(wchar_t const* name) {
    if (name == nullptr) {
        return COrxString::kNull;
    }
    std::wstring const text(name);
    NameParts const parts = partsOf(text);
    std::wstring const run = text.substr(parts.runStart, parts.runEnd - parts.runStart);
    std::wstring next;
    switch (parts.type) {
        case IncrType::none:
            return textOf(text + L'1');
        case IncrType::digits:
            next = nextDigits(run);
            break;
        case IncrType::upperLetters:
            next = nextLetters(run, L'A');
            break;
        case IncrType::lowerLetters:
            next = nextLetters(run, L'a');
            break;
    }
    return textOf(text.substr(0, parts.runStart) + next + text.substr(parts.runEnd));
}

}  // namespace ORX
