// ORX::CWorkDirOverride: changes the process's current directory for a scope.
//
//     {
//         ORX::CWorkDirOverride inProject(L"C:\\projects\\hall");
//         ORX::fileDir(drawings, L"*.dwg", 0);      // relative to the project folder
//     }                                             // the previous directory is current again
//
// Overrides nest: each one puts back the directory that was current when it was made, so
// nested ones restore in reverse order. The current directory is process-wide: other threads
// see the change too.
#ifndef ORX_SERVICES_WORK_DIR_H
#define ORX_SERVICES_WORK_DIR_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

class ORX_API CWorkDirOverride {
public:
    // Only records the current directory (ORX::GetCurrentDirectoryW).
    CWorkDirOverride();
    // Records the current directory, then makes dir current unless dir is null. A directory
    // that cannot be entered leaves the current one as it is; it is still put back later.
    // On Linux '\' in dir is turned into '/'.
    explicit CWorkDirOverride(wchar_t const* dir);
    // Copies record the same directory, and each of them puts it back when it ends.
    CWorkDirOverride(CWorkDirOverride const& other);
    CWorkDirOverride& operator=(CWorkDirOverride const& other);
    // Makes the recorded directory current again.
    ~CWorkDirOverride();

private:
    COrxString m_previous;
};

}  // namespace ORX

#endif  // ORX_SERVICES_WORK_DIR_H
