// The value conversions on an open key: numbers, text with environment references, and
// lists of strings.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <vector>

#include "orx/foundation/shared/index_range.h"
#include "orx/foundation/text.h"
#include "orx/services/internal/registry_api.h"
#include "orx/services/registry.h"

namespace ORX {
namespace {

using internal::kErrorMoreData;
using internal::kErrorSuccess;

// The number read's data size: 128 bytes on Windows, that is 64 characters of text. Counted
// in characters so that Linux, with 4-byte characters, accepts the same text values.
constexpr unsigned long kNumberReadBytes = 64 * sizeof(wchar_t);
// The first buffer of the string and multi-string reads; they grow it as the system asks.
constexpr unsigned long kFirstReadBytes = 128;
// The bytes of a REG_DWORD.
constexpr unsigned long kDwordBytes = 4;

// A value read whole: its type, its size in bytes and its data, followed by NUL characters
// so that text may be taken up to its first NUL even when the data has none.
struct WholeValue {
    unsigned long type = 0;
    unsigned long size = 0;
    std::vector<wchar_t> units;

    wchar_t const* text() const { return units.data(); }
};

// Queries the value, enlarging the buffer to the size the system reports for as long as it
// answers that the data does not fit (the value may grow between two queries).
bool readWhole(HKEY key, wchar_t const* name, WholeValue& value) {
    unsigned long capacity = kFirstReadBytes;
    for (;;) {
        value.units.assign(capacity / sizeof(wchar_t) + 2, L'\0');
        value.size = capacity;
        long const result = internal::regQueryValue(
            key, name, &value.type, reinterpret_cast<unsigned char*>(value.units.data()),
            &value.size);
        if (result != kErrorMoreData) {
            return result == kErrorSuccess;
        }
        capacity = std::max(value.size, capacity + 1);
    }
}

// Applies `change` to each ";"-separated element of text and joins them again; true when
// `change` reported a change for some element.
template <class Change>
bool changeElements(COrxString& text, Change change) {
    COrxArrayTempl<COrxString> elements = explode(text, L";", true);
    bool changed = false;
    for (int i : ORX::internal::indices(elements)) {
        changed = change(elements[i]) || changed;
    }
    text = implode(elements, L";");
    return changed;
}

bool unExpandFolder(COrxString& element) {
    wchar_t shortened[internal::kMaxPath];
    if (!internal::pathUnExpandEnvStrings(element, shortened, internal::kMaxPath)) {
        return false;
    }
    element = shortened;
    return true;
}

bool writeUnits(HKEY key, wchar_t const* name, unsigned long type, wchar_t const* units,
                std::size_t count) {
    return internal::regSetValue(key, name, type, reinterpret_cast<unsigned char const*>(units),
                                 static_cast<unsigned long>(count * sizeof(wchar_t))) ==
           kErrorSuccess;
}

bool deleteValue(HKEY key, wchar_t const* name) {
    return internal::regDeleteValue(key, name) == kErrorSuccess;
}

}  // namespace

bool regRead(HKEY key, wchar_t const* name, unsigned long& number) {
    // Deliberately no type check and a buffer far larger than a number (see registry.h).
    unsigned char data[kNumberReadBytes] = {};
    unsigned long size = sizeof data;
    if (internal::regQueryValue(key, name, nullptr, data, &size) != kErrorSuccess) {
        return false;
    }
    std::uint32_t leading = 0;
    std::memcpy(&leading, data, sizeof leading);
    number = leading;
    return true;
}

bool regRead(HKEY key, wchar_t const* name, COrxString& text) {
    WholeValue value;
    if (!readWhole(key, name, value)) {
        return false;
    }
    if (value.type == internal::kRegSz) {
        text = value.text();
        return true;
    }
    if (value.type != internal::kRegExpandSz) {
        return false;
    }
    COrxString expanded(value.text());
    changeElements(expanded, [](COrxString& element) {
        element.expandEnvironmentStrings();
        return true;
    });
    text = expanded;
    return true;
}

bool regRead(HKEY key, wchar_t const* name, COrxArrayTempl<COrxString>& list) {
    WholeValue value;
    if (!readWhole(key, name, value) || value.type != internal::kRegMultiSz) {
        return false;
    }
    list.removeAll();
    // The strings follow each other, each with its NUL; an empty one ends the list.
    for (wchar_t const* at = value.text(); *at != L'\0'; at += std::wcslen(at) + 1) {
        list.append(COrxString(at));
    }
    return true;
}

bool regWrite(HKEY key, wchar_t const* name, wchar_t const* text, bool expand) {
    if (text == nullptr) {
        return deleteValue(key, name);
    }
    COrxString stored(text);
    unsigned long type = internal::kRegSz;
    if (expand && changeElements(stored, unExpandFolder)) {
        type = internal::kRegExpandSz;
    }
    return writeUnits(key, name, type, stored, static_cast<std::size_t>(stored.len()) + 1);
}

bool regWrite(HKEY key, wchar_t const* name, COrxArrayTempl<COrxString> const& list) {
    if (list.isEmpty()) {
        return deleteValue(key, name);
    }
    std::vector<wchar_t> packed;
    for (int i : ORX::internal::indices(list)) {
        COrxString const& element = list[i];
        wchar_t const* const text = element;
        packed.insert(packed.end(), text, text + element.len());
        packed.push_back(L'\0');
    }
    packed.push_back(L'\0');
    return writeUnits(key, name, internal::kRegMultiSz, packed.data(), packed.size());
}

bool regWrite(HKEY key, wchar_t const* name, unsigned long number) {
    auto const dword = static_cast<std::uint32_t>(number);
    return internal::regSetValue(key, name, internal::kRegDword,
                                 reinterpret_cast<unsigned char const*>(&dword),
                                 kDwordBytes) == kErrorSuccess;
}

}  // namespace ORX
