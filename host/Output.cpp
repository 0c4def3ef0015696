// Output.cpp: the text and JSON forms of an outcome. Values are turned into text by
// OpenWBEM's value casts; JSON is written by nlohmann-json:
//   {"verb":"gi","ok":true,"instance":{"path":..,"class":..,"properties":[{"name":..,
//    "type":..,"value":..,"qualifiers":[{"name":..,"type":..,"value":..}]}]}}
//   {"verb":"gi","ok":false,"error":{"code":5,"name":"CIM_ERR_INVALID_CLASS",
//    "message":"","file":"../src/Zeph_RASProvider","line":479}}
#include "Output.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_CIMValueCast.hpp"

using namespace OpenWBEM;
// Members in the order they are set, as scripts and people read them.
using json = nlohmann::ordered_json;

namespace rascim {
namespace {

const char kProgram[] = "ras-cim: ";
const char kReturnValue[] = "ReturnValue";

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

std::string errorName(int code) {
  return code >= 0 && code < int(std::size(kErrorNames)) ? kErrorNames[code] : "CIM_ERR_UNKNOWN";
}

std::string pathText(const CIMObjectPath& path) {
  const std::string ns = path.getNameSpace().c_str();
  const std::string model = path.modelPath().c_str();
  return ns.empty() ? model : ns + ":" + model;
}

std::string typeName(const CIMValue& v) {
  if (!v) return "null";
  return std::string(CIMDataType(v.getType()).toString().c_str()) + (v.isArray() ? "[]" : "");
}

bool isText(const CIMValue& v) {
  const CIMDataType::Type t = v.getType();
  return t == CIMDataType::STRING || t == CIMDataType::DATETIME || t == CIMDataType::CHAR16 ||
         t == CIMDataType::REFERENCE;
}

// The value's elements as text.
std::vector<std::string> items(const CIMValue& v) {
  if (v.getType() == CIMDataType::REFERENCE && !v.isArray()) return {pathText(v.toCIMObjectPath())};
  const CIMValue texts =
      CIMValueCast::castValueToDataType(v, CIMDataType(CIMDataType::STRING, v.isArray() ? 0 : 1));
  if (!v.isArray()) return {texts.toString().c_str()};
  std::vector<std::string> out;
  for (const String& s : texts.toStringArray()) out.push_back(s.c_str());
  return out;
}

json jsonValue(const CIMValue& v) {
  if (!v) return nullptr;
  json elements = json::array();
  for (const std::string& item : items(v))
    elements.push_back(isText(v) ? json(item) : json::parse(item));
  return v.isArray() ? elements : elements[0];
}

json named(const String& name, const CIMValue& v, const std::string& type) {
  return {{"name", name.c_str()}, {"type", type}, {"value", jsonValue(v)}};
}

json jsonInstance(const CIMInstance& inst, const CIMObjectPath& path) {
  json properties = json::array();
  for (const CIMProperty& p : inst.getProperties()) {
    json qualifiers = json::array();
    for (const CIMQualifier& q : p.getQualifiers())
      qualifiers.push_back(named(q.getName(), q.getValue(), typeName(q.getValue())));
    json property = named(p.getName(), p.getValue(), p.getDataType().toString().c_str());
    property["qualifiers"] = qualifiers;
    properties.push_back(property);
  }
  return {
      {"path", pathText(path)}, {"class", inst.getClassName().c_str()}, {"properties", properties}};
}

std::string quoted(const std::string& s) {
  std::string out = "\"";
  for (char c : s) out += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
  return out + "\"";
}

std::string valueText(const CIMValue& v) {
  if (!v) return "NULL";
  std::string joined;
  for (const std::string& item : items(v))
    joined += (joined.empty() ? "" : ",") + (isText(v) ? quoted(item) : item);
  return v.isArray() ? "{" + joined + "}" : joined;
}

std::string qualifiersText(const CIMQualifierArray& qs) {
  std::string out;
  for (const CIMQualifier& q : qs) {
    const CIMValue v = q.getValue();
    out += (out.empty() ? "" : ", ") + std::string(q.getName().c_str());
    if (v) out += v.isArray() ? valueText(v) : "(" + valueText(v) + ")";
  }
  return out.empty() ? out : "  [" + out + "]";
}

// One line: name (padded to the longest of its block), CIM type, value, qualifiers.
void printLine(std::ostream& out, const std::string& name, size_t width, std::string type,
               const CIMValue& v, const std::string& qualifiers) {
  type.resize(std::max<size_t>(type.size(), 8), ' ');
  out << "    " << name << std::string(width - name.size(), ' ') << "  " << type << " = "
      << valueText(v) << qualifiers << '\n';
}

void printInstance(const CIMInstance& inst, const CIMObjectPath& path, std::ostream& out) {
  out << pathText(path) << '\n';
  size_t width = 0;
  for (const CIMProperty& p : inst.getProperties()) width = std::max(width, p.getName().length());
  for (const CIMProperty& p : inst.getProperties())
    printLine(out, p.getName().c_str(), width, p.getDataType().toString().c_str(), p.getValue(),
              qualifiersText(p.getQualifiers()));
}

void printMethodResult(const Outcome& o, std::ostream& out) {
  size_t width = sizeof kReturnValue - 1;
  for (const CIMParamValue& p : o.outParams) width = std::max(width, p.getName().length());
  printLine(out, kReturnValue, width, typeName(o.returnValue), o.returnValue, "");
  for (const CIMParamValue& p : o.outParams)
    printLine(out, p.getName().c_str(), width, typeName(p.getValue()), p.getValue(), "");
}

}  // namespace

void printText(const Outcome& o, std::ostream& out, std::ostream& err) {
  for (size_t i = 0; i < o.instances.size(); ++i) {
    if (i) out << '\n';
    printInstance(o.instances[i], o.instancePaths[i], out);
  }
  for (const CIMObjectPath& p : o.paths) out << pathText(p) << '\n';
  if (o.shape == Outcome::kMethodResult) printMethodResult(o, out);
  out.flush();
  if (o.hasCimError) {
    const CimError& e = o.cimError;
    err << kProgram << o.verb << ": " << errorName(e.code) << " (" << e.code << ") at " << e.file
        << ':' << e.line << '\n';
    if (!e.message.empty()) err << e.message << (e.message.back() == '\n' ? "" : "\n");
  }
  if (!o.failure.empty()) err << kProgram << o.verb << ": " << o.failure << '\n';
  for (const std::string& line : o.schemaErrors) err << kProgram << "schema: " << line << '\n';
}

std::string toJson(const Outcome& o) {
  const bool ok = !o.hasCimError && o.failure.empty();
  json j = {{"verb", o.verb}, {"ok", ok}};
  if (o.hasCimError) {
    const CimError& e = o.cimError;
    j["error"] = {{"code", e.code},
                  {"name", errorName(e.code)},
                  {"message", e.message},
                  {"file", e.file},
                  {"line", e.line}};
  } else if (!ok) {
    j["error"] = {{"message", o.failure}, {"usage", o.usageError}};
  } else if (o.shape == Outcome::kInstances || o.shape == Outcome::kInstance) {
    json all = json::array();
    for (size_t i = 0; i < o.instances.size(); ++i)
      all.push_back(jsonInstance(o.instances[i], o.instancePaths[i]));
    if (o.shape == Outcome::kInstance)
      j["instance"] = all[0];
    else
      j["instances"] = all;
  } else if (o.shape == Outcome::kPaths || o.shape == Outcome::kPath) {
    json all = json::array();
    for (const CIMObjectPath& p : o.paths) all.push_back(pathText(p));
    if (o.shape == Outcome::kPath)
      j["path"] = all[0];
    else
      j["paths"] = all;
  } else if (o.shape == Outcome::kMethodResult) {
    j["returnValue"] = {{"type", typeName(o.returnValue)}, {"value", jsonValue(o.returnValue)}};
    json out = json::array();
    for (const CIMParamValue& p : o.outParams)
      out.push_back(named(p.getName(), p.getValue(), typeName(p.getValue())));
    j["out"] = out;
  }
  if (!o.schemaErrors.empty()) j["schemaErrors"] = o.schemaErrors;
  return j.dump();
}

}  // namespace rascim
