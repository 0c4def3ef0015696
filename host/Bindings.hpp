// Bindings.hpp: wbemcli's property and parameter lists, "Name=value[,Name=value...]", with
// values bare, double-quoted (\" and \\ escaped) or arrays {a,b}. The text is only split
// here; OpenWBEM's value casts turn it into the declared CIM type.
#ifndef RAS_HOST_BINDINGS_HPP
#define RAS_HOST_BINDINGS_HPP

#include <stdexcept>
#include <string>
#include <vector>

#include "OW_CIMDataType.hpp"
#include "OW_CIMValue.hpp"

namespace rascim {

// A mistake in the request (exit status 2).
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Binding {
  std::string name;
  bool isArray = false;
  std::vector<std::string> items;  // one for a scalar
};

// Throws UsageError for a word that is not Name=value.
std::vector<Binding> parseBindings(const std::string& text);

// The value cast to `type`, or a string (array) when the type is unknown (null). A value
// the cast refuses is CIM_ERR_INVALID_PARAMETER with the cast's message.
OpenWBEM::CIMValue typedValue(const Binding& binding, const OpenWBEM::CIMDataType& type);

}  // namespace rascim

#endif
