#include "orx/services/work_dir.h"

#include "orx/services/files.h"
#include "orx/services/internal/file_system.h"

namespace ORX {

CWorkDirOverride::CWorkDirOverride() {
    GetCurrentDirectoryW(m_previous);
}

CWorkDirOverride::CWorkDirOverride(wchar_t const* dir) {
    GetCurrentDirectoryW(m_previous);
    if (dir != nullptr) {
        internal::setCurrentDirectory(dir);
    }
}

CWorkDirOverride::CWorkDirOverride(CWorkDirOverride const& other) = default;

CWorkDirOverride& CWorkDirOverride::operator=(CWorkDirOverride const& other) = default;

CWorkDirOverride::~CWorkDirOverride() {
    internal::setCurrentDirectory(m_previous);
}

}  // namespace ORX
