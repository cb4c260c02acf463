// ORX::CPtrMap: a process-wide table of counted pointers, for classes that publish pointers
// as integer references (handles).
//
// A derived class registers a pointer with newRef, shares the reference, counts further
// holders with incrRef and drops them with decrRef. The table neither frees nor clears the
// pointer: when the count reaches 0 the owner releases the object, and the reference is
// handed out again by a later newRef (the first freed is reused first, before the table
// grows). The table is unsynchronised: callers that use it from several threads serialise
// themselves.
//
//     class CHandles : public ORX::CPtrMap {
//     public:
//         int publish(void* object) { return newRef(object); }
//         void* object(int ref) const { return ptrAt(ref); }
//     };
#ifndef ORX_FOUNDATION_PTR_MAP_H
#define ORX_FOUNDATION_PTR_MAP_H

#include "orx/foundation/platform.h"

namespace ORX {

class ORX_API CPtrMap {
protected:
    CPtrMap() = default;
    CPtrMap(CPtrMap const&) = default;
    CPtrMap& operator=(CPtrMap const&) = default;
    ~CPtrMap() = default;

    // Registers p with count 1 and returns its reference (-1 only when the table is full).
    static int newRef(void* p);
    // Count of reference i plus one; an unknown reference is ignored. A freed reference
    // counted up again is in use once more and no longer handed out by newRef.
    static void incrRef(int i);
    // Count of reference i minus one; returns the new count. On reaching 0 the reference
    // becomes free for reuse, once however often it reaches 0 (a further decrement leaves
    // the count negative and frees nothing again). -1 for an unknown reference.
    static int decrRef(int i);
    // The pointer of reference i (kept after its count dropped to 0); null when unknown.
    static void* ptrAt(int i);
    // The count of reference i; -1 when unknown.
    static int refCount(int i);
};

}  // namespace ORX

#endif  // ORX_FOUNDATION_PTR_MAP_H
