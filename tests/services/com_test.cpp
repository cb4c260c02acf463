// Finding and messaging a running application, against a test server of this build: an
// automation server under Wine, a D-Bus server on a private session bus natively.
#ifdef _WIN32
#include <process.h>
#include <windows.h>
#endif

#include "orx/services/com.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <optional>
#include <thread>

#include "com_test_support.h"
#include "registry_test_support.h"
#ifndef _WIN32
#include "process_test_support.h"
#endif

namespace {

namespace fs = std::filesystem;

using Clock = std::chrono::steady_clock;

// Calls in a row that must all come back right, and how soon a missing server must be told.
constexpr int kCallsInARow = 1000;
constexpr auto kAbsentLimit = std::chrono::seconds(1);
// How long a starting server may take to answer, and how often it is asked.
constexpr auto kStartPatience = std::chrono::seconds(30);
constexpr auto kStartPoll = std::chrono::milliseconds(50);

// The answer a test server gives to the library's calls.
int expected(int code, wchar_t const* text) {
    return orx_test::answerFor(L"ORX", code, text).number;
}

// A class id in registry form that no other test uses.
COrxString uniqueClassId() {
    static int counter = 0;
    auto const now = static_cast<unsigned long long>(Clock::now().time_since_epoch().count());
    COrxString id;
    id.format(L"{0DE0%04X-0000-4000-8000-%012llX}", ++counter & 0xFFFF, now & 0xFFFFFFFFFFFFull);
    return id;
}

#ifndef _WIN32
// A session bus of the test's own: a dbus-daemon with its own configuration in a new folder,
// its address handed to the library through DBUS_SESSION_BUS_ADDRESS.
class PrivateBus {
public:
    PrivateBus() {
        fs::path const config = m_folder.path() / "bus.conf";
        std::ofstream(config) << "<busconfig><type>session</type><listen>unix:path="
                              << (m_folder.path() / "bus").string()
                              << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                                 "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow "
                                 "eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n";
        int out = -1;
        m_pid = orx_test::spawnProgram(
            {"dbus-daemon", "--config-file=" + config.string(), "--nofork", "--print-address=1"},
            &out);
        std::string address;
        for (char c = 0; read(out, &c, 1) == 1 && c != '\n';) {
            address += c;
        }
        close(out);
        m_address.emplace("DBUS_SESSION_BUS_ADDRESS", address);
    }
    ~PrivateBus() { orx_test::terminate(m_pid); }

private:
    orx_test::ScratchDirectory m_folder;
    std::optional<orx_test::ScopedEnv> m_address;
    pid_t m_pid = -1;
};
#endif

// A test server of a new ProgID, running until destroyed (natively with its own registry
// folder and bus).
class TestServer {
public:
    TestServer() : m_progId(orx_test::uniqueName(L"OrxTest.Server")), m_classId(uniqueClassId()) {
        start();
        auto const end = Clock::now() + kStartPatience;
        while (ORX::msg_send(m_progId, 0, L"") != 0 && Clock::now() < end) {
            std::this_thread::sleep_for(kStartPoll);
        }
    }
    ~TestServer() {
        stop();
        orx_test::unregisterServer(m_progId, m_classId);
    }
    TestServer(TestServer const&) = delete;
    TestServer& operator=(TestServer const&) = delete;

    COrxString const& progId() const { return m_progId; }
    bool answers() const { return ORX::msg_send(m_progId, 0, L"") == 0; }

private:
#ifdef _WIN32
    void start() {
        COrxString const quitName = orx_test::uniqueName(L"OrxTestQuit");
        m_quit = CreateEventW(nullptr, TRUE, FALSE, quitName);
        std::wstring const program = orx_test::programBeside("orx_com_test_server").wstring();
        intptr_t const process = _wspawnl(
            _P_NOWAIT, program.c_str(), L"server", static_cast<wchar_t const*>(m_progId),
            static_cast<wchar_t const*>(m_classId), static_cast<wchar_t const*>(quitName), nullptr);
        m_process = process == -1 ? nullptr : reinterpret_cast<HANDLE>(process);
    }
    void stop() {
        SetEvent(m_quit);
        if (m_process != nullptr) {
            WaitForSingleObject(m_process, 10000);
            CloseHandle(m_process);
        }
        CloseHandle(m_quit);
    }

    HANDLE m_quit = nullptr;
    HANDLE m_process = nullptr;
#else
    void start() {
        COrxString busName(L"com.kelvara.progid.");
        busName += COrxString(m_progId).makeLower() + L"._31";  // CurVer names <progId>.1
        m_pid = orx_test::spawnProgram({orx_test::programBeside("orx_dbus_test_server").string(),
                                        orx_test::narrow(m_progId), orx_test::narrow(m_classId),
                                        orx_test::narrow(busName)});
    }
    void stop() {
        orx_test::terminate(m_pid);
    }

    orx_test::RegistryFolder m_registry;
    PrivateBus m_bus;
    pid_t m_pid = -1;
#endif
    COrxString m_progId;
    COrxString m_classId;
};

// The server is first reached from a thread without COM, as msg_send must manage that
// alone; the tests then call from an apartment, as client applications do (under Wine that
// saves setting one up for every call of the long series).
class MessagingTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        s_server = new TestServer;
#ifdef _WIN32
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
#endif
    }
    static void TearDownTestSuite() {
#ifdef _WIN32
        CoUninitialize();
#endif
        delete s_server;
        s_server = nullptr;
    }
    void SetUp() override {
        ASSERT_TRUE(s_server->answers()) << "the test server did not start";
    }

    static TestServer* s_server;
};

