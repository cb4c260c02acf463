// Code-page conversion on Linux: glibc's iconv, corrected to Windows' answers.
//
// The Windows code page numbers map to iconv names below; other numbers (CP_ACP = 0 and
// CP_OEMCP = 1 included, which have no meaning here) are unknown and fail.
// - Single-byte code pages convert through a table of their 256 bytes, read from iconv once
//   and corrected where glibc leaves a byte undefined that Windows maps (to the C1 control
//   character of the same number, or to a private-use character). Both directions use the
//   table, so every byte and every character of the table round-trips as on Windows.
// - UTF-8, 932 and 936 convert with iconv itself. Undecodable input gives what Windows
//   gives: U+FFFD for each maximal ill-formed UTF-8 sequence; for 932 and 936 the character
//   Windows assigns to a stray single byte, else its default character. Known difference:
//   the double-byte user-defined areas of 936, which Windows maps to private-use
//   characters, are undecodable for glibc.
// - Encoding never substitutes a look-alike: a character counts as representable only when
//   its bytes decode back to it.
#include <errno.h>
#include <iconv.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>

#include "orx/foundation/internal/string_platform.h"

namespace ORX {
namespace internal {

namespace {

struct CodePageName {
    int number;
    char const* iconvName;
    bool singleByte;
};

constexpr CodePageName kCodePages[] = {
    {kUtf8CodePage, "UTF-8", false}, {932, "CP932", false},       {936, "CP936", false},
    {437, "IBM437", true},           {850, "IBM850", true},       {852, "IBM852", true},
    {866, "IBM866", true},           {1250, "CP1250", true},      {1251, "CP1251", true},
    {1252, "CP1252", true},          {1253, "CP1253", true},      {1254, "CP1254", true},
    {1257, "CP1257", true},          {20866, "KOI8-R", true},     {28591, "ISO-8859-1", true},
    {28592, "ISO-8859-2", true},     {28595, "ISO-8859-5", true}, {28599, "ISO-8859-9", true},
    {28605, "ISO-8859-15", true},
};

// Bytes that glibc leaves undefined (or that stand alone in a double-byte code page) and
// the characters Windows decodes them to.
struct ByteCorrection {
    int codePage;
    unsigned char byte;
    wchar_t character;
};

constexpr ByteCorrection kCorrections[] = {
    {1250, 0x81, 0x81},  {1250, 0x83, 0x83},   {1250, 0x88, 0x88},   {1250, 0x90, 0x90},
    {1250, 0x98, 0x98},  {1251, 0x98, 0x98},   {1252, 0x81, 0x81},   {1252, 0x8D, 0x8D},
    {1252, 0x8F, 0x8F},  {1252, 0x90, 0x90},   {1252, 0x9D, 0x9D},   {1253, 0x81, 0x81},
    {1253, 0x88, 0x88},  {1253, 0x8A, 0x8A},   {1253, 0x8C, 0x8C},   {1253, 0x8D, 0x8D},
    {1253, 0x8E, 0x8E},  {1253, 0x8F, 0x8F},   {1253, 0x90, 0x90},   {1253, 0x98, 0x98},
    {1253, 0x9A, 0x9A},  {1253, 0x9C, 0x9C},   {1253, 0x9D, 0x9D},   {1253, 0x9E, 0x9E},
    {1253, 0x9F, 0x9F},  {1253, 0xAA, 0xF8F9}, {1253, 0xD2, 0xF8FA}, {1253, 0xFF, 0xF8FB},
    {1254, 0x81, 0x81},  {1254, 0x8D, 0x8D},   {1254, 0x8E, 0x8E},   {1254, 0x8F, 0x8F},
    {1254, 0x90, 0x90},  {1254, 0x9D, 0x9D},   {1254, 0x9E, 0x9E},   {1257, 0x81, 0x81},
    {1257, 0x83, 0x83},  {1257, 0x88, 0x88},   {1257, 0x8A, 0x8A},   {1257, 0x8C, 0x8C},
    {1257, 0x90, 0x90},  {1257, 0x98, 0x98},   {1257, 0x9A, 0x9A},   {1257, 0x9C, 0x9C},
    {1257, 0x9F, 0x9F},  {1257, 0xA1, 0xF8FC}, {1257, 0xA5, 0xF8FD}, {932, 0x80, 0x80},
    {932, 0xA0, 0xF8F0}, {932, 0xFD, 0xF8F1},  {932, 0xFE, 0xF8F2},  {932, 0xFF, 0xF8F3},
    {936, 0xFF, 0xF8F5},
};

// What Windows writes for a character a code page cannot hold.
constexpr char kDefaultByte = '?';
// What Windows decodes an ill-formed UTF-8 sequence to.
constexpr wchar_t kReplacementCharacter = 0xFFFD;
// What Windows decodes an undecodable byte of code page 932 to (katakana middle dot).
constexpr wchar_t kDefaultCharacter932 = 0x30FB;
iconv_t const kNoDescriptor = reinterpret_cast<iconv_t>(static_cast<std::intptr_t>(-1));

CodePageName const* findCodePage(int number) {
    for (CodePageName const& page : kCodePages) {
        if (page.number == number) {
            return &page;
        }
    }
    return nullptr;
}

ByteCorrection const* findCorrection(int codePage, unsigned char byte) {
    for (ByteCorrection const& correction : kCorrections) {
        if (correction.codePage == codePage && correction.byte == byte) {
            return &correction;
        }
    }
    return nullptr;
}

ByteCorrection const* findCorrection(int codePage, wchar_t character) {
    for (ByteCorrection const& correction : kCorrections) {
        if (correction.codePage == codePage && correction.character == character) {
            return &correction;
        }
    }
    return nullptr;
}

// Runs iconv over the whole input; false at the first byte or character it cannot convert
// (in and inLeft then point at it).
bool convert(iconv_t descriptor, char*& in, std::size_t& inLeft, std::string& out) {
    char chunk[256];
    while (inLeft > 0) {
        char* next = chunk;
        std::size_t room = sizeof chunk;
        std::size_t const result = iconv(descriptor, &in, &inLeft, &next, &room);
        out.append(chunk, sizeof chunk - room);
        if (result == static_cast<std::size_t>(-1) && errno != E2BIG) {
            iconv(descriptor, nullptr, nullptr, nullptr, nullptr);
            return false;
        }
    }
    return true;
}

// Appends the wchar_t that iconv wrote as bytes.
void appendWide(std::wstring& text, std::string const& bytes) {
    std::size_t const count = bytes.size() / sizeof(wchar_t);
    std::size_t const at = text.size();
    text.resize(at + count);
    std::memcpy(&text[at], bytes.data(), count * sizeof(wchar_t));
}

// The single character iconv wrote, or 0 when it wrote another number of them.
wchar_t singleWide(std::string const& bytes) {
    wchar_t character = 0;
    if (bytes.size() == sizeof character) {
        std::memcpy(&character, bytes.data(), sizeof character);
    }
    return character;
}

// --- single-byte code pages ---------------------------------------------------------------

struct ByteTable {
    wchar_t toWide[256] = {};
    bool defined[256] = {};
    std::unordered_map<wchar_t, unsigned char> toByte;
};

ByteTable readByteTable(CodePageName const& page) {
    ByteTable table;
    iconv_t const descriptor = iconv_open("WCHAR_T", page.iconvName);
    for (int b = 0; b < 256; ++b) {
        auto const byte = static_cast<unsigned char>(b);
        char text = static_cast<char>(byte);
        char* in = &text;
        std::size_t inLeft = 1;
        std::string wide;
        if (descriptor != kNoDescriptor && convert(descriptor, in, inLeft, wide) &&
            wide.size() == sizeof(wchar_t)) {
            table.toWide[b] = singleWide(wide);
            table.defined[b] = true;
        } else if (ByteCorrection const* fix = findCorrection(page.number, byte)) {
            table.toWide[b] = fix->character;
            table.defined[b] = true;
        }
        if (table.defined[b] && table.toByte.count(table.toWide[b]) == 0) {
            table.toByte[table.toWide[b]] = byte;
        }
    }
    if (descriptor != kNoDescriptor) {
        iconv_close(descriptor);
    }
    return table;
}

// The tables, read once, on first use.
ByteTable const& byteTable(CodePageName const& page) {
    static std::unordered_map<int, ByteTable> const tables = [] {
        std::unordered_map<int, ByteTable> all;
        for (CodePageName const& each : kCodePages) {
            if (each.singleByte) {
                all.emplace(each.number, readByteTable(each));
            }
        }
        return all;
    }();
    return tables.at(page.number);
}

void decodeBytes(std::string_view bytes, ByteTable const& table, std::wstring& text) {
    text.clear();
    for (char c : bytes) {
        auto const byte = static_cast<unsigned char>(c);
        text += table.defined[byte] ? table.toWide[byte] : static_cast<wchar_t>(kDefaultByte);
    }
}

bool encodeBytes(std::wstring_view text, ByteTable const& table, std::string& bytes) {
    bool lossless = true;
    bytes.clear();
    for (wchar_t c : text) {
        auto const found = table.toByte.find(c);
        if (found == table.toByte.end()) {
            bytes += kDefaultByte;
            lossless = false;
        } else {
            bytes += static_cast<char>(found->second);
        }
    }
    return lossless;
}

// --- multi-byte code pages ----------------------------------------------------------------

// iconv descriptors for one code page, kept per thread (a descriptor holds conversion state
// and must not be shared) and reopened when another code page is asked for.
class Descriptors {
public:
    Descriptors() = default;
    Descriptors(Descriptors const&) = delete;
    Descriptors& operator=(Descriptors const&) = delete;
    ~Descriptors() { close(); }

