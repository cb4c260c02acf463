#include "message_text.h"

namespace orxtool {

namespace {

std::string hexByte(unsigned char c) {
    static char const kDigits[] = "0123456789ABCDEF";
    return std::string("\\x") + kDigits[c >> 4] + kDigits[c & 0xF];
}

bool isControl(unsigned char c) {
    return c < 0x20 || c == 0x7F;
}

// Escapes the bytes `escape` picks and stops once `limit` characters are written.
template <typename Escape>
std::string bounded(std::string_view text, std::size_t limit, Escape escape) {
    std::string out;
    for (char c : text) {
        if (out.size() >= limit) {
            return out + "...";
        }
        unsigned char byte = static_cast<unsigned char>(c);
        out += escape(byte) ? hexByte(byte) : std::string(1, c);
    }
    return out;
}

}  // namespace

std::string quotedInput(std::string_view text) {
    return "'" +
           bounded(text, kQuotedInputChars,
                   [](unsigned char c) { return isControl(c) || c >= 0x80; }) +
           "'";
}

std::string printableLine(std::string_view text) {
    return bounded(text, kMessageLineChars, isControl);
}

}  // namespace orxtool
