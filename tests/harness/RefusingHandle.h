// RefusingHandle.h: a CIMOM handle that answers every operation with CIM_ERR_NOT_SUPPORTED
// and the site and text it was made with. Handles that serve a few operations derive from it
// and override just those.
#ifndef RAS_TESTS_REFUSINGHANDLE_HPP
#define RAS_TESTS_REFUSINGHANDLE_HPP

#include "OW_Array.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMOMHandleIFC.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_CIMValue.hpp"

namespace harness {

class RefusingHandle : public OpenWBEM::CIMOMHandleIFC {
 public:
  RefusingHandle(const char* file, int line, const char* message)
      : file_(file), line_(line), message_(message) {}

  using String = OpenWBEM::String;
  using S = const String&;
  using Deep = OpenWBEM::WBEMFlags::EDeepFlag;
  using LocalOnly = OpenWBEM::WBEMFlags::ELocalOnlyFlag;
  using Qualifiers = OpenWBEM::WBEMFlags::EIncludeQualifiersFlag;
  using ClassOrigin = OpenWBEM::WBEMFlags::EIncludeClassOriginFlag;
  using PropertyList = const OpenWBEM::StringArray*;
  using Path = OpenWBEM::CIMObjectPath;
  using Names = OpenWBEM::CIMObjectPathResultHandlerIFC;
  using Instances = OpenWBEM::CIMInstanceResultHandlerIFC;
  using Classes = OpenWBEM::CIMClassResultHandlerIFC;
  using Params = OpenWBEM::CIMParamValueArray;

  void close() override {}
  void enumClass(S, S, Classes&, Deep, LocalOnly, Qualifiers, ClassOrigin) override { refuse(); }
  void enumClassNames(S, S, OpenWBEM::StringResultHandlerIFC&, Deep) override { refuse(); }
  void enumInstances(S, S, Instances&, Deep, LocalOnly, Qualifiers, ClassOrigin,
                     PropertyList) override {
    refuse();
  }
  void enumInstanceNames(S, S, Names&) override { refuse(); }
  OpenWBEM::CIMClass getClass(S, S, LocalOnly, Qualifiers, ClassOrigin, PropertyList) override {
    refuse();
  }
  OpenWBEM::CIMInstance getInstance(S, const Path&, LocalOnly, Qualifiers, ClassOrigin,
                                    PropertyList) override {
    refuse();
  }
  OpenWBEM::CIMValue invokeMethod(S, const Path&, S, const Params&, Params&) override { refuse(); }
  OpenWBEM::CIMQualifierType getQualifierType(S, S) override { refuse(); }
  void setQualifierType(S, const OpenWBEM::CIMQualifierType&) override { refuse(); }
  void deleteQualifierType(S, S) override { refuse(); }
  void enumQualifierTypes(S, OpenWBEM::CIMQualifierTypeResultHandlerIFC&) override { refuse(); }
  void modifyClass(S, const OpenWBEM::CIMClass&) override { refuse(); }
  void createClass(S, const OpenWBEM::CIMClass&) override { refuse(); }
  void deleteClass(S, S) override { refuse(); }
  void modifyInstance(S, const OpenWBEM::CIMInstance&, Qualifiers, PropertyList) override {
    refuse();
  }
  Path createInstance(S, const OpenWBEM::CIMInstance&) override { refuse(); }
  void deleteInstance(S, const Path&) override { refuse(); }
  void setProperty(S, const Path&, S, const OpenWBEM::CIMValue&) override { refuse(); }
  OpenWBEM::CIMValue getProperty(S, const Path&, S) override { refuse(); }
  void associatorNames(S, const Path&, Names&, S, S, S, S) override { refuse(); }
  void associators(S, const Path&, Instances&, S, S, S, S, Qualifiers, ClassOrigin,
                   PropertyList) override {
    refuse();
  }
  void associatorsClasses(S, const Path&, Classes&, S, S, S, S, Qualifiers, ClassOrigin,
                          PropertyList) override {
    refuse();
  }
  void referenceNames(S, const Path&, Names&, S, S) override { refuse(); }
  void references(S, const Path&, Instances&, S, S, Qualifiers, ClassOrigin,
                  PropertyList) override {
    refuse();
  }
  void referencesClasses(S, const Path&, Classes&, S, S, Qualifiers, ClassOrigin,
                         PropertyList) override {
    refuse();
  }
  void execQuery(S, Instances&, S, S) override { refuse(); }

 protected:
  [[noreturn]] void refuse() const {
    throw OpenWBEM::CIMException(file_, line_, OpenWBEM::CIMException::NOT_SUPPORTED, message_);
  }

 private:
  const char* file_;
  int line_;
  const char* message_;
};

}  // namespace harness

#endif
