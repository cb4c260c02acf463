// Fault translation under MSVC: the runtime's own per-thread structured-exception translator.
// Code that may fault inside a scope must be built with /EHa.
#if defined(_MSC_VER)

#include <eh.h>

#include "orx/services/internal/fault_translation.h"

namespace ORX::internal {

COrxErrorHandler::Translator exchangeTranslator(COrxErrorHandler::Translator translator) {
    return _set_se_translator(translator);
}

}  // namespace ORX::internal

#endif  // _MSC_VER
