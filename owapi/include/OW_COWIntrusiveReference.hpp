// Copy-on-write handle: copies share one implementation until one of them is changed.
#ifndef OW_COW_INTRUSIVE_REFERENCE_HPP_INCLUDE_GUARD_
#define OW_COW_INTRUSIVE_REFERENCE_HPP_INCLUDE_GUARD_
#include "OW_config.h"

namespace OW_NAMESPACE {

namespace COWIntrusiveReferenceHelpers {
// Throws the exception used for a member access through a null handle.
[[noreturn]] void throwNULLException();
inline void checkNull(const void* p) {
  if (p == 0) {
    throwNULLException();
  }
}
}  // namespace COWIntrusiveReferenceHelpers

// T must be a COWIntrusiveCountableBase; its definition is needed only where the
// handle's members are used, so the implementation stays out of public headers.
template <class T>
class COWIntrusiveReference {
 private:
  typedef COWIntrusiveReference this_type;

 public:
  typedef T element_type;
  typedef T* this_type::*safe_bool;

  COWIntrusiveReference() : m_pObj(0) {}
  COWIntrusiveReference(T* p, bool addRef = true) : m_pObj(p) {
    if (m_pObj != 0 && addRef) {
      COWIntrusiveReferenceAddRef(m_pObj);
    }
  }
  COWIntrusiveReference(COWIntrusiveReference const& rhs) : m_pObj(rhs.m_pObj) {
    if (m_pObj != 0) {
      COWIntrusiveReferenceAddRef(m_pObj);
    }
  }
  ~COWIntrusiveReference() {
    if (m_pObj != 0) {
      COWIntrusiveReferenceRelease(m_pObj);
    }
  }
  COWIntrusiveReference& operator=(COWIntrusiveReference const& rhs) {
    this_type(rhs).swap(*this);
    return *this;
  }
  COWIntrusiveReference& operator=(T* rhs) {
    this_type(rhs).swap(*this);
    return *this;
  }
  const T* getPtr() const { return m_pObj; }
  const T& operator*() const {
    COWIntrusiveReferenceHelpers::checkNull(m_pObj);
    return *m_pObj;
  }
  const T* operator->() const {
    COWIntrusiveReferenceHelpers::checkNull(m_pObj);
    return m_pObj;
  }
  T& operator*() { return *writable(); }
  T* operator->() { return writable(); }
  operator safe_bool() const { return m_pObj ? &this_type::m_pObj : 0; }
  bool operator!() const { return m_pObj == 0; }
  void swap(COWIntrusiveReference& rhs) {
    T* tmp = m_pObj;
    m_pObj = rhs.m_pObj;
    rhs.m_pObj = tmp;
  }

 private:
  T* writable() {
    COWIntrusiveReferenceHelpers::checkNull(m_pObj);
    if (!COWIntrusiveReferenceUnique(m_pObj)) {
      m_pObj = COWIntrusiveReferenceClone(m_pObj);
    }
    return m_pObj;
  }

  T* m_pObj;
};

}  // namespace OW_NAMESPACE

#endif
