// The process-wide settings location: base path, current version and application keys.
#include "orx/services/internal/registry_settings.h"
#include "orx/services/registry.h"

namespace ORX {
namespace {

struct SettingsLocation {
    COrxString basePath;
    COrxString version;
    COrxArrayTempl<COrxString> appKeys;
};

// Created on first use and destroyed when the library is unloaded.
SettingsLocation& location() {
    static SettingsLocation state;
    return state;
}

}  // namespace

wchar_t const* regBasePathSet(wchar_t const* path) {
    if (path != nullptr) {
        location().basePath = path;
    }
    // Never null, so that a caller may print it before any base path was set.
    return location().basePath.isNull() ? L"" : static_cast<wchar_t const*>(location().basePath);
}

void curVerSet(wchar_t const* version) {
    location().version = version;
}

bool regAppKey(COrxString& key, wchar_t const* app) {
    if (app == nullptr) {
        return false;
    }
    key = internal::applicationKeyPath(app);
    key += L'\\';
    key += location().version;
    return true;
}

void appKeyAdd(COrxString app) {
    location().appKeys.appendUniq(app.makeUpper());
}

void appKeys(COrxArrayTempl<COrxString>& keys) {
    keys = location().appKeys;
}

namespace internal {

bool hasCurrentVersion() {
    return location().version.len() > 0;
}

COrxString const& currentVersion() {
    return location().version;
}

COrxString applicationKeyPath(wchar_t const* app) {
    COrxString path = location().basePath;
    path += L'\\';
    path += app;
    return path;
}

}  // namespace internal
}  // namespace ORX
