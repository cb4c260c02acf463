// The Linux code-page conversion on a system where iconv cannot open a converter (a minimal
// installation without its conversion modules): iconv_open is replaced in this program, and
// the library, which calls it through the dynamic linker, sees the replacement.
#include <dlfcn.h>
#include <iconv.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <memory>

#include "orx/foundation/string.h"

namespace {

bool g_iconvFails = false;

// Every code page the conversion of `text` must refuse, both ways.
bool refusesEveryCodePage(char const* text) {
    bool refused = true;
    for (int codePage : {0, 1, 437, 850, 932, 1252, 28605, 65001}) {
        char* out = nullptr;
        refused = refused && COrxString(L"abc 123").toMultiByte(out, codePage) == nullptr &&
                  out == nullptr && COrxString().fromMultiByte(text, codePage).isNull();
        delete[] out;
    }
    return refused;
}

}  // namespace

extern "C" iconv_t iconv_open(char const* to, char const* from) {
    if (g_iconvFails) {
        errno = EINVAL;
        return reinterpret_cast<iconv_t>(static_cast<std::intptr_t>(-1));
    }
    using Open = iconv_t (*)(char const*, char const*);
    static Open const real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "iconv_open"));
    return real(to, from);
}

// Runs in a fresh process (the code pages this process has converted already are known to
// the library and need iconv_open no more).
TEST(CodePagePosixTest, WithoutAConverterTheCodePageGivesNull) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            g_iconvFails = true;
            std::exit(refusesEveryCodePage("abc 123") ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
    // Once converters open again, so do the code pages.
    EXPECT_EQ(COrxString().fromMultiByte("abc", 1252), L"abc");
}
