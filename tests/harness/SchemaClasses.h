// SchemaClasses.h: the classes of the project's schema (mof/), as OpenWBEM's MOF compiler
// reads them, independently of the module: tests compare the module with them.
#ifndef RAS_TESTS_SCHEMACLASSES_H
#define RAS_TESTS_SCHEMACLASSES_H

#include <string>
#include <vector>

#include "OW_CIMClass.hpp"

// The class named `name` (case-insensitive); throws std::runtime_error when mof/ has none.
const OpenWBEM::CIMClass& schemaClass(const std::string& name);

// The names of the classes of Zeph_RAS.mof (the module's classes), in the file's order.
std::vector<std::string> moduleSchemaClassNames();

// Whether the element carries the qualifier (Key, Write, ...).
template <class Element>
bool hasQualifier(const Element& element, const char* name) {
  return bool(element.getQualifier(name));
}

#endif
