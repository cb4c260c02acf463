// Version data on Linux: the ".orx_version" section of an ELF file (layout in
// orx/services/version_info.h), read from the file on disk.
#include <dlfcn.h>
#include <link.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "orx/foundation/shared/utf8.h"
#include "orx/services/internal/version_strings.h"
#include "orx/services/posix/elf_section.h"

namespace ORX::internal {
namespace {

constexpr char kSectionName[] = ".orx_version";
constexpr std::string_view kMagic("ORXVERSIONINFO\0", 15);
// A version block is a few hundred bytes; anything far larger is not one.
constexpr std::size_t kMaxBlockBytes = std::size_t{64} * 1024;
// The longest path readlink is asked for.
constexpr std::size_t kMaxPathBytes = 4096;
// Each part of the fixed product version is a 16-bit number, as in the Windows resource.
constexpr unsigned long kVersionPartMask = 0xFFFF;

std::string mainProgramFile() {
    std::string path(kMaxPathBytes, '\0');
    ssize_t const length = readlink("/proc/self/exe", path.data(), path.size());
    if (length <= 0 || static_cast<std::size_t>(length) >= path.size()) {
        return std::string();
    }
    path.resize(static_cast<std::size_t>(length));
    return path;
}

// "2017.0.23.64" into four numbers; missing parts stay 0.
void parseProductVersion(std::string const& text, unsigned int (&parts)[4]) {
    char const* at = text.c_str();
    for (unsigned int& part : parts) {
        char* end = nullptr;
        part = static_cast<unsigned int>(std::strtoul(at, &end, 10) & kVersionPartMask);
        if (*end != '.') {
            return;
        }
        at = end + 1;
    }
}

void store(std::string_view key, std::string const& value, VersionStrings& out) {
    if (key == "CompanyName") {
        out.companyName = fromUtf8(value);
    } else if (key == "LegalCopyright") {
        out.copyright = fromUtf8(value);
    } else if (key == "ProductName") {
        out.productName = fromUtf8(value);
    } else if (key == "LegalTrademarks") {
        out.trademark = fromUtf8(value);
    } else if (key == "PRODUCTVERSION") {
        parseProductVersion(value, out.productVersion);
    }
}

// The next zero-terminated text of the block at `at`; false when the block ends without
// the terminating zero.
bool nextText(std::string const& block, std::size_t& at, std::string& text) {
    std::size_t const end = block.find('\0', at);
    if (end == std::string::npos) {
        return false;
    }
    text.assign(block, at, end - at);
    at = end + 1;
    return true;
}

bool parseBlock(std::string const& block, VersionStrings& out) {
    if (block.compare(0, kMagic.size(), kMagic) != 0) {
        return false;
    }
    std::size_t at = kMagic.size();
    std::string key;
    std::string value;
    while (nextText(block, at, key) && !key.empty()) {
        if (!nextText(block, at, value)) {
            return false;
        }
        store(key, value, out);
    }
    return true;
}

}  // namespace

std::wstring moduleFileName(HINSTANCE module) {
    if (module == nullptr) {
        return fromUtf8(mainProgramFile());
    }
    Dl_info info{};
    link_map* object = nullptr;
    if (dladdr1(reinterpret_cast<void*>(module), &info, reinterpret_cast<void**>(&object),
                RTLD_DL_LINKMAP) == 0 ||
        object == nullptr) {
        return std::wstring();
    }
    // The main program's entry has no name of its own.
    bool const isMainProgram = object->l_name == nullptr || object->l_name[0] == '\0';
    return fromUtf8(isMainProgram ? mainProgramFile() : std::string(object->l_name));
}

bool readVersionStrings(wchar_t const* fileName, VersionStrings& out) {
    std::string block;
    return readElfSection(toUtf8(fileName), kSectionName, kMaxBlockBytes, block) &&
           parseBlock(block, out);
}

}  // namespace ORX::internal
