#include "orx/services/error_handler.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <thread>

#ifndef _WIN32
#include <csignal>
#endif

namespace {

// The faulting helpers hide their operands from the optimiser (volatile) so that the faulting
// instruction stays, and from UndefinedBehaviorSanitizer, whose own checks would abort the
// sanitizer build before the processor faults.
#define ORX_FAULTS           \
    __attribute__((noinline, \
                   no_sanitize("null", "integer-divide-by-zero", "signed-integer-overflow")))

int* volatile g_null = nullptr;
int volatile g_zero = 0;
int volatile g_minusOne = -1;
int volatile g_sink = 0;
// A nothrow builtin called directly would end in std::terminate; through a pointer it is
// an ordinary call into the C runtime, which faults there.
std::size_t (*volatile g_strlen)(char const*) = &std::strlen;

ORX_FAULTS void readNull() {
    g_sink = *g_null;
}

ORX_FAULTS void writeNull() {
    *g_null = 42;
}

ORX_FAULTS void divideByZero() {
    g_sink = 7 / g_zero;
}

ORX_FAULTS void divideMinByMinusOne() {
    int volatile const smallest = INT_MIN;
    g_sink = smallest / g_minusOne;
}

void illegalInstruction() {
    asm volatile("ud2");
}

void strlenOfNull() {
    g_sink = static_cast<int>(g_strlen(nullptr));
}

// The code a default scope translates the fault into; 0 when nothing was thrown.
unsigned int codeOf(void (*fault)()) {
    try {
        COrxErrorHandler const guard;
        fault();
    } catch (unsigned int code) {
        return code;
    }
    return 0;
}

struct NamedFault {
    char const* name;
    void (*fault)();
    unsigned int code;
};

NamedFault const kFaults[] = {
    {"null read", &readNull, ORX::kSeAccessViolation},
    {"null write", &writeNull, ORX::kSeAccessViolation},
    {"integer division by zero", &divideByZero, ORX::kSeIntDivideByZero},
    {"INT_MIN / -1", &divideMinByMinusOne, ORX::kSeIntDivideByZero},
    {"ud2", &illegalInstruction, ORX::kSeIllegalInstruction},
    {"strlen(nullptr) inside the C runtime", &strlenOfNull, ORX::kSeAccessViolation},
};

struct CountsDestruction {
    int& destroyed;
    ~CountsDestruction() { ++destroyed; }
};

ORX_FAULTS void writeNullWithLocal(int& destroyed) {
    CountsDestruction const local{destroyed};
    *g_null = 1;
}

struct CustomFault {
    unsigned int code;
};

void throwCustomFault(unsigned int code, _EXCEPTION_POINTERS* pointers) {
    EXPECT_NE(pointers, nullptr);
    throw CustomFault{code};
}

}  // namespace

// Round 0 is the first fault of the process; every later one is caught the same way.
TEST(COrxErrorHandlerTest, EveryFaultBecomesItsWindowsCode) {
    for (int round = 0; round < 3; ++round) {
        for (NamedFault const& fault : kFaults) {
            EXPECT_EQ(codeOf(fault.fault), fault.code) << fault.name << ", round " << round;
        }
    }
    // Several faults inside one scope.
    COrxErrorHandler const guard;
    for (int i = 0; i < 3; ++i) {
        EXPECT_THROW(readNull(), unsigned int);
        EXPECT_THROW(divideByZero(), unsigned int);
    }
}

TEST(COrxErrorHandlerTest, LocalsBetweenFaultAndCatchAreDestroyed) {
    int destroyed = 0;
    try {
        COrxErrorHandler const guard;
        CountsDestruction const outer{destroyed};
        {
            CountsDestruction const inner{destroyed};
            writeNullWithLocal(destroyed);  // its own local is destroyed as well
        }
    } catch (unsigned int code) {
        EXPECT_EQ(code, ORX::kSeAccessViolation);
    }
    EXPECT_EQ(destroyed, 3);
}

TEST(COrxErrorHandlerTest, GivenTranslatorIsUsedAndTheOuterOneComesBack) {
    COrxErrorHandler const outer;
    {
        COrxErrorHandler const inner(&throwCustomFault);
        try {
            readNull();
            ADD_FAILURE() << "no exception";
        } catch (CustomFault const& fault) {
            EXPECT_EQ(fault.code, ORX::kSeAccessViolation);
        }
    }
    EXPECT_THROW(readNull(), unsigned int);
}

TEST(COrxErrorHandlerTest, ScopesBelongToTheirThread) {
    COrxErrorHandler const mainScope(&throwCustomFault);
    unsigned int workerCode = 0;
    std::thread worker([&workerCode] { workerCode = codeOf(&writeNull); });
    worker.join();
    // The worker's own scope translated its fault, and ending that scope left this thread's
    // translator in place.
    EXPECT_EQ(workerCode, ORX::kSeAccessViolation);
    EXPECT_THROW(readNull(), CustomFault);
}

#ifndef _WIN32
// Death tests run the statement in a fresh process; "threadsafe" re-executes the test
// program instead of forking this multi-threaded one.
TEST(COrxErrorHandlerDeathTest, FaultsOutsideEveryScopeAndSentSignalsEndTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            { COrxErrorHandler const installsTheHandlers; }
            readNull();
        },
        "");
    EXPECT_DEATH(
        {
            COrxErrorHandler const mainScope;
            std::thread([] { readNull(); }).join();
        },
        "");
    EXPECT_DEATH(
        {
            COrxErrorHandler const guard;
            try {
                raise(SIGSEGV);  // sent, not a fault: never translated
            } catch (unsigned int) {
                std::_Exit(0);  // the process lives on, and the test fails
            }
        },
        "");
}
#endif
