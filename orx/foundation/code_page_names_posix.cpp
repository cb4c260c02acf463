// The iconv names of the Windows code page numbers. Most Windows numbers are those of the
// IBM code pages they came from, which glibc knows as "CP<n>" or "IBM<n>" (the Windows ANSI
// code pages also as "WINDOWS-<n>"); the rest are listed.
#include <string>
#include <vector>

#include "orx/foundation/internal/code_page_names.h"
#include "orx/foundation/internal/string_platform.h"

namespace ORX {
namespace internal {

namespace {

// What the system code page numbers stand for on Linux: those of a Western Windows.
constexpr int kSystemAnsiCodePage = 1252;
constexpr int kSystemOemCodePage = 850;
constexpr int kSystemMacCodePage = 10000;

struct NamedCodePage {
    int number;
    char const* iconvName;
};

// Windows numbers that are not IBM numbers, or whose "CP<n>" means another code page.
constexpr NamedCodePage kNamedCodePages[] = {
    {708, "ISO-8859-6"},     {1361, "JOHAB"},         {10000, "MACINTOSH"},
    {10007, "MAC-CYRILLIC"}, {10017, "MACUKRAINIAN"}, {10029, "MAC-CENTRALEUROPE"},
    {10079, "MAC-IS"},       {20127, "ASCII"},        {20866, "KOI8-R"},
    {20932, "EUC-JP"},       {20936, "EUC-CN"},       {21866, "KOI8-U"},
    {50220, "ISO-2022-JP"},  {50221, "ISO-2022-JP"},  {50222, "ISO-2022-JP"},
    {50225, "ISO-2022-KR"},  {51932, "EUC-JP"},       {51936, "EUC-CN"},
    {51949, "EUC-KR"},       {54936, "GB18030"},      {65000, "UTF-7"},
    {65001, "UTF-8"},
};

// Windows numbers with no narrow code page behind them: UTF-16 and UTF-32 in either order.
constexpr int kWideCodePages[] = {1200, 1201, 12000, 12001};

// The ISO 8859 parts are 28591 to 28606; the IBM EBCDIC code pages that have no number of
// their own in Windows are 20000 above their IBM number.
constexpr int kIsoBase = 28590;
constexpr int kIsoLastPart = 16;
constexpr int kIbmEbcdicBase = 20000;
constexpr int kIbmEbcdicFirst = 20037;
constexpr int kIbmEbcdicLast = 20999;

// prefix and the number, padded with zeros to three digits as the IBM names are ("CP037").
std::string numbered(char const* prefix, int number) {
    std::string digits = std::to_string(number);
    if (digits.size() < 3) {
        digits.insert(0, 3 - digits.size(), '0');
    }
    return prefix + digits;
}

}  // namespace

int resolveSystemCodePage(int codePage) {
    switch (codePage) {
        case 0:  // CP_ACP
        case 3:  // CP_THREAD_ACP
            return kSystemAnsiCodePage;
        case 1:  // CP_OEMCP
            return kSystemOemCodePage;
        case 2:  // CP_MACCP
            return kSystemMacCodePage;
        default:
            return codePage;
    }
}

std::vector<std::string> iconvNames(int codePage) {
    if (codePage <= 0) {
        return {};
    }
    for (int wide : kWideCodePages) {
        if (wide == codePage) {
            return {};
        }
    }
    for (NamedCodePage const& named : kNamedCodePages) {
        if (named.number == codePage) {
            return {named.iconvName};
        }
    }
    if (codePage > kIsoBase && codePage <= kIsoBase + kIsoLastPart) {
        return {"ISO-8859-" + std::to_string(codePage - kIsoBase)};
    }
    if (codePage >= kIbmEbcdicFirst && codePage <= kIbmEbcdicLast) {
        return {numbered("IBM", codePage - kIbmEbcdicBase)};
    }
    return {"WINDOWS-" + std::to_string(codePage), numbered("CP", codePage),
            numbered("IBM", codePage)};
}

}  // namespace internal
}  // namespace ORX
