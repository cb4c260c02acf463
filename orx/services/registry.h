// Registry settings: per-application, per-version values under a base key, read from the
// user's hive with a machine-wide fallback and written to the user's hive only.
//
//     ORX::regBasePathSet(L"Software\\Kelvara\\Orx");
//     ORX::curVerSet(L"2017.0");
//     ORX::regInit(L"Draw");                          // ...\Draw: CurVer = "2017.0"
//     ORX::regWrite(L"Draw", L"Grid\\Step", 25ul);    // ...\Draw\2017.0\Grid: Step = 25
//     unsigned long step = 0;
//     ORX::regRead(L"Draw", L"Grid\\Step", step);     // user hive, else machine hive
//
// Layout: the application key is <base>\<app> and holds "CurVer", the current version; the
// settings key is <base>\<app>\<version>. A value path "a\b\name" names the value "name" in
// the sub-key a\b of the settings key; a path without a backslash is the value name itself,
// and a null or empty name is the key's default (unnamed) value.
//
// Windows: the registry itself (advapi32), under HKEY_CURRENT_USER and HKEY_LOCAL_MACHINE.
//
// Linux: the same keys and values in one SQLite database per hive, shared safely by any
// number of threads and processes (every write one BEGIN IMMEDIATE transaction with
// synchronous=FULL, a busy timeout of ORX::kRegistryBusyTimeoutMs; the user's hive keeps a
// write-ahead log, the machine and classes hives a rollback journal, see below). Key and value
// names compare case-insensitively (simple Unicode upper-casing) and keep the spelling they were
// created with; sub-keys and values enumerate in that case-insensitive name order. The
// databases live in the directory named by the environment variable ORX_REGISTRY_DIR
// (user.db, machine.db and classes.db), read at every call; when it is unset or empty:
// - HKEY_CURRENT_USER:  $XDG_CONFIG_HOME/orx/registry/user.db (default ~/.config/...);
// - HKEY_LOCAL_MACHINE: <first entry of $XDG_CONFIG_DIRS>/orx/registry/machine.db
//   (default /etc/xdg/...);
// - HKEY_CLASSES_ROOT:  classes.db beside machine.db.
// A hive whose database does not exist yet is empty; it is created (with its directory) by
// the first write. A database the process may not write is opened read-only, and writes to
// it fail as an access-denied registry would. Text values are stored as UTF-8, other values
// as their bytes.
// What an administrator deploys for the machine-wide settings: machine.db (and classes.db)
// alone, readable by the users (0644) in a folder they may enter (0755); no side file is
// needed. The library writes these two hives with a rollback journal, which exists only
// while a write runs, so a reader needs nothing but the database file (a write-ahead log
// would need side files that a reader who may not write the folder cannot create). A hive
// that another SQLite client left in WAL mode is still read when its side files are gone:
// the reader then takes the database file as it is and sees a later change only when it
// opens the hive again (next call after the file was replaced, or next process), so change
// such a hive only through the library, or put it back into rollback mode
// (PRAGMA journal_mode=DELETE).
//
// The process-wide base path, version and application-key list are not locked: set them
// once, before threads use them.
#ifndef ORX_SERVICES_REGISTRY_H
#define ORX_SERVICES_REGISTRY_H

#include "orx/foundation/array_templ.h"
#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"
#include "orx/services/windows_types.h"

