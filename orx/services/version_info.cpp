#include "orx/services/version_info.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

#include "orx/services/internal/version_strings.h"

namespace ORX {
namespace {

// The process-wide text behind GetProductVersion().
std::wstring g_productVersion;

wchar_t const* valueOf(internal::VersionStrings const* strings,
                       std::wstring internal::VersionStrings::*value) {
    return strings == nullptr ? CVersionInfo::NoVerDataString() : (strings->*value).c_str();
}

internal::VersionStrings* copyOf(internal::VersionStrings const* strings) {
    return strings == nullptr ? nullptr : new internal::VersionStrings(*strings);
}

// The value of one dotted part: its leading digits, as wcstoll reads them (saturating at the
// range of long long); 0 when there are none.
long long partValue(std::wstring const& part) {
    return std::wcstoll(part.c_str(), nullptr, 10);
}

std::vector<long long> partsOf(wchar_t const* text) {
    std::vector<long long> parts;
    std::wstring part;
    for (wchar_t const* at = text == nullptr ? L"" : text;; ++at) {
        if (*at == L'.' || *at == L'\0') {
            parts.push_back(partValue(part));
            part.clear();
            if (*at == L'\0') {
                return parts;
            }
        } else {
            part += *at;
        }
    }
}

}  // namespace

CVersionInfo::CVersionInfo(HINSTANCE module) : m_strings(nullptr) {
    std::wstring const fileName = internal::moduleFileName(module);
    if (!fileName.empty()) {
        readFile(fileName.c_str());
    }
}

CVersionInfo::CVersionInfo(std::nullptr_t) : CVersionInfo(static_cast<HINSTANCE>(nullptr)) {}

CVersionInfo::CVersionInfo(wchar_t const* fileName) : m_strings(nullptr) {
    if (fileName != nullptr && *fileName != L'\0') {
        readFile(fileName);
    }
}

CVersionInfo::CVersionInfo(CVersionInfo const& other) : m_strings(copyOf(other.m_strings)) {}

CVersionInfo& CVersionInfo::operator=(CVersionInfo const& other) {
    if (this != &other) {
        internal::VersionStrings* const copy = copyOf(other.m_strings);
        delete m_strings;
        m_strings = copy;
    }
    return *this;
}

CVersionInfo::~CVersionInfo() {
    delete m_strings;
}

void CVersionInfo::readFile(wchar_t const* fileName) {
    auto* const strings = new internal::VersionStrings;
    if (internal::readVersionStrings(fileName, *strings)) {
        m_strings = strings;
    } else {
        delete strings;
    }
}

wchar_t const* CVersionInfo::GetCompanyName() const {
    return valueOf(m_strings, &internal::VersionStrings::companyName);
}

wchar_t const* CVersionInfo::GetCopyright() const {
    return valueOf(m_strings, &internal::VersionStrings::copyright);
}

wchar_t const* CVersionInfo::GetProductName() const {
    return valueOf(m_strings, &internal::VersionStrings::productName);
}

wchar_t const* CVersionInfo::GetTrademark() const {
    return valueOf(m_strings, &internal::VersionStrings::trademark);
}

wchar_t const* CVersionInfo::GetProductVersion() const {
    if (m_strings == nullptr) {
        return NoVerDataString();
    }
    unsigned int const* const parts = m_strings->productVersion;
    wchar_t text[64];
    std::swprintf(text, sizeof text / sizeof text[0], L"%u.%u.%u.%u", parts[0], parts[1], parts[2],
                  parts[3]);
    g_productVersion = text;
    return g_productVersion.c_str();
}

wchar_t const* CVersionInfo::NoVerDataString() {
    return L"<no version info found>";
}

int CVersionInfo::versionCompare(wchar_t const* a, wchar_t const* b) {
    std::vector<long long> const partsA = partsOf(a);
    std::vector<long long> const partsB = partsOf(b);
    std::size_t const compared = std::min(partsA.size(), partsB.size());
    for (std::size_t i = 0; i < compared; ++i) {
        if (partsA[i] != partsB[i]) {
            return partsA[i] > partsB[i] ? 1 : -1;
        }
    }
    return 0;
}

}  // namespace ORX
