// PathSyntax.hpp: wbemcli's text forms, before any typing: object paths such as
// 'http://host:5988/root/cimv2:Zeph_SoftModem.DeviceID="SoftModemIn",...' and property
// lists such as 'MTU=1400,IfStatus=true,Values={"a","b"}'.
#ifndef RAS_HOST_PATHSYNTAX_HPP
#define RAS_HOST_PATHSYNTAX_HPP

#include <stdexcept>
#include <string>
#include <vector>

namespace rascim {

// A value as written: quoted ("..."), bare (1400, true) or an array ({...}).
struct TextValue {
  bool quoted = false;
  bool isArray = false;
  std::string text;              // scalar text, escapes resolved
  std::vector<TextValue> items;  // array elements
};

struct Binding {
  std::string name;
  TextValue value;
};

struct PathText {
  std::string nameSpace;  // empty when the path names none
  std::string className;
  std::vector<Binding> keys;
};

class SyntaxError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Parses an object path; a URL prefix (scheme, host, port) is accepted and ignored.
PathText parsePath(const std::string& text);

// Parses a comma-separated list of Name=value bindings.
std::vector<Binding> parseBindings(const std::string& text);

// Splits a batch line into words the way a POSIX shell does for plain quoting: single
// quotes, double quotes with \" and \\, backslash escapes; an unquoted # starts a comment.
std::vector<std::string> splitWords(const std::string& line);

// The escaped, double-quoted form of a string key value, as in object paths.
std::string quoteValue(const std::string& text);

}  // namespace rascim

#endif
