// The array and enumeration builders: each result is appended as it arrives.
#include "OW_ResultHandlers.hpp"

#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMQualifierType.hpp"
#include "OW_Enumeration.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

void CIMInstanceArrayBuilder::doHandle(const CIMInstance& x) {
  m_a.push_back(x);
}
void CIMObjectPathArrayBuilder::doHandle(const CIMObjectPath& x) {
  m_a.push_back(x);
}
void StringArrayBuilder::doHandle(const String& x) {
  m_a.push_back(x);
}
void CIMClassArrayBuilder::doHandle(const CIMClass& x) {
  m_a.push_back(x);
}
void CIMQualifierTypeArrayBuilder::doHandle(const CIMQualifierType& x) {
  m_a.push_back(x);
}
void CIMInstanceEnumBuilder::doHandle(const CIMInstance& x) {
  m_e.addElement(x);
}
void CIMObjectPathEnumBuilder::doHandle(const CIMObjectPath& x) {
  m_e.addElement(x);
}
void StringEnumBuilder::doHandle(const String& x) {
  m_e.addElement(x);
}
void CIMClassEnumBuilder::doHandle(const CIMClass& x) {
  m_e.addElement(x);
}
void CIMQualifierTypeEnumBuilder::doHandle(const CIMQualifierType& x) {
  m_e.addElement(x);
}

}  // namespace OW_NAMESPACE
