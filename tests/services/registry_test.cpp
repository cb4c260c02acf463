// The registry settings, written once for both builds: under Wine they run against the real
// registry, natively against the SQLite hives. Each test works below its own base path and,
// natively, in its own registry folder.
#ifdef _WIN32
#include <windows.h>
#endif

#include "orx/services/registry.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "registry_test_support.h"
#include "tests/support/lists.h"

namespace {

using orx_test::Key;
using orx_test::list;
using orx_test::readValue;
using orx_test::RegistryTest;
using orx_test::uniqueName;
using List = COrxArrayTempl<COrxString>;

}  // namespace

TEST(RegistryLocationTest, BasePathVersionAndApplicationKeys) {
    ORX::regBasePathSet(L"Software\\Base");
    EXPECT_STREQ(ORX::regBasePathSet(nullptr), L"Software\\Base");  // null only asks
    ORX::curVerSet(L"3.1");
    COrxString key(L"untouched");
    EXPECT_FALSE(ORX::regAppKey(key, nullptr));
    EXPECT_EQ(key, L"untouched");
    EXPECT_TRUE(ORX::regAppKey(key, L"Draw"));
    EXPECT_EQ(key, L"Software\\Base\\Draw\\3.1");

    for (wchar_t const* app : {L"LOCATIONTEST", L"locationTest", L"LocationTest2"}) {
        ORX::appKeyAdd(app);
    }
    List keys;
    ORX::appKeys(keys);
    int const first = keys.indexOf(L"LOCATIONTEST");
    ASSERT_GE(first, 0);
    EXPECT_EQ(keys.indexOf(L"LOCATIONTEST2"), first + 1);  // one entry, upper case, in order
    ORX::curVerSet(nullptr);
}

TEST_F(RegistryTest, WithoutVersionNothingIsReadOrWritten) {
    ORX::curVerSet(L"");
    EXPECT_FALSE(ORX::regInit(L"App"));
    EXPECT_FALSE(ORX::regWrite(L"App", L"n", 1ul));
    EXPECT_FALSE(ORX::regWrite(L"App", L"t", L"x", false));
    EXPECT_FALSE(ORX::regWrite(L"App", L"l", list({L"kept"})));
    EXPECT_FALSE(readValue(L"App", L"n", 7ul));
    EXPECT_FALSE(readValue(L"App", L"t", COrxString(L"kept")));
    EXPECT_FALSE(readValue(L"App", L"l", list({L"kept"})));
    EXPECT_FALSE(ORX::regDelValue(L"App", L"n"));
    EXPECT_EQ(Key(ORX::regOpenKey(HKEY_CURRENT_USER, base(), false)).get(), nullptr);
#ifndef _WIN32
    EXPECT_TRUE(orx_test::fs::is_empty(m_folder.folder()));  // no hive created
#endif
}

TEST_F(RegistryTest, InitRecordsTheCurrentVersionAndRegistersTheApplication) {
    EXPECT_FALSE(ORX::regInit(nullptr));
    EXPECT_FALSE(ORX::regInit(L""));
    ASSERT_TRUE(ORX::regInit(L"InitApp"));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"InitApp"), L"CurVer"), L"2017.0");
    EXPECT_NE(Key(ORX::regOpenKey(HKEY_CURRENT_USER, path(L"InitApp\\2017.0"), false)).get(),
              nullptr);
    List keys;
    ORX::appKeys(keys);
    EXPECT_TRUE(keys.contains(L"INITAPP"));

    ORX::curVerSet(L"2018.1");
    ASSERT_TRUE(ORX::regInit(L"InitApp"));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"InitApp"), L"CurVer"), L"2018.1");
}

TEST_F(RegistryTest, SettingsRoundTripAndReadsCheckTheType) {
    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", L"Gr\u00fc\u00dfe \u20ac", false));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Number", 4000000000ul));
    ASSERT_TRUE(ORX::regWrite(L"App", L"List", list({L"one", L"two", L"\u00e4"})));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Empty", L"", false));
    EXPECT_EQ(readValue<COrxString>(L"App", L"text"), L"Gr\u00fc\u00dfe \u20ac");  // any case
    EXPECT_EQ(readValue<unsigned long>(L"App", L"Number"), 4000000000ul);
    EXPECT_EQ(readValue(L"App", L"List", list({L"stale"})), list({L"one", L"two", L"\u00e4"}));
    EXPECT_EQ(readValue(L"App", L"Empty", COrxString(L"stale")), L"");

    // A value of another type is no value, and the outputs stay as they were.
    EXPECT_FALSE(readValue(L"App", L"Text", 5ul));
    EXPECT_FALSE(readValue(L"App", L"Text", list({L"kept"})));
    EXPECT_FALSE(readValue(L"App", L"Number", COrxString(L"kept")));
    EXPECT_FALSE(readValue(L"App", L"Missing", COrxString(L"kept")));

    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", 12ul));  // written again with another type
    EXPECT_EQ(readValue<unsigned long>(L"App", L"Text"), 12ul);
}

