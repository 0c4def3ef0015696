// Registration record of a provider: its name and the classes it instruments.
#ifndef OW_PROVIDERINFOBASE_HPP_INCLUDE_GUARD_
#define OW_PROVIDERINFOBASE_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_CommonFwd.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

struct InstClassInfo {
  explicit InstClassInfo(String const& className_);
  InstClassInfo(String const& className_, StringArray const& namespaces_);
  ~InstClassInfo();

  String className;
  // Empty means every namespace.
  StringArray namespaces;
};

template <class ClassInfoT>
class ProviderInfoBase {
 public:
  typedef ClassInfoT ClassInfo;
  typedef Array<ClassInfoT> ClassInfoArray;

  virtual ~ProviderInfoBase() {}
  void addInstrumentedClass(String const& className) {
    m_instrumentedClasses.push_back(ClassInfoT(className));
  }
  void addInstrumentedClass(ClassInfoT const& classInfo) {
    m_instrumentedClasses.push_back(classInfo);
  }
  const ClassInfoArray& getClassInfo() const { return m_instrumentedClasses; }
  void setProviderName(String const& name) { m_name = name; }
  String getProviderName() const { return m_name; }

 private:
  ClassInfoArray m_instrumentedClasses;
  String m_name;
};

}  // namespace OW_NAMESPACE

#endif