    bool open(CodePageName const& page) {
        if (m_codePage == page.number) {
            return true;
        }
        close();
        m_toWide = iconv_open("WCHAR_T", page.iconvName);
        m_fromWide = iconv_open(page.iconvName, "WCHAR_T");
        if (m_toWide == kNoDescriptor || m_fromWide == kNoDescriptor) {
            close();
            return false;
        }
        m_codePage = page.number;
        return true;
    }
    iconv_t toWide() const { return m_toWide; }
    iconv_t fromWide() const { return m_fromWide; }

private:
    void close() {
        if (m_toWide != kNoDescriptor) {
            iconv_close(m_toWide);
        }
        if (m_fromWide != kNoDescriptor) {
            iconv_close(m_fromWide);
        }
        m_toWide = kNoDescriptor;
        m_fromWide = kNoDescriptor;
        m_codePage = -1;
    }

    int m_codePage = -1;
    iconv_t m_toWide = kNoDescriptor;
    iconv_t m_fromWide = kNoDescriptor;
};

Descriptors* descriptorsFor(CodePageName const& page) {
    thread_local Descriptors descriptors;
    return descriptors.open(page) ? &descriptors : nullptr;
}

bool isContinuation(unsigned char byte, unsigned char low, unsigned char high) {
    return byte >= low && byte <= high;
}

// The length of the maximal ill-formed UTF-8 subpart at the start of bytes, which Windows
// replaces by one U+FFFD: the lead byte and the continuation bytes that still fit it.
std::size_t illFormedUtf8Length(char const* bytes, std::size_t size) {
    auto const lead = static_cast<unsigned char>(bytes[0]);
    std::size_t expected = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        expected = 1;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        expected = 2;
        low = lead == 0xE0 ? 0xA0 : 0x80;
        high = lead == 0xED ? 0x9F : 0xBF;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        expected = 3;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF;
    }
    std::size_t length = 1;
    while (length <= expected && length < size &&
           isContinuation(static_cast<unsigned char>(bytes[length]), low, high)) {
        ++length;
        low = 0x80;
        high = 0xBF;
    }
    return length;
}

// What Windows decodes an undecodable byte (or UTF-8 sequence) at `in` to; advances past it.
wchar_t undecodable(CodePageName const& page, char*& in, std::size_t& inLeft) {
    std::size_t skip = 1;
    wchar_t character = static_cast<wchar_t>(kDefaultByte);
    if (page.number == kUtf8CodePage) {
        skip = illFormedUtf8Length(in, inLeft);
        character = kReplacementCharacter;
    } else if (ByteCorrection const* fix =
                   findCorrection(page.number, static_cast<unsigned char>(*in))) {
        character = fix->character;
    } else if (page.number == 932) {
        character = kDefaultCharacter932;
    }
    in += skip;
    inLeft -= skip;
    return character;
}

bool decodeMultiByte(std::string_view bytes, CodePageName const& page, std::wstring& text) {
    Descriptors* descriptors = descriptorsFor(page);
    if (descriptors == nullptr) {
        return false;
    }
    std::string wide;
    char* in = const_cast<char*>(bytes.data());
    std::size_t inLeft = bytes.size();
    text.clear();
    while (!convert(descriptors->toWide(), in, inLeft, wide)) {
        appendWide(text, wide);
        wide.clear();
        text += undecodable(page, in, inLeft);
    }
    appendWide(text, wide);
    return true;
}

// The bytes of one character, when it converts exactly and back.
bool encodeCharacter(wchar_t character, CodePageName const& page, Descriptors const& descriptors,
                     std::string& bytes) {
    bytes.clear();
    char* in = reinterpret_cast<char*>(&character);
    std::size_t inLeft = sizeof character;
    if (!convert(descriptors.fromWide(), in, inLeft, bytes)) {
        ByteCorrection const* fix = findCorrection(page.number, character);
        if (fix == nullptr) {
            return false;
        }
        bytes.assign(1, static_cast<char>(fix->byte));
        return true;
    }
    std::string back;
    char* again = &bytes[0];
    std::size_t againLeft = bytes.size();
    return convert(descriptors.toWide(), again, againLeft, back) && singleWide(back) == character;
}

bool encodeMultiByte(std::wstring_view text, CodePageName const& page, std::string& bytes,
                     bool& lossless) {
    Descriptors* descriptors = descriptorsFor(page);
    if (descriptors == nullptr) {
        return false;
    }
    bytes.clear();
    lossless = true;
    if (page.number == kUtf8CodePage) {
        // Every character but a surrogate (or a number beyond U+10FFFF) has UTF-8 bytes;
        // those get U+FFFD, as Windows writes an unpaired surrogate.
        char* in = reinterpret_cast<char*>(const_cast<wchar_t*>(text.data()));
        std::size_t inLeft = text.size() * sizeof(wchar_t);
        while (!convert(descriptors->fromWide(), in, inLeft, bytes)) {
            bytes += "\xEF\xBF\xBD";
            in += sizeof(wchar_t);
            inLeft -= sizeof(wchar_t);
        }
        return true;
    }
    std::string one;
    for (wchar_t c : text) {
        if (encodeCharacter(c, page, *descriptors, one)) {
            bytes += one;
        } else {
            bytes += kDefaultByte;
            lossless = false;
        }
    }
    return true;
}

}  // namespace

bool decodeCodePage(std::string_view bytes, int codePage, std::wstring& text) {
    CodePageName const* page = findCodePage(codePage);
    if (page == nullptr) {
        return false;
    }
    if (page->singleByte) {
        decodeBytes(bytes, byteTable(*page), text);
        return true;
    }
    return decodeMultiByte(bytes, *page, text);
}

bool encodeCodePage(std::wstring_view text, int codePage, std::string& bytes, bool& lossless) {
    CodePageName const* page = findCodePage(codePage);
    if (page == nullptr) {
        return false;
    }
    if (page->singleByte) {
        lossless = encodeBytes(text, byteTable(*page), bytes);
        return true;
    }
    return encodeMultiByte(text, *page, bytes, lossless);
}

}  // namespace internal
}  // namespace ORX