TEST_F(RegistryTest, ReadsFallBackToTheMachineHiveAndWritesStayWithTheUser) {
    {
        Key machine(ORX::regCreateKey(HKEY_LOCAL_MACHINE, path(L"App\\2017.0\\Sub")));
        ASSERT_NE(machine.get(), nullptr);
        ORX::regWrite(machine, L"Shared", L"machine", false);
        ORX::regWrite(machine, L"Number", 1ul);
        ORX::regWrite(machine, L"List", list({L"machine"}));
    }
    EXPECT_EQ(readValue<COrxString>(L"App", L"Sub\\Shared"), L"machine");
    EXPECT_EQ(readValue<List>(L"App", L"Sub\\List"), list({L"machine"}));

    ASSERT_TRUE(ORX::regWrite(L"App", L"Sub\\Shared", L"user", false));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Sub\\Number", L"not a number", false));
    EXPECT_EQ(readValue<COrxString>(L"App", L"Sub\\Shared"), L"user");
    EXPECT_EQ(readValue<unsigned long>(L"App", L"Sub\\Number"), 1ul);  // the user's is a text
    EXPECT_EQ(textAt(HKEY_LOCAL_MACHINE, path(L"App\\2017.0\\Sub"), L"Shared"), L"machine");
}

TEST_F(RegistryTest, ValuePathNamesSubKeysOfTheSettingsKey) {
    ASSERT_TRUE(ORX::regWrite(L"App", L"a\\b\\name", L"deep", false));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"App\\2017.0\\a\\b"), L"name"), L"deep");
    EXPECT_FALSE(textAt(HKEY_CURRENT_USER, path(L"App\\2017.0"), L"a\\b\\name"));
    EXPECT_TRUE(readValue<COrxString>(L"App", L"A\\B\\NAME"));

    // A trailing "\" names the sub-key's default value.
    ASSERT_TRUE(ORX::regWrite(L"App", L"a\\", L"default", false));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"App\\2017.0\\a"), nullptr), L"default");
}

TEST_F(RegistryTest, NullTextEmptyListAndDelValueDeleteTheValue) {
    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", L"x", false));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", nullptr, false));
    EXPECT_FALSE(readValue<COrxString>(L"App", L"Text"));
    EXPECT_FALSE(ORX::regWrite(L"App", L"Text", nullptr, false));  // nothing left to delete

    ASSERT_TRUE(ORX::regWrite(L"App", L"List", list({L"x"})));
    ASSERT_TRUE(ORX::regWrite(L"App", L"List", List()));
    EXPECT_FALSE(readValue<List>(L"App", L"List"));

    ASSERT_TRUE(ORX::regWrite(L"App", L"Sub\\Number", 3ul));
    EXPECT_FALSE(ORX::regDelValue(L"App", L"Sub\\Number"));  // false although it deleted
    EXPECT_FALSE(readValue<unsigned long>(L"App", L"Sub\\Number"));
}

TEST_F(RegistryTest, ExpandableTextFollowsTheProfileFolder) {
#ifdef _WIN32
    char const* const profile = "USERPROFILE";
#else
    char const* const profile = "HOME";
#endif
    ASSERT_NE(std::getenv(profile), nullptr);
    std::wstring const sep(1, orx_test::kSeparator);
    COrxString const inside = (sep + L"orx-test" + sep + L"file.txt").c_str();
    COrxString const file = orx_test::fs::path(std::getenv(profile)).wstring().c_str() + inside;
    ASSERT_TRUE(ORX::regWrite(L"App", L"Expand", file + L";elsewhere", true));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Plain", file, false));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Reference", L"%ORX_NO_SUCH_VARIABLE%", false));
    EXPECT_EQ(readValue<COrxString>(L"App", L"Expand"), file + L";elsewhere");
    {
        COrxString const folder = (sep + L"moved").c_str();
        orx_test::ScopedEnv moved(profile, orx_test::fs::path(std::wstring(folder)).string());
        EXPECT_EQ(readValue<COrxString>(L"App", L"Expand"), folder + inside + L";elsewhere");
        EXPECT_EQ(readValue<COrxString>(L"App", L"Plain"), file);
    }
    EXPECT_EQ(readValue<COrxString>(L"App", L"Reference"), L"%ORX_NO_SUCH_VARIABLE%");
}

// The number read of an open key takes a value of any type, deliberately.
TEST_F(RegistryTest, OpenKeyNumberReadAcceptsAnyTypeUpTo64Characters) {
    Key key(ORX::regCreateKey(HKEY_CURRENT_USER, base()));
    ASSERT_TRUE(ORX::regWrite(key, L"Dword", 0xCAFEul));
    ASSERT_TRUE(ORX::regWrite(key, L"Short", COrxString().rfill(63, L'7'), false));
    ASSERT_TRUE(ORX::regWrite(key, L"Long", COrxString().rfill(64, L'7'), false));
    EXPECT_EQ(readValue<unsigned long>(key, L"Dword"), 0xCAFEul);
    EXPECT_TRUE(readValue<unsigned long>(key, L"Short"));
    EXPECT_FALSE(readValue(key, L"Long", 5ul));
    EXPECT_FALSE(readValue(key, L"Missing", 5ul));
}

