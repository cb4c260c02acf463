#include "dxf_groups.h"

#include "message_text.h"
#include "numbers.h"

namespace orxtool {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

std::string trimmed(std::string const& s) {
    std::size_t first = s.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return {};
    }
    return s.substr(first, s.find_last_not_of(" \t") - first + 1);
}

}  // namespace

DxfGroupReader::DxfGroupReader(std::string const& text, std::string const& file)
    : m_text(text), m_file(file) {
    if (m_text.compare(0, sizeof kByteOrderMark - 1, kByteOrderMark) == 0) {
        m_pos = sizeof kByteOrderMark - 1;
    }
}

bool DxfGroupReader::next(DxfGroup& group) {
    std::string codeText;
    if (!nextLine(codeText)) {
        return false;
    }
    group.line = m_lineNumber;
    std::optional<long> code = parseInteger(codeText);
    if (!code) {
        std::string what = quotedInput(trimmed(codeText)) + " is not a group code";
        throw error(group.line, group.line == 1 ? "not a DXF file (" + what + ")" : what);
    }
    std::string value;
    if (!nextLine(value)) {
        throw error(group.line, "group code " + std::to_string(*code) + " has no value");
    }
    group.code = *code;
    group.value = trimmed(value);
    return true;
}

ToolError DxfGroupReader::error(std::size_t line, std::string const& what) const {
    return ToolError(m_file + ":" + std::to_string(line) + ": " + what);
}

bool DxfGroupReader::nextLine(std::string& line) {
    if (m_pos >= m_text.size()) {
        return false;
    }
    std::size_t end = m_text.find_first_of("\r\n", m_pos);
    if (end == std::string::npos) {
        end = m_text.size();
    }
    line.assign(m_text, m_pos, end - m_pos);
    m_pos = end;
    if (m_pos < m_text.size() && m_text[m_pos] == '\r') {
        ++m_pos;
    }
    if (m_pos < m_text.size() && m_text[m_pos] == '\n') {
        ++m_pos;
    }
    ++m_lineNumber;
    return true;
}

}  // namespace orxtool
