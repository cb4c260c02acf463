#include "orx/services/error_handler.h"

#include "orx/services/internal/fault_translation.h"

COrxErrorHandler::COrxErrorHandler() : COrxErrorHandler(&COrxErrorHandler::transFunc) {}

COrxErrorHandler::COrxErrorHandler(Translator translator)
    : m_previous(ORX::internal::exchangeTranslator(translator)) {}

COrxErrorHandler::~COrxErrorHandler() {
    ORX::internal::exchangeTranslator(m_previous);
}

void COrxErrorHandler::transFunc(unsigned int code, _EXCEPTION_POINTERS*) {
    throw code;
}
