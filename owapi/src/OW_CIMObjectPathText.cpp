// CIMObjectPath: the model-path text form, escaping, and parsing it back.
#include <cstdlib>

#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMProperty.hpp"
#include "OW_CIMValue.hpp"

namespace OW_NAMESPACE {

namespace {
const char* const kNullKeyText = "null";
const char* const kBadPathMsg = "Invalid object path: ";

[[noreturn]] void throwBadPath(const String& text) {
  String msg = String(kBadPathMsg) + text;
  OW_THROWCIMMSG(CIMException::INVALID_PARAMETER, msg.c_str());
}

// Reads a double-quoted value starting at text[pos] == '"'; pos ends after the quote.
String readQuoted(const String& text, size_t& pos) {
  String raw;
  for (++pos; pos < text.length(); ++pos) {
    char c = text.charAt(pos);
    if (c == '\\' && pos + 1 < text.length()) {
      raw += '\\';
      raw += text.charAt(++pos);
    } else if (c == '"') {
      ++pos;
      return CIMObjectPath::unEscape(raw);
    } else {
      raw += c;
    }
  }
  throwBadPath(text);
}

// True when the whole text is a number of the kind strtoll / strtod accept.
bool wholeNumber(const String& text, bool integer) {
  const char* begin = text.c_str();
  char* end = 0;
  if (integer) {
    String::strtoll(begin, &end, 10);
  } else {
    std::strtod(begin, &end);
  }
  return !text.empty() && end != begin && *end == '\0';
}

// Unquoted values are booleans or numbers (kept as SINT64 / REAL64) or plain text.
CIMValue unquotedValue(const String& text) {
  if (text.equalsIgnoreCase("true") || text.equalsIgnoreCase("false")) {
    return CIMValue(text.toBool());
  }
  if (wholeNumber(text, true)) {
    return CIMValue(text.toInt64());
  }
  if (wholeNumber(text, false)) {
    return CIMValue(text.toReal64());
  }
  return CIMValue(text);
}

// Parses K=V[,K=V...] starting at pos into keys of path.
void parseKeys(const String& text, size_t pos, CIMObjectPath& path) {
  while (pos < text.length()) {
    size_t eq = text.indexOf('=', pos);
    if (eq == String::npos || eq == pos) {
      throwBadPath(text);
    }
    String name = text.substring(pos, eq - pos);
    pos = eq + 1;
    CIMValue value(CIMNULL);
    if (pos < text.length() && text.charAt(pos) == '"') {
      value = CIMValue(readQuoted(text, pos));
    } else {
      size_t comma = text.indexOf(',', pos);
      size_t end = comma == String::npos ? text.length() : comma;
      value = unquotedValue(text.substring(pos, end - pos));
      pos = end;
    }
    path.setKeyValue(name.trim(), value);
    if (pos < text.length() && text.charAt(pos++) != ',') {
      throwBadPath(text);
    }
  }
}
}  // namespace

String CIMObjectPath::escape(const String& inString) {
  String out;
  for (size_t i = 0; i < inString.length(); ++i) {
    char c = inString.charAt(i);
    if (c == '\\' || c == '"') {
      out += '\\';
      out += c;
    } else if (c == '\n') {
      out += "\\n";
    } else {
      out += c;
    }
  }
  return out;
}

String CIMObjectPath::unEscape(const String& inString) {
  String out;
  for (size_t i = 0; i < inString.length(); ++i) {
    char c = inString.charAt(i);
    if (c == '\\' && i + 1 < inString.length()) {
      char next = inString.charAt(++i);
      out += next == 'n' ? '\n' : next;
    } else {
      out += c;
    }
  }
  return out;
}

String CIMObjectPath::modelPath() const {
  String out = getClassName();
  CIMPropertyArray keys = getKeys();
  for (size_t i = 0; i < keys.size(); ++i) {
    CIMValue v = keys[i].getValue();
    out += i == 0 ? '.' : ',';
    out += keys[i].getName() + "=\"" + escape(v ? v.toString() : String(kNullKeyText)) + "\"";
  }
  return out;
}

String CIMObjectPath::toString() const {
  String out;
  if (!getHost().empty()) {
    out += String("//") + getHost();
  }
  return out + "/" + getNameSpace() + ":" + modelPath();
}

String CIMObjectPath::toMOF() const {
  return String("\"") + escape(modelPath()) + "\"";
}

// Accepts [//host][/namespace:]Class[.Key=Value,...].
CIMObjectPath CIMObjectPath::parse(const String& instanceName) {
  String text(instanceName);
  text.trim();
  String host;
  if (text.startsWith("//")) {
    size_t slash = text.indexOf('/', 2);
    host = text.substring(2, slash == String::npos ? String::npos : slash - 2);
    text = slash == String::npos ? String() : text.substring(slash);
  }
  size_t dot = text.indexOf('.');
  size_t colon = text.indexOf(':');
  String ns;
  if (colon != String::npos && (dot == String::npos || colon < dot)) {
    ns = text.substring(0, colon);
    text = text.substring(colon + 1);
    dot = text.indexOf('.');
  }
  String className = text.substring(0, dot);
  if (className.trim().empty()) {
    throwBadPath(instanceName);
  }
  CIMObjectPath path(CIMName(className), ns);
  path.setHost(host);
  if (dot != String::npos) {
    parseKeys(text, dot + 1, path);
  }
  return path;
}

// Keeps only the keys the class declares, converted to their declared types.
CIMObjectPath& CIMObjectPath::syncWithClass(const CIMClass& theClass) {
  if (!theClass) {
    return *this;
  }
  CIMPropertyArray classKeys = theClass.getKeys();
  CIMPropertyArray keys;
  for (size_t i = 0; i < classKeys.size(); ++i) {
    CIMValue v = getKeyValue(classKeys[i].getName());
    CIMProperty key(classKeys[i].getName(), classKeys[i].getDataType());
    key.setValue(v);
    keys.push_back(key);
  }
  return setKeys(keys);
}

}  // namespace OW_NAMESPACE
