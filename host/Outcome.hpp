// Outcome.hpp: what one ras-cim operation produced, independent of how it is printed.
#ifndef RAS_HOST_OUTCOME_HPP
#define RAS_HOST_OUTCOME_HPP

#include <string>
#include <vector>

#include "OW_Array.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMValue.hpp"

namespace rascim {

// A CIMException as the client sees it: code, the provider's own message, where it was raised.
struct CimError {
  int code = 0;
  std::string message;
  std::string file;
  int line = 0;
};

struct Outcome {
  enum Shape { kNothing, kInstances, kInstance, kPaths, kPath, kMethodResult };
  enum Status { kOk = 0, kCimError = 1, kUsageError = 2, kSchemaError = 3 };

  std::string verb;
  Shape shape = kNothing;
  std::vector<OpenWBEM::CIMInstance> instances;        // kInstances, kInstance (one)
  std::vector<OpenWBEM::CIMObjectPath> instancePaths;  // each instance's path, from its class
  std::vector<OpenWBEM::CIMObjectPath> paths;          // kPaths, kPath (one)
  OpenWBEM::CIMValue returnValue{OpenWBEM::CIMNULL};
  OpenWBEM::CIMParamValueArray outParams;

  bool hasCimError = false;
  CimError cimError;
  std::string failure;                    // an error other than a CIM error
  bool usageError = false;                // the failure is a mistake in the request
  std::vector<std::string> schemaErrors;  // disagreements between the module and the schema

  // The exit status this outcome calls for.
  Status status() const {
    if (hasCimError) return kCimError;
    if (!failure.empty()) return usageError ? kUsageError : kCimError;
    return schemaErrors.empty() ? kOk : kSchemaError;
  }
};

}  // namespace rascim

#endif
