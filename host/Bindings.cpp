// Bindings.cpp: splitting of Name=value lists and the cast of each value.
#include "Bindings.hpp"

#include "OW_CIMException.hpp"
#include "OW_CIMValueCast.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

// Errors ras-cim raises in the CIMOM's place carry this site.
const char kHostFile[] = "ras-cim";

// Splits at the commas outside double quotes and braces.
std::vector<std::string> splitTopLevel(const std::string& text) {
  std::vector<std::string> parts(1);
  bool quoted = false;
  int depth = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted && c == '\\' && i + 1 < text.size()) {
      parts.back() += text.substr(i++, 2);
      continue;
    }
    if (c == '"') quoted = !quoted;
    if (!quoted && c == '{') ++depth;
    if (!quoted && c == '}') --depth;
    if (!quoted && depth == 0 && c == ',')
      parts.emplace_back();
    else
      parts.back() += c;
  }
  return parts;
}

std::string unquoted(const std::string& text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return text;
  std::string out;
  for (size_t i = 1; i + 1 < text.size(); ++i) out += text[i] == '\\' ? text[++i] : text[i];
  return out;
}

}  // namespace

std::vector<Binding> parseBindings(const std::string& text) {
  std::vector<Binding> out;
  for (const std::string& part : splitTopLevel(text)) {
    const size_t eq = part.find('=');
    if (eq == std::string::npos || eq == 0) throw UsageError("expected Name=value: " + part);
    Binding b{part.substr(0, eq), false, {}};
    const std::string value = part.substr(eq + 1);
    b.isArray = value.size() >= 2 && value.front() == '{' && value.back() == '}';
    if (!b.isArray) {
      b.items.push_back(unquoted(value));
    } else if (value.size() > 2) {
      for (const std::string& item : splitTopLevel(value.substr(1, value.size() - 2)))
        b.items.push_back(unquoted(item));
    }
    out.push_back(std::move(b));
  }
  return out;
}

CIMValue typedValue(const Binding& b, const CIMDataType& type) {
  StringArray items;
  for (const std::string& item : b.items) items.push_back(item.c_str());
  const CIMValue text = b.isArray ? CIMValue(items) : CIMValue(items[0]);
  if (!type) return text;
  if (b.isArray != type.isArrayType())
    throw UsageError(b.name + " is " + type.toString().c_str() +
                     (b.isArray ? ": give a single value" : ": give an array {a,b}"));
  try {
    return CIMValueCast::castValueToDataType(text, type);
  } catch (const CIMException& e) {
    throw CIMException(kHostFile, 0, CIMException::INVALID_PARAMETER, e.getDescription());
  } catch (const ValueCastException& e) {
    throw CIMException(kHostFile, 0, CIMException::INVALID_PARAMETER, e.getMessage());
  }
}

}  // namespace rascim
