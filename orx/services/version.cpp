#include "orx/services/version.h"

namespace ORX {

wchar_t const* version() {
    return L"2017.0";
}

}  // namespace ORX
