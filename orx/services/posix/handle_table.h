// The Linux stand-in for kernel handles: a process-wide table from handle values to objects
// the library created. Each handle value is one entry holding a shared reference to its
// object, so an object lives while it has open handles or is still in use (a running thread
// holds its own reference).
#ifndef ORX_SERVICES_POSIX_HANDLE_TABLE_H
#define ORX_SERVICES_POSIX_HANDLE_TABLE_H

#include <memory>

namespace ORX::internal {

// An object a handle can name.
class HandleObject {
public:
    HandleObject() = default;
    virtual ~HandleObject();
    HandleObject(HandleObject const&) = delete;
    HandleObject& operator=(HandleObject const&) = delete;

    // Waits until the object is signalled, at most `milliseconds` (ORX::kWaitForever: no
    // limit). True when it was signalled.
    virtual bool wait(unsigned long milliseconds) = 0;
};

// A new handle to `object`: a value that is never null, never all bits set and never reused.
void* openHandle(std::shared_ptr<HandleObject> object);
// The object behind `handle`, or null when `handle` is not an open handle.
std::shared_ptr<HandleObject> objectOf(void* handle);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_POSIX_HANDLE_TABLE_H
