// The backend's half of COrxErrorHandler: the per-thread translator and the process-wide
// machinery that calls it.
#ifndef ORX_SERVICES_INTERNAL_FAULT_TRANSLATION_H
#define ORX_SERVICES_INTERNAL_FAULT_TRANSLATION_H

#include "orx/services/error_handler.h"

namespace ORX::internal {

// Makes `translator` the calling thread's translator (null: none) and returns the one it
// replaces. Installs the process-wide fault handling the first time it is needed.
COrxErrorHandler::Translator exchangeTranslator(COrxErrorHandler::Translator translator);

}  // namespace ORX::internal

#endif  // ORX_SERVICES_INTERNAL_FAULT_TRANSLATION_H
