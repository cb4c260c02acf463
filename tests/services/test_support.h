// Helpers of the services tests: environment variables and the time zone set for a scope,
// scratch directories with real files, paths in either platform's separators, and the
// programs built beside the tests.
#ifndef ORX_TESTS_SERVICES_TEST_SUPPORT_H
#define ORX_TESTS_SERVICES_TEST_SUPPORT_H

#ifdef _WIN32
#include <windows.h>
#endif
#include <stdlib.h>
#include <time.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace orx_test {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr wchar_t kSeparator = L'\\';
constexpr wchar_t kForeignSeparator = L'/';
#else
constexpr wchar_t kSeparator = L'/';
constexpr wchar_t kForeignSeparator = L'\\';
#endif

// Every separator of the path in the other platform's form.
inline std::wstring foreign(std::wstring path) {
    std::replace(path.begin(), path.end(), kSeparator, kForeignSeparator);
    return path;
}

// A program of the build, in the folder of the running test.
inline fs::path programBeside(std::string const& name) {
#ifdef _WIN32
    wchar_t self[MAX_PATH];
    std::wstring const path(self, GetModuleFileNameW(nullptr, self, MAX_PATH));
    return fs::path(path).parent_path() / (name + ".exe");
#else
    return fs::read_symlink("/proc/self/exe").parent_path() / name;
#endif
}

// Sets (or without a value removes) an environment variable until the scope ends. With TZ
// the C library's time zone follows; "ABC-2", two hours east of GMT without summer time,
// reads alike on Linux and in the Windows C runtime.
class ScopedEnv {
public:
    ScopedEnv(char const* name, std::optional<std::string> const& value) : m_name(name) {
        if (char const* old = getenv(name)) {
            m_old = std::string(old);
        }
        set(value);
    }
    ~ScopedEnv() { set(m_old); }

private:
    void set(std::optional<std::string> const& value) {
#ifdef _WIN32
        _putenv((m_name + "=" + value.value_or("")).c_str());  // "NAME=" removes it
        _tzset();
#else
        value ? setenv(m_name.c_str(), value->c_str(), 1) : unsetenv(m_name.c_str());
        tzset();
#endif
    }

    std::string m_name;
    std::optional<std::string> m_old;
};

// A new empty directory in the system's temporary folder, removed with all it holds.
class ScratchDirectory {
public:
    ScratchDirectory() {
        auto const stamp = std::chrono::steady_clock::now().time_since_epoch().count();
        m_path = fs::temp_directory_path() / ("orx_test_" + std::to_string(stamp));
        fs::create_directories(m_path);
    }
    ~ScratchDirectory() {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    fs::path const& path() const { return m_path; }
    std::wstring text() const { return m_path.wstring(); }
    std::string narrow() const { return m_path.string(); }
    // A name inside, joined with the platform's separator.
    std::wstring operator/(std::wstring const& name) const { return text() + kSeparator + name; }
    void createFile(std::wstring const& name, std::string const& contents = "x") const {
        std::ofstream(m_path / name, std::ios::binary) << contents;
    }
    void createDirectory(std::wstring const& name) const { fs::create_directories(m_path / name); }

private:
    fs::path m_path;
};

}  // namespace orx_test

#endif  // ORX_TESTS_SERVICES_TEST_SUPPORT_H
