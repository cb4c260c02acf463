#include "orx/services/posix/elf_section.h"

#include <elf.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <vector>

namespace ORX::internal {
namespace {

// Limits that keep a damaged file from making the reader allocate without bound.
constexpr std::size_t kMaxSections = 0xFF00;  // below the extended-numbering escape
constexpr std::size_t kMaxNameTableBytes = 1 << 20;
// The byte order of this machine, which is the only one read.
constexpr unsigned char kOwnByteOrder =
    __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? ELFDATA2LSB : ELFDATA2MSB;

class File {
public:
    explicit File(std::string const& path) : m_fd(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~File() {
        if (m_fd >= 0) {
            close(m_fd);
        }
    }
    File(File const&) = delete;
    File& operator=(File const&) = delete;

    bool isOpen() const { return m_fd >= 0; }

    // Reads exactly `size` bytes at `offset`; false when the file is shorter.
    bool read(std::uint64_t offset, void* out, std::size_t size) const {
        auto* bytes = static_cast<char*>(out);
        while (size > 0) {
            ssize_t const got = pread(m_fd, bytes, size, static_cast<off_t>(offset));
            if (got <= 0) {
                return false;
            }
            bytes += got;
            size -= static_cast<std::size_t>(got);
            offset += static_cast<std::uint64_t>(got);
        }
        return true;
    }

    bool readSection(Elf64_Shdr const& header, std::size_t maxBytes, std::string& out) const {
        if (header.sh_type == SHT_NOBITS || header.sh_size > maxBytes) {
            return false;
        }
        std::string contents(static_cast<std::size_t>(header.sh_size), '\0');
        if (!read(header.sh_offset, contents.data(), contents.size())) {
            return false;
        }
        out.swap(contents);
        return true;
    }

private:
    int m_fd;
};

bool isOurKindOfElf(Elf64_Ehdr const& header) {
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
           header.e_ident[EI_CLASS] == ELFCLASS64 && header.e_ident[EI_DATA] == kOwnByteOrder &&
           header.e_shentsize == sizeof(Elf64_Shdr) && header.e_shnum > 0 &&
           header.e_shnum < kMaxSections && header.e_shstrndx < header.e_shnum;
}

bool readSectionHeaders(File const& file, Elf64_Ehdr const& header,
                        std::vector<Elf64_Shdr>& sections) {
    sections.resize(header.e_shnum);
    return file.read(header.e_shoff, sections.data(), sections.size() * sizeof(Elf64_Shdr));
}

// Whether the name at `offset` of the section-name table is `name`.
bool nameIs(std::string const& names, Elf64_Word offset, char const* name) {
    std::size_t const length = std::strlen(name);
    return offset < names.size() && names.size() - offset > length &&
           names.compare(offset, length, name) == 0 && names[offset + length] == '\0';
}

}  // namespace

bool readElfSection(std::string const& path, char const* name, std::size_t maxBytes,
                    std::string& contents) {
    File const file(path);
    Elf64_Ehdr header{};
    if (!file.isOpen() || !file.read(0, &header, sizeof header) || !isOurKindOfElf(header)) {
        return false;
    }
    std::vector<Elf64_Shdr> sections;
    std::string names;
    if (!readSectionHeaders(file, header, sections) ||
        !file.readSection(sections[header.e_shstrndx], kMaxNameTableBytes, names)) {
        return false;
    }
    for (Elf64_Shdr const& section : sections) {
        if (nameIs(names, section.sh_name, name)) {
            return file.readSection(section, maxBytes, contents);
        }
    }
    return false;
}

}  // namespace ORX::internal
