// MofSchema.hpp: the CIM classes read from MOF files, as ras-cim needs them for typing
// values, building instances the way a CIMOM does and checking what the module returns.
#ifndef RAS_HOST_MOFSCHEMA_HPP
#define RAS_HOST_MOFSCHEMA_HPP

#include <stdexcept>
#include <string>
#include <vector>

namespace rascim {

// One value of a qualifier or default: its MOF text and what kind of literal it was.
struct MofValue {
  enum Kind { kString, kNumber, kBoolean, kNull, kIdentifier };
  Kind kind = kString;
  std::string text;
};

struct MofQualifier {
  std::string name;
  bool isArray = false;
  bool hasValue = false;  // false for a bare flag such as [Key]: its value is true
  std::vector<MofValue> values;
};

// A CIM data type: "uint16", "string", ..., or "ref" with the referenced class.
struct MofType {
  std::string name;
  std::string refClass;
  bool isArray = false;
};

struct MofProperty {
  std::string name;
  MofType type;
  std::vector<MofQualifier> qualifiers;
  bool isKey() const;
};

struct MofParameter {
  std::string name;
  MofType type;
  std::vector<MofQualifier> qualifiers;
  bool isIn() const;  // IN defaults to true, as in CIM
  bool isOut() const;
};

struct MofMethod {
  std::string name;
  MofType returnType;
  std::vector<MofParameter> parameters;
  std::vector<MofQualifier> qualifiers;
};

struct MofClass {
  std::string name;
  std::string superClass;
  std::vector<MofQualifier> qualifiers;
  std::vector<MofProperty> properties;
  std::vector<MofMethod> methods;
  bool isAssociation() const;
  const MofProperty* findProperty(const std::string& name) const;  // case-insensitive
  const MofMethod* findMethod(const std::string& name) const;      // case-insensitive
  std::vector<const MofProperty*> keys() const;
};

class MofError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class MofSchema {
 public:
  // Parses MOF text; `origin` names it in error messages. Throws MofError.
  void addText(const std::string& text, const std::string& origin);
  // Loads a .mof file, or every .mof file of a directory in name order. Throws MofError.
  void load(const std::string& path);
  const MofClass* findClass(const std::string& name) const;  // case-insensitive
  const std::vector<MofClass>& classes() const { return classes_; }

 private:
  std::vector<MofClass> classes_;
};

const MofQualifier* findQualifier(const std::vector<MofQualifier>& qualifiers,
                                  const std::string& name);
bool equalsIgnoreCase(const std::string& a, const std::string& b);

}  // namespace rascim

#endif