TestServer* MessagingTest::s_server = nullptr;

// A ProgID without a running server: -1, and soon.
void expectPromptMinusOne(COrxString const& progId) {
    auto const start = Clock::now();
    EXPECT_EQ(ORX::msg_send(progId, 1, L"x"), -1);
    EXPECT_LT(Clock::now() - start, kAbsentLimit);
}

}  // namespace

TEST_F(MessagingTest, EveryCallGetsTheRunningServersAnswer) {
    COrxString const progId = s_server->progId();
    int wrong = 0;
    for (int i = 0; i < kCallsInARow; ++i) {
        int const code = i - kCallsInARow / 2;
        COrxString text;
        text.format(L"call %d", i).rfill(static_cast<unsigned int>(6 + i % 40), L'x');
        wrong += ORX::msg_send(progId, code, text) != expected(code, text) ? 1 : 0;
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(ORX::msg_send(progId, 7, L"Gr\u00fc\u00dfe \u20ac"),
              expected(7, L"Gr\u00fc\u00dfe \u20ac"));
    EXPECT_EQ(ORX::msg_send(progId + L".1", 3, L"by version"), expected(3, L"by version"));
    EXPECT_EQ(ORX::msg_send(progId, 1, L"text"), -1);  // an answer of another type
    EXPECT_EQ(ORX::msg_send(progId, 1, L"fail"), -1);  // the call failed
}

TEST_F(MessagingTest, MissingArgumentsServersOrBusGiveMinusOneAtOnce) {
    EXPECT_EQ(ORX::msg_send(nullptr, 1, L"x"), -1);
    EXPECT_EQ(ORX::msg_send(s_server->progId(), 1, nullptr), -1);

    expectPromptMinusOne(orx_test::uniqueName(L"OrxTest.Unknown"));
    COrxString const stopped = orx_test::uniqueName(L"OrxTest.Stopped");
    COrxString const classId = uniqueClassId();
    ASSERT_TRUE(orx_test::registerServer(stopped, classId, nullptr));
    expectPromptMinusOne(stopped);
    orx_test::unregisterServer(stopped, classId);
#ifndef _WIN32
    orx_test::ScopedEnv noBus("DBUS_SESSION_BUS_ADDRESS", std::nullopt);
    orx_test::ScopedEnv noRuntime("XDG_RUNTIME_DIR", std::string("/nonexistent"));
    EXPECT_EQ(ORX::msg_send(s_server->progId(), 1, L"no bus"), -1);
#endif
}

TEST_F(MessagingTest, DispatchFromProgIdGivesTheServerWhereThereIsOne) {
    IDispatch* server = reinterpret_cast<IDispatch*>(&server);
    EXPECT_LT(ORX::dispatchFromProgID(s_server->progId(), nullptr), 0);
#ifdef _WIN32
    EXPECT_EQ(ORX::dispatchFromProgID(s_server->progId(), &server), S_OK);
    ASSERT_NE(server, nullptr);
    server->Release();
    EXPECT_LT(ORX::dispatchFromProgID(orx_test::uniqueName(L"OrxTest.Unknown"), &server), 0);
#else
    EXPECT_EQ(ORX::dispatchFromProgID(s_server->progId(), &server),
              static_cast<long>(static_cast<std::int32_t>(0x80004001u)));  // E_NOTIMPL
#endif
    EXPECT_EQ(server, nullptr);
}

using ServerLookupTest = orx_test::RegistryTest;

TEST_F(ServerLookupTest, CurProgIdAndServerFromProgIdFollowTheRegistration) {
    COrxString const progId = orx_test::uniqueName(L"OrxTest.Lookup");
    COrxString const classId = uniqueClassId();
    COrxString const program = orx_test::programBeside("orx_record_args").wstring().c_str();
    COrxString found(L"untouched");
    EXPECT_FALSE(ORX::serverFromProgID(nullptr, found));
    EXPECT_FALSE(ORX::serverFromProgID(progId, found));
    EXPECT_FALSE(ORX::curProgId(found, nullptr));
    EXPECT_FALSE(ORX::curProgId(found, progId));
    EXPECT_EQ(found, L"untouched");

    ASSERT_TRUE(orx_test::registerServer(progId, classId, program));
    EXPECT_TRUE(ORX::curProgId(found, progId));
    EXPECT_EQ(found, progId + L".1");
    EXPECT_FALSE(ORX::curProgId(found, progId + L".1"));  // the version has no CurVer
    EXPECT_TRUE(ORX::serverFromProgID(progId, found));    // through CurVer, quotes removed
    EXPECT_EQ(found, program);
    EXPECT_TRUE(ORX::serverFromProgID(progId + L".1", found));
    EXPECT_EQ(found, program);

    // A server whose file is gone is looked for under Wow6432Node.
    COrxString const gone = program + L".gone";
    ASSERT_TRUE(orx_test::setClassesText(L"CLSID\\" + classId + L"\\LocalServer32",
                                         COrxString(gone).quote()));
    found = L"untouched";
    EXPECT_FALSE(ORX::serverFromProgID(progId, found));
    EXPECT_EQ(found, L"untouched");
    ASSERT_TRUE(orx_test::setClassesText(L"Wow6432Node\\CLSID\\" + classId + L"\\LocalServer32",
                                         L"\"C:\\32-bit\\server.exe\""));
    EXPECT_TRUE(ORX::serverFromProgID(progId, found));
    EXPECT_EQ(found, L"C:\\32-bit\\server.exe");
    orx_test::unregisterServer(progId, classId);
}
