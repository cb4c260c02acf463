// Fault translation on Linux: handlers for the four signals a processor fault raises, which
// call the faulting thread's translator with the matching Windows code. Throwing from the
// handler unwinds through the signal frame into the faulting function, which works because
// the library and its callers are built with -fnon-call-exceptions.
#include <csignal>

#include <atomic>

#include "orx/services/internal/fault_translation.h"

namespace ORX::internal {
namespace {

using Translator = COrxErrorHandler::Translator;

constexpr int kFaultSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL};

// The calling thread's translator; null outside every scope.
thread_local Translator t_translator = nullptr;
// Set while this thread's translator runs, so that a fault inside the translator itself is
// not translated again (it would recurse until the stack is gone).
thread_local bool t_translating = false;
// Threads with a translator; while there are none, the handler touches no thread-local data.
std::atomic<int> g_threadsWithTranslator{0};

struct sigaction g_previous[NSIG];

unsigned int busCode(int cause) {
    return cause == BUS_ADRALN ? kSeDatatypeMisalignment : kSeInPageError;
}

unsigned int fpeCode(int cause) {
    switch (cause) {
        case FPE_INTDIV:
            return kSeIntDivideByZero;
        case FPE_INTOVF:
            return kSeIntOverflow;
        case FPE_FLTDIV:
            return kSeFltDivideByZero;
        case FPE_FLTOVF:
            return kSeFltOverflow;
        case FPE_FLTUND:
            return kSeFltUnderflow;
        case FPE_FLTRES:
            return kSeFltInexactResult;
        case FPE_FLTSUB:
            return kSeArrayBoundsExceeded;
        default:
            return kSeFltInvalidOperation;
    }
}

unsigned int illCode(int cause) {
    return cause == ILL_PRVOPC || cause == ILL_PRVREG ? kSePrivilegedInstruction
                                                      : kSeIllegalInstruction;
}

unsigned int windowsCode(int signal, int cause) {
    switch (signal) {
        case SIGSEGV:
            return kSeAccessViolation;
        case SIGBUS:
            return busCode(cause);
        case SIGFPE:
            return fpeCode(cause);
        default:
            return illCode(cause);
    }
}

// The translator for a fault on this thread, or null when this fault is not ours to
// translate. A positive si_code means the processor raised the signal; kill() and raise()
// give zero or less, and those signals keep their usual meaning.
Translator translatorFor(siginfo_t const* info) {
    if (info->si_code <= 0 || g_threadsWithTranslator.load(std::memory_order_relaxed) == 0) {
        return nullptr;
    }
    return t_translating ? nullptr : t_translator;
}

struct TranslatingFlag {
    TranslatingFlag() { t_translating = true; }
    ~TranslatingFlag() { t_translating = false; }
    TranslatingFlag(TranslatingFlag const&) = delete;
    TranslatingFlag& operator=(TranslatingFlag const&) = delete;
};

void unblock(int signal) {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, signal);
    pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

// Hands the signal to whoever had it before, as if the library had never installed anything.
void passOn(int signal, siginfo_t* info, void* context) {
    struct sigaction const& previous = g_previous[signal];
    if ((previous.sa_flags & SA_SIGINFO) != 0) {
        previous.sa_sigaction(signal, info, context);
        return;
    }
    if (previous.sa_handler != SIG_DFL && previous.sa_handler != SIG_IGN) {
        previous.sa_handler(signal);
        return;
    }
    if (previous.sa_handler == SIG_IGN && info->si_code <= 0) {
        return;
    }
    // The default action (an ignored processor fault gets it too): put it back, then let the
    // fault recur when the instruction runs again, or raise a sent signal once more.
    sigaction(signal, &previous, nullptr);
    if (info->si_code <= 0) {
        raise(signal);
    }
}

void onFault(int signal, siginfo_t* info, void* context) {
    Translator const translator = translatorFor(info);
    if (translator != nullptr) {
        // The throw leaves the handler without sigreturn: make sure the next fault of the
        // same kind on this thread is delivered again.
        unblock(signal);
        TranslatingFlag const flag;
        _EXCEPTION_POINTERS pointers{info, context};
        translator(windowsCode(signal, info->si_code), &pointers);
    }
    passOn(signal, info, context);
}

// The handlers stay installed from the first scope until the library is unloaded, when the
// previous ones are put back.
class FaultHandlers {
public:
    FaultHandlers() {
        struct sigaction action = {};
        action.sa_sigaction = &onFault;
        // SA_NODEFER: the handler is left by a throw, so the signal must not stay blocked.
        // SA_ONSTACK: runs on the thread's alternate stack when the program set one up.
        action.sa_flags = SA_SIGINFO | SA_NODEFER | SA_ONSTACK;
        sigemptyset(&action.sa_mask);
        for (int const signal : kFaultSignals) {
            sigaction(signal, &action, &g_previous[signal]);
        }
    }
    ~FaultHandlers() {
        for (int const signal : kFaultSignals) {
            sigaction(signal, &g_previous[signal], nullptr);
        }
    }
    FaultHandlers(FaultHandlers const&) = delete;
    FaultHandlers& operator=(FaultHandlers const&) = delete;
};

void installFaultHandlers() {
    static FaultHandlers const handlers;
}

}  // namespace

Translator exchangeTranslator(Translator translator) {
    installFaultHandlers();
    Translator const previous = t_translator;
    if (previous == nullptr && translator != nullptr) {
        g_threadsWithTranslator.fetch_add(1);
    } else if (previous != nullptr && translator == nullptr) {
        g_threadsWithTranslator.fetch_sub(1);
    }
    t_translator = translator;
    return previous;
}

}  // namespace ORX::internal
