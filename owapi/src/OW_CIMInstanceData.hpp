// The storage behind CIMInstance (private to the library).
#ifndef OW_CIMINSTANCEDATA_HPP_INCLUDE_GUARD_
#define OW_CIMINSTANCEDATA_HPP_INCLUDE_GUARD_
#include "OW_CIMInstance.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"

namespace OW_NAMESPACE {

struct CIMInstance::INSTData : public COWIntrusiveCountableBase {
  String className;
  String nameSpace;
  String language;
  // Copies of the key properties; rebuilt only by the operations that are documented to.
  CIMPropertyArray keys;
  CIMPropertyArray properties;
  CIMQualifierArray qualifiers;
};

}  // namespace OW_NAMESPACE

#endif
