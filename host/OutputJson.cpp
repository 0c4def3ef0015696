// OutputJson.cpp: the JSON form of an outcome, for scripts:
//   {"verb":"gi","ok":true,"instance":{"path":..,"class":..,"properties":[{"name":..,
//    "type":..,"value":..,"qualifiers":[{"name":..,"type":..,"value":..}]}]}}
//   {"verb":"gi","ok":false,"error":{"code":5,"name":"CIM_ERR_INVALID_CLASS","message":"",
//    "file":"../src/Zeph_RASProvider","line":479}}
#include "CimBuild.hpp"
#include "CimText.hpp"
#include "JsonWriter.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_String.hpp"
#include "Output.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

void writeElement(JsonWriter& w, CIMDataType::Type type, const std::string& item) {
  if (isTextType(type))
    w.value(item);
  else
    w.number(item);
}

void writeValue(JsonWriter& w, const CIMValue& v) {
  if (!v) {
    w.null();
    return;
  }
  const std::vector<std::string> items = valueItems(v);
  if (!v.isArray()) return writeElement(w, v.getType(), items.front());
  w.beginArray();
  for (const std::string& item : items) writeElement(w, v.getType(), item);
  w.endArray();
}

void writeNamedValue(JsonWriter& w, const std::string& name, const std::string& type,
                     const CIMValue& v) {
  w.key("name").value(name).key("type").value(type).key("value");
  writeValue(w, v);
}

void writeInstance(JsonWriter& w, const CIMInstance& inst, const MofSchema& schema) {
  w.beginObject().key("path").value(pathText(instancePath(inst, schema)));
  w.key("class").value(inst.getClassName().c_str()).key("properties").beginArray();
  const CIMPropertyArray props = inst.getProperties();
  for (size_t i = 0; i < props.size(); ++i) {
    w.beginObject();
    writeNamedValue(w, props[i].getName().c_str(), typeName(props[i].getDataType()),
                    props[i].getValue());
    w.key("qualifiers").beginArray();
    const CIMQualifierArray qs = props[i].getQualifiers();
    for (size_t q = 0; q < qs.size(); ++q) {
      w.beginObject();
      writeNamedValue(w, qs[q].getName().c_str(), valueTypeName(qs[q].getValue()),
                      qs[q].getValue());
      w.endObject();
    }
    w.endArray().endObject();
  }
  w.endArray().endObject();
}

void writeMethodResult(JsonWriter& w, const Outcome& o) {
  w.key("returnValue").beginObject().key("type").value(valueTypeName(o.returnValue)).key("value");
  writeValue(w, o.returnValue);
  w.endObject().key("out").beginArray();
  for (size_t i = 0; i < o.outParams.size(); ++i) {
    const CIMValue v = o.outParams[i].getValue();
    w.beginObject();
    writeNamedValue(w, o.outParams[i].getName().c_str(), valueTypeName(v), v);
    w.endObject();
  }
  w.endArray();
}

void writeResult(JsonWriter& w, const Outcome& o, const MofSchema& schema) {
  switch (o.shape) {
    case Outcome::kInstances:
      w.key("instances").beginArray();
      for (const CIMInstance& inst : o.instances) writeInstance(w, inst, schema);
      w.endArray();
      break;
    case Outcome::kInstance:
      w.key("instance");
      writeInstance(w, o.instances.front(), schema);
      break;
    case Outcome::kPaths:
      w.key("paths").beginArray();
      for (const CIMObjectPath& p : o.paths) w.value(pathText(p));
      w.endArray();
      break;
    case Outcome::kPath:
      w.key("path").value(pathText(o.paths.front()));
      break;
    case Outcome::kMethodResult:
      writeMethodResult(w, o);
      break;
    case Outcome::kNothing:
      break;
  }
}

void writeError(JsonWriter& w, const Outcome& o) {
  w.key("error").beginObject();
  if (o.hasCimError) {
    const CimError& e = o.cimError;
    w.key("code").value(e.code).key("name").value(cimErrorName(e.code));
    w.key("message").value(e.message).key("file").value(e.file).key("line").value(e.line);
  } else {
    w.key("message").value(o.failure).key("usage").value(o.usageError);
  }
  w.endObject();
}

}  // namespace

std::string toJson(const Outcome& o, const MofSchema& schema) {
  JsonWriter w;
  const bool ok = !o.hasCimError && o.failure.empty();
  w.beginObject().key("verb").value(o.verb).key("ok").value(ok);
  if (ok)
    writeResult(w, o, schema);
  else
    writeError(w, o);
  if (!o.schemaErrors.empty()) {
    w.key("schemaErrors").beginArray();
    for (const std::string& line : o.schemaErrors) w.value(line);
    w.endArray();
  }
  w.endObject();
  return w.str();
}

}  // namespace rascim
