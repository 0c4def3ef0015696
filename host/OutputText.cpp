// OutputText.cpp: the human form: each instance as its path followed by one line per
// property with its CIM type, value and the qualifiers the module attached.
#include <algorithm>

#include "CimBuild.hpp"
#include "CimText.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMQualifier.hpp"
#include "OW_String.hpp"
#include "Output.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

const char kProgram[] = "ras-cim: ";
const char kNullText[] = "NULL";
const char kReturnValue[] = "ReturnValue";
const char kSchemaPrefix[] = "schema: ";

std::string valueText(const CIMValue& v) {
  if (!v) return kNullText;
  std::string joined;
  for (const std::string& item : valueItems(v)) {
    if (!joined.empty()) joined += ',';
    joined += isTextType(v.getType()) ? quoteValue(item) : item;
  }
  return v.isArray() ? "{" + joined + "}" : joined;
}

std::string qualifiersText(const CIMQualifierArray& qs) {
  std::string out;
  for (size_t i = 0; i < qs.size(); ++i) {
    const CIMValue v = qs[i].getValue();
    out += (out.empty() ? "" : ", ") + std::string(qs[i].getName().c_str());
    if (v) out += v.isArray() ? valueText(v) : "(" + valueText(v) + ")";
  }
  return out.empty() ? out : "  [" + out + "]";
}

std::string padded(const std::string& s, size_t width) {
  return s + std::string(width > s.size() ? width - s.size() : 0, ' ');
}

// One line: name (padded to the longest of its block), CIM type, value, qualifiers.
struct Line {
  std::string name;
  std::string type;
  CIMValue value;
  std::string qualifiers;
};

void printLine(std::ostream& out, const Line& line, size_t width) {
  out << "    " << padded(line.name, width) << "  " << padded(line.type, 8) << " = "
      << valueText(line.value) << line.qualifiers << '\n';
}

void printInstance(const CIMInstance& inst, const MofSchema& schema, std::ostream& out) {
  out << pathText(instancePath(inst, schema)) << '\n';
  const CIMPropertyArray props = inst.getProperties();
  size_t width = 0;
  for (size_t i = 0; i < props.size(); ++i) width = std::max(width, props[i].getName().length());
  for (size_t i = 0; i < props.size(); ++i)
    printLine(out,
              Line{props[i].getName().c_str(), typeName(props[i].getDataType()),
                   props[i].getValue(), qualifiersText(props[i].getQualifiers())},
              width);
}

void printMethodResult(const Outcome& o, std::ostream& out) {
  size_t width = sizeof kReturnValue - 1;
  for (size_t i = 0; i < o.outParams.size(); ++i)
    width = std::max(width, o.outParams[i].getName().length());
  printLine(out, Line{kReturnValue, valueTypeName(o.returnValue), o.returnValue, ""}, width);
  for (size_t i = 0; i < o.outParams.size(); ++i) {
    const CIMValue v = o.outParams[i].getValue();
    printLine(out, Line{o.outParams[i].getName().c_str(), valueTypeName(v), v, ""}, width);
  }
}

void printErrors(const Outcome& o, std::ostream& err) {
  if (o.hasCimError) {
    const CimError& e = o.cimError;
    err << kProgram << o.verb << ": " << cimErrorName(e.code) << " (" << e.code << ") at " << e.file
        << ':' << e.line << '\n';
    if (!e.message.empty()) err << e.message << (e.message.back() == '\n' ? "" : "\n");
  }
  if (!o.failure.empty()) err << kProgram << o.verb << ": " << o.failure << '\n';
  for (const std::string& line : o.schemaErrors) err << kProgram << kSchemaPrefix << line << '\n';
}

}  // namespace

void printText(const Outcome& o, const MofSchema& schema, std::ostream& out, std::ostream& err) {
  switch (o.shape) {
    case Outcome::kInstances:
    case Outcome::kInstance:
      for (size_t i = 0; i < o.instances.size(); ++i) {
        if (i) out << '\n';
        printInstance(o.instances[i], schema, out);
      }
      break;
    case Outcome::kPaths:
    case Outcome::kPath:
      for (const CIMObjectPath& p : o.paths) out << pathText(p) << '\n';
      break;
    case Outcome::kMethodResult:
      printMethodResult(o, out);
      break;
    case Outcome::kNothing:
      break;
  }
  out.flush();
  printErrors(o, err);
}

}  // namespace rascim
