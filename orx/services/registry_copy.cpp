// ORX::regCopyTree: copies a key's values and sub-keys into another key.
#include <vector>

#include "orx/services/internal/registry_api.h"
#include "orx/services/registry.h"

namespace ORX {
namespace {

using internal::kErrorSuccess;

// The value data buffer: 1024 bytes on Windows, that is 512 characters of text. Counted in
// characters so that Linux, with 4-byte characters, copies the same text values.
constexpr unsigned long kCopyDataBytes = 512 * sizeof(wchar_t);

// The buffers of one copy, shared by every level of the recursion: a level is done with them
// before it descends, and a deep tree must not cost a deep stack.
class TreeCopy {
public:
    TreeCopy() : m_name(internal::kMaxPath), m_data(kCopyDataBytes), m_probe(kCopyDataBytes) {}

    void copy(HKEY dst, HKEY src, bool overwrite) {
        copyValues(dst, src, overwrite);
        copySubKeys(dst, src);
    }

private:
    // Stops at the first value the buffers cannot take, as the enumeration then fails.
    void copyValues(HKEY dst, HKEY src, bool overwrite) {
        for (unsigned long index = 0;; ++index) {
            unsigned long nameChars = internal::kMaxPath;
            unsigned long type = 0;
            unsigned long size = kCopyDataBytes;
            if (internal::regEnumValue(src, index, m_name.data(), &nameChars, &type, m_data.data(),
                                       &size) != kErrorSuccess) {
                return;
            }
            if (overwrite || !hasValue(dst, m_name.data())) {
                internal::regSetValue(dst, m_name.data(), type, m_data.data(), size);
            }
        }
    }

    // A value dst has but that does not fit the buffer counts as missing and is replaced.
    bool hasValue(HKEY key, wchar_t const* name) {
        unsigned long size = kCopyDataBytes;
        return internal::regQueryValue(key, name, nullptr, m_probe.data(), &size) == kErrorSuccess;
    }

    // Below the top level nothing is overwritten, whatever the caller asked for: the
    // long-standing behaviour callers rely on.
    void copySubKeys(HKEY dst, HKEY src) {
        for (unsigned long index = 0;; ++index) {
            unsigned long nameChars = internal::kMaxPath;
            if (internal::regEnumKey(src, index, m_name.data(), &nameChars) != kErrorSuccess) {
                return;
            }
            HKEY from = nullptr;
            HKEY to = nullptr;
            bool const opened =
                internal::regOpenKey(src, m_name.data(), internal::kKeyRead, from) == kErrorSuccess;
            bool const created = internal::regCreateKey(dst, m_name.data(), internal::kKeyReadWrite,
                                                        to) == kErrorSuccess;
            if (opened && created) {
                copy(to, from, false);
            }
            if (opened) {
                internal::regCloseKey(from);
            }
            if (created) {
                internal::regCloseKey(to);
            }
        }
    }

    std::vector<wchar_t> m_name;
    std::vector<unsigned char> m_data;
    std::vector<unsigned char> m_probe;
};

}  // namespace

bool regCopyTree(HKEY dst, HKEY src, bool overwrite) {
    TreeCopy().copy(dst, src, overwrite);
    return true;
}

}  // namespace ORX
