// The named exception classes of the API and the helpers that throw them.
#include <new>

#include "OW_Array.hpp"
#include "OW_Assertion.hpp"
#include "OW_CIMDateTime.hpp"
#include "OW_CIMValueCast.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_COWReferenceBase.hpp"
#include "OW_Enumeration.hpp"
#include "OW_Logger.hpp"
#include "OW_NULLValueException.hpp"
#include "OW_NoSuchPropertyException.hpp"
#include "OW_NoSuchQualifierException.hpp"
#include "OW_OperationContext.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

OW_DEFINE_EXCEPTION(StringConversion)
OW_DEFINE_EXCEPTION(OutOfBounds)
OW_DEFINE_EXCEPTION(ValueCast)
OW_DEFINE_EXCEPTION(NULLValue)
OW_DEFINE_EXCEPTION(NoSuchProperty)
OW_DEFINE_EXCEPTION(NoSuchQualifier)
OW_DEFINE_EXCEPTION(CIMDateTime)
OW_DEFINE_EXCEPTION(Enumeration)
OW_DEFINE_EXCEPTION(Logger)
OW_DEFINE_EXCEPTION(ContextDataNotFound)
OW_DEFINE_EXCEPTION(Assertion)

// Known to callers only as an Exception, as in the released library.
OW_DECLARE_EXCEPTION(NULLCOWIntrusiveReference)
OW_DEFINE_EXCEPTION(NULLCOWIntrusiveReference)
OW_DECLARE_EXCEPTION(NULLCOWReference)
OW_DEFINE_EXCEPTION(NULLCOWReference)

namespace {
const char* const kNullReferenceMsg = "NULL COWIntrusiveReference dereferenced";
const char* const kNullCOWReferenceMsg = "NULL COWReference dereferenced";
const char* const kOutOfBoundsMsg = "Array Index out of bounds";
}  // namespace

void COWIntrusiveReferenceHelpers::throwNULLException() {
  OW_THROW(NULLCOWIntrusiveReferenceException, kNullReferenceMsg);
}

void COWReferenceBase::throwNULLException() {
  OW_THROW(NULLCOWReferenceException, kNullCOWReferenceMsg);
}

void throwArrayOutOfBoundsIfNecessary(size_t idx, size_t size) {
  if (idx >= size) {
    OW_THROW(OutOfBoundsException, kOutOfBoundsMsg);
  }
}

void throwEnumerationException(const char* msg) {
  OW_THROW(EnumerationException, msg);
}

}  // namespace OW_NAMESPACE
