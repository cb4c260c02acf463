// The backend's handle operations behind ORX::CSmartHandle.
#ifndef ORX_SERVICES_INTERNAL_OS_HANDLES_H
#define ORX_SERVICES_INTERNAL_OS_HANDLES_H

namespace ORX::internal {

// INVALID_HANDLE_VALUE: all bits set.
void* invalidHandle();
// False when the system refused (a bad handle).
bool closeOsHandle(void* handle);
// A second handle to the same object, to be closed on its own; invalidHandle() on failure.
void* duplicateOsHandle(void* handle);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_OS_HANDLES_H
