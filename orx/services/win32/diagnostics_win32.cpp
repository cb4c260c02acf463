#include <windows.h>

#include <string>

#include "orx/services/diagnostics.h"

namespace ORX {
namespace {

// The process-wide text behind lastErrorString().
std::wstring g_lastError;

}  // namespace

wchar_t const* lastErrorString() {
    DWORD const error = GetLastError();
    wchar_t* message = nullptr;
    DWORD const length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, error, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
        reinterpret_cast<wchar_t*>(&message), 0, nullptr);
    g_lastError.assign(message != nullptr ? message : L"", message != nullptr ? length : 0);
    LocalFree(message);
    return g_lastError.c_str();
}

}  // namespace ORX
