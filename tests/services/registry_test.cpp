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

namespace {

using orx_test::Key;
using orx_test::RegistryTest;
using orx_test::uniqueName;

COrxArrayTempl<COrxString> listOf(std::initializer_list<wchar_t const*> texts) {
    COrxArrayTempl<COrxString> list;
    for (wchar_t const* text : texts) {
        list.append(COrxString(text));
    }
    return list;
}

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

    ORX::appKeyAdd(L"LOCATIONTEST");
    ORX::appKeyAdd(L"locationTest");
    ORX::appKeyAdd(L"LocationTest2");
    COrxArrayTempl<COrxString> keys;
    ORX::appKeys(keys);
    int const first = keys.indexOf(L"LOCATIONTEST");
    ASSERT_GE(first, 0);
    EXPECT_EQ(keys.indexOf(L"LOCATIONTEST2"), first + 1);  // one entry, upper case, in order
    ORX::curVerSet(nullptr);
}

TEST_F(RegistryTest, WithoutVersionNothingIsReadOrWritten) {
    ORX::curVerSet(L"");
    unsigned long number = 7;
    COrxString text(L"kept");
    COrxArrayTempl<COrxString> list = listOf({L"kept"});
    EXPECT_FALSE(ORX::regInit(L"App"));
    EXPECT_FALSE(ORX::regWrite(L"App", L"n", 1ul));
    EXPECT_FALSE(ORX::regWrite(L"App", L"t", L"x", false));
    EXPECT_FALSE(ORX::regWrite(L"App", L"l", list));
    EXPECT_FALSE(ORX::regRead(L"App", L"n", number));
    EXPECT_FALSE(ORX::regRead(L"App", L"t", text));
    EXPECT_FALSE(ORX::regRead(L"App", L"l", list));
    EXPECT_FALSE(ORX::regDelValue(L"App", L"n"));
    EXPECT_EQ(number, 7ul);
    EXPECT_EQ(text, L"kept");
    EXPECT_EQ(list, listOf({L"kept"}));
    EXPECT_EQ(Key(ORX::regOpenKey(HKEY_CURRENT_USER, base(), false)).get(), nullptr);
    EXPECT_TRUE(storageUntouched());
}

TEST_F(RegistryTest, InitRecordsTheCurrentVersionAndRegistersTheApplication) {
    EXPECT_FALSE(ORX::regInit(nullptr));
    EXPECT_FALSE(ORX::regInit(L""));
    ASSERT_TRUE(ORX::regInit(L"InitApp"));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"InitApp"), L"CurVer"), L"2017.0");
    EXPECT_NE(Key(ORX::regOpenKey(HKEY_CURRENT_USER, path(L"InitApp\\2017.0"), false)).get(),
              nullptr);
    COrxArrayTempl<COrxString> keys;
    ORX::appKeys(keys);
    EXPECT_TRUE(keys.contains(L"INITAPP"));

    ORX::curVerSet(L"2018.1");
    ASSERT_TRUE(ORX::regInit(L"InitApp"));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"InitApp"), L"CurVer"), L"2018.1");
}

TEST_F(RegistryTest, SettingsRoundTripAndReadsCheckTheType) {
    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", L"Gr\u00fc\u00dfe \u20ac", false));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Number", 4000000000ul));
    ASSERT_TRUE(ORX::regWrite(L"App", L"List", listOf({L"one", L"two", L"\u00e4"})));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Empty", L"", false));
    COrxString text;
    unsigned long number = 0;
    COrxArrayTempl<COrxString> list = listOf({L"stale"});
    EXPECT_TRUE(ORX::regRead(L"App", L"text", text));  // names ignore case
    EXPECT_EQ(text, L"Gr\u00fc\u00dfe \u20ac");
    EXPECT_TRUE(ORX::regRead(L"App", L"Number", number));
    EXPECT_EQ(number, 4000000000ul);
    EXPECT_TRUE(ORX::regRead(L"App", L"List", list));
    EXPECT_EQ(list, listOf({L"one", L"two", L"\u00e4"}));
    EXPECT_TRUE(ORX::regRead(L"App", L"Empty", text));
    EXPECT_EQ(text, L"");

    // A value of another type is no value: outputs stay as they were.
    number = 5;
    list = listOf({L"kept"});
    text = L"kept";
    EXPECT_FALSE(ORX::regRead(L"App", L"Text", number));
    EXPECT_FALSE(ORX::regRead(L"App", L"Text", list));
    EXPECT_FALSE(ORX::regRead(L"App", L"Number", text));
    EXPECT_FALSE(ORX::regRead(L"App", L"Missing", text));
    EXPECT_EQ(number, 5ul);
    EXPECT_EQ(list, listOf({L"kept"}));
    EXPECT_EQ(text, L"kept");

    // A value written again may change its type.
    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", 12ul));
    EXPECT_TRUE(ORX::regRead(L"App", L"Text", number));
    EXPECT_EQ(number, 12ul);
}

