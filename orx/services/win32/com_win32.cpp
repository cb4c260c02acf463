// The running automation server of a ProgID, and its SendData method.
#include <windows.h>
// After windows.h, whose types they use.
#include <objbase.h>
#include <oleauto.h>

#include "orx/services/com.h"
#include "orx/services/internal/com_server.h"

namespace ORX {
namespace {

// COM on the calling thread for the length of a call, unless the caller has set it up
// already (then in whichever apartment the caller chose).
class ComForCall {
public:
    ComForCall() : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComForCall() {
        if (SUCCEEDED(m_result)) {
            CoUninitialize();
        }
    }
    ComForCall(ComForCall const&) = delete;
    ComForCall& operator=(ComForCall const&) = delete;

private:
    HRESULT m_result;
};

// SendData("ORX", code, text) by name; -1 unless it answers a VT_I4.
int invokeSendData(IDispatch* server, int code, wchar_t const* text) {
    wchar_t methodName[] = L"SendData";
    LPOLESTR names[] = {methodName};
    DISPID method = 0;
    if (FAILED(server->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &method))) {
        return -1;
    }
    // Invoke takes the arguments last to first.
    VARIANT arguments[3];
    for (VARIANT& argument : arguments) {
        VariantInit(&argument);
    }
    arguments[2].vt = VT_BSTR;
    arguments[2].bstrVal = SysAllocString(L"ORX");
    arguments[1].vt = VT_I4;
    arguments[1].lVal = code;
    arguments[0].vt = VT_BSTR;
    arguments[0].bstrVal = SysAllocString(text);
    DISPPARAMS parameters{arguments, nullptr, 3, 0};
    VARIANT result;
    VariantInit(&result);
    HRESULT const called = server->Invoke(method, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                          &parameters, &result, nullptr, nullptr);
    int const answer = SUCCEEDED(called) && result.vt == VT_I4 ? result.lVal : -1;
    VariantClear(&result);
    for (VARIANT& argument : arguments) {
        VariantClear(&argument);
    }
    return answer;
}

}  // namespace

long dispatchFromProgID(wchar_t const* progId, IDispatch** out) {
    if (out == nullptr) {
        return E_POINTER;
    }
    *out = nullptr;
    if (progId == nullptr) {
        return E_INVALIDARG;
    }
    CLSID classId;
    HRESULT result = CLSIDFromProgID(internal::resolvedProgId(progId), &classId);
    if (FAILED(result)) {
        return result;
    }
    IUnknown* running = nullptr;
    result = GetActiveObject(classId, nullptr, &running);
    if (FAILED(result)) {
        return result;
    }
    result = running->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(out));
    running->Release();
    return result;
}

namespace internal {

int sendData(wchar_t const* progId, int code, wchar_t const* text) {
    ComForCall const com;
    IDispatch* server = nullptr;
    if (FAILED(dispatchFromProgID(progId, &server)) || server == nullptr) {
        return -1;
    }
    int const answer = invokeSendData(server, code, text);
    server->Release();
    return answer;
}

bool fileExists(wchar_t const* path) {
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace internal
}  // namespace ORX
