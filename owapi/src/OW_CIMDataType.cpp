// CIMDataType: type code, array size and referenced class, with their text forms.
#include "OW_CIMDataType.hpp"

#include "OW_CIMName.hpp"
#include "OW_CIMValue.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

struct CIMDataType::DTData : public COWIntrusiveCountableBase {
  CIMDataType::Type type = CIMDataType::CIMNULL;
  int sizeRange = CIMDataType::SIZE_SINGLE;
  Int32 numberOfElements = 1;
  String refClassName;
};

namespace {
struct TypeName {
  CIMDataType::Type type;
  const char* name;
};
const TypeName kTypeNames[] = {{CIMDataType::UINT8, "uint8"},
                               {CIMDataType::SINT8, "sint8"},
                               {CIMDataType::UINT16, "uint16"},
                               {CIMDataType::SINT16, "sint16"},
                               {CIMDataType::UINT32, "uint32"},
                               {CIMDataType::SINT32, "sint32"},
                               {CIMDataType::UINT64, "uint64"},
                               {CIMDataType::SINT64, "sint64"},
                               {CIMDataType::STRING, "string"},
                               {CIMDataType::BOOLEAN, "boolean"},
                               {CIMDataType::REAL32, "real32"},
                               {CIMDataType::REAL64, "real64"},
                               {CIMDataType::DATETIME, "datetime"},
                               {CIMDataType::CHAR16, "char16"},
                               {CIMDataType::REFERENCE, "REF"},
                               {CIMDataType::EMBEDDEDCLASS, "embeddedclass"},
                               {CIMDataType::EMBEDDEDINSTANCE, "embeddedinstance"}};
const char* const kNullTypeName = "NULL";
const char* const kInvalidTypeName = "INVALID";
}  // namespace

CIMDataType::CIMDataType() : m_pdata(new DTData) {}

CIMDataType::CIMDataType(Type type) : m_pdata(new DTData) {
  m_pdata->type = type;
}

CIMDataType::CIMDataType(CIMNULL_t) : m_pdata(0) {}

CIMDataType::CIMDataType(Type type, Int32 size) : m_pdata(new DTData) {
  m_pdata->type = type;
  setToArrayType(size);
}

CIMDataType::CIMDataType(const CIMDataType& arg) : CIMBase(), m_pdata(arg.m_pdata) {}

CIMDataType::CIMDataType(const CIMName& refClassName) : m_pdata(new DTData) {
  m_pdata->type = REFERENCE;
  m_pdata->refClassName = refClassName.toString();
}

CIMDataType::~CIMDataType() {}
void CIMDataType::setNull() {
  m_pdata = 0;
}

CIMDataType& CIMDataType::operator=(const CIMDataType& arg) {
  m_pdata = arg.m_pdata;
  return *this;
}

bool CIMDataType::isArrayType() const {
  return m_pdata->sizeRange != SIZE_SINGLE;
}
bool CIMDataType::isNumericType() const {
  return isNumericType(m_pdata->type);
}

bool CIMDataType::isNumericType(Type type) {
  switch (type) {
    case UINT8:
    case SINT8:
    case UINT16:
    case SINT16:
    case UINT32:
    case SINT32:
    case UINT64:
    case SINT64:
    case REAL32:
    case REAL64:
      return true;
    default:
      return false;
  }
}

bool CIMDataType::isReferenceType() const {
  return m_pdata->type == REFERENCE;
}

bool CIMDataType::isEmbeddedObjectType() const {
  return m_pdata->type == EMBEDDEDCLASS || m_pdata->type == EMBEDDEDINSTANCE;
}

CIMDataType::Type CIMDataType::getType() const {
  return m_pdata->type;
}

// A size below 1 makes an unlimited array.
bool CIMDataType::setToArrayType(Int32 size) {
  m_pdata->sizeRange = size < 1 ? SIZE_UNLIMITED : SIZE_LIMITED;
  m_pdata->numberOfElements = size < 1 ? -1 : size;
  return true;
}

Int32 CIMDataType::getSize() const {
  return m_pdata->numberOfElements;
}
String CIMDataType::getRefClassName() const {
  return m_pdata->refClassName;
}

bool CIMDataType::syncWithValue(const CIMValue& value) {
  if (!value || !m_pdata) {
    return false;
  }
  if (m_pdata->type == value.getType() && isArrayType() == value.isArray()) {
    return false;
  }
  *this = value.getCIMDataType();
  return true;
}

bool CIMDataType::equals(const CIMDataType& arg) const {
  return m_pdata->type == arg.m_pdata->type && m_pdata->sizeRange == arg.m_pdata->sizeRange &&
         m_pdata->numberOfElements == arg.m_pdata->numberOfElements &&
         m_pdata->refClassName.equalsIgnoreCase(arg.m_pdata->refClassName);
}

String CIMDataType::toString() const {
  for (const TypeName& tn : kTypeNames) {
    if (tn.type == m_pdata->type) {
      return String(tn.name);
    }
  }
  return String(m_pdata->type == CIMNULL ? kNullTypeName : kInvalidTypeName);
}

String CIMDataType::toMOF() const {
  if (m_pdata->type == REFERENCE) {
    return m_pdata->refClassName + " REF";
  }
  return toString();
}

String CIMDataType::getArrayMOF() const {
  if (m_pdata->sizeRange == SIZE_SINGLE) {
    return String();
  }
  if (m_pdata->sizeRange == SIZE_UNLIMITED) {
    return String("[]");
  }
  return String("[") + String(m_pdata->numberOfElements) + "]";
}

CIMDataType::Type CIMDataType::strToSimpleType(const String& strType) {
  for (const TypeName& tn : kTypeNames) {
    if (strType.equalsIgnoreCase(tn.name)) {
      return tn.type;
    }
  }
  return INVALID;
}

CIMDataType CIMDataType::getDataType(const String& strType) {
  Type type = strToSimpleType(strType);
  return type == INVALID ? CIMDataType(CIMNULL) : CIMDataType(type);
}

CIMDataType::operator safe_bool() const {
  return (m_pdata && m_pdata->type != CIMNULL && m_pdata->type != INVALID) ? &CIMDataType::m_pdata
                                                                           : 0;
}

bool CIMDataType::operator!() const {
  return !static_cast<bool>(*this);
}

bool operator<(const CIMDataType& x, const CIMDataType& y) {
  if (x.getType() != y.getType()) {
    return x.getType() < y.getType();
  }
  return x.getSize() < y.getSize();
}
bool operator==(const CIMDataType& x, const CIMDataType& y) {
  return x.equals(y);
}
bool operator<=(const CIMDataType& x, const CIMDataType& y) {
  return !(y < x);
}
bool operator>(const CIMDataType& x, const CIMDataType& y) {
  return y < x;
}
bool operator>=(const CIMDataType& x, const CIMDataType& y) {
  return !(x < y);
}
bool operator!=(const CIMDataType& x, const CIMDataType& y) {
  return !x.equals(y);
}

}  // namespace OW_NAMESPACE
