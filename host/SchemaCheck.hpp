// SchemaCheck.hpp: what the module returns against the classes of the repository: the class
// and every property declared, each value of the declared type, each path with exactly the
// class's keys, a method's return value of the declared type. Each disagreement is one line.
#ifndef RAS_HOST_SCHEMACHECK_HPP
#define RAS_HOST_SCHEMACHECK_HPP

#include <map>
#include <string>
#include <vector>

#include "OW_CIMClass.hpp"
#include "OW_CIMOMHandleIFC.hpp"

namespace rascim {

class SchemaCheck {
 public:
  using Problems = std::vector<std::string>;
  SchemaCheck(OpenWBEM::CIMOMHandleIFC& cimom, const OpenWBEM::String& ns)
      : cimom_(cimom), ns_(ns) {}

  // Returns the instance's path: its class's keys with their values.
  OpenWBEM::CIMObjectPath instance(const OpenWBEM::CIMInstance& instance, Problems& problems);
  void path(const OpenWBEM::CIMObjectPath& path, Problems& problems);
  void returnValue(const OpenWBEM::CIMObjectPath& target, const std::string& method,
                   const OpenWBEM::CIMValue& value, Problems& problems);

 private:
  // The class as the repository holds it; null (and a problem) when it declares none.
  OpenWBEM::CIMClass declared(const OpenWBEM::String& className, Problems& problems);

  OpenWBEM::CIMOMHandleIFC& cimom_;
  OpenWBEM::String ns_;
  std::map<std::string, OpenWBEM::CIMClass> classes_;
};

}  // namespace rascim

#endif
