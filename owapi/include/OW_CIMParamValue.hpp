// Named method parameter value, and lookup of one by name.
#ifndef OW_CIMPARAMVALUE_HPP_INCLUDE_GUARD_
#define OW_CIMPARAMVALUE_HPP_INCLUDE_GUARD_
#include "OW_CIMBase.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMParamValue : public CIMBase {
 public:
  struct Data;

  CIMParamValue();
  explicit CIMParamValue(CIMNULL_t);
  CIMParamValue(const CIMName& name, const CIMValue& val);
  explicit CIMParamValue(const CIMName& name);
  CIMParamValue(const CIMParamValue& x);
  ~CIMParamValue();
  CIMParamValue& operator=(const CIMParamValue& x);

  String getName() const;
  CIMParamValue& setName(const CIMName& name);
  CIMValue getValue() const;
  CIMParamValue& setValue(const CIMValue& val);

  typedef COWIntrusiveReference<Data> CIMParamValue::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  virtual void setNull();
  virtual String toString() const;
  virtual String toMOF() const;

  friend bool operator<(const CIMParamValue& x, const CIMParamValue& y);

 private:
  COWIntrusiveReference<Data> m_pdata;
};

bool operator<(const CIMParamValue& x, const CIMParamValue& y);

// The value of the named parameter (case-insensitive), or a null value when absent.
CIMValue getParamValue(const String& paramName, const CIMParamValueArray& params);

}  // namespace OW_NAMESPACE

#endif
