// Shared by the registry and server tests: a key that closes itself, unique names, a read
// that checks a failed read left its output alone, and a fixture that gives each test its own
// base path (natively also its own registry folder) and removes what the test wrote.
#ifndef ORX_TESTS_SERVICES_REGISTRY_TEST_SUPPORT_H
#define ORX_TESTS_SERVICES_REGISTRY_TEST_SUPPORT_H

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <utility>

#include "orx/services/registry.h"
#include "test_support.h"

namespace orx_test {

// A name no other test or test run uses: letters and digits after the stem.
inline COrxString uniqueName(wchar_t const* stem) {
    static std::atomic<int> counter{0};
    auto const now = std::chrono::steady_clock::now().time_since_epoch().count();
    COrxString name;
    name.format(L"%s%llx%d", stem, static_cast<unsigned long long>(now), ++counter);
    return name;
}

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
    HKEY release() { return std::exchange(m_key, nullptr); }

private:
    HKEY m_key;
};

// What regRead gives for `name` of an application or a key; nothing when it answers false,
// and then its output must still hold `before`.
template <typename T, typename Where>
std::optional<T> readValue(Where const& where, wchar_t const* name, T const& before = T()) {
    T value = before;
    if (ORX::regRead(where, name, value)) {
        return value;
    }
    EXPECT_EQ(value, before) << "a failed read changed its output";
    return std::nullopt;
}

#ifndef _WIN32
// ORX_REGISTRY_DIR names a new folder until the scope ends.
class RegistryFolder {
public:
    fs::path const& folder() const { return m_scratch.path(); }

private:
    ScratchDirectory m_scratch;
    ScopedEnv m_variable{"ORX_REGISTRY_DIR", m_scratch.narrow()};
};
#endif

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

    static std::optional<COrxString> textAt(HKEY root, wchar_t const* keyPath,
                                            wchar_t const* name) {
        return readValue<COrxString>(Key(ORX::regOpenKey(root, keyPath, false)), name);
    }
    COrxString const& base() const { return m_base; }
    COrxString path(wchar_t const* sub) const { return m_base + L"\\" + sub; }

#ifndef _WIN32
    RegistryFolder m_folder;  // natively, left empty by a test that may write nothing
#endif
    COrxString m_base;
};

}  // namespace orx_test

#endif  // ORX_TESTS_SERVICES_REGISTRY_TEST_SUPPORT_H
