// Typed CIM value (scalar or array) or null; reading it as another type throws.
#ifndef OW_CIMVALUE_HPP_INCLUDE_GUARD_
#define OW_CIMVALUE_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_CIMBase.hpp"
#include "OW_CIMDataType.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMValue : public CIMBase {
 public:
  class CIMValueImpl;

  explicit CIMValue(CIMNULL_t);
  CIMValue(const CIMValue& x);
  explicit CIMValue(bool x);
  explicit CIMValue(Bool x);
  explicit CIMValue(const Char16& x);
  explicit CIMValue(UInt8 x);
  explicit CIMValue(Int8 x);
  explicit CIMValue(UInt16 x);
  explicit CIMValue(Int16 x);
  explicit CIMValue(UInt32 x);
  explicit CIMValue(Int32 x);
  explicit CIMValue(UInt64 x);
  explicit CIMValue(Int64 x);
  explicit CIMValue(Real32 x);
  explicit CIMValue(Real64 x);
  explicit CIMValue(const String& x);
  explicit CIMValue(const CIMDateTime& x);
  explicit CIMValue(const char* x);
  explicit CIMValue(const CIMObjectPath& x);
  explicit CIMValue(const CIMClass& x);
  explicit CIMValue(const CIMInstance& x);
  explicit CIMValue(const BoolArray& x);
  explicit CIMValue(const Char16Array& x);
  explicit CIMValue(const UInt8Array& x);
  explicit CIMValue(const Int8Array& x);
  explicit CIMValue(const UInt16Array& x);
  explicit CIMValue(const Int16Array& x);
  explicit CIMValue(const UInt32Array& x);
  explicit CIMValue(const Int32Array& x);
  explicit CIMValue(const UInt64Array& x);
  explicit CIMValue(const Int64Array& x);
  explicit CIMValue(const Real64Array& x);
  explicit CIMValue(const Real32Array& x);
  explicit CIMValue(const StringArray& x);
  explicit CIMValue(const CIMDateTimeArray& x);
  explicit CIMValue(const CIMObjectPathArray& x);
  explicit CIMValue(const CIMClassArray& x);
  explicit CIMValue(const CIMInstanceArray& x);
  ~CIMValue();

  static CIMValue createSimpleValue(const String& cimtype, const String& value);

  virtual void setNull();
  CIMValue& set(const CIMValue& val);
  CIMValue& operator=(const CIMValue& x);

  typedef COWIntrusiveReference<CIMValueImpl> CIMValue::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  bool equal(const CIMValue& x) const;
  bool operator==(const CIMValue& x) const;
  bool operator!=(const CIMValue& x) const;
  bool operator<=(const CIMValue& x) const;
  bool operator>=(const CIMValue& x) const;
  bool operator<(const CIMValue& x) const;
  bool operator>(const CIMValue& x) const;

  UInt32 getArraySize() const;
  CIMDataType::Type getType() const;
  CIMDataType getCIMDataType() const;
  bool sameType(const CIMValue& x) const;
  bool isArray() const;
  bool isNumericType() const;
  virtual String toString() const;
  virtual String toMOF() const;

  void get(Bool& x) const;
  void get(Char16& x) const;
  void get(UInt8& x) const;
  void get(Int8& x) const;
  void get(UInt16& x) const;
  void get(Int16& x) const;
  void get(UInt32& x) const;
  void get(Int32& x) const;
  void get(UInt64& x) const;
  void get(Int64& x) const;
  void get(Real32& x) const;
  void get(Real64& x) const;
  void get(String& x) const;
  void get(CIMDateTime& x) const;
  void get(CIMObjectPath& x) const;
  void get(CIMClass& x) const;
  void get(CIMInstance& x) const;
  void get(BoolArray& x) const;
  void get(Char16Array& x) const;
  void get(UInt8Array& x) const;
  void get(Int8Array& x) const;
  void get(UInt16Array& x) const;
  void get(Int16Array& x) const;
  void get(UInt32Array& x) const;
  void get(Int32Array& x) const;
  void get(UInt64Array& x) const;
  void get(Int64Array& x) const;
  void get(Real64Array& x) const;
  void get(Real32Array& x) const;
  void get(StringArray& x) const;
  void get(CIMDateTimeArray& x) const;
  void get(CIMObjectPathArray& x) const;
  void get(CIMClassArray& x) const;
  void get(CIMInstanceArray& x) const;

  Bool toBool() const;
  Char16 toChar16() const;
  UInt8 toUInt8() const;
  Int8 toInt8() const;
  UInt16 toUInt16() const;
  Int16 toInt16() const;
  UInt32 toUInt32() const;
  Int32 toInt32() const;
  UInt64 toUInt64() const;
  Int64 toInt64() const;
  Real32 toReal32() const;
  Real64 toReal64() const;
  CIMDateTime toCIMDateTime() const;
  CIMObjectPath toCIMObjectPath() const;
  CIMClass toCIMClass() const;
  CIMInstance toCIMInstance() const;
  BoolArray toBoolArray() const;
  Char16Array toChar16Array() const;
  UInt8Array toUInt8Array() const;
  Int8Array toInt8Array() const;
  UInt16Array toUInt16Array() const;
  Int16Array toInt16Array() const;
  UInt32Array toUInt32Array() const;
  Int32Array toInt32Array() const;
  UInt64Array toUInt64Array() const;
  Int64Array toInt64Array() const;
  Real64Array toReal64Array() const;
  Real32Array toReal32Array() const;
  StringArray toStringArray() const;
  CIMDateTimeArray toCIMDateTimeArray() const;
  CIMObjectPathArray toCIMObjectPathArray() const;
  CIMClassArray toCIMClassArray() const;
  CIMInstanceArray toCIMInstanceArray() const;

 private:
  // Keep pointers from silently turning into a boolean value.
  explicit CIMValue(const void*);
  explicit CIMValue(void*);
  explicit CIMValue(volatile const void*);
  explicit CIMValue(volatile void*);

  COWIntrusiveReference<CIMValueImpl> m_impl;
};

}  // namespace OW_NAMESPACE

#endif
