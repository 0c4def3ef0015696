// The storage behind CIMValue: one variant over every scalar and array type (private).
#ifndef OW_CIMVALUEIMPL_HPP_INCLUDE_GUARD_
#define OW_CIMVALUEIMPL_HPP_INCLUDE_GUARD_
#include <variant>

#include "OW_Bool.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMDateTime.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMValue.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_Char16.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

// The first kScalarCount alternatives are scalars; the rest are arrays of them, same order.
typedef std::variant<Bool, Char16, UInt8, Int8, UInt16, Int16, UInt32, Int32, UInt64, Int64, Real32,
                     Real64, String, CIMDateTime, CIMObjectPath, CIMClass, CIMInstance, BoolArray,
                     Char16Array, UInt8Array, Int8Array, UInt16Array, Int16Array, UInt32Array,
                     Int32Array, UInt64Array, Int64Array, Real32Array, Real64Array, StringArray,
                     CIMDateTimeArray, CIMObjectPathArray, CIMClassArray, CIMInstanceArray>
    CIMValueVariant;

const size_t kScalarCount = 17;

template <typename T>
constexpr bool kIsArray = false;
template <typename T>
constexpr bool kIsArray<Array<T> > = true;

class CIMValue::CIMValueImpl : public COWIntrusiveCountableBase {
 public:
  template <typename T>
  explicit CIMValueImpl(const T& v) : value(std::in_place_type<T>, v) {}

  bool isArray() const { return value.index() >= kScalarCount; }
  CIMDataType::Type type() const;

  CIMValueVariant value;
};

}  // namespace OW_NAMESPACE

#endif
