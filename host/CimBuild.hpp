// CimBuild.hpp: turns wbemcli text into typed CIM objects the way a CIMOM would before it
// calls a provider: object paths, instances synced with the class, method parameters.
// Values are typed from the schema; a class the schema does not know gets its values as
// strings, so that requests for it still reach the module (which decides what to answer).
#ifndef RAS_HOST_CIMBUILD_HPP
#define RAS_HOST_CIMBUILD_HPP

#include <string>
#include <vector>

#include "MofSchema.hpp"
#include "OW_Array.hpp"
#include "OW_CIMFwd.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMValue.hpp"
#include "PathSyntax.hpp"

namespace rascim {

// Where errors that ras-cim itself raises as a CIMOM say they come from.
extern const char kHostErrorFile[];
constexpr int kHostErrorLine = 0;

// A wrongly typed value (message names the property and the expected type).
class TypingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Types one value as `type`; refs are parsed as object paths. Throws TypingError.
OpenWBEM::CIMValue typedValue(const TextValue& value, const MofType& type, const MofSchema& schema,
                              const std::string& name);
// Types a property value of an instance as a CIMOM does with what a client sends: an empty
// number is 0, an empty boolean null; text that does not convert fails with
// CIM_ERR_INVALID_PARAMETER and the conversion's message ("Unable to convert ...").
OpenWBEM::CIMValue propertyValue(const TextValue& value, const MofType& type,
                                 const MofSchema& schema, const std::string& name);
// A value of a class the schema does not know: a string or an array of strings.
OpenWBEM::CIMValue untypedValue(const TextValue& value);

// The path named by `text`, without its namespace (a CIMOM hands the namespace apart).
OpenWBEM::CIMObjectPath buildPath(const PathText& text, const MofSchema& schema);

// An instance of `className` holding `values`, in the class's property order, each property
// with the class's qualifiers. With `allProperties` the class's other properties are present
// with null values (what createInstance receives); otherwise only the given ones (modify).
// A name the class does not declare fails with CIM_ERR_NO_SUCH_PROPERTY.
OpenWBEM::CIMInstance buildInstance(const std::string& className,
                                    const std::vector<Binding>& values, const MofSchema& schema,
                                    bool allProperties);

// The path of a returned instance: its class and the values of the class's keys.
OpenWBEM::CIMObjectPath instancePath(const OpenWBEM::CIMInstance& instance,
                                     const MofSchema& schema);

OpenWBEM::CIMQualifier toQualifier(const MofQualifier& qualifier);

// Arranges a method call's parameters as a CIMOM does: `in` holds every declared IN
// parameter in MOF order (null when not given), `out` one null entry per declared OUT
// parameter. A method the class does not declare fails with CIM_ERR_METHOD_NOT_FOUND, a
// parameter it does not declare with CIM_ERR_INVALID_PARAMETER. For a class the schema does
// not know, `in` holds the given values as strings in the given order.
struct MethodParams {
  OpenWBEM::CIMParamValueArray in;
  OpenWBEM::CIMParamValueArray out;
};
MethodParams buildMethodParams(const std::string& className, const std::string& method,
                               const std::vector<Binding>& values, const MofSchema& schema);

}  // namespace rascim

#endif
