// Fault translation under MinGW-w64, which has no _set_se_translator. Throwing from inside the
// system's exception dispatch would run no destructors, so a first-chance vectored handler
// instead redirects the faulting thread: it makes the thread continue in a small assembly
// routine, as if the faulting instruction had called it, and that routine calls the
// translator. The throw then unwinds from the faulting function like any other.
#if !defined(_MSC_VER)

#include <windows.h>

#include <atomic>
#include <cwchar>
#include <string>

#include "orx/services/internal/fault_translation.h"

extern "C" {
// The routine the faulting thread is sent to (assembly below), and the function it calls.
void orxRaiseTranslatedFault();
void orxThrowTranslatedFault();
}

namespace ORX::internal {
namespace {

using Translator = COrxErrorHandler::Translator;

// The fault being translated, copied out of the dispatcher's records: the redirected thread
// runs on the stack those records lie on.
struct Fault {
    EXCEPTION_RECORD record;
    CONTEXT context;
    EXCEPTION_POINTERS pointers;
};

// What each thread keeps. One record, as MinGW allocates each thread-local object on its
// first use: exchangeTranslator() uses it first, so that a fault never has to allocate.
struct ThreadState {
    // The thread's translator; null outside every scope.
    Translator translator;
    // Set while the translator runs: a fault inside it is not translated again.
    bool translating;
    Fault fault;
};
thread_local ThreadState t_state{};

// Threads with a translator; while there are none the handlers touch no thread-local data.
std::atomic<int> g_threadsWithTranslator{0};

// The folder of the system's modules ("C:\Windows\"), in whose code faults are left alone.
std::wstring g_systemFolder;
LPTOP_LEVEL_EXCEPTION_FILTER g_previousFilter = nullptr;

// Faults the processor raises. Not among them: stack overflow (no stack left to throw on),
// guard pages, breakpoints and every software exception, C++ throws included.
bool isHardwareFault(DWORD code) {
    switch (code) {
        case kSeAccessViolation:
        case kSeInPageError:
        case kSeIllegalInstruction:
        case kSeArrayBoundsExceeded:
        case kSeFltDenormalOperand:
        case kSeFltDivideByZero:
        case kSeFltInexactResult:
        case kSeFltInvalidOperation:
        case kSeFltOverflow:
        case kSeFltStackCheck:
        case kSeFltUnderflow:
        case kSeIntDivideByZero:
        case kSeIntOverflow:
        case kSePrivilegedInstruction:
        case kSeDatatypeMisalignment:
            return true;
        default:
            return false;
    }
}

Translator translatorFor(EXCEPTION_RECORD const* record) {
    if (g_threadsWithTranslator.load(std::memory_order_relaxed) == 0 ||
        !isHardwareFault(record->ExceptionCode) ||
        (record->ExceptionFlags & EXCEPTION_NONCONTINUABLE) != 0) {
        return nullptr;
    }
    return t_state.translating ? nullptr : t_state.translator;
}

// System modules raise faults on purpose and handle them themselves (lstrlenW on a bad
// pointer, for one); those must reach the system's handlers untouched.
bool isInSystemModule(void* address) {
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            static_cast<LPCWSTR>(address), &module)) {
        return false;
    }
    wchar_t path[MAX_PATH];
    DWORD const length = GetModuleFileNameW(module, path, MAX_PATH);
    return length >= g_systemFolder.size() && !g_systemFolder.empty() &&
           _wcsnicmp(path, g_systemFolder.c_str(), g_systemFolder.size()) == 0;
}

// Makes the thread continue in orxRaiseTranslatedFault as if the faulting instruction had
// called it. The return address pushed is one past the faulting instruction: the unwinder
// looks up the byte before a return address, which is then the faulting instruction itself,
// inside the region -fnon-call-exceptions gave a landing pad.
void redirect(EXCEPTION_POINTERS const* info) {
    Fault& fault = t_state.fault;
    fault.record = *info->ExceptionRecord;
    fault.record.ExceptionRecord = nullptr;
    fault.context = *info->ContextRecord;
    fault.pointers = {&fault.record, &fault.context};

    CONTEXT* const context = info->ContextRecord;
    context->Rsp -= sizeof(DWORD64);
    *reinterpret_cast<DWORD64*>(context->Rsp) = context->Rip + 1;
    context->Rip = reinterpret_cast<DWORD64>(&orxRaiseTranslatedFault);
}

