// CIM instance: class name, properties, qualifiers and the list of its key properties.
#ifndef OW_CIMINSTANCE_HPP_INCLUDE_GUARD_
#define OW_CIMINSTANCE_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_CIMDataType.hpp"
#include "OW_CIMElement.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_String.hpp"
#include "OW_WBEMFlags.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMInstance : public CIMElement {
 public:
  struct INSTData;

  enum { SERIALIZATION_VERSION = 2 };
  enum EErrorCodes { E_INSTANCE_HAS_NO_SUCH_PROPERTY };

  CIMInstance();
  explicit CIMInstance(CIMNULL_t);
  CIMInstance(const CIMInstance& x);
  explicit CIMInstance(const CIMName& name);
  explicit CIMInstance(const char* name);
  ~CIMInstance();
  CIMInstance& operator=(const CIMInstance& x);
  virtual void setNull();

  typedef COWIntrusiveReference<INSTData> CIMInstance::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  CIMInstance& setKeys(const CIMPropertyArray& keys);
  String getClassName() const;
  String getLanguage() const;
  void setLanguage(const String& language);
  CIMInstance& setClassName(const CIMName& name);
  CIMQualifierArray getQualifiers() const;
  CIMQualifier getQualifier(const CIMName& qualName) const;
  CIMInstance& removeQualifier(const CIMName& qualName);
  CIMInstance& setQualifiers(const CIMQualifierArray& quals);
  CIMInstance& setQualifier(const CIMQualifier& qual);
  CIMPropertyArray getProperties(Int32 valueDataType = CIMDataType::INVALID) const;
  CIMInstance& setProperties(const CIMPropertyArray& props);
  CIMProperty getProperty(const CIMName& name, const CIMName& originClass) const;
  CIMProperty getProperty(const CIMName& name) const;
  CIMProperty getPropertyT(const CIMName& name) const;
  CIMValue getPropertyValue(const CIMName& name) const;
  bool propertyHasValue(const CIMName& name) const;
  CIMPropertyArray getKeyValuePairs() const;
  CIMInstance& updatePropertyValues(const CIMPropertyArray& props);
  CIMInstance& updatePropertyValue(const CIMProperty& prop);
  CIMInstance& updatePropertyValue(const CIMName& name, const CIMValue& cv);
  CIMInstance& setProperty(const CIMName& name, const CIMValue& cv);
  CIMInstance& setProperty(const CIMProperty& prop);
  CIMInstance& removeProperty(const CIMName& propName);
  CIMInstance& setNameSpace(const String& ns);
  String getNameSpace() const;
  CIMInstance& syncWithClass(
      const CIMClass& cc,
      WBEMFlags::EIncludeQualifiersFlag includeQualifiers = WBEMFlags::E_INCLUDE_QUALIFIERS);
  CIMInstance clone(WBEMFlags::ELocalOnlyFlag localOnly, WBEMFlags::EDeepFlag deep,
                    WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                    WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                    const StringArray* propertyList, const CIMClass& requestedClass,
                    const CIMClass& cimClass) const;
  CIMInstance clone(WBEMFlags::ELocalOnlyFlag localOnly,
                    WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                    WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                    const StringArray* propertyList) const;
  CIMInstance clone(WBEMFlags::ELocalOnlyFlag localOnly,
                    WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                    WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                    const StringArray& propertyList = StringArray(), bool noProps = false) const;
  CIMInstance filterProperties(const StringArray& propertyList,
                               WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                               WBEMFlags::EIncludeClassOriginFlag includeClassOrigin,
                               bool ignorePropertyList = false) const;
  CIMInstance createModifiedInstance(const CIMInstance& previousInstance,
                                     WBEMFlags::EIncludeQualifiersFlag includeQualifiers,
                                     const StringArray* propertyList,
                                     const CIMClass& theClass) const;
  bool propertiesAreEqualTo(const CIMInstance& other) const;
  virtual String getName() const;
  virtual void setName(const CIMName& name);
  virtual String toString() const;
  virtual String toMOF() const;

  friend bool operator<(const CIMInstance& x, const CIMInstance& y);

 private:
  void rebuildKeys();

  COWIntrusiveReference<INSTData> m_pdata;
};

bool operator<(const CIMInstance& x, const CIMInstance& y);

}  // namespace OW_NAMESPACE

#endif
