// SendData over the D-Bus session bus, at the bus name made from the ProgID (see com.h).
#include <systemd/sd-bus.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "orx/foundation/shared/utf8.h"
#include "orx/services/com.h"
#include "orx/services/internal/com_server.h"

namespace ORX {
namespace {

constexpr char const* kBusNamePrefix = "com.kelvara.progid";
constexpr char const* kObjectPath = "/com/kelvara/Automation";
constexpr char const* kInterface = "com.kelvara.Automation";
constexpr char const* kMethod = "SendData";
// The longest bus name the bus accepts.
constexpr std::size_t kMaxBusName = 255;
// The failure HRESULTs of dispatchFromProgID, as the negative numbers they are.
constexpr long kNotImplemented = static_cast<std::int32_t>(0x80004001u);
constexpr long kBadPointer = static_cast<std::int32_t>(0x80004003u);

bool keepsItsByte(unsigned char byte, bool startsElement) {
    return (byte >= 'a' && byte <= 'z') || (!startsElement && byte >= '0' && byte <= '9');
}

// One "."-separated element of the ProgID, escaped so that every ProgID gets its own name.
void appendElement(std::string& name, std::string const& element) {
    name += '.';
    if (element.empty()) {
        name += '_';
    }
    for (std::size_t i = 0; i < element.size(); ++i) {
        auto const byte = static_cast<unsigned char>(element[i]);
        if (keepsItsByte(byte, i == 0)) {
            name += static_cast<char>(byte);
        } else {
            char escaped[4];
            std::snprintf(escaped, sizeof escaped, "_%02x", byte);
            name += escaped;
        }
    }
}

// Empty when the name would be too long for the bus.
std::string busName(COrxString progId) {
    progId.makeLower();
    wchar_t const* const text = progId;
    std::string const utf8 = internal::toUtf8(text == nullptr ? L"" : text);
    std::string name = kBusNamePrefix;
    std::size_t start = 0;
    for (;;) {
        std::size_t const end = utf8.find('.', start);
        appendElement(name, utf8.substr(start, end - start));
        if (end == std::string::npos) {
            break;
        }
        start = end + 1;
    }
    return name.size() <= kMaxBusName ? name : std::string();
}

// The reply's 32-bit integer, or -1 for any other reply.
int answerOf(sd_bus_message* reply) {
    char const* const signature = sd_bus_message_get_signature(reply, 1);
    std::int32_t answer = -1;
    if (signature == nullptr || std::strcmp(signature, "i") != 0 ||
        sd_bus_message_read(reply, "i", &answer) < 0) {
        return -1;
    }
    return answer;
}

int callSendData(sd_bus* bus, std::string const& name, int code, wchar_t const* text) {
    sd_bus_message* call = nullptr;
    sd_bus_message* reply = nullptr;
    sd_bus_error error = SD_BUS_ERROR_NULL;
    int answer = -1;
    // No auto-start: a server that is not running is an answer, not a reason to launch one.
    if (sd_bus_message_new_method_call(bus, &call, name.c_str(), kObjectPath, kInterface,
                                       kMethod) >= 0 &&
        sd_bus_message_set_auto_start(call, 0) >= 0 &&
        sd_bus_message_append(call, "sis", "ORX", static_cast<std::int32_t>(code),
                              internal::toUtf8(text).c_str()) >= 0 &&
        sd_bus_call(bus, call, static_cast<std::uint64_t>(kMessageTimeoutMs) * 1000, &error,
                    &reply) >= 0) {
        answer = answerOf(reply);
    }
    sd_bus_error_free(&error);
    sd_bus_message_unref(reply);
    sd_bus_message_unref(call);
    return answer;
}

}  // namespace

long dispatchFromProgID(wchar_t const*, IDispatch** out) {
    if (out == nullptr) {
        return kBadPointer;
    }
    *out = nullptr;
    return kNotImplemented;
}

namespace internal {

// Every call opens a connection of its own, so that threads and forked children never
// share one.
int sendData(wchar_t const* progId, int code, wchar_t const* text) {
    std::string const name = busName(resolvedProgId(progId));
    sd_bus* bus = nullptr;
    if (name.empty() || sd_bus_open_user(&bus) < 0) {
        return -1;
    }
    int const answer = callSendData(bus, name, code, text);
    sd_bus_flush_close_unref(bus);
    return answer;
}

bool fileExists(wchar_t const* path) {
    COrxString local(path);
    local.replace(L'\\', L'/');  // as the library's file functions read paths
    wchar_t const* const text = local;
    return text != nullptr && access(toUtf8(text).c_str(), F_OK) == 0;
}

}  // namespace internal
}  // namespace ORX
