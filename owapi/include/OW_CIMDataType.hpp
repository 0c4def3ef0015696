// Declared type of a CIM property or value: scalar or array, and the referenced class.
#ifndef OW_CIMDATATYPE_HPP_INCLUDE_GUARD_
#define OW_CIMDATATYPE_HPP_INCLUDE_GUARD_
#include "OW_CIMBase.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_Types.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMDataType : public CIMBase {
 public:
  struct DTData;
  enum Type {
    CIMNULL = 0,
    UINT8 = 1,
    SINT8 = 2,
    UINT16 = 3,
    SINT16 = 4,
    UINT32 = 5,
    SINT32 = 6,
    UINT64 = 7,
    SINT64 = 8,
    STRING = 9,
    BOOLEAN = 10,
    REAL32 = 11,
    REAL64 = 12,
    DATETIME = 13,
    CHAR16 = 14,
    REFERENCE = 15,
    EMBEDDEDCLASS = 16,
    EMBEDDEDINSTANCE = 17,
    MAXDATATYPE = 18,
    INVALID = 99
  };
  enum { SIZE_SINGLE, SIZE_UNLIMITED, SIZE_LIMITED };

  CIMDataType();
  CIMDataType(Type type);
  explicit CIMDataType(CIMNULL_t);
  CIMDataType(Type type, Int32 size);
  CIMDataType(const CIMDataType& arg);
  explicit CIMDataType(const CIMName& refClassName);
  ~CIMDataType();
  virtual void setNull();
  CIMDataType& operator=(const CIMDataType& arg);

  bool isArrayType() const;
  bool isNumericType() const;
  static bool isNumericType(Type type);
  bool isReferenceType() const;
  bool isEmbeddedObjectType() const;
  Type getType() const;
  bool setToArrayType(Int32 size);
  Int32 getSize() const;
  String getRefClassName() const;
  bool syncWithValue(const CIMValue& value);
  bool equals(const CIMDataType& arg) const;
  virtual String toString() const;
  virtual String toMOF() const;
  String getArrayMOF() const;

  static CIMDataType getDataType(const String& strType);
  static Type strToSimpleType(const String& strType);

  typedef COWIntrusiveReference<DTData> CIMDataType::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  friend bool operator<(const CIMDataType& x, const CIMDataType& y);

 private:
  COWIntrusiveReference<DTData> m_pdata;
};

bool operator<(const CIMDataType& x, const CIMDataType& y);
bool operator==(const CIMDataType& x, const CIMDataType& y);
bool operator<=(const CIMDataType& x, const CIMDataType& y);
bool operator>(const CIMDataType& x, const CIMDataType& y);
bool operator>=(const CIMDataType& x, const CIMDataType& y);
bool operator!=(const CIMDataType& x, const CIMDataType& y);

}  // namespace OW_NAMESPACE

#endif
