// Path of a CIM class or instance: namespace, class name and key values.
#ifndef OW_CIMOBJECTPATH_HPP_INCLUDE_GUARD_
#define OW_CIMOBJECTPATH_HPP_INCLUDE_GUARD_
#include "OW_CIMBase.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_CommonFwd.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMObjectPath : public CIMBase {
 public:
  struct OPData;

  CIMObjectPath();
  explicit CIMObjectPath(CIMNULL_t);
  explicit CIMObjectPath(const char* className);
  explicit CIMObjectPath(const CIMName& className);
  CIMObjectPath(const CIMName& className, const String& nspace);
  CIMObjectPath(const CIMName& className, const CIMPropertyArray& keys);
  CIMObjectPath(const String& ns, const CIMInstance& inst);
  CIMObjectPath(const CIMObjectPath& arg);
  ~CIMObjectPath();
  virtual void setNull();
  CIMObjectPath& operator=(const CIMObjectPath& x);

  typedef COWIntrusiveReference<OPData> CIMObjectPath::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  CIMObjectPath& addKey(const CIMName& keyname, const CIMValue& value) OW_DEPRECATED;
  CIMObjectPath& addKey(const CIMProperty& key) OW_DEPRECATED;
  CIMPropertyArray getKeys() const;
  CIMProperty getKey(const CIMName& keyName) const;
  CIMProperty getKeyT(const CIMName& keyName) const;
  CIMValue getKeyValue(const CIMName& name) const;
  bool keyHasValue(const CIMName& name) const;
  CIMObjectPath& setKeys(const CIMPropertyArray& newKeys);
  CIMObjectPath& setKeys(const CIMInstance& instance);
  CIMObjectPath& setKeyValue(const CIMName& name, const CIMValue& value);
  String getNameSpace() const;
  String getHost() const;
  String getClassName() const;
  String getObjectName() const OW_DEPRECATED;
  CIMObjectPath& setHost(const String& host);
  CIMObjectPath& setNameSpace(const String& ns);
  CIMObjectPath& setClassName(const CIMName& className);
  CIMObjectPath& setObjectName(const CIMName& className) OW_DEPRECATED;
  bool equals(const CIMObjectPath& op) const;
  bool operator==(const CIMObjectPath& op) const { return equals(op); }
  bool operator!=(const CIMObjectPath& op) const { return !equals(op); }
  bool isClassPath() const;
  bool isInstancePath() const;
  CIMObjectPath& syncWithClass(const CIMClass& theClass);
  virtual String toString() const;
  virtual String toMOF() const;
  String modelPath() const;

  static CIMObjectPath parse(const String& instanceName);
  static String escape(const String& inString);
  static String unEscape(const String& inString);

  friend bool operator<(const CIMObjectPath& lhs, const CIMObjectPath& rhs);

 private:
  COWIntrusiveReference<OPData> m_pdata;
};

bool operator<(const CIMObjectPath& lhs, const CIMObjectPath& rhs);

}  // namespace OW_NAMESPACE

#endif
