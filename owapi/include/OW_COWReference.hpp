// Copy-on-write handle over an ordinary object with a separately allocated count.
#ifndef OW_COW_REFERENCE_HPP_INCLUDE_GUARD_
#define OW_COW_REFERENCE_HPP_INCLUDE_GUARD_
#include "OW_COWReferenceBase.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

template <class T>
class COWReference : private COWReferenceBase {
 public:
  typedef T element_type;

  COWReference() : m_pObj(0) {}
  explicit COWReference(T* ptr) : m_pObj(ptr) {}
  COWReference(const COWReference& arg) : COWReferenceBase(arg), m_pObj(arg.m_pObj) {}
  ~COWReference() { decRef(); }
  COWReference& operator=(const COWReference& arg) {
    COWReference(arg).swap(*this);
    return *this;
  }
  COWReference& operator=(T* newObj) {
    COWReference(newObj).swap(*this);
    return *this;
  }
  void swap(COWReference& arg) {
    COWReferenceBase::swap(arg);
    T* obj = m_pObj;
    m_pObj = arg.m_pObj;
    arg.m_pObj = obj;
  }
  T* operator->() {
    checkNull(m_pObj);
    getWriteLock();
    return m_pObj;
  }
  T& operator*() {
    checkNull(m_pObj);
    getWriteLock();
    return *m_pObj;
  }
  const T* operator->() const {
    checkNull(m_pObj);
    return m_pObj;
  }
  const T& operator*() const {
    checkNull(m_pObj);
    return *m_pObj;
  }
  const T* getPtr() const { return m_pObj; }
  bool isNull() const { return m_pObj == 0; }

 private:
  void decRef() {
    if (COWReferenceBase::decRef()) {
      delete m_pObj;
    }
    m_pObj = 0;
  }
  // The copy is made by an unqualified COWReferenceClone, declared below this class as in the
  // released headers: for a T whose associated namespaces do not include this one (such as
  // std::vector<UInt8>) no overload is found and the write access does not compile.
  void getWriteLock() {
    if (refCountGreaterThanOne()) {
      T* tmp = COWReferenceClone(m_pObj);
      if (COWReferenceBase::getWriteLock()) {
        delete tmp;
      } else {
        m_pObj = tmp;
      }
    }
  }

  T* m_pObj;
};

template <class T>
inline T* COWReferenceClone(T* obj) {
  return new T(*obj);
}

}  // namespace OW_NAMESPACE

#endif