LONG CALLBACK onFirstChance(EXCEPTION_POINTERS* info) {
    if (translatorFor(info->ExceptionRecord) == nullptr ||
        isInSystemModule(info->ExceptionRecord->ExceptionAddress)) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    redirect(info);
    return EXCEPTION_CONTINUE_EXECUTION;
}

// The second chance: a fault inside a system module that nothing there handled (the C
// runtime's strlen on a null pointer, for one).
LONG WINAPI onUnhandled(EXCEPTION_POINTERS* info) {
    if (translatorFor(info->ExceptionRecord) != nullptr) {
        redirect(info);
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    return g_previousFilter != nullptr ? g_previousFilter(info) : EXCEPTION_CONTINUE_SEARCH;
}

std::wstring systemFolder() {
    wchar_t path[MAX_PATH];
    UINT const length = GetSystemWindowsDirectoryW(path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) {
        return std::wstring();
    }
    std::wstring folder(path, length);
    if (folder.back() != L'\\') {
        folder += L'\\';
    }
    return folder;
}

// Installed once, at the first scope, and removed when the library is unloaded.
class FaultHandlers {
public:
    FaultHandlers() {
        g_systemFolder = systemFolder();
        m_handler = AddVectoredExceptionHandler(1, &onFirstChance);
        g_previousFilter = SetUnhandledExceptionFilter(&onUnhandled);
    }
    ~FaultHandlers() {
        SetUnhandledExceptionFilter(g_previousFilter);
        RemoveVectoredExceptionHandler(m_handler);
    }
    FaultHandlers(FaultHandlers const&) = delete;
    FaultHandlers& operator=(FaultHandlers const&) = delete;

private:
    void* m_handler;
};

void installFaultHandlers() {
    static FaultHandlers const handlers;
}

struct TranslatingFlag {
    TranslatingFlag() { t_state.translating = true; }
    ~TranslatingFlag() { t_state.translating = false; }
    TranslatingFlag(TranslatingFlag const&) = delete;
    TranslatingFlag& operator=(TranslatingFlag const&) = delete;
};

}  // namespace

Translator exchangeTranslator(Translator translator) {
    installFaultHandlers();
    Translator const previous = t_state.translator;
    if (previous == nullptr && translator != nullptr) {
        g_threadsWithTranslator.fetch_add(1);
    } else if (previous != nullptr && translator == nullptr) {
        g_threadsWithTranslator.fetch_sub(1);
    }
    t_state.translator = translator;
    return previous;
}

}  // namespace ORX::internal

// Runs on the faulting thread, in place of the faulting instruction.
extern "C" void orxThrowTranslatedFault() {
    using namespace ORX::internal;
    DWORD const code = t_state.fault.record.ExceptionCode;
    {
        TranslatingFlag const flag;
        Translator const translator = t_state.translator;
        if (translator != nullptr) {
            translator(code, &t_state.fault.pointers);
        }
    }
    // The translator returned: the fault stays what it was, unhandled, and ends the process
    // as it would outside every scope.
    RaiseException(code, EXCEPTION_NONCONTINUABLE, 0, nullptr);
}

// A frame the unwinder can walk through: it saves rbp and makes it the frame pointer, so the
// unwind data holds whatever the stack alignment at the fault was; the call then runs on an
// aligned stack with the 32 bytes of home space the calling convention asks for.
asm(R"(
    .text
    .p2align 4
    .globl orxRaiseTranslatedFault
    .def orxRaiseTranslatedFault; .scl 2; .type 32; .endef
    .seh_proc orxRaiseTranslatedFault
orxRaiseTranslatedFault:
    pushq %rbp
    .seh_pushreg %rbp
    movq %rsp, %rbp
    .seh_setframe %rbp, 0
    .seh_endprologue
    andq $-16, %rsp
    subq $32, %rsp
    call orxThrowTranslatedFault
    ud2
    .seh_endproc
)");

#endif  // !_MSC_VER
