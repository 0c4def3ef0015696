// AccountHandle.hpp: the CIMOM handle ras-cim gives the module. It serves what the module
// reads through its CIMOM: the Zeph_Account instances of the appliance (namespace
// root/cimv2), taken from the appliance's account list ("NAME TEXTUALUSERID" per line).
// Every other operation answers CIM_ERR_NOT_SUPPORTED.
#ifndef RAS_HOST_ACCOUNTHANDLE_HPP
#define RAS_HOST_ACCOUNTHANDLE_HPP

#include <memory>
#include <string>

#include "MofSchema.hpp"
#include "OW_CIMOMHandleIFC.hpp"

namespace rascim {

class AccountHandle : public OpenWBEM::CIMOMHandleIFC {
 public:
  using String = OpenWBEM::String;
  using Deep = OpenWBEM::WBEMFlags::EDeepFlag;
  using LocalOnly = OpenWBEM::WBEMFlags::ELocalOnlyFlag;
  using Qualifiers = OpenWBEM::WBEMFlags::EIncludeQualifiersFlag;
  using ClassOrigin = OpenWBEM::WBEMFlags::EIncludeClassOriginFlag;
  using PropertyList = const OpenWBEM::StringArray*;
  using Path = OpenWBEM::CIMObjectPath;

  AccountHandle(std::string accountsFile, std::shared_ptr<const MofSchema> schema);

  void enumInstances(const String& ns, const String& className,
                     OpenWBEM::CIMInstanceResultHandlerIFC& result, Deep, LocalOnly, Qualifiers,
                     ClassOrigin, PropertyList) override;
  void enumInstanceNames(const String& ns, const String& className,
                         OpenWBEM::CIMObjectPathResultHandlerIFC& result) override;
  OpenWBEM::CIMInstance getInstance(const String& ns, const Path& instanceName, LocalOnly,
                                    Qualifiers, ClassOrigin, PropertyList) override;
  void close() override;

  // Not served.
  void enumClass(const String&, const String&, OpenWBEM::CIMClassResultHandlerIFC&, Deep, LocalOnly,
                 Qualifiers, ClassOrigin) override;
  void enumClassNames(const String&, const String&, OpenWBEM::StringResultHandlerIFC&,
                      Deep) override;
  OpenWBEM::CIMClass getClass(const String&, const String&, LocalOnly, Qualifiers, ClassOrigin,
                              PropertyList) override;
  OpenWBEM::CIMValue invokeMethod(const String&, const Path&, const String&,
                                  const OpenWBEM::CIMParamValueArray&,
                                  OpenWBEM::CIMParamValueArray&) override;
  OpenWBEM::CIMQualifierType getQualifierType(const String&, const String&) override;
  void setQualifierType(const String&, const OpenWBEM::CIMQualifierType&) override;
  void deleteQualifierType(const String&, const String&) override;
  void enumQualifierTypes(const String&, OpenWBEM::CIMQualifierTypeResultHandlerIFC&) override;
  void modifyClass(const String&, const OpenWBEM::CIMClass&) override;
  void createClass(const String&, const OpenWBEM::CIMClass&) override;
  void deleteClass(const String&, const String&) override;
  void modifyInstance(const String&, const OpenWBEM::CIMInstance&, Qualifiers,
                      PropertyList) override;
  Path createInstance(const String&, const OpenWBEM::CIMInstance&) override;
  void deleteInstance(const String&, const Path&) override;
  void setProperty(const String&, const Path&, const String&, const OpenWBEM::CIMValue&) override;
  OpenWBEM::CIMValue getProperty(const String&, const Path&, const String&) override;
  void associatorNames(const String&, const Path&, OpenWBEM::CIMObjectPathResultHandlerIFC&,
                       const String&, const String&, const String&, const String&) override;
  void associators(const String&, const Path&, OpenWBEM::CIMInstanceResultHandlerIFC&,
                   const String&, const String&, const String&, const String&, Qualifiers,
                   ClassOrigin, PropertyList) override;
  void associatorsClasses(const String&, const Path&, OpenWBEM::CIMClassResultHandlerIFC&,
                          const String&, const String&, const String&, const String&, Qualifiers,
                          ClassOrigin, PropertyList) override;
  void referenceNames(const String&, const Path&, OpenWBEM::CIMObjectPathResultHandlerIFC&,
                      const String&, const String&) override;
  void references(const String&, const Path&, OpenWBEM::CIMInstanceResultHandlerIFC&, const String&,
                  const String&, Qualifiers, ClassOrigin, PropertyList) override;
  void referencesClasses(const String&, const Path&, OpenWBEM::CIMClassResultHandlerIFC&,
                         const String&, const String&, Qualifiers, ClassOrigin,
                         PropertyList) override;
  void execQuery(const String&, OpenWBEM::CIMInstanceResultHandlerIFC&, const String&,
                 const String&) override;

 private:
  OpenWBEM::CIMInstanceArray accounts(const String& ns, const String& className) const;

  std::string accountsFile_;
  std::shared_ptr<const MofSchema> schema_;
};

}  // namespace rascim

#endif
