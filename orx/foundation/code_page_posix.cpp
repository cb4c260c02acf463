// Code-page conversion on Linux: glibc's iconv, corrected to Windows' answers.
//
// Every Windows code page number that iconv has a converter for works (code_page_names.h
// says which name stands for which number, and what the system numbers 0 to 3 stand for). A
// code page without a converter, also when iconv cannot open one that it lists, fails.
// - A code page in which every byte is one character (or undefined) converts through a table
//   of its 256 bytes, read from iconv on first use and corrected where glibc leaves a byte
//   undefined that Windows maps (to the C1 control character of the same number, or to a
//   private-use character). Both directions use the table, so every byte and every character
//   of the table round-trips as on Windows.
// - The others (UTF-8, the double-byte and the stateful code pages) convert with iconv
//   itself. Undecodable input gives what Windows gives: U+FFFD for each maximal ill-formed
//   UTF-8 sequence; for 932 and 936 the character Windows assigns to a stray single byte,
//   else its default character. Known difference: the double-byte user-defined areas of 936,
//   which Windows maps to private-use characters, are undecodable for glibc.
// - Encoding never substitutes a look-alike: a character counts as representable only when
//   its bytes decode back to it.
#include <iconv.h>
#include <cerrno>

#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

#include "orx/foundation/internal/code_page_names.h"
#include "orx/foundation/internal/string_platform.h"

