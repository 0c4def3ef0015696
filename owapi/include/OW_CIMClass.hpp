// CIM class: name, superclass, qualifiers and properties, enough to build instances from.
#ifndef OW_CIMCLASS_HPP_INCLUDE_GUARD_
#define OW_CIMCLASS_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_CIMElement.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMClass : public CIMElement {
 public:
  struct CLSData;

  CIMClass();
  explicit CIMClass(CIMNULL_t);
  CIMClass(const CIMClass& x);
  explicit CIMClass(const CIMName& name);
  explicit CIMClass(const char* name);
  ~CIMClass();
  CIMClass& operator=(const CIMClass& x);
  virtual void setNull();

  typedef COWIntrusiveReference<CLSData> CIMClass::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  String getSuperClass() const;
  CIMClass& setSuperClass(const CIMName& pname);
  bool isKeyed() const;
  bool isAssociation() const;
  CIMPropertyArray getKeys() const;
  CIMQualifier getQualifier(const CIMName& name) const;
  CIMProperty getProperty(const CIMName& name) const;
  CIMPropertyArray getAllProperties() const;
  CIMQualifierArray getQualifiers() const;
  CIMClass& addProperty(const CIMProperty& prop);
  CIMClass& addQualifier(const CIMQualifier& qual);
  CIMInstance newInstance() const;
  virtual String getName() const;
  virtual void setName(const CIMName& name);
  virtual String toString() const;
  virtual String toMOF() const;

  friend bool operator<(const CIMClass& x, const CIMClass& y);

 private:
  COWIntrusiveReference<CLSData> m_pdata;
};

bool operator<(const CIMClass& x, const CIMClass& y);

}  // namespace OW_NAMESPACE

#endif
