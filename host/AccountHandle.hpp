// AccountHandle.hpp: the CIMOM handle ras-cim gives the module. It serves what the module
// reads through its CIMOM: the Zeph_Account instances of the appliance (namespace
// root/cimv2), taken from the appliance's account list ("NAME TEXTUALUSERID" per line).
// Every other operation is refused (CIM_ERR_NOT_SUPPORTED).
#ifndef RAS_HOST_ACCOUNTHANDLE_HPP
#define RAS_HOST_ACCOUNTHANDLE_HPP

#include <memory>
#include <string>

#include "MofSchema.hpp"
#include "RefusingHandle.hpp"

namespace rascim {

class AccountHandle : public RefusingHandle {
 public:
  AccountHandle(std::string accountsFile, std::shared_ptr<const MofSchema> schema);

  void enumInstances(const String& ns, const String& className,
                     OpenWBEM::CIMInstanceResultHandlerIFC& result, Deep, LocalOnly, Qualifiers,
                     ClassOrigin, PropertyList) override;
  void enumInstanceNames(const String& ns, const String& className,
                         OpenWBEM::CIMObjectPathResultHandlerIFC& result) override;
  OpenWBEM::CIMInstance getInstance(const String& ns, const Path& instanceName, LocalOnly,
                                    Qualifiers, ClassOrigin, PropertyList) override;

 private:
  OpenWBEM::CIMInstanceArray accounts(const String& ns, const String& className) const;

  std::string accountsFile_;
  std::shared_ptr<const MofSchema> schema_;
};

}  // namespace rascim

#endif
