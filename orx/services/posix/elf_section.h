// Reads one named section of an ELF file (64-bit, the platform's byte order) from the file
// itself, without loading it.
#ifndef ORX_SERVICES_POSIX_ELF_SECTION_H
#define ORX_SERVICES_POSIX_ELF_SECTION_H

#include <cstddef>
#include <string>

namespace ORX::internal {

// The contents of the section `name` of the file at `path`. False when the file cannot be
// read, is no such ELF file, is damaged, has no such section or the section is larger than
// `maxBytes`.
bool readElfSection(std::string const& path, char const* name, std::size_t maxBytes,
                    std::string& contents);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_ELF_SECTION_H