TEST_F(RegistryTest, ReadsFallBackToTheMachineHiveAndWritesStayWithTheUser) {
    {
        Key machine(ORX::regCreateKey(HKEY_LOCAL_MACHINE, path(L"App\\2017.0\\Sub")));
        ASSERT_NE(machine.get(), nullptr);
        ORX::regWrite(machine, L"Shared", L"machine", false);
        ORX::regWrite(machine, L"Number", 1ul);
        ORX::regWrite(machine, L"List", listOf({L"machine"}));
    }
    COrxString text;
    unsigned long number = 0;
    COrxArrayTempl<COrxString> list;
    EXPECT_TRUE(ORX::regRead(L"App", L"Sub\\Shared", text));
    EXPECT_EQ(text, L"machine");
    EXPECT_TRUE(ORX::regRead(L"App", L"Sub\\List", list));
    EXPECT_EQ(list, listOf({L"machine"}));

    ASSERT_TRUE(ORX::regWrite(L"App", L"Sub\\Shared", L"user", false));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Sub\\Number", L"not a number", false));
    EXPECT_TRUE(ORX::regRead(L"App", L"Sub\\Shared", text));
    EXPECT_EQ(text, L"user");
    EXPECT_TRUE(ORX::regRead(L"App", L"Sub\\Number", number));  // the user's is a text
    EXPECT_EQ(number, 1ul);
    EXPECT_EQ(textAt(HKEY_LOCAL_MACHINE, path(L"App\\2017.0\\Sub"), L"Shared"), L"machine");
}

TEST_F(RegistryTest, ValuePathNamesSubKeysOfTheSettingsKey) {
    ASSERT_TRUE(ORX::regWrite(L"App", L"a\\b\\name", L"deep", false));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"App\\2017.0\\a\\b"), L"name"), L"deep");
    EXPECT_TRUE(textAt(HKEY_CURRENT_USER, path(L"App\\2017.0"), L"a\\b\\name").isNull());
    COrxString text;
    EXPECT_TRUE(ORX::regRead(L"App", L"A\\B\\NAME", text));

    // A trailing "\" names the sub-key's default value.
    ASSERT_TRUE(ORX::regWrite(L"App", L"a\\", L"default", false));
    EXPECT_EQ(textAt(HKEY_CURRENT_USER, path(L"App\\2017.0\\a"), nullptr), L"default");
}

TEST_F(RegistryTest, NullTextEmptyListAndDelValueDeleteTheValue) {
    COrxString text;
    COrxArrayTempl<COrxString> list;
    unsigned long number = 0;
    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", L"x", false));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Text", nullptr, false));
    EXPECT_FALSE(ORX::regRead(L"App", L"Text", text));
    EXPECT_FALSE(ORX::regWrite(L"App", L"Text", nullptr, false));  // nothing left to delete

    ASSERT_TRUE(ORX::regWrite(L"App", L"List", listOf({L"x"})));
    ASSERT_TRUE(ORX::regWrite(L"App", L"List", COrxArrayTempl<COrxString>()));
    EXPECT_FALSE(ORX::regRead(L"App", L"List", list));

    ASSERT_TRUE(ORX::regWrite(L"App", L"Sub\\Number", 3ul));
    EXPECT_FALSE(ORX::regDelValue(L"App", L"Sub\\Number"));  // false although it deleted
    EXPECT_FALSE(ORX::regRead(L"App", L"Sub\\Number", number));
}

