// CimText.cpp: type names, path texts, value elements and error names.
#include "CimText.hpp"

#include "OW_Array.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMValue.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const char* const kTypeNames[] = {"null",   "uint8",    "sint8",  "uint16", "sint16",  "uint32",
                                  "sint32", "uint64",   "sint64", "string", "boolean", "real32",
                                  "real64", "datetime", "char16", "ref",    "object",  "instance"};
const char kArraySuffix[] = "[]";
const char kInvalidType[] = "invalid";

const char* const kErrorNames[] = {"CIM_ERR_SUCCESS",
                                   "CIM_ERR_FAILED",
                                   "CIM_ERR_ACCESS_DENIED",
                                   "CIM_ERR_INVALID_NAMESPACE",
                                   "CIM_ERR_INVALID_PARAMETER",
                                   "CIM_ERR_INVALID_CLASS",
                                   "CIM_ERR_NOT_FOUND",
                                   "CIM_ERR_NOT_SUPPORTED",
                                   "CIM_ERR_CLASS_HAS_CHILDREN",
                                   "CIM_ERR_CLASS_HAS_INSTANCES",
                                   "CIM_ERR_INVALID_SUPERCLASS",
                                   "CIM_ERR_ALREADY_EXISTS",
                                   "CIM_ERR_NO_SUCH_PROPERTY",
                                   "CIM_ERR_TYPE_MISMATCH",
                                   "CIM_ERR_QUERY_LANGUAGE_NOT_SUPPORTED",
                                   "CIM_ERR_INVALID_QUERY",
                                   "CIM_ERR_METHOD_NOT_AVAILABLE",
                                   "CIM_ERR_METHOD_NOT_FOUND"};
const char kUnknownError[] = "CIM_ERR_UNKNOWN";

std::string text(const String& s) {
  return std::string(s.c_str());
}

// Splits the comma-joined text of a numeric or boolean array.
std::vector<std::string> splitList(const std::string& joined) {
  std::vector<std::string> out;
  size_t start = 0;
  while (!joined.empty()) {
    const size_t comma = joined.find(',', start);
    out.push_back(joined.substr(start, comma - start));
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return out;
}

}  // namespace

std::string typeName(CIMDataType::Type type, bool isArray) {
  const size_t index = static_cast<size_t>(type);
  const std::string name =
      index < sizeof kTypeNames / sizeof kTypeNames[0] ? kTypeNames[index] : kInvalidType;
  return isArray ? name + kArraySuffix : name;
}

std::string typeName(const CIMDataType& type) {
  return typeName(type.getType(), type.isArrayType());
}

std::string typeName(const MofType& type) {
  return type.isArray ? type.name + kArraySuffix : type.name;
}

std::string valueTypeName(const CIMValue& value) {
  return value ? typeName(value.getType(), value.isArray()) : kTypeNames[0];
}

bool isTextType(CIMDataType::Type type) {
  return type == CIMDataType::STRING || type == CIMDataType::DATETIME ||
         type == CIMDataType::CHAR16 || type == CIMDataType::REFERENCE;
}

std::string pathText(const CIMObjectPath& path) {
  const std::string ns = text(path.getNameSpace());
  const std::string model = text(path.modelPath());
  return ns.empty() ? model : ns + ":" + model;
}

std::vector<std::string> valueItems(const CIMValue& value) {
  std::vector<std::string> out;
  if (value.getType() == CIMDataType::STRING && value.isArray()) {
    const StringArray items = value.toStringArray();
    for (size_t i = 0; i < items.size(); ++i) out.push_back(text(items[i]));
  } else if (value.getType() == CIMDataType::REFERENCE && !value.isArray()) {
    out.push_back(pathText(value.toCIMObjectPath()));
  } else if (value.isArray()) {
    out = splitList(text(value.toString()));
  } else {
    out.push_back(text(value.toString()));
  }
  return out;
}

std::string cimErrorName(int code) {
  const size_t count = sizeof kErrorNames / sizeof kErrorNames[0];
  return code >= 0 && static_cast<size_t>(code) < count ? kErrorNames[code] : kUnknownError;
}

}  // namespace rascim
