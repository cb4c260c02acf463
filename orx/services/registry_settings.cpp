// Settings by application name: the settings key of an application, read from the user's
// hive with the machine's as fallback, written to the user's hive.
#include <cstdint>
#include <cwchar>

#include "orx/services/internal/registry_api.h"
#include "orx/services/internal/registry_settings.h"
#include "orx/services/registry.h"

namespace ORX {
namespace {

using internal::kErrorSuccess;

// The application key's value naming the current version.
constexpr wchar_t const* kCurVerValue = L"CurVer";

// The key (below a hive) and value name an application-name call works on.
struct Setting {
    COrxString keyPath;
    COrxString valueName;
};

// False when app is null or empty or there is no current version: the calls then refuse
// before touching the registry. Everything before the last "\" of valuePath is a sub-key
// path below the settings key.
bool locate(wchar_t const* app, wchar_t const* valuePath, Setting& setting) {
    if (app == nullptr || *app == L'\0' || !internal::hasCurrentVersion()) {
        return false;
    }
    regAppKey(setting.keyPath, app);
    wchar_t const* const lastSlash =
        valuePath == nullptr ? nullptr : std::wcsrchr(valuePath, L'\\');
    if (lastSlash == nullptr) {
        setting.valueName = valuePath;
        return true;
    }
    setting.keyPath += L'\\';
    setting.keyPath += COrxString(valuePath).left(static_cast<unsigned int>(lastSlash - valuePath));
    setting.valueName = lastSlash + 1;
    return true;
}

template <class Read>
bool readIn(HKEY hive, Setting const& setting, Read const& read) {
    HKEY key = nullptr;
    if (internal::regOpenKey(hive, setting.keyPath, internal::kKeyRead, key) != kErrorSuccess) {
        return false;
    }
    bool const found = read(key, static_cast<wchar_t const*>(setting.valueName));
    internal::regCloseKey(key);
    return found;
}

// The user's hive first; when its key or value is missing or unreadable, the machine's.
template <class Read>
bool readSetting(wchar_t const* app, wchar_t const* valuePath, Read const& read) {
    Setting setting;
    if (!locate(app, valuePath, setting)) {
        return false;
    }
    return readIn(internal::currentUser(), setting, read) ||
           readIn(internal::localMachine(), setting, read);
}

template <class Write>
bool writeSetting(wchar_t const* app, wchar_t const* valuePath, Write const& write) {
    Setting setting;
    if (!locate(app, valuePath, setting)) {
        return false;
    }
    HKEY key = nullptr;
    if (internal::regCreateKey(internal::currentUser(), setting.keyPath, internal::kKeyReadWrite,
                               key) != kErrorSuccess) {
        return false;
    }
    bool const written = write(key, static_cast<wchar_t const*>(setting.valueName));
    internal::regCloseKey(key);
    return written;
}

// A number setting must be a REG_DWORD of exactly 4 bytes, unlike the lenient open-key read.
bool readDword(HKEY key, wchar_t const* name, unsigned long& number) {
    std::uint32_t dword = 0;
    unsigned long type = 0;
    unsigned long size = sizeof dword;
    if (internal::regQueryValue(key, name, &type, reinterpret_cast<unsigned char*>(&dword),
                                &size) != kErrorSuccess ||
        type != internal::kRegDword || size != sizeof dword) {
        return false;
    }
    number = dword;
    return true;
}

bool createAndClose(HKEY hive, wchar_t const* path) {
    HKEY key = nullptr;
    if (internal::regCreateKey(hive, path, internal::kKeyReadWrite, key) != kErrorSuccess) {
        return false;
    }
    internal::regCloseKey(key);
    return true;
}

}  // namespace

bool regInit(wchar_t const* app) {
    if (app == nullptr || *app == L'\0' || !internal::hasCurrentVersion()) {
        return false;
    }
    HKEY key = nullptr;
    if (internal::regCreateKey(internal::currentUser(), internal::applicationKeyPath(app),
                               internal::kKeyReadWrite, key) != kErrorSuccess) {
        return false;
    }
    COrxString stored;
    if (!regRead(key, kCurVerValue, stored) || stored != internal::currentVersion()) {
        regWrite(key, kCurVerValue, internal::currentVersion(), false);
    }
    internal::regCloseKey(key);

    COrxString settingsKey;
    regAppKey(settingsKey, app);
    if (!createAndClose(internal::currentUser(), settingsKey)) {
        return false;
    }
    appKeyAdd(app);
    return true;
}

bool regRead(wchar_t const* app, wchar_t const* valuePath, unsigned long& number) {
    return readSetting(app, valuePath, [&number](HKEY key, wchar_t const* name) {
        return readDword(key, name, number);
    });
}

bool regRead(wchar_t const* app, wchar_t const* valuePath, COrxString& text) {
    return readSetting(app, valuePath,
                       [&text](HKEY key, wchar_t const* name) { return regRead(key, name, text); });
}

bool regRead(wchar_t const* app, wchar_t const* valuePath, COrxArrayTempl<COrxString>& list) {
    return readSetting(app, valuePath,
                       [&list](HKEY key, wchar_t const* name) { return regRead(key, name, list); });
}

bool regWrite(wchar_t const* app, wchar_t const* valuePath, wchar_t const* text, bool expand) {
    return writeSetting(app, valuePath, [text, expand](HKEY key, wchar_t const* name) {
        return regWrite(key, name, text, expand);
    });
}

bool regWrite(wchar_t const* app, wchar_t const* valuePath,
              COrxArrayTempl<COrxString> const& list) {
    return writeSetting(app, valuePath, [&list](HKEY key, wchar_t const* name) {
        return regWrite(key, name, list);
    });
}

bool regWrite(wchar_t const* app, wchar_t const* valuePath, unsigned long number) {
    return writeSetting(app, valuePath, [number](HKEY key, wchar_t const* name) {
        return regWrite(key, name, number);
    });
}

bool regDelValue(wchar_t const* app, wchar_t const* valuePath) {
    Setting setting;
    if (!locate(app, valuePath, setting)) {
        return false;
    }
    HKEY key = nullptr;
    if (internal::regOpenKey(internal::currentUser(), setting.keyPath, internal::kKeyReadWrite,
                             key) == kErrorSuccess) {
        internal::regDeleteValue(key, setting.valueName);
        internal::regCloseKey(key);
    }
    // False whatever happened; callers know the result carries no information.
    return false;
}

}  // namespace ORX