TEST_F(RegistryTest, ListsEndAtTheirFirstEmptyString) {
    Key key(ORX::regCreateKey(HKEY_CURRENT_USER, base()));
    ASSERT_TRUE(ORX::regWrite(key, L"List", list({L"a", L"", L"b"})));
    EXPECT_EQ(readValue(key, L"List", list({L"stale", L"stale"})), list({L"a"}));
    ASSERT_TRUE(ORX::regWrite(key, L"List", list({L""})));
    EXPECT_EQ(readValue(key, L"List", list({L"stale"})), List());
}

TEST_F(RegistryTest, CopyTreeOverwritesAtTheTopLevelOnly) {
    Key src(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Src")));
    Key srcSub(ORX::regCreateKey(src, L"Sub"));
    ORX::regWrite(src, L"Top", L"src", false);
    ORX::regWrite(src, L"New", 1ul);
    ORX::regWrite(srcSub, L"Inner", L"src", false);
    ORX::regWrite(Key(ORX::regCreateKey(srcSub, L"Deeper")), L"Leaf", list({L"src"}));

    for (bool const overwrite : {true, false}) {
        SCOPED_TRACE(overwrite ? "overwrite" : "keep");
        ORX::regDeleteTree(HKEY_CURRENT_USER, path(L"Dst"));
        Key dst(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Dst")));
        ORX::regWrite(dst, L"Top", L"dst", false);
        ORX::regWrite(Key(ORX::regCreateKey(dst, L"Sub")), L"Inner", L"dst", false);

        EXPECT_TRUE(ORX::regCopyTree(dst, src, overwrite));
        EXPECT_EQ(readValue<COrxString>(dst, L"Top"), overwrite ? L"src" : L"dst");
        EXPECT_EQ(readValue<unsigned long>(dst, L"New"), 1ul);
        EXPECT_EQ(textAt(dst, L"Sub", L"Inner"), L"dst");  // only the top level is overwritten
        EXPECT_EQ(readValue<List>(Key(ORX::regOpenKey(dst, L"Sub\\Deeper", false)), L"Leaf"),
                  list({L"src"}));
    }
}

// A deliberate limit: the copy ends quietly at the first value its buffer cannot hold.
TEST_F(RegistryTest, CopyTreeStopsAtAValueLargerThanItsBuffer) {
    Key src(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Src")));
    ORX::regWrite(src, L"A big", COrxString().rfill(600, L'x'), false);
    ORX::regWrite(src, L"B small", 2ul);
    ORX::regWrite(Key(ORX::regCreateKey(src, L"Sub")), L"C", 3ul);
    Key dst(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Dst")));
    EXPECT_TRUE(ORX::regCopyTree(dst, src, true));
    EXPECT_FALSE(readValue<unsigned long>(dst, L"B small"));
    EXPECT_EQ(readValue<unsigned long>(Key(ORX::regOpenKey(dst, L"Sub", false)), L"C"), 3ul);
}

TEST_F(RegistryTest, KeyNamesIgnoreCaseAndBadHandlesAreRefused) {
    Key created(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Mixed\\\u00c4rger")));
    ASSERT_TRUE(ORX::regWrite(created, L"Wert", 1ul));
    EXPECT_TRUE(readValue<unsigned long>(
        Key(ORX::regOpenKey(HKEY_CURRENT_USER, path(L"MIXED\\\u00e4RGER\\"), false)), L"WERT"));
    EXPECT_NE(Key(ORX::regOpenKey(created, L"", false)).get(), nullptr);
    EXPECT_NE(Key(ORX::regOpenKey(HKEY_CURRENT_USER, path(L"Mixed\\\\\u00c4rger"), false)).get(),
              nullptr);
    EXPECT_EQ(Key(ORX::regOpenKey(HKEY_CURRENT_USER, L"\\" + base(), false)).get(), nullptr);
    EXPECT_EQ(Key(ORX::regCreateKey(created, COrxString().rfill(300, L'k'))).get(), nullptr);
    EXPECT_FALSE(ORX::regDeleteTree(HKEY_CURRENT_USER, L""));

    Key readOnly(ORX::regOpenKey(created, nullptr, false));
    EXPECT_FALSE(ORX::regWrite(readOnly, L"Wert", 2ul));
    EXPECT_FALSE(ORX::regWrite(readOnly, L"Wert", nullptr, false));

    ASSERT_TRUE(ORX::regDeleteTree(HKEY_CURRENT_USER, path(L"Mixed")));
    EXPECT_FALSE(readValue<unsigned long>(created, L"Wert"));  // the key is gone
    EXPECT_FALSE(ORX::regWrite(created, L"Wert", 2ul));
    HKEY const closed = created.release();
    EXPECT_TRUE(ORX::regCloseKey(closed));
    EXPECT_FALSE(ORX::regCloseKey(closed));
}
