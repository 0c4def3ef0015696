// CimText.hpp: names and texts of CIM things as ras-cim shows them: data type names in MOF
// spelling, object paths, value elements, and the DMTF names of CIM error codes.
#ifndef RAS_HOST_CIMTEXT_HPP
#define RAS_HOST_CIMTEXT_HPP

#include <string>
#include <vector>

#include "MofSchema.hpp"
#include "OW_CIMDataType.hpp"
#include "OW_CIMFwd.hpp"

namespace rascim {

// "uint16", "string[]", "ref", ...: the MOF spelling, "[]" marking an array.
std::string typeName(OpenWBEM::CIMDataType::Type type, bool isArray);
std::string typeName(const OpenWBEM::CIMDataType& type);
std::string typeName(const MofType& type);
std::string valueTypeName(const OpenWBEM::CIMValue& value);  // "null" for a null value

// Whether values of the type are texts (shown quoted) rather than numbers or booleans.
bool isTextType(OpenWBEM::CIMDataType::Type type);

// "ns:Class.Key=\"v\"" (namespace and colon only when the path has one).
std::string pathText(const OpenWBEM::CIMObjectPath& path);

// The elements of a non-null value as texts: one for a scalar, one per element of an array.
std::vector<std::string> valueItems(const OpenWBEM::CIMValue& value);

// "CIM_ERR_INVALID_CLASS" for 5, and so on.
std::string cimErrorName(int code);

}  // namespace rascim

#endif
