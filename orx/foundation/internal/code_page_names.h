// The iconv names of the Windows code page numbers, for the Linux code-page conversion.
#ifndef ORX_FOUNDATION_INTERNAL_CODE_PAGE_NAMES_H
#define ORX_FOUNDATION_INTERNAL_CODE_PAGE_NAMES_H

#include <string>
#include <vector>

namespace ORX {
namespace internal {

// The iconv names that may convert the code page, to be tried in order (iconv accepts the
// first one it knows). Empty for numbers that name no narrow code page (negative ones, and
// the UTF-16 and UTF-32 numbers, which Windows refuses too).
std::vector<std::string> iconvNames(int codePage);

}  // namespace internal
}  // namespace ORX

#endif  // ORX_FOUNDATION_INTERNAL_CODE_PAGE_NAMES_H
