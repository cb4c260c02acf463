// The test server of the Linux messaging tests: registers its ProgID and class in the
// registry's classes hive, owns the bus name it is given on the session bus and serves
// SendData there (answers: com_test_support.h) until SIGTERM.
//
//   orx_dbus_test_server <progId> <classId> <busName>
#include <systemd/sd-bus.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "com_test_support.h"

namespace {

// How often the server looks for SIGTERM while it waits for calls.
constexpr std::uint64_t kWakeUpMicroseconds = 100000;

volatile std::sig_atomic_t g_stop = 0;

std::wstring wide(char const* utf8) {
    COrxString text;
    text.fromMultiByte(utf8, 65001);
    return text.isNull() ? std::wstring() : std::wstring(text);
}

int sendData(sd_bus_message* call, void*, sd_bus_error*) {
    char const* caller = nullptr;
    std::int32_t code = 0;
    char const* text = nullptr;
    int const read = sd_bus_message_read(call, "sis", &caller, &code, &text);
    if (read < 0) {
        return read;
    }
    orx_test::Answer const answer = orx_test::answerFor(wide(caller), code, wide(text));
    switch (answer.kind) {
        case orx_test::AnswerKind::kFailure:
            return sd_bus_reply_method_errorf(call, "com.kelvara.Test.Failed", "asked to fail");
        case orx_test::AnswerKind::kText:
            return sd_bus_reply_method_return(call, "s", "not a number");
        case orx_test::AnswerKind::kNumber:
            break;
    }
    return sd_bus_reply_method_return(call, "i", static_cast<std::int32_t>(answer.number));
}

sd_bus_vtable const kVtable[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("SendData", "sis", "i", sendData, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};

int serve(char const* busName) {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) < 0 ||
        sd_bus_add_object_vtable(bus, nullptr, "/com/kelvara/Automation", "com.kelvara.Automation",
                                 kVtable, nullptr) < 0 ||
        sd_bus_request_name(bus, busName, 0) < 0) {
        std::fprintf(stderr, "orx_dbus_test_server: cannot serve %s\n", busName);
        sd_bus_unref(bus);
        return 1;
    }
    while (g_stop == 0) {
        int const processed = sd_bus_process(bus, nullptr);
        if (processed < 0) {
            break;
        }
        if (processed == 0) {
            sd_bus_wait(bus, kWakeUpMicroseconds);
        }
    }
    sd_bus_flush_close_unref(bus);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s <progId> <classId> <busName>\n", argv[0]);
        return 64;
    }
    std::signal(SIGTERM, [](int) { g_stop = 1; });
    COrxString const progId = COrxString().fromMultiByte(argv[1], 65001);
    COrxString const classId = COrxString().fromMultiByte(argv[2], 65001);
    std::string const self = std::filesystem::read_symlink("/proc/self/exe").string();
    COrxString const program = COrxString().fromMultiByte(self.c_str(), 65001);
    if (!orx_test::registerServer(progId, classId, program)) {
        std::fprintf(stderr, "orx_dbus_test_server: cannot register %s\n", argv[1]);
        return 1;
    }
    int const status = serve(argv[3]);
    orx_test::unregisterServer(progId, classId);
    return status;
}
