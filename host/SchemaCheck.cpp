// SchemaCheck.cpp: the schema agreement checks.
#include "SchemaCheck.hpp"

#include "CimText.hpp"
#include "OW_Array.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const MofClass* declaredClass(const std::string& name, const MofSchema& schema,
                              std::vector<std::string>& problems) {
  const MofClass* cls = schema.findClass(name);
  if (!cls)
    problems.push_back("class " + name + " is not declared in the schema");
  else if (cls->name != name)
    problems.push_back("class " + name + " is declared as " + cls->name);
  return cls;
}

// Checks one named value against the class; `what` is "property" or "key".
void checkValue(const MofClass& cls, const std::string& what, const std::string& name,
                const CIMValue& value, std::vector<std::string>& problems) {
  const MofProperty* p = cls.findProperty(name);
  const std::string where = cls.name + "." + name;
  if (!p) {
    problems.push_back(what + " " + where + " is not declared in the schema");
    return;
  }
  if (p->name != name) problems.push_back(what + " " + where + " is declared as " + p->name);
  if (what == "key" && !p->isKey()) problems.push_back(where + " is not declared as a key");
  if (value && valueTypeName(value) != typeName(p->type))
    problems.push_back(what + " " + where + " is " + valueTypeName(value) + ", declared " +
                       typeName(p->type));
}

}  // namespace

std::vector<std::string> checkInstance(const CIMInstance& instance, const MofSchema& schema) {
  std::vector<std::string> problems;
  const MofClass* cls = declaredClass(instance.getClassName().c_str(), schema, problems);
  if (!cls) return problems;
  const CIMPropertyArray props = instance.getProperties();
  for (size_t i = 0; i < props.size(); ++i)
    checkValue(*cls, "property", props[i].getName().c_str(), props[i].getValue(), problems);
  return problems;
}

std::vector<std::string> checkPath(const CIMObjectPath& path, const MofSchema& schema) {
  std::vector<std::string> problems;
  const MofClass* cls = declaredClass(path.getClassName().c_str(), schema, problems);
  if (!cls) return problems;
  const CIMPropertyArray keys = path.getKeys();
  for (size_t i = 0; i < keys.size(); ++i)
    checkValue(*cls, "key", keys[i].getName().c_str(), keys[i].getValue(), problems);
  for (const MofProperty* key : cls->keys())
    if (!path.getKey(CIMName(key->name.c_str())))
      problems.push_back("path of " + cls->name + " lacks the key " + key->name);
  return problems;
}

std::vector<std::string> checkReturn(const std::string& className, const std::string& method,
                                     const CIMValue& value, const MofSchema& schema) {
  std::vector<std::string> problems;
  const MofClass* cls = schema.findClass(className);
  const MofMethod* m = cls ? cls->findMethod(method) : nullptr;
  if (m && value && valueTypeName(value) != typeName(m->returnType))
    problems.push_back("method " + cls->name + "." + m->name + " returned " + valueTypeName(value) +
                       ", declared " + typeName(m->returnType));
  return problems;
}

}  // namespace rascim
