// Shared by the registry and server tests: a key that closes itself, environment access in
// wide text, and a fixture that gives each test its own base path (and, natively, its own
// registry folder) and removes what the test wrote.
#ifndef ORX_TESTS_SERVICES_REGISTRY_TEST_SUPPORT_H
#define ORX_TESTS_SERVICES_REGISTRY_TEST_SUPPORT_H

#ifdef _WIN32
#include <windows.h>
#else
#include <stdlib.h>
#endif

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>

#include "orx/services/registry.h"

namespace orxtest {

#ifdef _WIN32
// The environment variable of the user's own folder, and the folder separator.
constexpr wchar_t const* kProfileVariable = L"USERPROFILE";
constexpr wchar_t const* kSeparator = L"\\";
#else
constexpr wchar_t const* kProfileVariable = L"HOME";
constexpr wchar_t const* kSeparator = L"/";
#endif

#ifndef _WIN32
inline std::string narrow(wchar_t const* text) {
    char* bytes = nullptr;
    COrxString(text).toMultiByte(bytes, 65001);
    std::string result = bytes == nullptr ? std::string() : std::string(bytes);
    delete[] bytes;
    return result;
}
#endif

// The null string when the variable is unset.
inline COrxString getEnv(wchar_t const* name) {
#ifdef _WIN32
    wchar_t value[32767];
    DWORD const length = GetEnvironmentVariableW(name, value, 32767);
    return length == 0 && GetLastError() == ERROR_ENVVAR_NOT_FOUND ? COrxString()
                                                                   : COrxString(value);
#else
    char const* const value = ::getenv(narrow(name).c_str());
    return value == nullptr ? COrxString() : COrxString().fromMultiByte(value, 65001);
#endif
}

// A null value unsets the variable.
inline void setEnv(wchar_t const* name, wchar_t const* value) {
#ifdef _WIN32
    SetEnvironmentVariableW(name, value);
#else
    if (value == nullptr) {
        ::unsetenv(narrow(name).c_str());
    } else {
        ::setenv(narrow(name).c_str(), narrow(value).c_str(), 1);
    }
#endif
}

// A name no other test or test run uses: letters and digits after the stem.
inline COrxString uniqueName(wchar_t const* stem) {
    static std::atomic<int> counter{0};
    auto const now = std::chrono::steady_clock::now().time_since_epoch().count();
    COrxString name;
    name.format(L"%s%llx%d", stem, static_cast<unsigned long long>(now), ++counter);
    return name;
}

// Closes its key when it goes out of scope.
class Key {
public:
    explicit Key(HKEY key) : m_key(key) {}
    ~Key() {
        if (m_key != nullptr) {
            ORX::regCloseKey(m_key);
        }
    }
    Key(Key const&) = delete;
    Key& operator=(Key const&) = delete;

    operator HKEY() const { return m_key; }
    HKEY get() const { return m_key; }
    HKEY release() {
        HKEY const key = m_key;
        m_key = nullptr;
        return key;
    }

private:
    HKEY m_key;
};

// Natively, ORX_REGISTRY_DIR points to a new folder for each test.
class RegistryFolder {
public:
    RegistryFolder() {
#ifndef _WIN32
        std::string pattern = (std::filesystem::temp_directory_path() / "orx-registry-XXXXXX");
        if (::mkdtemp(pattern.data()) != nullptr) {
            m_folder = pattern;
            ::setenv("ORX_REGISTRY_DIR", m_folder.c_str(), 1);
        }
#endif
    }
    ~RegistryFolder() {
#ifndef _WIN32
        ::unsetenv("ORX_REGISTRY_DIR");
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
#endif
    }
    RegistryFolder(RegistryFolder const&) = delete;
    RegistryFolder& operator=(RegistryFolder const&) = delete;

    std::filesystem::path const& folder() const {
        return m_folder;
    }

private:
    std::filesystem::path m_folder;
};

class RegistryTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_base = uniqueName(L"Software\\OrxTests\\Run");
        ORX::regBasePathSet(m_base);
        ORX::curVerSet(L"2017.0");
    }

    void TearDown() override {
        ORX::regDeleteTree(HKEY_CURRENT_USER, m_base);
        ORX::regDeleteTree(HKEY_LOCAL_MACHINE, m_base);
        ORX::curVerSet(nullptr);
        ORX::regBasePathSet(L"");
    }

    // The text value `name` of root\keyPath; the null string when it cannot be read.
    static COrxString textAt(HKEY root, wchar_t const* keyPath, wchar_t const* name) {
        Key const key(ORX::regOpenKey(root, keyPath, false));
        COrxString text;
        return key.get() != nullptr && ORX::regRead(key, name, text) ? text : COrxString();
    }

    COrxString const& base() const { return m_base; }
    COrxString path(wchar_t const* sub) const { return m_base + L"\\" + sub; }

    // Natively: no hive was created in the test's registry folder.
    bool storageUntouched() const {
        return m_folder.folder().empty() || std::filesystem::is_empty(m_folder.folder());
    }

private:
    RegistryFolder m_folder;
    COrxString m_base;
};

}  // namespace orxtest

#endif  // ORX_TESTS_SERVICES_REGISTRY_TEST_SUPPORT_H
