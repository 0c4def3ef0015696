// SchemaCheck.cpp: comparison of returned instances, paths and values with their classes.
#include "SchemaCheck.hpp"

#include <set>

#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMMethod.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

std::string text(const String& s) {
  return s.c_str();
}

std::string upper(String s) {
  return text(s.toUpperCase());
}

// "uint16", "string[]", ...; a null value has no type to disagree with.
bool sameType(const CIMValue& value, const CIMDataType& type) {
  return !value || (value.getType() == type.getType() && value.isArray() == type.isArrayType());
}

std::string typeText(const CIMValue& value) {
  return text(CIMDataType(value.getType()).toString()) + (value.isArray() ? "[]" : "");
}

std::set<std::string> upperNames(const CIMPropertyArray& properties) {
  std::set<std::string> names;
  for (const CIMProperty& p : properties) names.insert(upper(p.getName()));
  return names;
}

}  // namespace

CIMClass SchemaCheck::declared(const String& className, Problems& problems) {
  const std::string key = upper(className);
  auto found = classes_.find(key);
  if (found == classes_.end()) {
    CIMClass cls(CIMNULL);
    try {
      cls = cimom_.getClass(ns_, className);
    } catch (const CIMException&) {
    }
    found = classes_.emplace(key, cls).first;
  }
  if (!found->second) problems.push_back(text(className) + ": class not declared");
  return found->second;
}

CIMObjectPath SchemaCheck::instance(const CIMInstance& instance, Problems& problems) {
  CIMObjectPath path(instance.getClassName(), ns_);
  const CIMClass cls = declared(instance.getClassName(), problems);
  if (!cls) return path;
  for (const CIMProperty& key : cls.getKeys())
    path.setKeyValue(key.getName(), instance.getPropertyValue(key.getName()));
  for (const CIMProperty& p : instance.getProperties()) {
    const std::string where = text(instance.getClassName()) + "." + text(p.getName());
    const CIMProperty d = cls.getProperty(p.getName());
    if (!d)
      problems.push_back(where + ": property not declared");
    else if (!sameType(p.getValue(), d.getDataType()))
      problems.push_back(where + ": " + typeText(p.getValue()) + " value, declared " +
                         text(d.getDataType().toString()));
  }
  return path;
}

void SchemaCheck::path(const CIMObjectPath& path, Problems& problems) {
  const CIMClass cls = declared(path.getClassName(), problems);
  if (cls && upperNames(path.getKeys()) != upperNames(cls.getKeys()))
    problems.push_back(text(path.modelPath()) + ": not the keys of " + text(cls.getName()));
}

void SchemaCheck::returnValue(const CIMObjectPath& target, const std::string& method,
                              const CIMValue& value, Problems& problems) {
  const CIMClass cls = declared(target.getClassName(), problems);
  const CIMMethod m = cls ? cls.getMethod(method.c_str()) : CIMMethod(CIMNULL);
  if (m && !sameType(value, m.getReturnType()))
    problems.push_back(text(cls.getName()) + "." + method + ": returns " + typeText(value) +
                       ", declared " + text(m.getReturnType().toString()));
}

}  // namespace rascim
