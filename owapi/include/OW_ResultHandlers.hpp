// Result handlers that collect results into an array or an enumeration.
#ifndef OW_RESULT_HANDLERS_HPP_INCLUDE_GUARD_
#define OW_RESULT_HANDLERS_HPP_INCLUDE_GUARD_
#include "OW_CIMFwd.hpp"
#include "OW_CommonFwd.hpp"
#include "OW_ResultHandlerIFC.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMInstanceArrayBuilder : public CIMInstanceResultHandlerIFC {
 public:
  CIMInstanceArrayBuilder(CIMInstanceArray& a) : m_a(a) {}

 protected:
  virtual void doHandle(const CIMInstance& x);

 private:
  CIMInstanceArray& m_a;
};

class CIMObjectPathArrayBuilder : public CIMObjectPathResultHandlerIFC {
 public:
  CIMObjectPathArrayBuilder(CIMObjectPathArray& a) : m_a(a) {}

 protected:
  virtual void doHandle(const CIMObjectPath& x);

 private:
  CIMObjectPathArray& m_a;
};

class StringArrayBuilder : public StringResultHandlerIFC {
 public:
  StringArrayBuilder(StringArray& a) : m_a(a) {}

 protected:
  virtual void doHandle(const String& x);

 private:
  StringArray& m_a;
};

class CIMClassArrayBuilder : public CIMClassResultHandlerIFC {
 public:
  CIMClassArrayBuilder(CIMClassArray& a) : m_a(a) {}

 protected:
  virtual void doHandle(const CIMClass& x);

 private:
  CIMClassArray& m_a;
};

class CIMQualifierTypeArrayBuilder : public CIMQualifierTypeResultHandlerIFC {
 public:
  CIMQualifierTypeArrayBuilder(CIMQualifierTypeArray& a) : m_a(a) {}

 protected:
  virtual void doHandle(const CIMQualifierType& x);

 private:
  CIMQualifierTypeArray& m_a;
};

class CIMInstanceEnumBuilder : public CIMInstanceResultHandlerIFC {
 public:
  CIMInstanceEnumBuilder(CIMInstanceEnumeration& e) : m_e(e) {}

 protected:
  virtual void doHandle(const CIMInstance& x);

 private:
  CIMInstanceEnumeration& m_e;
};

class CIMObjectPathEnumBuilder : public CIMObjectPathResultHandlerIFC {
 public:
  CIMObjectPathEnumBuilder(CIMObjectPathEnumeration& e) : m_e(e) {}

 protected:
  virtual void doHandle(const CIMObjectPath& x);

 private:
  CIMObjectPathEnumeration& m_e;
};

class StringEnumBuilder : public StringResultHandlerIFC {
 public:
  StringEnumBuilder(StringEnumeration& e) : m_e(e) {}

 protected:
  virtual void doHandle(const String& x);

 private:
  StringEnumeration& m_e;
};

class CIMClassEnumBuilder : public CIMClassResultHandlerIFC {
 public:
  CIMClassEnumBuilder(CIMClassEnumeration& e) : m_e(e) {}

 protected:
  virtual void doHandle(const CIMClass& x);

 private:
  CIMClassEnumeration& m_e;
};

class CIMQualifierTypeEnumBuilder : public CIMQualifierTypeResultHandlerIFC {
 public:
  CIMQualifierTypeEnumBuilder(CIMQualifierTypeEnumeration& e) : m_e(e) {}

 protected:
  virtual void doHandle(const CIMQualifierType& x);

 private:
  CIMQualifierTypeEnumeration& m_e;
};

}  // namespace OW_NAMESPACE

#endif
