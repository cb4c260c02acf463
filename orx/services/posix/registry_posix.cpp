// The registry calls of the neutral registry code on Linux, over the SQLite hives.
//
// An HKEY is either a predefined key, which stands for the root of its hive as the
// environment names it at the time of the call, or a pointer to an open-key record of this
// file. Handles are checked against the open records, so a closed or made-up handle is
// refused as Windows refuses it, never followed. One lock serialises the calls: the hive
// connections are shared by the threads of the process.
#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "orx/foundation/shared/utf8.h"
#include "orx/foundation/string.h"
#include "orx/services/internal/registry_api.h"
#include "orx/services/posix/registry_hive.h"
#include "orx/services/posix/registry_location.h"

namespace ORX::internal {
namespace {

// Windows' limits: characters of a key name and of a value name, and levels of keys.
constexpr std::size_t kMaxKeyNameChars = 255;
constexpr std::size_t kMaxValueNameChars = 16383;
constexpr std::size_t kMaxKeyDepth = 512;

bool isTextType(unsigned long type) {
    return type == kRegSz || type == kRegExpandSz || type == kRegMultiSz;
}

std::string folded(std::wstring const& name) {
    COrxString upper(name.c_str());
    upper.makeUpper();
    wchar_t const* const text = upper;
    return toUtf8(text == nullptr ? std::wstring_view() : std::wstring_view(text));
}

RegistryName registryName(std::wstring const& name) {
    return RegistryName{toUtf8(name), folded(name)};
}

// A key of a hive as a handle refers to it.
struct OpenKey {
    std::shared_ptr<RegistryHive> hive;
    RegistryKeyId id = RegistryHive::kRootKey;
    bool writable = true;
    std::size_t depth = 0;
};

// Splits a key path at "\" and skips empty names, as the registry does; a leading "\" and
// over-long names are refused.
long splitPath(wchar_t const* path, std::vector<RegistryName>& names) {
    if (path == nullptr) {
        return kErrorSuccess;
    }
    std::wstring_view rest(path);
    if (!rest.empty() && rest.front() == L'\\') {
        return kErrorBadPathname;
    }
    while (!rest.empty()) {
        std::size_t const end = std::min(rest.find(L'\\'), rest.size());
        if (end > kMaxKeyNameChars) {
            return kErrorInvalidParameter;
        }
        if (end > 0) {
            names.push_back(registryName(std::wstring(rest.substr(0, end))));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return kErrorSuccess;
}

long valueName(wchar_t const* name, std::wstring& text) {
    text = name == nullptr ? std::wstring() : std::wstring(name);
    return text.size() > kMaxValueNameChars ? kErrorInvalidParameter : kErrorSuccess;
}

class Registry {
public:
    // The key behind a handle. A predefined key opens its hive, creating the database only
    // when the caller is about to write.
    long resolve(HKEY handle, bool forWriting, OpenKey& key) {
        HiveKind kind = HiveKind::kUser;
        if (!predefinedKind(handle, kind)) {
            auto const found = m_keys.find(handle);
            if (found == m_keys.end()) {
                return kErrorInvalidHandle;
            }
            key = *found->second;
            return key.hive->useInThisProcess();
        }
        long error = kErrorSuccess;
        std::shared_ptr<RegistryHive>& hive = m_hives[static_cast<int>(kind)];
        std::string const file = hiveFile(kind);
        if (hive == nullptr || !hive->isAt(file)) {
            std::shared_ptr<RegistryHive> opened =
                RegistryHive::open(file, forWriting, journalOf(kind), error);
            if (opened == nullptr) {
                return error;
            }
            hive = std::move(opened);
        }
        key = OpenKey{hive, RegistryHive::kRootKey, true, 0};
        return hive->useInThisProcess();
    }

    // The key behind a handle that is about to be changed: a key opened for reading only is
    // refused with access denied, as the registry does.
    long resolveForChange(HKEY handle, bool creatingHive, OpenKey& key) {
        long const error = resolve(handle, creatingHive, key);
        if (error != kErrorSuccess) {
            return error;
        }
        return key.writable ? kErrorSuccess : kErrorAccessDenied;
    }

    HKEY add(OpenKey const& key) {
        auto record = std::make_unique<OpenKey>(key);
        HKEY const handle = reinterpret_cast<HKEY>(record.get());
        m_keys.emplace(handle, std::move(record));
        return handle;
    }

    long close(HKEY handle) {
        HiveKind kind = HiveKind::kUser;
        if (predefinedKind(handle, kind)) {
            return kErrorSuccess;
        }
        return m_keys.erase(handle) == 1 ? kErrorSuccess : kErrorInvalidHandle;
    }

    std::mutex& mutex() { return m_mutex; }

    // Lets go of the hives; keys still open keep theirs.
    void closeHives() {
        std::lock_guard<std::mutex> const lock(m_mutex);
        for (std::shared_ptr<RegistryHive>& hive : m_hives) {
            hive.reset();
        }
    }

private:
    // The user's hive is read and written by its user alone; the machine and classes hives
    // are read by every user, most of whom may not write their folder.
    static HiveJournal journalOf(HiveKind kind) {
        return kind == HiveKind::kUser ? HiveJournal::writeAhead : HiveJournal::rollback;
    }

    static bool predefinedKind(HKEY handle, HiveKind& kind) {
        if (handle == classesRoot()) {
            kind = HiveKind::kClasses;
        } else if (handle == currentUser()) {
            kind = HiveKind::kUser;
        } else if (handle == localMachine()) {
            kind = HiveKind::kMachine;
        } else {
            return false;
        }
        return true;
    }

    std::mutex m_mutex;
    std::shared_ptr<RegistryHive> m_hives[3];
    std::unordered_map<HKEY, std::unique_ptr<OpenKey>> m_keys;
};

// Closes the hives the registry holds open when static objects are destroyed, so that the
// databases are closed cleanly (the user's write-ahead log folded back).
class HiveCloser {
public:
    explicit HiveCloser(Registry& registry) : m_registry(registry) {}
    ~HiveCloser() { m_registry.closeHives(); }

private:
    Registry& m_registry;
};

// The registry itself is never destroyed: exit handlers and the destructors of static
// objects that were made before the first registry call run after a static registry would
// have been destroyed, and may still read and write settings (a destroyed one was used after
// free). Such a late call opens its hive again.
Registry& registry() {
    static Registry* const instance = new Registry;
    static HiveCloser const closer(*instance);
    return *instance;
}

// Text travels as wchar_t through the interface and as UTF-8 in the hive.
std::string storedBytes(unsigned long type, unsigned char const* data, unsigned long size) {
    if (!isTextType(type)) {
        return std::string(reinterpret_cast<char const*>(data), size);
    }
    std::wstring units(size / sizeof(wchar_t), L'\0');
    std::memcpy(units.data(), data, units.size() * sizeof(wchar_t));
    return toUtf8(units);
}

std::string interfaceBytes(RegistryData const& data) {
    if (!isTextType(data.type)) {
        return data.bytes;
    }
    std::wstring const units = fromUtf8(data.bytes);
    return std::string(reinterpret_cast<char const*>(units.data()), units.size() * sizeof(wchar_t));
}

// Hands data to a caller's buffer as RegQueryValueExW does: no buffer asks for the size, a
// buffer too small gets kErrorMoreData and the size needed.
long deliver(std::string const& bytes, unsigned char* data, unsigned long* size) {
    if (data != nullptr && size == nullptr) {
        return kErrorInvalidParameter;
    }
    unsigned long const needed = static_cast<unsigned long>(bytes.size());
    if (data != nullptr && *size < needed) {
        *size = needed;
        return kErrorMoreData;
    }
    if (data != nullptr) {
        std::copy(bytes.begin(), bytes.end(), data);  // raw bytes, no terminator of their own
    }
    if (size != nullptr) {
        *size = needed;
    }
    return kErrorSuccess;
}

// Copies a name to a caller's buffer of *chars characters, NUL included.
long deliverName(std::string const& utf8, wchar_t* name, unsigned long* chars) {
    std::wstring const text = fromUtf8(utf8);
    if (name == nullptr || chars == nullptr) {
        return kErrorInvalidParameter;
    }
    if (text.size() + 1 > *chars) {
        return kErrorMoreData;
    }
    std::memcpy(name, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    *chars = static_cast<unsigned long>(text.size());
    return kErrorSuccess;
}

long openOrCreate(HKEY root, wchar_t const* path, unsigned long access, HKEY& key, bool create) {
    std::vector<RegistryName> names;
    long error = splitPath(path, names);
    if (error != kErrorSuccess) {
        return error;
    }
    std::lock_guard<std::mutex> const lock(registry().mutex());
    OpenKey parent;
    if ((error = registry().resolve(root, create, parent)) != kErrorSuccess) {
        return error;
    }
    OpenKey opened = parent;
    opened.writable = (access & (kKeySetValue | kKeyCreateSubKey)) != 0;
    opened.depth = parent.depth + names.size();
    if (create) {
        if (!parent.writable) {
            return kErrorAccessDenied;
        }
        if (opened.depth > kMaxKeyDepth) {
            return kErrorInvalidParameter;
        }
        error = parent.hive->createKey(parent.id, names, opened.id);
    } else {
        error = parent.hive->findKey(parent.id, names, opened.id);
    }
    if (error == kErrorSuccess) {
        key = registry().add(opened);
    }
    return error;
}

}  // namespace

long regCreateKey(HKEY root, wchar_t const* path, unsigned long access, HKEY& key) {
    return openOrCreate(root, path, access, key, true);
}

long regOpenKey(HKEY root, wchar_t const* path, unsigned long access, HKEY& key) {
    return openOrCreate(root, path, access, key, false);
}

long regCloseKey(HKEY key) {
    std::lock_guard<std::mutex> const lock(registry().mutex());
    return registry().close(key);
}

long regDeleteTree(HKEY root, wchar_t const* path) {
    std::vector<RegistryName> names;
    long error = splitPath(path, names);
    if (error != kErrorSuccess) {
        return error;
    }
    std::lock_guard<std::mutex> const lock(registry().mutex());
    OpenKey parent;
    if ((error = registry().resolveForChange(root, false, parent)) != kErrorSuccess) {
        return error;
    }
    RegistryKeyId doomed = 0;
    if ((error = parent.hive->findKey(parent.id, names, doomed)) != kErrorSuccess) {
        return error;
    }
    return parent.hive->deleteKey(doomed);
}

long regQueryValue(HKEY key, wchar_t const* name, unsigned long* type, unsigned char* data,
                   unsigned long* size) {
    std::wstring text;
    long error = valueName(name, text);
    if (error != kErrorSuccess) {
        return error;
    }
    std::lock_guard<std::mutex> const lock(registry().mutex());
    OpenKey open;
    RegistryData stored;
    if ((error = registry().resolve(key, false, open)) != kErrorSuccess ||
        (error = open.hive->queryValue(open.id, folded(text), stored)) != kErrorSuccess) {
        return error;
    }
    if (type != nullptr) {
        *type = stored.type;
    }
    return deliver(interfaceBytes(stored), data, size);
}

long regSetValue(HKEY key, wchar_t const* name, unsigned long type, unsigned char const* data,
                 unsigned long size) {
    std::wstring text;
    long error = valueName(name, text);
    if (error != kErrorSuccess) {
        return error;
    }
    if (data == nullptr && size != 0) {
        return kErrorInvalidParameter;
    }
    std::lock_guard<std::mutex> const lock(registry().mutex());
    OpenKey open;
    if ((error = registry().resolveForChange(key, true, open)) != kErrorSuccess) {
        return error;
    }
    RegistryData const stored{type, size == 0 ? std::string() : storedBytes(type, data, size)};
    return open.hive->setValue(open.id, registryName(text), stored);
}

long regDeleteValue(HKEY key, wchar_t const* name) {
    std::wstring text;
    long error = valueName(name, text);
    if (error != kErrorSuccess) {
        return error;
    }
    std::lock_guard<std::mutex> const lock(registry().mutex());
    OpenKey open;
    if ((error = registry().resolveForChange(key, false, open)) != kErrorSuccess) {
        return error;
    }
    return open.hive->deleteValue(open.id, folded(text));
}

long regEnumValue(HKEY key, unsigned long index, wchar_t* name, unsigned long* nameChars,
                  unsigned long* type, unsigned char* data, unsigned long* size) {
    std::lock_guard<std::mutex> const lock(registry().mutex());
    OpenKey open;
    std::string storedName;
    RegistryData stored;
    long error = registry().resolve(key, false, open);
    if (error != kErrorSuccess ||
        (error = open.hive->valueAt(open.id, index, storedName, stored)) != kErrorSuccess) {
        return error;
    }
    std::string const bytes = interfaceBytes(stored);
    if (data != nullptr && size != nullptr && *size < bytes.size()) {
        *size = static_cast<unsigned long>(bytes.size());
        return kErrorMoreData;
    }
    if ((error = deliverName(storedName, name, nameChars)) != kErrorSuccess) {
        return error;
    }
    if (type != nullptr) {
        *type = stored.type;
    }
    return deliver(bytes, data, size);
}

long regEnumKey(HKEY key, unsigned long index, wchar_t* name, unsigned long* nameChars) {
    std::lock_guard<std::mutex> const lock(registry().mutex());
    OpenKey open;
    std::string storedName;
    long error = registry().resolve(key, false, open);
    if (error != kErrorSuccess ||
        (error = open.hive->subKeyAt(open.id, index, storedName)) != kErrorSuccess) {
        return error;
    }
    return deliverName(storedName, name, nameChars);
}

}  // namespace ORX::internal