TEST_F(RegistryTest, ExpandableTextFollowsTheProfileFolder) {
#ifdef _WIN32
    char const* const profile = "USERPROFILE";
    wchar_t const* const sep = L"\\";
#else
    char const* const profile = "HOME";
    wchar_t const* const sep = L"/";
#endif
    ASSERT_NE(std::getenv(profile), nullptr);
    COrxString const inside = sep + COrxString(L"orx-test") + sep + L"file.txt";
    COrxString const file = orx_test::fs::path(std::getenv(profile)).wstring().c_str() + inside;
    COrxString const elsewhere = sep + COrxString(L"elsewhere");
    ASSERT_TRUE(ORX::regWrite(L"App", L"Expand", file + L";" + elsewhere, true));
    ASSERT_TRUE(ORX::regWrite(L"App", L"Plain", file, false));
    COrxString text;
    EXPECT_TRUE(ORX::regRead(L"App", L"Expand", text));
    EXPECT_EQ(text, file + L";" + elsewhere);
    {
        COrxString const folder = sep + COrxString(L"moved");
        orx_test::ScopedEnv moved(profile, orx_test::fs::path(std::wstring(folder)).string());
        EXPECT_TRUE(ORX::regRead(L"App", L"Expand", text));
        EXPECT_EQ(text, folder + inside + L";" + elsewhere);
        EXPECT_TRUE(ORX::regRead(L"App", L"Plain", text));
        EXPECT_EQ(text, file);
    }
    ASSERT_TRUE(ORX::regWrite(L"App", L"Reference", L"%ORX_NO_SUCH_VARIABLE%", false));
    EXPECT_TRUE(ORX::regRead(L"App", L"Reference", text));
    EXPECT_EQ(text, L"%ORX_NO_SUCH_VARIABLE%");
}

TEST_F(RegistryTest, OpenKeyNumberReadAcceptsAnyTypeUpTo64Characters) {
    Key key(ORX::regCreateKey(HKEY_CURRENT_USER, base()));
    ASSERT_NE(key.get(), nullptr);
    unsigned long number = 0;
    ASSERT_TRUE(ORX::regWrite(key, L"Dword", 0xCAFEul));
    EXPECT_TRUE(ORX::regRead(key, L"Dword", number));
    EXPECT_EQ(number, 0xCAFEul);

    ASSERT_TRUE(ORX::regWrite(key, L"Short", COrxString().rfill(63, L'7'), false));
    ASSERT_TRUE(ORX::regWrite(key, L"Long", COrxString().rfill(64, L'7'), false));
    EXPECT_TRUE(ORX::regRead(key, L"Short", number));  // no type check, deliberately
    number = 5;
    EXPECT_FALSE(ORX::regRead(key, L"Long", number));
    EXPECT_FALSE(ORX::regRead(key, L"Missing", number));
    EXPECT_EQ(number, 5ul);
}

TEST_F(RegistryTest, ListsEndAtTheirFirstEmptyString) {
    Key key(ORX::regCreateKey(HKEY_CURRENT_USER, base()));
    COrxArrayTempl<COrxString> list = listOf({L"stale", L"stale"});
    ASSERT_TRUE(ORX::regWrite(key, L"List", listOf({L"a", L"", L"b"})));
    EXPECT_TRUE(ORX::regRead(key, L"List", list));
    EXPECT_EQ(list, listOf({L"a"}));
    ASSERT_TRUE(ORX::regWrite(key, L"List", listOf({L""})));
    EXPECT_TRUE(ORX::regRead(key, L"List", list));
    EXPECT_TRUE(list.isEmpty());
}

