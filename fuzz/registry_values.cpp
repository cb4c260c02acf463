// Fuzz target: the registry's values of an open key against a std::map as a model. A
// decoded sequence writes, reads and deletes text, multi-string and number values under
// names that differ in case; every read gives what the model holds (text as written, a
// list up to its first empty string, a number's low 32 bits), and a read of another type
// or of a missing value fails and leaves its output alone.
//
// The key is HKEY_CURRENT_USER\Software\OrxFuzz\Values, emptied before every input. Natively
// the hive is a private database in a new folder (on /dev/shm when there is one, where a
// synchronous write costs little), removed at exit.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "orx/services/registry.h"
#include "support/checks.h"
#include "support/fuzz_input.h"
#include "support/wide_text.h"

#ifdef _WIN32
#include <windows.h>  // the predefined keys
#else
#include <filesystem>
#endif

namespace {

wchar_t const kKeyPath[] = L"Software\\OrxFuzz\\Values";
wchar_t const kFuzzKeys[] = L"Software\\OrxFuzz";
constexpr int kMaxSteps = 24;

#ifndef _WIN32
// Points ORX_REGISTRY_DIR at a new folder for the life of the process.
class PrivateHive {
public:
    PrivateHive() {
        namespace fs = std::filesystem;
        fs::path const base =
            fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
        std::string pattern = (base / "orx-fuzz-registry-XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr) {
            m_folder = pattern;
            setenv("ORX_REGISTRY_DIR", m_folder.c_str(), 1);
        }
    }
    ~PrivateHive() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

private:
    std::string m_folder;
};
#endif

// Removes the fuzz keys when the program ends.
struct KeyCleanup {
    ~KeyCleanup() { ORX::regDeleteTree(HKEY_CURRENT_USER, kFuzzKeys); }
};

struct Number {
    std::uint32_t value;
};
using List = std::vector<std::wstring>;
// A value the model cannot foretell: text that is not well-formed, which a store of
// another encoding may change.
struct Unknown {};
using Value = std::variant<std::wstring, List, Number, Unknown>;

// Value names compare case-insensitively; the decoded names are ASCII.
std::wstring folded(std::wstring name) {
    for (wchar_t& c : name) {
        if (c >= L'a' && c <= L'z') {
            c = static_cast<wchar_t>(c - L'a' + L'A');
        }
    }
    return name;
}

COrxArrayTempl<COrxString> toArray(List const& list) {
    COrxArrayTempl<COrxString> out;
    for (std::wstring const& s : list) {
        out.append(COrxString(s.c_str()));
    }
    return out;
}

// What a multi-string read gives: the strings before the first empty one.
List readable(List const& list) {
    List out;
    for (std::wstring const& s : list) {
        if (s.empty()) {
            break;
        }
        out.push_back(s);
    }
    return out;
}

class Session {
public:
    explicit Session(HKEY key) : m_key(key) {}

    void step(FuzzInput& in) {
        std::wstring const name = decodeAsciiName(in, 4);
        wchar_t const* const n = name.empty() && in.flag() ? nullptr : name.c_str();
        switch (in.below(6)) {
            case 0:
                writeText(in, name, n);
                break;
            case 1:
                writeList(in, name, n);
                break;
            case 2: {
                std::uint32_t const number = in.u32();
                unsigned long const written = number | (in.flag() ? ~0ul << 16 << 16 : 0ul);
                fuzzCheck(ORX::regWrite(m_key, n, written), "a number is written");
                m_model[folded(name)] = Number{number};
                break;
            }
            case 3:
                readText(name, n);
                break;
            case 4:
                readList(name, n);
                break;
            default:
                readNumber(name, n);
                break;
        }
    }

private:
    void writeText(FuzzInput& in, std::wstring const& name, wchar_t const* n) {
        if (in.below(8) == 0) {
            ORX::regWrite(m_key, n, nullptr, false);  // deletes the value
            m_model.erase(folded(name));
            return;
        }
        bool const wellFormed = in.below(8) != 0;
        std::wstring const text = decodeWideText(in, 40, wellFormed);
        fuzzCheck(ORX::regWrite(m_key, n, text.c_str(), false) || !wellFormed,
                  "well-formed text is written");
        m_model[folded(name)] = wellFormed ? Value(text) : Value(Unknown{});
    }

