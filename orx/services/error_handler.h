// COrxErrorHandler: turns hardware faults (access violations, integer division by zero,
// illegal instructions, ...) raised inside its scope into C++ exceptions of type
// `unsigned int` carrying the Windows exception code.
//
//     try {
//         COrxErrorHandler guard;
//         computeSomething();            // may read through a bad pointer
//     } catch (unsigned int code) {      // ORX::kSeAccessViolation, ...
//         report(code);
//     }
//
// The translation is per thread: a scope affects only the thread that created it, nested
// scopes restore the translator they replaced, and outside every scope a fault behaves as it
// would without the library (the process ends, or an earlier handler of the program runs).
// Only faults the processor raises are translated, never exceptions raised by software.
//
// Code that may fault inside a scope must be built with -fnon-call-exceptions (GCC) or /EHa
// (MSVC): otherwise it has no landing pads at trapping instructions and the exception ends in
// std::terminate, or skips the destructors of that function's locals.
//
// How: MSVC installs the translator with _set_se_translator. MinGW-w64 redirects the faulting
// thread into a function that calls the translator (a throw from inside the system's
// exception dispatch would run no destructors). Linux installs handlers for SIGSEGV, SIGBUS,
// SIGFPE and SIGILL that call the translator with the matching Windows code; they are
// installed once, at the first scope, and pass every fault they do not translate on to the
// handler that was there before. Under AddressSanitizer, which installs its own handlers
// first, ASAN_OPTIONS must keep handle_segv, handle_sigbus and handle_sigfpe at 1 (not 2) and
// allow_user_segv_handler on, so that these can take their place; the sanitizer test preset
// sets them.
#ifndef ORX_SERVICES_ERROR_HANDLER_H
#define ORX_SERVICES_ERROR_HANDLER_H

#include "orx/foundation/obj.h"
#include "orx/services/windows_types.h"

namespace ORX {

// The Windows exception codes a translator receives (the values of <windows.h>'s
// EXCEPTION_* constants). On Linux: SIGSEGV gives kSeAccessViolation; SIGBUS gives
// kSeDatatypeMisalignment for a misaligned access, else kSeInPageError; SIGFPE gives the
// integer or floating-point code of its cause; SIGILL gives kSePrivilegedInstruction for a
// privileged opcode or register, else kSeIllegalInstruction.
constexpr unsigned int kSeAccessViolation = 0xC0000005u;
constexpr unsigned int kSeInPageError = 0xC0000006u;
constexpr unsigned int kSeIllegalInstruction = 0xC000001Du;
constexpr unsigned int kSeArrayBoundsExceeded = 0xC000008Cu;
constexpr unsigned int kSeFltDenormalOperand = 0xC000008Du;
constexpr unsigned int kSeFltDivideByZero = 0xC000008Eu;
constexpr unsigned int kSeFltInexactResult = 0xC000008Fu;
constexpr unsigned int kSeFltInvalidOperation = 0xC0000090u;
constexpr unsigned int kSeFltOverflow = 0xC0000091u;
constexpr unsigned int kSeFltStackCheck = 0xC0000092u;
constexpr unsigned int kSeFltUnderflow = 0xC0000093u;
constexpr unsigned int kSeIntDivideByZero = 0xC0000094u;
constexpr unsigned int kSeIntOverflow = 0xC0000095u;
constexpr unsigned int kSePrivilegedInstruction = 0xC0000096u;
constexpr unsigned int kSeDatatypeMisalignment = 0x80000002u;

}  // namespace ORX

class ORX_API COrxErrorHandler : public COrxObj {
public:
    // A translator receives the exception code and the fault's records and normally throws.
    // One that returns leaves the fault untranslated: it then goes on as outside any scope.
    using Translator = void (*)(unsigned int code, _EXCEPTION_POINTERS* pointers);

    // Installs the library's translator, which throws the code as `unsigned int`.
    COrxErrorHandler();
    // Installs `translator` instead (null: no translation inside this scope).
    explicit COrxErrorHandler(Translator translator);
    // Puts back the translator this scope replaced. Scopes end in reverse order of creation.
    ~COrxErrorHandler() override;

    // A scope belongs to one place on one thread.
    COrxErrorHandler(COrxErrorHandler const&) = delete;
    COrxErrorHandler& operator=(COrxErrorHandler const&) = delete;

private:
    static void transFunc(unsigned int code, _EXCEPTION_POINTERS* pointers);

    Translator m_previous;
};

#endif  // ORX_SERVICES_ERROR_HANDLER_H
