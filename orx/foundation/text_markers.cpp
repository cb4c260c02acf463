#include "orx/foundation/text_markers.h"
#include "orx/foundation/shared/index_range.h"

#include <string>
#include <string_view>

namespace ORX {

namespace {

bool isNameStart(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || c == L'_';
}

bool isNameCharacter(wchar_t c) {
    return isNameStart(c) || (c >= L'0' && c <= L'9');
}

// The length of the marker at the start of text (brackets included), or 0.
std::size_t markerLength(std::wstring_view text) {
    if (text.size() < 3 || text[0] != L'<' || !isNameStart(text[1])) {
        return 0;
    }
    std::size_t end = 2;
    while (end < text.size() && isNameCharacter(text[end])) {
        ++end;
    }
    return end < text.size() && text[end] == L'>' ? end + 1 : 0;
}

// The text without the markers keep() refuses; counts those removed.
template <typename Keep>
unsigned long removeMarkers(COrxString& text, Keep keep) {
    if (text.isNull()) {
        return 0;
    }
    std::wstring_view rest(static_cast<wchar_t const*>(text));
    std::wstring kept;
    unsigned long removed = 0;
    while (!rest.empty()) {
        std::size_t const length = markerLength(rest);
        if (length > 0 && !keep(rest.substr(1, length - 2))) {
            ++removed;
            rest.remove_prefix(length);
        } else {
            std::size_t const step = length > 0 ? length : 1;
            kept.append(rest.substr(0, step));
            rest.remove_prefix(step);
        }
    }
    if (removed > 0) {
        text = kept.c_str();
    }
    return removed;
}

// The index of the longest entry of from that begins text, or -1.
int longestMatch(std::wstring_view text, COrxArrayTempl<COrxString> const& from) {
    int best = -1;
    std::size_t bestLength = 0;
    for (int k : ORX::internal::indices(from)) {
        std::wstring_view const candidate(from[k].isNull() ? L""
                                                           : static_cast<wchar_t const*>(from[k]));
        if (candidate.size() > bestLength && text.substr(0, candidate.size()) == candidate) {
            best = k;
            bestLength = candidate.size();
        }
    }
    return best;
}

}  // namespace

COrxArrayTempl<COrxString> getMarkerList(wchar_t const* text) {
    COrxArrayTempl<COrxString> names;
    std::wstring_view rest(text != nullptr ? text : L"");
    while (!rest.empty()) {
        std::size_t const length = markerLength(rest);
        if (length > 0) {
            names.appendUniq(COrxString(std::wstring(rest.substr(1, length - 2)).c_str()));
        }
        rest.remove_prefix(length > 0 ? length : 1);
    }
    return names;
}

unsigned long clearMarker(COrxString& text) {
    return removeMarkers(text, [](std::wstring_view) { return false; });
}

unsigned long removeMarker(COrxString& text, wchar_t const* name) {
    if (name == nullptr || name[0] == L'\0') {
        return 0;
    }
    std::wstring_view const removed(name);
    return removeMarkers(text, [removed](std::wstring_view marker) { return marker != removed; });
}

long txtListReplace(COrxString& text, COrxArrayTempl<COrxString> const& from,
                    COrxArrayTempl<COrxString> const& to) {
    if (from.len() != to.len()) {
        return -1;
    }
    if (text.isNull()) {
        return 0;
    }
    std::wstring_view rest(static_cast<wchar_t const*>(text));
    std::wstring replaced;
    long count = 0;
    while (!rest.empty()) {
        int const match = longestMatch(rest, from);
        if (match < 0) {
            replaced += rest.front();
            rest.remove_prefix(1);
            continue;
        }
        COrxString const& by = to[match];
        replaced += by.isNull() ? L"" : static_cast<wchar_t const*>(by);
        rest.remove_prefix(static_cast<std::size_t>(from[match].len()));
        ++count;
    }
    if (count > 0) {
        text = replaced.c_str();
    }
    return count;
}

}  // namespace ORX