TEST_F(RegistryTest, CopyTreeOverwritesAtTheTopLevelOnly) {
    Key src(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Src")));
    Key srcSub(ORX::regCreateKey(src, L"Sub"));
    ORX::regWrite(src, L"Top", L"src", false);
    ORX::regWrite(src, L"New", 1ul);
    ORX::regWrite(srcSub, L"Inner", L"src", false);
    ORX::regWrite(Key(ORX::regCreateKey(srcSub, L"Deeper")), L"Leaf", listOf({L"src"}));

    for (bool const overwrite : {true, false}) {
        SCOPED_TRACE(overwrite ? "overwrite" : "keep");
        ORX::regDeleteTree(HKEY_CURRENT_USER, path(L"Dst"));
        Key dst(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Dst")));
        ORX::regWrite(dst, L"Top", L"dst", false);
        ORX::regWrite(Key(ORX::regCreateKey(dst, L"Sub")), L"Inner", L"dst", false);

        EXPECT_TRUE(ORX::regCopyTree(dst, src, overwrite));
        COrxString text;
        unsigned long number = 0;
        COrxArrayTempl<COrxString> list;
        EXPECT_TRUE(ORX::regRead(dst, L"Top", text));
        EXPECT_EQ(text, overwrite ? L"src" : L"dst");
        EXPECT_TRUE(ORX::regRead(dst, L"New", number));
        EXPECT_EQ(number, 1ul);
        EXPECT_EQ(textAt(dst, L"Sub", L"Inner"), L"dst");  // only the top level is overwritten
        EXPECT_TRUE(ORX::regRead(Key(ORX::regOpenKey(dst, L"Sub\\Deeper", false)), L"Leaf", list));
        EXPECT_EQ(list, listOf({L"src"}));
    }
}

TEST_F(RegistryTest, CopyTreeStopsAtAValueLargerThanItsBuffer) {
    Key src(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Src")));
    ORX::regWrite(src, L"A big", COrxString().rfill(600, L'x'), false);
    ORX::regWrite(src, L"B small", 2ul);
    ORX::regWrite(Key(ORX::regCreateKey(src, L"Sub")), L"C", 3ul);
    Key dst(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Dst")));
    EXPECT_TRUE(ORX::regCopyTree(dst, src, true));
    unsigned long number = 0;
    EXPECT_FALSE(ORX::regRead(dst, L"B small", number));
    EXPECT_TRUE(ORX::regRead(Key(ORX::regOpenKey(dst, L"Sub", false)), L"C", number));
}

TEST_F(RegistryTest, KeyNamesIgnoreCaseAndBadHandlesAreRefused) {
    Key created(ORX::regCreateKey(HKEY_CURRENT_USER, path(L"Mixed\\\u00c4rger")));
    ASSERT_NE(created.get(), nullptr);
    ASSERT_TRUE(ORX::regWrite(created, L"Wert", 1ul));
    unsigned long number = 0;
    EXPECT_TRUE(
        ORX::regRead(Key(ORX::regOpenKey(HKEY_CURRENT_USER, path(L"MIXED\\\u00e4RGER\\"), false)),
                     L"WERT", number));
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
    EXPECT_FALSE(ORX::regRead(created, L"Wert", number));  // the key is gone
    EXPECT_FALSE(ORX::regWrite(created, L"Wert", 2ul));
    HKEY const closed = created.release();
    EXPECT_TRUE(ORX::regCloseKey(closed));
    EXPECT_FALSE(ORX::regCloseKey(closed));
}

TEST_F(RegistryTest, CurProgIdReadsTheClassesCurVerKey) {
    COrxString const progId = uniqueName(L"OrxTest.CurVer");
    ASSERT_TRUE(ORX::regWrite(Key(ORX::regCreateKey(HKEY_CLASSES_ROOT, progId + L"\\CurVer")),
                              nullptr, progId + L".2", false));
    COrxString out(L"untouched");
    EXPECT_FALSE(ORX::curProgId(out, nullptr));
    EXPECT_FALSE(ORX::curProgId(out, progId + L".2"));
    EXPECT_EQ(out, L"untouched");
    EXPECT_TRUE(ORX::curProgId(out, progId));
    EXPECT_EQ(out, progId + L".2");
    EXPECT_TRUE(ORX::regDeleteTree(HKEY_CLASSES_ROOT, progId));
}
