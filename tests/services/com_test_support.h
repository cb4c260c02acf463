// Shared by the messaging tests and their test servers: what a test server answers, and how
// a server registers its ProgID and class.
#ifndef ORX_TESTS_SERVICES_COM_TEST_SUPPORT_H
#define ORX_TESTS_SERVICES_COM_TEST_SUPPORT_H

#ifdef _WIN32
#include <windows.h>
#endif

#include <string>

#include "orx/services/registry.h"

namespace orx_test {

// The answer of a test server to SendData(caller, code, text):
// - text "fail": the call fails (an error reply);
// - text "text": a text instead of a number;
// - otherwise code * 1000 + the length of text, or -2 when the caller is not "ORX".
enum class AnswerKind { kNumber, kText, kFailure };

struct Answer {
    AnswerKind kind;
    int number;
};

inline Answer answerFor(std::wstring const& caller, int code, std::wstring const& text) {
    if (text == L"fail") {
        return {AnswerKind::kFailure, 0};
    }
    if (text == L"text") {
        return {AnswerKind::kText, 0};
    }
    if (caller != L"ORX") {
        return {AnswerKind::kNumber, -2};
    }
    return {AnswerKind::kNumber, code * 1000 + static_cast<int>(text.size())};
}

// A key's default value under HKEY_CLASSES_ROOT.
inline bool setClassesText(COrxString const& path, wchar_t const* text) {
    HKEY const key = ORX::regCreateKey(HKEY_CLASSES_ROOT, path);
    bool const written = key != nullptr && ORX::regWrite(key, nullptr, text, false);
    ORX::regCloseKey(key);
    return written;
}

// progId and its version progId.1 with the class id, the CurVer of progId naming progId.1,
// and the class's LocalServer32, quoted as installers write it. A null program leaves the
// LocalServer32 out.
inline bool registerServer(COrxString const& progId, COrxString const& classId,
                           wchar_t const* program) {
    COrxString const version = progId + L".1";
    return setClassesText(progId + L"\\CLSID", classId) &&
           setClassesText(progId + L"\\CurVer", version) &&
           setClassesText(version + L"\\CLSID", classId) &&
           (program == nullptr ||
            setClassesText(L"CLSID\\" + classId + L"\\LocalServer32", COrxString(program).quote()));
}

inline void unregisterServer(COrxString const& progId, COrxString const& classId) {
    ORX::regDeleteTree(HKEY_CLASSES_ROOT, progId);
    ORX::regDeleteTree(HKEY_CLASSES_ROOT, progId + L".1");
    ORX::regDeleteTree(HKEY_CLASSES_ROOT, L"CLSID\\" + classId);
    ORX::regDeleteTree(HKEY_CLASSES_ROOT, L"Wow6432Node\\CLSID\\" + classId);
}

}  // namespace orx_test

#endif  // ORX_TESTS_SERVICES_COM_TEST_SUPPORT_H
