// ORX::CSmartHandle: owns one operating-system handle and closes it.
//
//     ORX::CSmartHandle thread(ORX::runThread(&work, &data, 0, 0));
//     ORX::waitForHandle(thread.handle(), ORX::kWaitForever);
//     // the destructor closes the handle
//
// On Windows a handle is a kernel handle, closed with CloseHandle. Linux has no such thing, so
// there a handle is an entry in the library's own handle table: a unique value (never null,
// never all bits set, never reused) naming an object the library created, such as the thread
// of ORX::runThread. Closing the handle drops the entry, not the object: a thread goes on
// running, as it does on Windows, and is freed when it has ended and its last handle is
// closed. A value that is not an open entry is refused by every function here.
#ifndef ORX_SERVICES_HANDLES_H
#define ORX_SERVICES_HANDLES_H

#include "orx/foundation/platform.h"

namespace ORX {

// The wait time of ORX::waitForHandle that never runs out (Windows' INFINITE).
constexpr unsigned long kWaitForever = 0xFFFFFFFFul;

// Waits until the object behind `handle` is signalled (a thread: it has ended), at most
// `milliseconds`. True when it was signalled; false on time-out or for a bad handle.
ORX_API bool waitForHandle(void* handle, unsigned long milliseconds);

class ORX_API CSmartHandle {
public:
    // Holds no handle.
    CSmartHandle();
    // Takes ownership of `handle`; null and INVALID_HANDLE_VALUE mean no handle.
    CSmartHandle(void* handle);
    // Holds a duplicate of other's handle (its own, closed independently); no handle when
    // other holds none or the handle cannot be duplicated.
    CSmartHandle(CSmartHandle const& other);
    // Closes the held handle, then holds a duplicate of other's as the copy constructor does.
    CSmartHandle& operator=(CSmartHandle const& other);
    // Take over other's handle; other holds none afterwards.
    CSmartHandle(CSmartHandle&& other) noexcept;
    CSmartHandle& operator=(CSmartHandle&& other) noexcept;
    // Nothing when `handle` is the one held; else closes the held one and takes `handle`
    // (null: no handle).
    CSmartHandle& operator=(void* handle);
    // Closes the held handle.
    virtual ~CSmartHandle();

    // False when no handle is held; else closes it, holds none and returns true (also when
    // the system refused to close it, as the handle is not held any more either way).
    virtual bool close();
    // Gives up the handle without closing it; the caller owns it now.
    void* detach();
    bool isClosed() const;
    // The held handle; INVALID_HANDLE_VALUE (all bits set) when none.
    void* handle() const { return m_handle; }

private:
    void* m_handle;
};

}  // namespace ORX

#endif  // ORX_SERVICES_HANDLES_H
