// Registration record of method providers: classes and, optionally, their methods.
#ifndef OW_METHODPROVIDERINFO_HPP_INCLUDE_GUARD_
#define OW_METHODPROVIDERINFO_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_CommonFwd.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class MethodProviderInfo {
 public:
  struct ClassInfo {
    explicit ClassInfo(String const& className_);
    ClassInfo(String const& className_, StringArray const& namespaces_,
              StringArray const& methods_);

    String className;
    // Empty means every namespace.
    StringArray namespaces;
    // Empty means every method of the class.
    StringArray methods;
  };
  typedef Array<ClassInfo> ClassInfoArray;

  void addInstrumentedClass(String const& className);
  void addInstrumentedClass(ClassInfo const& classInfo);
  const ClassInfoArray& getClassInfo() const;
  void setProviderName(String const& name);
  String getProviderName() const;

 private:
  ClassInfoArray m_instrumentedClasses;
  String m_name;
};

typedef Array<MethodProviderInfo> MethodProviderInfoArray;

}  // namespace OW_NAMESPACE

#endif
