// Writes and reads settings for the multi-process registry tests, in the registry folder
// ORX_REGISTRY_DIR names. Exit status 0 when all went right, 1 after a torn or wrong read, 2
// after a failed write or read.
//   share <id> <ms>  until the time is up, round after round: writes its own number
//                    Own\<id>_<round> and the shared text and list, each filled with one token
//                    "<id>:<round>", then reads the shared values (any worker may have written
//                    them last) and its previous own value. Prints the number of rounds.
//   endless          writes K<n> = n for n = 0, 1, ..., printing n once the write has
//                    returned, until it is killed.
//   machine <number> reads Software\OrxWorker\Machine of the machine hive.
//   at-exit <number> writes a setting, then, while the program ends, writes AtExit = number
//                    from the destructor of a static object made before the first registry
//                    call (so destroyed after the registry's own statics).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "orx/services/registry.h"

namespace {

constexpr wchar_t const* kApp = L"Worker";
// Tokens in the shared text (about 1 KB) and in the shared list.
constexpr int kTextTokens = 100;
constexpr int kListTokens = 20;

COrxString repeated(COrxString const& token, int count) {
    COrxString text;
    for (int i = 0; i < count; ++i) {
        text += token;
    }
    return text;
}

// A whole write repeats one token throughout; a torn one would mix two.
bool isWhole(COrxString const& text) {
    int const end = text.find(L';');
    return end > 0 && text == repeated(text.left(static_cast<unsigned int>(end + 1)), kTextTokens);
}

bool isWhole(COrxArrayTempl<COrxString> const& list) {
    return list.len() == static_cast<unsigned long>(kListTokens) &&
           std::all_of(list.entry(), list.entry() + list.len(),
                       [&list](COrxString const& token) { return token == list[0]; });
}

// 0 when the round's writes and reads were right, else the exit status.
int shareRound(int id, int round) {
    COrxString own;
    own.format(L"Own\\%d_%d", id, round);
    COrxString token;
    token.format(L"%d:%d;", id, round);
    COrxArrayTempl<COrxString> list;
    for (int i = 0; i < kListTokens; ++i) {
        list.append(token);
    }
    if (!ORX::regWrite(kApp, own, static_cast<unsigned long>(round)) ||
        !ORX::regWrite(kApp, L"Shared", repeated(token, kTextTokens), false) ||
        !ORX::regWrite(kApp, L"SharedList", list)) {
        return 2;
    }
    COrxString text;
    COrxArrayTempl<COrxString> readList;
    if (!ORX::regRead(kApp, L"Shared", text) || !ORX::regRead(kApp, L"SharedList", readList)) {
        return 2;
    }
    if (!isWhole(text) || !isWhole(readList)) {
        return 1;
    }
    unsigned long previous = 0;
    own.format(L"Own\\%d_%d", id, round - 1);
    if (round > 0 &&
        (!ORX::regRead(kApp, own, previous) || previous != static_cast<unsigned long>(round - 1))) {
        return 1;
    }
    return 0;
}

int share(int id, int milliseconds) {
    auto const end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    int round = 0;
    for (; std::chrono::steady_clock::now() < end; ++round) {
        int const status = shareRound(id, round);
        if (status != 0) {
            std::fprintf(stderr, "worker %d: round %d failed (%d)\n", id, round, status);
            return status;
        }
    }
    std::printf("%d\n", round);
    return 0;
}

int machine(unsigned long expected) {
    HKEY const key = ORX::regOpenKey(HKEY_LOCAL_MACHINE, L"Software\\OrxWorker", false);
    unsigned long number = 0;
    bool const read = key != nullptr && ORX::regRead(key, L"Machine", number);
    ORX::regCloseKey(key);
    return !read ? 2 : number == expected ? 0 : 1;
}

// Writes Software\OrxWorker\AtExit when destroyed.
class WriterAtExit {
public:
    void arm(unsigned long number) { m_number = number; }
    ~WriterAtExit() {
        HKEY const key = ORX::regCreateKey(HKEY_CURRENT_USER, L"Software\\OrxWorker");
        if (key == nullptr || !ORX::regWrite(key, L"AtExit", m_number)) {
            std::fprintf(stderr, "worker: the write at exit failed\n");
            std::_Exit(2);
        }
        ORX::regCloseKey(key);
    }

private:
    unsigned long m_number = 0;
};

int atExit(unsigned long number) {
    static WriterAtExit writer;
    writer.arm(number);
    return ORX::regWrite(kApp, L"Before", number) ? 0 : 2;
}

int endless() {
    COrxString name;
    for (unsigned long n = 0;; ++n) {
        name.format(L"K%lu", n);
        if (!ORX::regWrite(kApp, name, n)) {
            return 2;
        }
        std::printf("%lu\n", n);
        std::fflush(stdout);
    }
}

}  // namespace

int main(int argc, char** argv) {
    ORX::regBasePathSet(L"Software\\OrxWorker");
    ORX::curVerSet(L"1");
    if (argc == 4 && std::strcmp(argv[1], "share") == 0) {
        return share(std::atoi(argv[2]), std::atoi(argv[3]));
    }
    if (argc == 2 && std::strcmp(argv[1], "endless") == 0) {
        return endless();
    }
    if (argc == 3 && std::strcmp(argv[1], "machine") == 0) {
        return machine(std::strtoul(argv[2], nullptr, 10));
    }
    if (argc == 3 && std::strcmp(argv[1], "at-exit") == 0) {
        return atExit(std::strtoul(argv[2], nullptr, 10));
    }
    std::fprintf(stderr,
                 "usage: %s share <id> <milliseconds> | endless | machine <number> | "
                 "at-exit <number>\n",
                 argv[0]);
    return 64;
}
