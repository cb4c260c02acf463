#include <windows.h>

#include "orx/services/handles.h"
#include "orx/services/internal/os_handles.h"

namespace ORX {

bool waitForHandle(void* handle, unsigned long milliseconds) {
    return WaitForSingleObject(handle, milliseconds) == WAIT_OBJECT_0;
}

namespace internal {

void* invalidHandle() {
    return INVALID_HANDLE_VALUE;
}

bool closeOsHandle(void* handle) {
    return CloseHandle(handle) != FALSE;
}

void* duplicateOsHandle(void* handle) {
    HANDLE const process = GetCurrentProcess();
    HANDLE duplicate = nullptr;
    if (!DuplicateHandle(process, handle, process, &duplicate, 0, FALSE, DUPLICATE_SAME_ACCESS)) {
        return INVALID_HANDLE_VALUE;
    }
    return duplicate;
}

}  // namespace internal
}  // namespace ORX