namespace ORX {
namespace internal {

namespace {

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

// Runs iconv over the whole input and then lets the converter write what it still holds (a
// character kept back to see whether a combining mark follows, the shift back to the initial
// state). Returns 0, or the errno of the first byte or character it cannot convert (in and
// inLeft then point at it; the converter is back in its initial state either way).
int convert(iconv_t descriptor, char*& in, std::size_t& inLeft, std::string& out) {
    char chunk[256];
    while (inLeft > 0) {
        char* next = chunk;
        std::size_t room = sizeof chunk;
        std::size_t const result = iconv(descriptor, &in, &inLeft, &next, &room);
        int const error = errno;
        out.append(chunk, sizeof chunk - room);
        if (result == static_cast<std::size_t>(-1) && error != E2BIG) {
            iconv(descriptor, nullptr, nullptr, nullptr, nullptr);
            return error;
        }
    }
    for (;;) {
        char* next = chunk;
        std::size_t room = sizeof chunk;
        std::size_t const result = iconv(descriptor, nullptr, nullptr, &next, &room);
        int const error = errno;
        out.append(chunk, sizeof chunk - room);
        if (result != static_cast<std::size_t>(-1) || error != E2BIG) {
            return 0;
        }
    }
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

// The two iconv descriptors of one code page. A descriptor holds conversion state, so one
// is used by one thread at a time.
class Descriptors {
public:
    Descriptors() = default;
    Descriptors(Descriptors const&) = delete;
    Descriptors& operator=(Descriptors const&) = delete;
    ~Descriptors() { close(); }

    // Keeps the descriptors when they convert iconvName already; false when iconv cannot
    // open both.
    bool open(std::string const& iconvName) {
        if (m_toWide != kNoDescriptor && m_iconvName == iconvName) {
            return true;
        }
        close();
        m_toWide = iconv_open("WCHAR_T", iconvName.c_str());
        m_fromWide = iconv_open(iconvName.c_str(), "WCHAR_T");
        if (m_toWide == kNoDescriptor || m_fromWide == kNoDescriptor) {
            close();
            return false;
        }
        m_iconvName = iconvName;
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
        m_iconvName.clear();
    }

    std::string m_iconvName;
    iconv_t m_toWide = kNoDescriptor;
    iconv_t m_fromWide = kNoDescriptor;
};

// --- what a code page is ------------------------------------------------------------------

struct ByteTable {
    wchar_t toWide[256] = {};
    bool defined[256] = {};
    std::unordered_map<wchar_t, unsigned char> toByte;
};

struct CodePage {
    int number = 0;  // after resolveSystemCodePage
    std::string iconvName;
    bool singleByte = false;
    ByteTable table;  // filled for single-byte code pages
};

// Decodes every byte alone. The code page is single-byte when each one is a character or
// undefined; a byte that starts a longer sequence, or makes no character by itself (a shift
// of a stateful code page), makes it multi-byte.
bool readByteTable(CodePage& page, iconv_t toWide) {
    for (int b = 0; b < 256; ++b) {
        auto const byte = static_cast<unsigned char>(b);
        char text = static_cast<char>(byte);
        char* in = &text;
        std::size_t inLeft = 1;
        std::string wide;
        int const error = convert(toWide, in, inLeft, wide);
        if (error == 0 && wide.size() == sizeof(wchar_t)) {
            page.table.toWide[b] = singleWide(wide);
            page.table.defined[b] = true;
        } else if (error != EILSEQ) {
            return false;
        } else if (ByteCorrection const* fix = findCorrection(page.number, byte)) {
            page.table.toWide[b] = fix->character;
            page.table.defined[b] = true;
        }
        if (page.table.defined[b] && page.table.toByte.count(page.table.toWide[b]) == 0) {
            page.table.toByte[page.table.toWide[b]] = byte;
        }
    }
    return true;
}

// The code page behind a number, or null when iconv has no converter for it.
std::unique_ptr<CodePage> describeCodePage(int number) {
    for (std::string const& name : iconvNames(number)) {
        Descriptors descriptors;
        if (!descriptors.open(name)) {
            continue;
        }
        auto page = std::make_unique<CodePage>();
        page->number = number;
        page->iconvName = name;
        page->singleByte = readByteTable(*page, descriptors.toWide());
        if (!page->singleByte) {
            page->table = ByteTable();
        }
        return page;
    }
    return nullptr;
}

// The code pages met so far. One that cannot be converted is not remembered, so that it is
// tried again (a converter may be installed, or a failure to open one may pass).
CodePage const* findCodePage(int codePage) {
    static std::mutex mutex;
    static std::unordered_map<int, std::unique_ptr<CodePage>> known;
    int const number = resolveSystemCodePage(codePage);
    std::lock_guard<std::mutex> lock(mutex);
    auto found = known.find(number);
    if (found == known.end()) {
        std::unique_ptr<CodePage> page = describeCodePage(number);
        if (page == nullptr) {
            return nullptr;
        }
        found = known.emplace(number, std::move(page)).first;
    }
    return found->second.get();
}

// --- single-byte code pages ---------------------------------------------------------------

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

// The descriptors of the calling thread, opened for the code page (reopened when the thread
// asks for another one); null when iconv cannot open them.
Descriptors* descriptorsFor(CodePage const& page) {
    thread_local Descriptors descriptors;
    return descriptors.open(page.iconvName) ? &descriptors : nullptr;
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
wchar_t undecodable(CodePage const& page, char*& in, std::size_t& inLeft) {
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

bool decodeMultiByte(std::string_view bytes, CodePage const& page, std::wstring& text) {
    Descriptors* descriptors = descriptorsFor(page);
    if (descriptors == nullptr) {
        return false;
    }
    std::string wide;
    char* in = const_cast<char*>(bytes.data());
    std::size_t inLeft = bytes.size();
    text.clear();
    while (convert(descriptors->toWide(), in, inLeft, wide) != 0) {
        appendWide(text, wide);
        wide.clear();
        text += undecodable(page, in, inLeft);
    }
    appendWide(text, wide);
    return true;
}

// Whether the character converts exactly and back, on its own.
bool encodesExactly(wchar_t character, Descriptors const& descriptors) {
    std::string bytes;
    char* in = reinterpret_cast<char*>(&character);
    std::size_t inLeft = sizeof character;
    if (convert(descriptors.fromWide(), in, inLeft, bytes) != 0) {
        return false;
    }
    std::string back;
    char* again = &bytes[0];
    std::size_t againLeft = bytes.size();
    return convert(descriptors.toWide(), again, againLeft, back) == 0 &&
           singleWide(back) == character;
}

// Converts a run of characters that all encode exactly; false should iconv refuse it anyway.
bool encodeRun(std::wstring const& run, Descriptors const& descriptors, std::string& bytes) {
    char* in = reinterpret_cast<char*>(const_cast<wchar_t*>(run.data()));
    std::size_t inLeft = run.size() * sizeof(wchar_t);
    return convert(descriptors.fromWide(), in, inLeft, bytes) == 0;
}

// UTF-8: every character but a surrogate (or a number beyond U+10FFFF) has UTF-8 bytes;
// those get U+FFFD, as Windows writes an unpaired surrogate.
void encodeUtf8(std::wstring_view text, Descriptors const& descriptors, std::string& bytes) {
    char* in = reinterpret_cast<char*>(const_cast<wchar_t*>(text.data()));
    std::size_t inLeft = text.size() * sizeof(wchar_t);
    while (convert(descriptors.fromWide(), in, inLeft, bytes) != 0) {
        bytes += "\xEF\xBF\xBD";
        in += sizeof(wchar_t);
        inLeft -= sizeof(wchar_t);
    }
}

// The characters that encode exactly are converted in runs (a stateful code page shifts
// once per run, not per character); a corrected character or the default byte ends a run.
bool encodeMultiByte(std::wstring_view text, CodePage const& page, std::string& bytes,
                     bool& lossless) {
    Descriptors* descriptors = descriptorsFor(page);
    if (descriptors == nullptr) {
        return false;
    }
    bytes.clear();
    lossless = true;
    if (page.number == kUtf8CodePage) {
        encodeUtf8(text, *descriptors, bytes);
        return true;
    }
    std::wstring run;
    for (wchar_t c : text) {
        if (encodesExactly(c, *descriptors)) {
            run += c;
            continue;
        }
        if (!encodeRun(run, *descriptors, bytes)) {
            return false;
        }
        run.clear();
        ByteCorrection const* fix = findCorrection(page.number, c);
        bytes += fix != nullptr ? static_cast<char>(fix->byte) : kDefaultByte;
        lossless = lossless && fix != nullptr;
    }
    return encodeRun(run, *descriptors, bytes);
}

}  // namespace

bool decodeCodePage(std::string_view bytes, int codePage, std::wstring& text) {
    CodePage const* page = findCodePage(codePage);
    if (page == nullptr) {
        return false;
    }
    if (page->singleByte) {
        decodeBytes(bytes, page->table, text);
        return true;
    }
    return decodeMultiByte(bytes, *page, text);
}

bool encodeCodePage(std::wstring_view text, int codePage, std::string& bytes, bool& lossless) {
    CodePage const* page = findCodePage(codePage);
    if (page == nullptr) {
        return false;
    }
    if (page->singleByte) {
        lossless = encodeBytes(text, page->table, bytes);
        return true;
    }
    return encodeMultiByte(text, *page, bytes, lossless);
}

}  // namespace internal
}  // namespace ORX
