// The test server of the Windows messaging tests: a small automation server that registers
// its ProgID and class, publishes itself as the running object of the class and serves
// SendData (answers: com_test_support.h) until the named event it is given is set.
//
//   orx_com_test_server.exe <progId> <classId> <quitEvent>
#include <windows.h>
// After windows.h, whose types they use.
#include <objbase.h>
#include <oleauto.h>
#include <shellapi.h>

#include <string>

#include "com_test_support.h"
#include "test_support.h"

namespace {

// The dispatch id of SendData, and how long the server lives at most (should the test that
// started it never set the quit event).
constexpr DISPID kSendDataId = 1;
constexpr DWORD kLifetimeMs = 120000;

// A BSTR, VT_BSTR or convertible, as text; empty when it is neither.
std::wstring textOf(VARIANT& argument) {
    VARIANT text;
    VariantInit(&text);
    std::wstring result;
    if (SUCCEEDED(VariantChangeType(&text, &argument, 0, VT_BSTR)) && text.bstrVal != nullptr) {
        result.assign(text.bstrVal, SysStringLen(text.bstrVal));
    }
    VariantClear(&text);
    return result;
}

int numberOf(VARIANT& argument) {
    VARIANT number;
    VariantInit(&number);
    int const result = SUCCEEDED(VariantChangeType(&number, &argument, 0, VT_I4)) ? number.lVal : 0;
    VariantClear(&number);
    return result;
}

// COM interfaces have no virtual destructor by design: objects free themselves in Release.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// One object for the whole process, so its reference count only matters to COM.
class SendDataServer : public IDispatch {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) {
            return E_POINTER;
        }
        if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDispatch)) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return InterlockedIncrement(&m_references); }
    ULONG STDMETHODCALLTYPE Release() override { return InterlockedDecrement(&m_references); }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        if (count != 1 || lstrcmpiW(names[0], L"SendData") != 0) {
            return DISP_E_UNKNOWNNAME;
        }
        ids[0] = kSendDataId;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO*, UINT*) override {
        if (id != kSendDataId || (flags & DISPATCH_METHOD) == 0) {
            return DISP_E_MEMBERNOTFOUND;
        }
        if (parameters == nullptr || parameters->cArgs != 3 || parameters->cNamedArgs != 0) {
            return DISP_E_BADPARAMCOUNT;
        }
        // The arguments come last to first.
        VARIANT* const arguments = parameters->rgvarg;
        orx_test::Answer const answer =
            orx_test::answerFor(textOf(arguments[2]), numberOf(arguments[1]), textOf(arguments[0]));
        if (answer.kind == orx_test::AnswerKind::kFailure) {
            return E_FAIL;
        }
        if (result != nullptr) {
            VariantInit(result);
            if (answer.kind == orx_test::AnswerKind::kText) {
                result->vt = VT_BSTR;
                result->bstrVal = SysAllocString(L"not a number");
            } else {
                result->vt = VT_I4;
                result->lVal = answer.number;
            }
        }
        return S_OK;
    }

private:
    LONG m_references = 1;
};

int serve(CLSID const& classId, wchar_t const* quitEvent) {
    static SendDataServer server;
    HANDLE const quit = OpenEventW(SYNCHRONIZE, FALSE, quitEvent);
    DWORD cookie = 0;
    if (quit == nullptr ||
        FAILED(RegisterActiveObject(&server, classId, ACTIVEOBJECT_STRONG, &cookie))) {
        return 1;
    }
    WaitForSingleObject(quit, kLifetimeMs);
    RevokeActiveObject(cookie, nullptr);
    CloseHandle(quit);
    return 0;
}

}  // namespace

int main() {
    int count = 0;
    LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 4) {
        return 64;
    }
    COrxString const progId(arguments[1]);
    COrxString const classIdText(arguments[2]);
    CLSID classId;
    int status = 1;
    // Calls come in on COM's own threads; this one only waits for the quit event.
    if (SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) {
        if (SUCCEEDED(CLSIDFromString(arguments[2], &classId)) &&
            orx_test::registerServer(progId, classIdText,
                                     orx_test::programBeside("orx_com_test_server").c_str())) {
            status = serve(classId, arguments[3]);
        }
        orx_test::unregisterServer(progId, classIdText);
        CoUninitialize();
    }
    LocalFree(arguments);
    return status;
}
