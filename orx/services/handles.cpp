#include "orx/services/handles.h"

#include "orx/services/internal/os_handles.h"

namespace ORX {
namespace {

void* ownedOrInvalid(void* handle) {
    return handle == nullptr ? internal::invalidHandle() : handle;
}

void* duplicateOf(CSmartHandle const& other) {
    return other.isClosed() ? internal::invalidHandle()
                            : internal::duplicateOsHandle(other.handle());
}

}  // namespace

CSmartHandle::CSmartHandle() : m_handle(internal::invalidHandle()) {}

CSmartHandle::CSmartHandle(void* handle) : m_handle(ownedOrInvalid(handle)) {}

CSmartHandle::CSmartHandle(CSmartHandle const& other) : m_handle(duplicateOf(other)) {}

CSmartHandle& CSmartHandle::operator=(CSmartHandle const& other) {
    if (this != &other) {
        close();
        m_handle = duplicateOf(other);
    }
    return *this;
}

CSmartHandle::CSmartHandle(CSmartHandle&& other) noexcept : m_handle(other.detach()) {}

CSmartHandle& CSmartHandle::operator=(CSmartHandle&& other) noexcept {
    if (this != &other) {
        close();
        m_handle = other.detach();
    }
    return *this;
}

CSmartHandle& CSmartHandle::operator=(void* handle) {
    if (handle != m_handle) {
        close();
        m_handle = ownedOrInvalid(handle);
    }
    return *this;
}

CSmartHandle::~CSmartHandle() {
    close();
}

bool CSmartHandle::close() {
    if (isClosed()) {
        return false;
    }
    internal::closeOsHandle(m_handle);
    m_handle = internal::invalidHandle();
    return true;
}

void* CSmartHandle::detach() {
    void* const handle = m_handle;
    m_handle = internal::invalidHandle();
    return handle;
}

bool CSmartHandle::isClosed() const {
    return m_handle == internal::invalidHandle();
}

}  // namespace ORX