    void writeList(FuzzInput& in, std::wstring const& name, wchar_t const* n) {
        List list(in.below(4));
        for (std::wstring& s : list) {
            s = in.below(4) == 0 ? std::wstring() : decodeWideText(in, 12, true);
        }
        bool const written = ORX::regWrite(m_key, n, toArray(list));
        if (list.empty()) {
            m_model.erase(folded(name));  // an empty list deletes the value
            return;
        }
        fuzzCheck(written, "a list is written");
        m_model[folded(name)] = list;
    }

    Value const* modelled(std::wstring const& name) const {
        auto const at = m_model.find(folded(name));
        return at == m_model.end() ? nullptr : &at->second;
    }

    void readText(std::wstring const& name, wchar_t const* n) {
        COrxString text(L"untouched");
        bool const read = ORX::regRead(m_key, n, text);
        Value const* value = modelled(name);
        if (value != nullptr && std::holds_alternative<Unknown>(*value)) {
            return;
        }
        auto const* expected = value != nullptr ? std::get_if<std::wstring>(value) : nullptr;
        fuzzCheck(read == (expected != nullptr), "a text read finds the text values");
        std::wstring const got = text.isNull() ? L"" : static_cast<wchar_t const*>(text);
        if (read && got != *expected) {
            std::fprintf(stderr, "wrote %s\nread  %s\n", printable(*expected).c_str(),
                         printable(got).c_str());
        }
        fuzzCheck(got == (read ? *expected : L"untouched"), "a text reads back as written");
    }

    void readList(std::wstring const& name, wchar_t const* n) {
        COrxArrayTempl<COrxString> list;
        list.append(COrxString(L"untouched"));
        bool const read = ORX::regRead(m_key, n, list);
        Value const* value = modelled(name);
        auto const* expected = value != nullptr ? std::get_if<List>(value) : nullptr;
        fuzzCheck(read == (expected != nullptr), "a list read finds the list values");
        List const want = read ? readable(*expected) : List{L"untouched"};
        fuzzCheck(list.len() == want.size(), "a list reads back up to its first empty string");
        for (std::size_t i = 0; i < want.size(); ++i) {
            fuzzCheck(list[static_cast<int>(i)] == want[i].c_str(), "a list reads back as written");
        }
    }

    void readNumber(std::wstring const& name, wchar_t const* n) {
        unsigned long number = 12345;
        bool const read = ORX::regRead(m_key, n, number);
        Value const* value = modelled(name);
        if (value == nullptr) {
            fuzzCheck(!read && number == 12345, "a missing number is not read");
            return;
        }
        // Text and lists read leniently as their leading bytes (callers rely on it).
        auto const* expected = std::get_if<Number>(value);
        if (expected != nullptr) {
            fuzzCheck(read && number == expected->value, "a number reads back as written");
        }
    }

    HKEY m_key;
    std::map<std::wstring, Value> m_model;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
#ifndef _WIN32
    static PrivateHive const hive;
#endif
    static KeyCleanup const cleanup;
    ORX::regDeleteTree(HKEY_CURRENT_USER, kKeyPath);
    HKEY const key = ORX::regCreateKey(HKEY_CURRENT_USER, kKeyPath);
    fuzzCheck(key != nullptr, "the fuzz key can be created");
    FuzzInput in(data, size);
    Session session(key);
    int const steps = in.between(1, kMaxSteps);
    for (int s = 0; s < steps && !in.atEnd(); ++s) {
        session.step(in);
    }
    ORX::regCloseKey(key);
    return 0;
}
