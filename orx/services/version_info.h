// ORX::CVersionInfo: the version strings of a program or library file.
//
//     ORX::CVersionInfo info(L"Orx_2017_23_64_Base.dll");
//     std::wstring company = info.GetCompanyName();        // "Kelvara"
//     std::wstring version = info.GetProductVersion();     // "2017.0.23.64"
//     if (ORX::CVersionInfo::versionCompare(L"2017.0", L"2017.1") < 0) { ... }
//
// Windows reads the file's VERSIONINFO resource (the string table of its first
// language/code-page pair, and the fixed product version). Linux reads the same strings from
// a section named ".orx_version" of the ELF file, which the library's own build embeds (a
// program can embed one as well): the text "ORXVERSIONINFO", then key/value pairs with the
// keys of the Windows string table, every text UTF-8 and ending in a zero byte, the list
// ending in an empty key; the key "PRODUCTVERSION" holds the fixed product version as four
// numbers separated by ".".
#ifndef ORX_SERVICES_VERSION_INFO_H
#define ORX_SERVICES_VERSION_INFO_H

#include <cstddef>

#include "orx/foundation/platform.h"
#include "orx/services/windows_types.h"

namespace ORX {

namespace internal {
struct VersionStrings;
}

class ORX_API CVersionInfo {
public:
    // The file of a loaded module; null: the main program. On Linux the "module handle" is
    // any address inside the loaded object (its load address, or one of its functions); on
    // Windows a module handle, or also any address inside a loaded module.
    explicit CVersionInfo(HINSTANCE module = nullptr);
    // The main program (a literal null would be ambiguous between the two constructors).
    explicit CVersionInfo(std::nullptr_t);
    // The named file; null, a missing file or one without version data give no data.
    explicit CVersionInfo(wchar_t const* fileName);
    // Copies own their strings; nothing is shared.
    CVersionInfo(CVersionInfo const& other);
    CVersionInfo& operator=(CVersionInfo const& other);
    ~CVersionInfo();

    // The string-table values "CompanyName", "LegalCopyright", "ProductName",
    // "LegalTrademarks"; empty when the file has version data without that value. Valid as
    // long as this object is unchanged.
    wchar_t const* GetCompanyName() const;
    wchar_t const* GetCopyright() const;
    wchar_t const* GetProductName() const;
    wchar_t const* GetTrademark() const;
    // The fixed product version as "%u.%u.%u.%u", in a process-wide string shared by all
    // objects and threads, valid until the next call.
    wchar_t const* GetProductVersion() const;
    // What every getter returns when the file has no version data: "<no version info found>".
    static wchar_t const* NoVerDataString();

    // Compares dotted version texts part by part as integers (leading digits of each part; a
    // part without any counts as 0; null counts as ""). Only as many parts as the shorter
    // text has are compared, so "1.2" and "1.2.5" are equal; callers rely on that. 1 when
    // `a` is greater, -1 when smaller, 0 when equal.
    static int versionCompare(wchar_t const* a, wchar_t const* b);

private:
    void readFile(wchar_t const* fileName);

    internal::VersionStrings* m_strings;  // null: no version data
};

}  // namespace ORX

#endif  // ORX_SERVICES_VERSION_INFO_H
