// RefusingHandle.h: a CIMOM handle that answers every operation with CIM_ERR_NOT_SUPPORTED
// and the site and text it was made with. Handles that serve a few operations derive from it
// and override just those.
#ifndef RAS_TESTS_REFUSINGHANDLE_HPP
#define RAS_TESTS_REFUSINGHANDLE_HPP

#include "OW_CIMOMHandleIFC.hpp"

namespace harness {

class RefusingHandle : public OpenWBEM::CIMOMHandleIFC {
 public:
  // `message` may be null: the refusal then carries no description.
  RefusingHandle(const char* file, int line, const char* message)
      : file_(file), line_(line), message_(message) {}

  using String = OpenWBEM::String;
  using Deep = OpenWBEM::WBEMFlags::EDeepFlag;
  using LocalOnly = OpenWBEM::WBEMFlags::ELocalOnlyFlag;
  using Qualifiers = OpenWBEM::WBEMFlags::EIncludeQualifiersFlag;
  using ClassOrigin = OpenWBEM::WBEMFlags::EIncludeClassOriginFlag;
  using PropertyList = const OpenWBEM::StringArray*;
  using Path = OpenWBEM::CIMObjectPath;
  using Names = OpenWBEM::CIMObjectPathResultHandlerIFC;
  using Instances = OpenWBEM::CIMInstanceResultHandlerIFC;
  using Classes = OpenWBEM::CIMClassResultHandlerIFC;

  void close() override {}
  void enumClass(const String&, const String&, Classes&, Deep, LocalOnly, Qualifiers,
                 ClassOrigin) override;
  void enumClassNames(const String&, const String&, OpenWBEM::StringResultHandlerIFC&,
                      Deep) override;
  void enumInstances(const String&, const String&, Instances&, Deep, LocalOnly, Qualifiers,
                     ClassOrigin, PropertyList) override;
  void enumInstanceNames(const String&, const String&, Names&) override;
  OpenWBEM::CIMClass getClass(const String&, const String&, LocalOnly, Qualifiers, ClassOrigin,
                              PropertyList) override;
  OpenWBEM::CIMInstance getInstance(const String&, const Path&, LocalOnly, Qualifiers, ClassOrigin,
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
  void associatorNames(const String&, const Path&, Names&, const String&, const String&,
                       const String&, const String&) override;
  void associators(const String&, const Path&, Instances&, const String&, const String&,
                   const String&, const String&, Qualifiers, ClassOrigin, PropertyList) override;
  void associatorsClasses(const String&, const Path&, Classes&, const String&, const String&,
                          const String&, const String&, Qualifiers, ClassOrigin,
                          PropertyList) override;
  void referenceNames(const String&, const Path&, Names&, const String&, const String&) override;
  void references(const String&, const Path&, Instances&, const String&, const String&, Qualifiers,
                  ClassOrigin, PropertyList) override;
  void referencesClasses(const String&, const Path&, Classes&, const String&, const String&,
                         Qualifiers, ClassOrigin, PropertyList) override;
  void execQuery(const String&, Instances&, const String&, const String&) override;

 protected:
  [[noreturn]] void refuse() const;

 private:
  const char* file_;
  int line_;
  const char* message_;
};

}  // namespace harness

#endif
