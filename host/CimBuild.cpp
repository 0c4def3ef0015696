// CimBuild.cpp: object paths and instances built from wbemcli text, typed by the schema.
#include "CimBuild.hpp"

#include "OW_Array.hpp"
#include "OW_CIMDataType.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace rascim {

const char kHostErrorFile[] = "ras-cim";

namespace {

const char kNoSuchProperty[] = "no property %s in class %s";

CIMDataType::Type simpleType(const std::string& name) {
  static const char* const kNames[] = {"uint8",  "sint8",  "uint16",   "sint16", "uint32",
                                       "sint32", "uint64", "sint64",   "string", "boolean",
                                       "real32", "real64", "datetime", "char16"};
  for (size_t i = 0; i < sizeof kNames / sizeof kNames[0]; ++i)
    if (name == kNames[i]) return static_cast<CIMDataType::Type>(i + CIMDataType::UINT8);
  return CIMDataType::INVALID;
}

CIMDataType dataType(const MofType& type) {
  if (type.name == "ref") return CIMDataType(CIMName(type.refClass.c_str()));
  return type.isArray ? CIMDataType(simpleType(type.name), 0) : CIMDataType(simpleType(type.name));
}

const Binding* findBinding(const std::vector<Binding>& values, const std::string& name) {
  const Binding* found = nullptr;
  for (const Binding& b : values)
    if (equalsIgnoreCase(b.name, name)) found = &b;  // the last one given wins
  return found;
}

CIMQualifierArray qualifiersOf(const MofProperty& p) {
  CIMQualifierArray out;
  for (const MofQualifier& q : p.qualifiers) out.push_back(toQualifier(q));
  return out;
}

void refuseUndeclared(const MofClass& cls, const std::vector<Binding>& values) {
  for (const Binding& b : values) {
    if (cls.findProperty(b.name)) continue;
    String msg;
    msg.format(kNoSuchProperty, b.name.c_str(), cls.name.c_str());
    throw CIMException(kHostErrorFile, kHostErrorLine, CIMException::NO_SUCH_PROPERTY, msg.c_str());
  }
}

CIMProperty classProperty(const MofProperty& p, const Binding* given, const MofSchema& schema) {
  const CIMValue value =
      given ? propertyValue(given->value, p.type, schema, p.name) : CIMValue(CIMNULL);
  CIMProperty prop = value ? CIMProperty(CIMName(p.name.c_str()), value)
                           : CIMProperty(CIMName(p.name.c_str()), dataType(p.type));
  prop.setQualifiers(qualifiersOf(p));
  return prop;
}

}  // namespace

CIMObjectPath buildPath(const PathText& text, const MofSchema& schema) {
  CIMObjectPath path{CIMName(text.className.c_str())};
  const MofClass* cls = schema.findClass(text.className);
  for (const Binding& key : text.keys) {
    const MofProperty* p = cls ? cls->findProperty(key.name) : nullptr;
    path.setKeyValue(CIMName(key.name.c_str()), p ? typedValue(key.value, p->type, schema, key.name)
                                                  : untypedValue(key.value));
  }
  return path;
}

CIMInstance buildInstance(const std::string& className, const std::vector<Binding>& values,
                          const MofSchema& schema, bool allProperties) {
  CIMInstance inst{CIMName(className.c_str())};
  const MofClass* cls = schema.findClass(className);
  if (!cls) {
    for (const Binding& b : values)
      inst.setProperty(CIMName(b.name.c_str()), untypedValue(b.value));
    return inst;
  }
  refuseUndeclared(*cls, values);
  for (const MofProperty& p : cls->properties) {
    const Binding* given = findBinding(values, p.name);
    if (given || allProperties) inst.setProperty(classProperty(p, given, schema));
  }
  return inst;
}

CIMObjectPath instancePath(const CIMInstance& instance, const MofSchema& schema) {
  const MofClass* cls = schema.findClass(instance.getClassName().c_str());
  if (!cls) return CIMObjectPath(String(), instance);
  CIMObjectPath path{CIMName(instance.getClassName())};
  for (const MofProperty* key : cls->keys()) {
    const CIMValue v = instance.getPropertyValue(CIMName(key->name.c_str()));
    if (v) path.setKeyValue(CIMName(key->name.c_str()), v);
  }
  return path;
}

}  // namespace rascim
