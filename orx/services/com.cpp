// The ProgID look-ups shared by both platforms: the classes keys come from the registry.
#include "orx/services/com.h"

#include "orx/services/internal/com_server.h"
#include "orx/services/internal/registry_api.h"
#include "orx/services/registry.h"

namespace ORX {
namespace {

// Drops a leading and a trailing double quote, each on its own.
COrxString unquoted(COrxString text) {
    if (text.len() > 0 && text[0] == L'"') {
        text = text.mid(1, static_cast<unsigned int>(text.len() - 1));
    }
    if (text.len() > 0 && text[text.len() - 1] == L'"') {
        text = text.left(static_cast<unsigned int>(text.len() - 1));
    }
    return text;
}

bool readLocalServer(wchar_t const* classesPath, COrxString const& classId, COrxString& server) {
    return internal::readKeyText(internal::classesRoot(),
                                 classesPath + classId + L"\\LocalServer32", server);
}

}  // namespace

bool serverFromProgID(wchar_t const* progId, COrxString& exePath) {
    if (progId == nullptr) {
        return false;
    }
    COrxString classId;
    if (!internal::readKeyText(internal::classesRoot(),
                               internal::resolvedProgId(progId) + L"\\CLSID", classId)) {
        return false;
    }
    COrxString server;
    if (!readLocalServer(L"CLSID\\", classId, server) || !internal::fileExists(unquoted(server))) {
        if (!readLocalServer(L"Wow6432Node\\CLSID\\", classId, server)) {
            return false;
        }
    }
    exePath = unquoted(server);
    return true;
}

int msg_send(wchar_t const* progId, int code, wchar_t const* text) {
    if (progId == nullptr || text == nullptr) {
        return -1;
    }
    return internal::sendData(progId, code, text);
}

namespace internal {

COrxString resolvedProgId(wchar_t const* progId) {
    COrxString current;
    if (curProgId(current, progId) && current.len() > 0) {
        return current;
    }
    return COrxString(progId);
}

}  // namespace internal
}  // namespace ORX
