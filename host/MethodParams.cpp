// MethodParams.cpp: method parameters arranged in declaration order, typed by the schema.
#include "CimBuild.hpp"
#include "OW_Array.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMName.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_String.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const char kNoSuchMethod[] = "no method %s in class %s";
const char kNoSuchParameter[] = "no parameter %s of method %s";

[[noreturn]] void fail(CIMException::ErrNoType code, const char* format, const std::string& a,
                       const std::string& b) {
  String msg;
  msg.format(format, a.c_str(), b.c_str());
  throw CIMException(kHostErrorFile, kHostErrorLine, code, msg.c_str());
}

const Binding* given(const std::vector<Binding>& values, const std::string& name) {
  for (const Binding& b : values)
    if (equalsIgnoreCase(b.name, name)) return &b;
  return nullptr;
}

bool isInParameter(const MofMethod& m, const std::string& name) {
  for (const MofParameter& p : m.parameters)
    if (p.isIn() && equalsIgnoreCase(p.name, name)) return true;
  return false;
}

const MofMethod& declaredMethod(const MofClass& cls, const std::string& method,
                                const std::vector<Binding>& values) {
  const MofMethod* m = cls.findMethod(method);
  if (!m) fail(CIMException::METHOD_NOT_FOUND, kNoSuchMethod, method, cls.name);
  for (const Binding& b : values)
    if (!isInParameter(*m, b.name))
      fail(CIMException::INVALID_PARAMETER, kNoSuchParameter, b.name, m->name);
  return *m;
}

}  // namespace

MethodParams buildMethodParams(const std::string& className, const std::string& method,
                               const std::vector<Binding>& values, const MofSchema& schema) {
  MethodParams params;
  const MofClass* cls = schema.findClass(className);
  if (!cls) {
    for (const Binding& b : values)
      params.in.push_back(CIMParamValue(CIMName(b.name.c_str()), untypedValue(b.value)));
    return params;
  }
  for (const MofParameter& p : declaredMethod(*cls, method, values).parameters) {
    const Binding* b = given(values, p.name);
    if (p.isIn())
      params.in.push_back(
          b ? CIMParamValue(CIMName(p.name.c_str()), typedValue(b->value, p.type, schema, p.name))
            : CIMParamValue(CIMName(p.name.c_str())));
    if (p.isOut()) params.out.push_back(CIMParamValue(CIMName(p.name.c_str())));
  }
  return params;
}

}  // namespace rascim
