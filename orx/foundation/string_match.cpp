// COrxString::match: wildcard matching with alternatives.
//
// In an alternative, ? matches any one character and * any run of characters. A * at the
// end matches the rest; a * followed by more pattern looks for the next literal piece (the
// text up to the next * or ?) in the string and, at each occurrence, matches the pattern
// after the piece against the string after the occurrence. Those recursive matches split
// their pattern into alternatives at ',' whatever delimiter the caller gave: callers rely on
// it. Without wildcards an alternative must equal the whole string.
#include <set>
#include <string_view>
#include <tuple>

#include "orx/foundation/string.h"

namespace {

using View = std::wstring_view;

class WildcardMatcher {
public:
    WildcardMatcher(View text, View pattern) : m_text(text), m_pattern(pattern) {}

    bool alternatives(View text, View pattern, wchar_t delimiter) {
        if (delimiter == 0) {
            return alternative(text, pattern);
        }
        std::size_t start = 0;
        for (;;) {
            std::size_t const end = pattern.find(delimiter, start);
            if (alternative(text,
                            pattern.substr(start, end == View::npos ? View::npos : end - start))) {
                return true;
            }
            if (end == View::npos) {
                return false;
            }
            start = end + 1;
        }
    }

private:
    using Key = std::tuple<std::size_t, std::size_t, std::size_t>;

    bool alternative(View text, View pattern) {
        std::size_t t = 0;
        for (std::size_t p = 0; p < pattern.size(); ++p) {
            wchar_t const c = pattern[p];
            if (c == L'*') {
                return star(text.substr(t), pattern.substr(p + 1));
            }
            if (t >= text.size() || (c != L'?' && c != text[t])) {
                return false;
            }
            ++t;
        }
        return t == text.size();
    }

    // text: what follows the characters matched before the star; rest: the pattern after it.
    bool star(View text, View rest) {
        while (!rest.empty() && rest.front() == L'*') {
            rest.remove_prefix(1);  // "**" is "*"
        }
        if (rest.empty()) {
            return true;
        }
        std::size_t pieceLength = rest.find_first_of(L"*?");
        if (pieceLength == View::npos) {
            pieceLength = rest.size();
        }
        if (pieceLength == 0) {
            // A ? follows: the empty piece occurs at every position.
            for (std::size_t at = 0; at <= text.size(); ++at) {
                if (recurse(text.substr(at), rest)) {
                    return true;
                }
            }
            return false;
        }
        View const piece = rest.substr(0, pieceLength);
        for (std::size_t at = text.find(piece); at != View::npos; at = text.find(piece, at + 1)) {
            if (recurse(text.substr(at + pieceLength), rest.substr(pieceLength))) {
                return true;
            }
        }
        return false;
    }

    // The recursive match of the rules above. Failed ones are remembered (text and pattern
    // are always pieces of the originals, so their offsets name them): the result is that
    // of the plain recursion, but patterns with many stars no longer take exponential time.
    bool recurse(View text, View pattern) {
        Key const key(static_cast<std::size_t>(text.data() - m_text.data()),
                      static_cast<std::size_t>(pattern.data() - m_pattern.data()), pattern.size());
        if (m_failed.count(key) != 0) {
            return false;
        }
        if (alternatives(text, pattern, L',')) {
            return true;
        }
        m_failed.insert(key);
        return false;
    }

    View m_text;
    View m_pattern;
    std::set<Key> m_failed;
};

}  // namespace

bool COrxString::match(wchar_t const* pattern, wchar_t delimiter) const {
    if (m_buffer == nullptr || pattern == nullptr) {
        return false;
    }
    View const text(m_buffer, static_cast<std::size_t>(length()));
    WildcardMatcher matcher(text, pattern);
    return matcher.alternatives(text, pattern, delimiter);
}
