// SchemaClasses.cpp: every .mof file of mof/ compiled in memory, qualifier declarations
// first. OwMofCompiler.hpp must come before any other OpenWBEM header (see there).
#include "OwMofCompiler.hpp"
// The rest.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "MofFiles.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMQualifierType.hpp"
#include "SchemaClasses.h"

using namespace OpenWBEM;
namespace fs = std::filesystem;

namespace {

const char kModuleMof[] = "Zeph_RAS.mof";

std::string schemaText() {
  std::string text;
  for (const fs::path& file : rascim::mofFiles(RAS_MOF_DIR)) {
    std::ifstream in(file);
    std::ostringstream content;
    content << in.rdbuf();
    text += content.str() + "\n";
  }
  return text;
}

}  // namespace

const CIMClass& schemaClass(const std::string& name) {
  static const CIMClassArray classes = [] {
    CIMInstanceArray instances;
    CIMClassArray compiled;
    CIMQualifierTypeArray qualifierTypes;
    MOF::compileMOF(schemaText().c_str(), CIMOMHandleIFCRef(), "root/cimv2", instances, compiled,
                    qualifierTypes);
    return compiled;
  }();
  for (const CIMClass& c : classes)
    if (c.getName().equalsIgnoreCase(name.c_str())) return c;
  throw std::runtime_error("not in the schema: " + name);
}

std::vector<std::string> moduleSchemaClassNames() {
  std::ifstream in(fs::path(RAS_MOF_DIR) / kModuleMof);
  std::vector<std::string> names;
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string keyword, name;
    if (words >> keyword >> name && keyword == "class") names.push_back(name);
  }
  return names;
}
