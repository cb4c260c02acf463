// The platform-dependent pieces of COrxString, one implementation per platform:
// code_page_win32.cpp / code_page_posix.cpp and string_system_win32.cpp /
// string_system_posix.cpp, selected by the build.
#ifndef ORX_FOUNDATION_INTERNAL_STRING_PLATFORM_H
#define ORX_FOUNDATION_INTERNAL_STRING_PLATFORM_H

#include <string>
#include <string_view>

namespace ORX {
namespace internal {

// The Windows number of the UTF-8 code page.
constexpr int kUtf8CodePage = 65001;

// The code page a number stands for: the system code pages CP_ACP (0), CP_OEMCP (1),
// CP_MACCP (2) and CP_THREAD_ACP (3) become the code page they name (on Linux, which has
// none, those of a Western Windows: 1252, 850, 10000 and 1252); every other number stands
// for itself.
int resolveSystemCodePage(int codePage);

// Narrow text of a code page to wide text. Undecodable bytes become the character Windows
// gives them. False (text untouched) when the code page is unknown to the platform.
bool decodeCodePage(std::string_view bytes, int codePage, std::wstring& text);

// Wide text to narrow text with no best-fit substitutes. lossless is false when some
// character could not be represented (the code page's default character stands in for it);
// UTF-8 writes unpaired surrogates as U+FFFD and counts as lossless. False (bytes untouched)
// when the code page is unknown to the platform.
bool encodeCodePage(std::wstring_view text, int codePage, std::string& bytes, bool& lossless);

// The text with %NAME% references replaced by the environment's values.
std::wstring expandEnvironment(std::wstring const& text);

// Maps count characters of text to upper or lower case, in place.
void mapCase(wchar_t* text, int count, bool upper);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_INTERNAL_STRING_PLATFORM_H
