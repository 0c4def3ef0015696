// MofSchema.cpp: loading MOF files and looking up classes, properties and methods.
#include "MofSchema.hpp"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace rascim {
namespace {

const char kMofSuffix[] = ".mof";

template <class T>
const T* findByName(const std::vector<T>& items, const std::string& name) {
  for (const T& item : items)
    if (equalsIgnoreCase(item.name, name)) return &item;
  return nullptr;
}

bool qualifierIsTrue(const std::vector<MofQualifier>& qualifiers, const char* name) {
  const MofQualifier* q = findQualifier(qualifiers, name);
  if (!q) return false;
  return !q->hasValue || (q->values.size() == 1 && equalsIgnoreCase(q->values[0].text, "true"));
}

std::string readFile(const std::filesystem::path& path) {
  std::ifstream in(path);
  if (!in) throw MofError(path.string() + ": cannot read");
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace

bool equalsIgnoreCase(const std::string& a, const std::string& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) ==
                  std::tolower(static_cast<unsigned char>(y));
         });
}

const MofQualifier* findQualifier(const std::vector<MofQualifier>& qualifiers,
                                  const std::string& name) {
  return findByName(qualifiers, name);
}

bool MofProperty::isKey() const {
  return qualifierIsTrue(qualifiers, "Key");
}

bool MofParameter::isIn() const {
  return !findQualifier(qualifiers, "IN") || qualifierIsTrue(qualifiers, "IN");
}

bool MofParameter::isOut() const {
  return qualifierIsTrue(qualifiers, "OUT");
}

bool MofClass::isAssociation() const {
  return qualifierIsTrue(qualifiers, "Association");
}

const MofProperty* MofClass::findProperty(const std::string& n) const {
  return findByName(properties, n);
}

const MofMethod* MofClass::findMethod(const std::string& n) const {
  return findByName(methods, n);
}

std::vector<const MofProperty*> MofClass::keys() const {
  std::vector<const MofProperty*> out;
  for (const MofProperty& p : properties)
    if (p.isKey()) out.push_back(&p);
  return out;
}

const MofClass* MofSchema::findClass(const std::string& name) const {
  return findByName(classes_, name);
}

void MofSchema::load(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code ec;
  if (!fs::is_directory(path, ec)) {
    addText(readFile(path), path);
    return;
  }
  std::vector<fs::path> files;
  for (const fs::directory_entry& e : fs::directory_iterator(path, ec))
    if (e.path().extension() == kMofSuffix) files.push_back(e.path());
  if (ec) throw MofError(path + ": " + ec.message());
  std::sort(files.begin(), files.end());
  for (const fs::path& f : files) addText(readFile(f), f.string());
}

}  // namespace rascim
