#include "orx/services/posix/handle_table.h"

#include <cerrno>
#include <cstdint>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "orx/services/handles.h"
#include "orx/services/internal/os_handles.h"

namespace ORX::internal {
namespace {

// Handle values step by 4 as Windows handle values do; 2^62 handles do not run out.
constexpr std::uintptr_t kHandleStep = 4;

class HandleTable {
public:
    void* open(std::shared_ptr<HandleObject> object) {
        std::lock_guard<std::mutex> const lock(m_mutex);
        m_last += kHandleStep;
        m_entries.emplace(m_last, std::move(object));
        return reinterpret_cast<void*>(m_last);
    }

    std::shared_ptr<HandleObject> find(void* handle) {
        std::lock_guard<std::mutex> const lock(m_mutex);
        auto const entry = m_entries.find(reinterpret_cast<std::uintptr_t>(handle));
        return entry == m_entries.end() ? nullptr : entry->second;
    }

    bool close(void* handle) {
        std::shared_ptr<HandleObject> last;  // freed after the lock is released
        std::lock_guard<std::mutex> const lock(m_mutex);
        auto const entry = m_entries.find(reinterpret_cast<std::uintptr_t>(handle));
        if (entry == m_entries.end()) {
            return false;
        }
        last = std::move(entry->second);
        m_entries.erase(entry);
        return true;
    }

private:
    std::mutex m_mutex;
    std::uintptr_t m_last = 0;
    std::unordered_map<std::uintptr_t, std::shared_ptr<HandleObject>> m_entries;
};

HandleTable& table() {
    static HandleTable handles;
    return handles;
}

}  // namespace

HandleObject::~HandleObject() = default;

void* openHandle(std::shared_ptr<HandleObject> object) {
    return table().open(std::move(object));
}

std::shared_ptr<HandleObject> objectOf(void* handle) {
    return table().find(handle);
}

void* invalidHandle() {
    return reinterpret_cast<void*>(~std::uintptr_t{0});
}

bool closeOsHandle(void* handle) {
    if (!table().close(handle)) {
        errno = EBADF;
        return false;
    }
    return true;
}

void* duplicateOsHandle(void* handle) {
    std::shared_ptr<HandleObject> object = objectOf(handle);
    if (object == nullptr) {
        errno = EBADF;
        return invalidHandle();
    }
    return openHandle(std::move(object));
}

}  // namespace ORX::internal

namespace ORX {

bool waitForHandle(void* handle, unsigned long milliseconds) {
    std::shared_ptr<internal::HandleObject> const object = internal::objectOf(handle);
    if (object == nullptr) {
        errno = EBADF;
        return false;
    }
    return object->wait(milliseconds);
}

}  // namespace ORX
