// AccountHandle.h: a CIMOM handle for tests through the dispatcher that serves what the
// module reads through its CIMOM: the Zeph_Account instances of namespace root/cimv2, from
// an account list ("NAME TEXTUALUSERID" per line). Every other operation is refused.
#ifndef RAS_TESTS_ACCOUNTHANDLE_H
#define RAS_TESTS_ACCOUNTHANDLE_H

#include <string>

#include "RefusingHandle.h"

namespace harness {

class AccountHandle : public RefusingHandle {
 public:
  explicit AccountHandle(std::string accountsFile);

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
};

}  // namespace harness

#endif
