// CIMValue: construction, typed reads (ValueCastException on a mismatch) and comparison.
#include "OW_CIMValue.hpp"

#include "OW_CIMValueCast.hpp"
#include "OW_CIMValueImpl.hpp"

namespace OW_NAMESPACE {

namespace {
const CIMDataType::Type kScalarTypes[kScalarCount] = {
    CIMDataType::BOOLEAN,       CIMDataType::CHAR16,          CIMDataType::UINT8,
    CIMDataType::SINT8,         CIMDataType::UINT16,          CIMDataType::SINT16,
    CIMDataType::UINT32,        CIMDataType::SINT32,          CIMDataType::UINT64,
    CIMDataType::SINT64,        CIMDataType::REAL32,          CIMDataType::REAL64,
    CIMDataType::STRING,        CIMDataType::DATETIME,        CIMDataType::REFERENCE,
    CIMDataType::EMBEDDEDCLASS, CIMDataType::EMBEDDEDINSTANCE};
const char* const kCastMsg = "Failed to convert a CIMValue of type ";
const char* const kCastToMsg = " to the requested type";

template <typename T>
struct IsPlainNumber {
  static const bool value = std::is_arithmetic<T>::value;
};

[[noreturn]] void throwCast(const CIMValue& v) {
  String msg =
      String(kCastMsg) + v.getCIMDataType().toString() + (v.isArray() ? "[]" : "") + kCastToMsg;
  OW_THROW(ValueCastException, msg.c_str());
}

// Reads the stored alternative T; a scalar SINT64 may also be read as any plain number.
template <typename T>
void readAs(const CIMValue& self, const CIMValueVariant& v, T& x) {
  if (const T* p = std::get_if<T>(&v)) {
    x = *p;
    return;
  }
  if constexpr (IsPlainNumber<T>::value) {
    if (const Int64* p = std::get_if<Int64>(&v)) {
      x = static_cast<T>(*p);
      return;
    }
  }
  throwCast(self);
}

template <typename T>
T readValue(const CIMValue& self) {
  T x;
  self.get(x);
  return x;
}
}  // namespace

CIMDataType::Type CIMValue::CIMValueImpl::type() const {
  return kScalarTypes[value.index() % kScalarCount];
}

CIMValue::CIMValue(CIMNULL_t) : m_impl(0) {}
CIMValue::CIMValue(const CIMValue& x) : CIMBase(), m_impl(x.m_impl) {}
CIMValue::CIMValue(bool x) : m_impl(new CIMValueImpl(Bool(x))) {}
CIMValue::CIMValue(const char* x) : m_impl(new CIMValueImpl(String(x))) {}
CIMValue::~CIMValue() {}

// One constructor, reader and converter per storable type.
CIMValue::CIMValue(Bool x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Char16& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(UInt8 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(Int8 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(UInt16 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(Int16 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(UInt32 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(Int32 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(UInt64 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(Int64 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(Real32 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(Real64 x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const String& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMDateTime& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMObjectPath& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMClass& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMInstance& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const BoolArray& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Char16Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const UInt8Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Int8Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const UInt16Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Int16Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const UInt32Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Int32Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const UInt64Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Int64Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Real32Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const Real64Array& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const StringArray& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMDateTimeArray& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMObjectPathArray& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMClassArray& x) : m_impl(new CIMValueImpl(x)) {}
CIMValue::CIMValue(const CIMInstanceArray& x) : m_impl(new CIMValueImpl(x)) {}
void CIMValue::get(Bool& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Char16& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt8& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int8& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt16& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int16& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt32& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int32& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt64& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int64& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Real32& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Real64& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(String& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMDateTime& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMObjectPath& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMClass& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMInstance& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(BoolArray& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Char16Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt8Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int8Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt16Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int16Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt32Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int32Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(UInt64Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Int64Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Real32Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(Real64Array& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(StringArray& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMDateTimeArray& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMObjectPathArray& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMClassArray& x) const {
  readAs(*this, m_impl->value, x);
}
void CIMValue::get(CIMInstanceArray& x) const {
  readAs(*this, m_impl->value, x);
}
Bool CIMValue::toBool() const {
  return readValue<Bool>(*this);
}
Char16 CIMValue::toChar16() const {
  return readValue<Char16>(*this);
}
UInt8 CIMValue::toUInt8() const {
  return readValue<UInt8>(*this);
}
Int8 CIMValue::toInt8() const {
  return readValue<Int8>(*this);
}
UInt16 CIMValue::toUInt16() const {
  return readValue<UInt16>(*this);
}
Int16 CIMValue::toInt16() const {
  return readValue<Int16>(*this);
}
UInt32 CIMValue::toUInt32() const {
  return readValue<UInt32>(*this);
}
Int32 CIMValue::toInt32() const {
  return readValue<Int32>(*this);
}
UInt64 CIMValue::toUInt64() const {
  return readValue<UInt64>(*this);
}
Int64 CIMValue::toInt64() const {
  return readValue<Int64>(*this);
}
Real32 CIMValue::toReal32() const {
  return readValue<Real32>(*this);
}
Real64 CIMValue::toReal64() const {
  return readValue<Real64>(*this);
}
CIMDateTime CIMValue::toCIMDateTime() const {
  return readValue<CIMDateTime>(*this);
}
CIMObjectPath CIMValue::toCIMObjectPath() const {
  return readValue<CIMObjectPath>(*this);
}
CIMClass CIMValue::toCIMClass() const {
  return readValue<CIMClass>(*this);
}
CIMInstance CIMValue::toCIMInstance() const {
  return readValue<CIMInstance>(*this);
}
BoolArray CIMValue::toBoolArray() const {
  return readValue<BoolArray>(*this);
}
Char16Array CIMValue::toChar16Array() const {
  return readValue<Char16Array>(*this);
}
UInt8Array CIMValue::toUInt8Array() const {
  return readValue<UInt8Array>(*this);
}
Int8Array CIMValue::toInt8Array() const {
  return readValue<Int8Array>(*this);
}
UInt16Array CIMValue::toUInt16Array() const {
  return readValue<UInt16Array>(*this);
}
Int16Array CIMValue::toInt16Array() const {
  return readValue<Int16Array>(*this);
}
UInt32Array CIMValue::toUInt32Array() const {
  return readValue<UInt32Array>(*this);
}
Int32Array CIMValue::toInt32Array() const {
  return readValue<Int32Array>(*this);
}
UInt64Array CIMValue::toUInt64Array() const {
  return readValue<UInt64Array>(*this);
}
Int64Array CIMValue::toInt64Array() const {
  return readValue<Int64Array>(*this);
}
Real32Array CIMValue::toReal32Array() const {
  return readValue<Real32Array>(*this);
}
Real64Array CIMValue::toReal64Array() const {
  return readValue<Real64Array>(*this);
}
StringArray CIMValue::toStringArray() const {
  return readValue<StringArray>(*this);
}
CIMDateTimeArray CIMValue::toCIMDateTimeArray() const {
  return readValue<CIMDateTimeArray>(*this);
}
CIMObjectPathArray CIMValue::toCIMObjectPathArray() const {
  return readValue<CIMObjectPathArray>(*this);
}
CIMClassArray CIMValue::toCIMClassArray() const {
  return readValue<CIMClassArray>(*this);
}
CIMInstanceArray CIMValue::toCIMInstanceArray() const {
  return readValue<CIMInstanceArray>(*this);
}

CIMValue CIMValue::createSimpleValue(const String& cimtype, const String& value) {
  CIMDataType::Type type = CIMDataType::strToSimpleType(cimtype);
  if (type == CIMDataType::INVALID) {
    return CIMValue(CIMNULL);
  }
  return CIMValueCast::castValueToDataType(CIMValue(value), CIMDataType(type));
}

void CIMValue::setNull() {
  m_impl = 0;
}

CIMValue& CIMValue::set(const CIMValue& val) {
  m_impl = val.m_impl;
  return *this;
}

CIMValue& CIMValue::operator=(const CIMValue& x) {
  m_impl = x.m_impl;
  return *this;
}

CIMValue::operator safe_bool() const {
  return m_impl ? &CIMValue::m_impl : 0;
}
bool CIMValue::operator!() const {
  return !m_impl;
}

UInt32 CIMValue::getArraySize() const {
  const CIMValueImpl& impl = *m_impl;
  if (!impl.isArray()) {
    return 1;
  }
  return std::visit(
      [](const auto& v) -> UInt32 {
        if constexpr (kIsArray<std::decay_t<decltype(v)>>) {
          return static_cast<UInt32>(v.size());
        } else {
          return 1;
        }
      },
      impl.value);
}

CIMDataType::Type CIMValue::getType() const {
  return m_impl->type();
}

CIMDataType CIMValue::getCIMDataType() const {
  if (isArray()) {
    return CIMDataType(getType(), 0);
  }
  if (getType() == CIMDataType::REFERENCE) {
    return CIMDataType(CIMName(toCIMObjectPath().getClassName()));
  }
  return CIMDataType(getType());
}

bool CIMValue::sameType(const CIMValue& x) const {
  return getType() == x.getType() && isArray() == x.isArray();
}

bool CIMValue::isArray() const {
  return m_impl->isArray();
}
bool CIMValue::isNumericType() const {
  return CIMDataType::isNumericType(getType());
}

}  // namespace OW_NAMESPACE
