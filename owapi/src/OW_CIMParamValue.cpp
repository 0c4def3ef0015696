// CIMParamValue: a named method parameter with its value, stored as given.
#include "OW_CIMParamValue.hpp"

#include "OW_Array.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMValue.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"

namespace OW_NAMESPACE {

struct CIMParamValue::Data : public COWIntrusiveCountableBase {
  String name;
  CIMValue val = CIMValue(CIMNULL);
};

CIMParamValue::CIMParamValue() : m_pdata(new Data) {}
CIMParamValue::CIMParamValue(CIMNULL_t) : m_pdata(0) {}
CIMParamValue::CIMParamValue(const CIMName& name, const CIMValue& val) : m_pdata(new Data) {
  m_pdata->name = name.toString();
  m_pdata->val = val;
}
CIMParamValue::CIMParamValue(const CIMName& name) : m_pdata(new Data) {
  m_pdata->name = name.toString();
}
CIMParamValue::CIMParamValue(const CIMParamValue& x) : CIMBase(), m_pdata(x.m_pdata) {}
CIMParamValue::~CIMParamValue() {}

CIMParamValue& CIMParamValue::operator=(const CIMParamValue& x) {
  m_pdata = x.m_pdata;
  return *this;
}

String CIMParamValue::getName() const {
  return m_pdata->name;
}

CIMParamValue& CIMParamValue::setName(const CIMName& name) {
  m_pdata->name = name.toString();
  return *this;
}

CIMValue CIMParamValue::getValue() const {
  return m_pdata->val;
}

CIMParamValue& CIMParamValue::setValue(const CIMValue& val) {
  m_pdata->val = val;
  return *this;
}

CIMParamValue::operator safe_bool() const {
  return m_pdata ? &CIMParamValue::m_pdata : 0;
}
bool CIMParamValue::operator!() const {
  return !m_pdata;
}
void CIMParamValue::setNull() {
  m_pdata = 0;
}

String CIMParamValue::toString() const {
  return String("CIMParamValue(") + m_pdata->name + "): " + m_pdata->val.toString();
}

String CIMParamValue::toMOF() const {
  return m_pdata->name + " = " + m_pdata->val.toMOF();
}

bool operator<(const CIMParamValue& x, const CIMParamValue& y) {
  return x.toString() < y.toString();
}

CIMValue getParamValue(const String& paramName, const CIMParamValueArray& params) {
  for (size_t i = 0; i < params.size(); ++i) {
    if (params[i].getName().equalsIgnoreCase(paramName)) {
      return params[i].getValue();
    }
  }
  return CIMValue(CIMNULL);
}

}  // namespace OW_NAMESPACE