namespace ORX {

// How long a Linux registry call waits for another process's write to finish before it
// fails (SQLite busy timeout).
constexpr int kRegistryBusyTimeoutMs = 30000;

// ---- Process-wide settings location ----

// Sets the base key path unless `path` is null; returns the current base path either way.
ORX_API wchar_t const* regBasePathSet(wchar_t const* path);
// Sets the current version; null or empty empties it, and while it is empty every function
// below that takes an application name fails without touching the registry.
ORX_API void curVerSet(wchar_t const* version);
// key = <base>\<app>\<version>. False only for a null app (key untouched).
ORX_API bool regAppKey(COrxString& key, wchar_t const* app);
// Appends the upper-cased name to the application keys unless it is there already.
ORX_API void appKeyAdd(COrxString app);
// The application keys, upper case, in order of first registration.
ORX_API void appKeys(COrxArrayTempl<COrxString>& keys);

// ---- Settings by application name ----

// Creates the application key, sets its "CurVer" to the current version when it differs,
// creates the settings key and registers app with appKeyAdd. False when a key cannot be
// created, app is null or empty, or the version is empty.
ORX_API bool regInit(wchar_t const* app);

// Read a value of the settings key, from the user's hive, else (the key or value missing or
// unreadable there) from the machine's. The number must be a REG_DWORD of 4 bytes; text
// follows the open-key string read below, lists the multi-string read. False with the
// output untouched when neither hive has a readable value.
ORX_API bool regRead(wchar_t const* app, wchar_t const* valuePath, unsigned long& number);
ORX_API bool regRead(wchar_t const* app, wchar_t const* valuePath, COrxString& text);
ORX_API bool regRead(wchar_t const* app, wchar_t const* valuePath,
                     COrxArrayTempl<COrxString>& list);

// Write a value of the settings key in the user's hive, creating the keys on the way, with
// the open-key writes below (so a null text or an empty list deletes the value).
ORX_API bool regWrite(wchar_t const* app, wchar_t const* valuePath, wchar_t const* text,
                      bool expand);
ORX_API bool regWrite(wchar_t const* app, wchar_t const* valuePath,
                      COrxArrayTempl<COrxString> const& list);
ORX_API bool regWrite(wchar_t const* app, wchar_t const* valuePath, unsigned long number);

// Deletes the value from the settings key in the user's hive. Always returns false, also
// after a successful deletion: long-standing behaviour that callers take into account, so
// the result says nothing.
ORX_API bool regDelValue(wchar_t const* app, wchar_t const* valuePath);

// ---- Values of an open key ----
// `key` is a key opened with regOpenKey/regCreateKey below (or, on Windows, any registry
// key handle) or one of HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE, HKEY_CLASSES_ROOT; `name`
// null or empty is the default value. On failure the output is untouched.

// Copies the value's leading bytes into number whatever its type: any value of up to 64
// characters' worth of data (128 bytes on Windows, 256 on Linux) succeeds, a larger one
// fails. Callers rely on this lenient read; regRead by application name checks the type.
// A value shorter than 4 bytes is zero-extended; only the first 4 bytes are used.
ORX_API bool regRead(HKEY key, wchar_t const* name, unsigned long& number);
// REG_SZ: the text up to its first NUL. REG_EXPAND_SZ: each ";"-separated element with its
// %NAME% environment references expanded. Other types fail.
ORX_API bool regRead(HKEY key, wchar_t const* name, COrxString& text);
// REG_MULTI_SZ only: the list is emptied and gets each string up to the first empty one
// (an empty string inside the list ends it).
ORX_API bool regRead(HKEY key, wchar_t const* name, COrxArrayTempl<COrxString>& list);

// A null text deletes the value. expand false stores REG_SZ. expand true shortens each
// ";"-separated element to an environment reference where its start is such a folder
// (Windows: PathUnExpandEnvStringsW, e.g. %USERPROFILE%, %APPDATA%, %SystemRoot%; Linux: the
// longest of $XDG_CONFIG_HOME, $XDG_DATA_HOME, $XDG_CACHE_HOME, $TMPDIR and $HOME that is a
// whole-folder prefix, as %NAME%), within 260 characters an element; the result is stored as
// REG_EXPAND_SZ when some element changed, else as REG_SZ.
ORX_API bool regWrite(HKEY key, wchar_t const* name, wchar_t const* text, bool expand);
// REG_MULTI_SZ; an empty list deletes the value.
ORX_API bool regWrite(HKEY key, wchar_t const* name, COrxArrayTempl<COrxString> const& list);
// REG_DWORD of 4 bytes (on Linux the low 32 bits of the number).
ORX_API bool regWrite(HKEY key, wchar_t const* name, unsigned long number);

// Copies the values and sub-keys of src into dst. Without overwrite a value dst already has
// is kept. Only the top level honours overwrite: sub-keys are always merged without
// overwriting (long-standing behaviour callers rely on). Value enumeration stops at the
// first value whose name exceeds 259 characters or whose data exceeds 512 characters' worth
// (1024 bytes on Windows). Always true.
ORX_API bool regCopyTree(HKEY dst, HKEY src, bool overwrite);

// out = the default value of HKEY_CLASSES_ROOT\<progId>\CurVer. False (out untouched) when
// progId is null or the key or value is missing.
ORX_API bool curProgId(COrxString& out, wchar_t const* progId);

// ---- Opening keys ----
// The same on both platforms; on Windows thin wrappers over RegOpenKeyExW, RegCreateKeyExW,
// RegCloseKey and RegDeleteTreeW. Paths are relative to root, with "\" between names; a
// leading "\" is refused, empty names (a trailing or doubled "\") are skipped, and a null or
// empty path names root itself. Names are at most 255 characters.

// Opens an existing key for reading (and writing when write is true); null on failure.
ORX_API HKEY regOpenKey(HKEY root, wchar_t const* path, bool write);
// Opens the key for reading and writing, creating it and missing parents; null on failure.
ORX_API HKEY regCreateKey(HKEY root, wchar_t const* path);
// Closes a key from the functions above (the predefined keys need no closing). False for a
// handle that is not an open key.
ORX_API bool regCloseKey(HKEY key);
// Deletes the key root\path with all its values and sub-keys. A null or empty path is
// refused (false), so that a root is never emptied by accident.
ORX_API bool regDeleteTree(HKEY root, wchar_t const* path);

}  // namespace ORX

#endif  // ORX_SERVICES_REGISTRY_H
