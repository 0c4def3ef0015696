// SchemaCheck.hpp: compares what the module returns with the schema: the class must be
// declared, every property declared with the type of its value, every path carrying
// exactly the class's keys. Each disagreement is one line of text.
#ifndef RAS_HOST_SCHEMACHECK_HPP
#define RAS_HOST_SCHEMACHECK_HPP

#include <string>
#include <vector>

#include "MofSchema.hpp"
#include "OW_CIMFwd.hpp"

namespace rascim {

std::vector<std::string> checkInstance(const OpenWBEM::CIMInstance& instance,
                                       const MofSchema& schema);
std::vector<std::string> checkPath(const OpenWBEM::CIMObjectPath& path, const MofSchema& schema);
// A method's return value against the declared return type.
std::vector<std::string> checkReturn(const std::string& className, const std::string& method,
                                     const OpenWBEM::CIMValue& value, const MofSchema& schema);

}  // namespace rascim

#endif
