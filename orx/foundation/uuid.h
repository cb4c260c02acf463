// New unique identifiers in the form the registry writes them.
//
//     COrxString id = ORX::strUuidCreate();   // "{3F2504E0-4F89-41D3-9A0C-0305E82C3301}"
#ifndef ORX_FOUNDATION_UUID_H
#define ORX_FOUNDATION_UUID_H

#include "orx/foundation/platform.h"
#include "orx/foundation/string.h"

namespace ORX {

// A random UUID (RFC 4122 version 4: 122 random bits from the system's random source, the
// version digit 4 and the variant bits 10) as "{XXXXXXXX-XXXX-4XXX-YXXX-XXXXXXXXXXXX}" with
// upper-case hex digits, Y one of 8, 9, A, B. The null string when the system gives no random
// numbers.
ORX_API COrxString strUuidCreate();

}  // namespace ORX

#endif  // ORX_FOUNDATION_UUID_H
