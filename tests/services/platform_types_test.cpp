// The library's headers first and <windows.h> after them (version_info_test.cpp checks the
// other order): both must compile together without redefinitions.
#include "orx/services/services.h"

#ifdef _WIN32
#include <windows.h>
#endif

#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

// The native build's stand-ins carry the values Windows gives these names.
TEST(PlatformTypesTest, WindowsNamesHaveTheWindowsValues) {
    static_assert(sizeof(SYSTEMTIME) == 16, "eight 16-bit fields");
    static_assert(std::is_pointer_v<HKEY> && std::is_pointer_v<HINSTANCE>, "handles");
    static_assert(REG_SZ == 1 && REG_EXPAND_SZ == 2 && REG_BINARY == 3 && REG_DWORD == 4 &&
                      REG_MULTI_SZ == 7 && REG_QWORD == 11,
                  "value types");
    auto const root = [](std::uint32_t value) {  // sign-extended, as Windows defines them
        return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(value)));
    };
    EXPECT_EQ(HKEY_CLASSES_ROOT, root(0x80000000u));
    EXPECT_EQ(HKEY_CURRENT_USER, root(0x80000001u));
    EXPECT_EQ(HKEY_LOCAL_MACHINE, root(0x80000002u));
}
