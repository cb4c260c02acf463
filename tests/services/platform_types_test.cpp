// The library's headers first and <windows.h> after them (version_info_test.cpp checks the
// other order): both must compile together without redefinitions.
#include "orx/services/services.h"

#ifdef _WIN32
#include <windows.h>
#endif

#include <gtest/gtest.h>

#include <type_traits>

TEST(PlatformTypesTest, WindowsNamesHaveTheWindowsValues) {
    static_assert(sizeof(SYSTEMTIME) == 16, "eight 16-bit fields");
    static_assert(std::is_pointer_v<HKEY> && std::is_pointer_v<HINSTANCE>, "handles");
    SYSTEMTIME time{};
    time.wYear = 2017;
    time.wMilliseconds = 999;
    EXPECT_EQ(time.wYear + time.wMilliseconds, 3016);

    EXPECT_EQ(reinterpret_cast<std::intptr_t>(HKEY_CLASSES_ROOT),
              static_cast<std::intptr_t>(static_cast<std::int32_t>(0x80000000u)));
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(HKEY_CURRENT_USER),
              static_cast<std::intptr_t>(static_cast<std::int32_t>(0x80000001u)));
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(HKEY_LOCAL_MACHINE),
              static_cast<std::intptr_t>(static_cast<std::int32_t>(0x80000002u)));
    EXPECT_EQ(REG_SZ, 1u);
    EXPECT_EQ(REG_EXPAND_SZ, 2u);
    EXPECT_EQ(REG_BINARY, 3u);
    EXPECT_EQ(REG_DWORD, 4u);
    EXPECT_EQ(REG_MULTI_SZ, 7u);
    EXPECT_EQ(REG_QWORD, 11u);
}
