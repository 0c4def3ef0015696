// A reference to an object that also keeps the library it came from loaded.
#ifndef OW_SHAREDLIBRARYREFERENCE_HPP_INCLUDE_GUARD_
#define OW_SHAREDLIBRARYREFERENCE_HPP_INCLUDE_GUARD_
#include "OW_SharedLibrary.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

template <class T>
class SharedLibraryReference {
 public:
  typedef T element_type;
  typedef T SharedLibraryReference::*safe_bool;

  SharedLibraryReference() : m_sharedLib(), m_obj() {}
  SharedLibraryReference(SharedLibraryRef lib, const T& obj) : m_sharedLib(lib), m_obj(obj) {}
  SharedLibraryReference(SharedLibraryRef lib, typename T::element_type* obj)
      : m_sharedLib(lib), m_obj(T(obj)) {}
  ~SharedLibraryReference() {
    // The object must go before the library that holds its code.
    m_obj = T();
    m_sharedLib = 0;
  }
  SharedLibraryRef getLibRef() const { return m_sharedLib; }
  typename T::element_type* operator->() const { return &*m_obj; }
  T get() const { return m_obj; }
  operator safe_bool() const { return m_obj ? &SharedLibraryReference::m_obj : 0; }
  bool operator!() const { return !m_obj; }
  void setNull() {
    m_obj = T();
    m_sharedLib = 0;
  }

 private:
  SharedLibraryRef m_sharedLib;
  T m_obj;
};

}  // namespace OW_NAMESPACE

#endif
