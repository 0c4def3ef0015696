// Copy-on-write handle over an ordinary object with a separately allocated count.
#ifndef OW_COW_REFERENCE_HPP_INCLUDE_GUARD_
#define OW_COW_REFERENCE_HPP_INCLUDE_GUARD_
#include <atomic>

#include "OW_COWIntrusiveReference.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

template <class T>
class COWReference {
 public:
  typedef T element_type;

  COWReference() : m_pObj(0), m_pRefCount(0) {}
  explicit COWReference(T* ptr) : m_pObj(ptr), m_pRefCount(new std::atomic<long>(1)) {}
  COWReference(const COWReference& arg) : m_pObj(arg.m_pObj), m_pRefCount(arg.m_pRefCount) {
    if (m_pRefCount != 0) {
      ++*m_pRefCount;
    }
  }
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
    T* obj = m_pObj;
    m_pObj = arg.m_pObj;
    arg.m_pObj = obj;
    std::atomic<long>* count = m_pRefCount;
    m_pRefCount = arg.m_pRefCount;
    arg.m_pRefCount = count;
  }
  T* operator->() { return writable(); }
  T& operator*() { return *writable(); }
  const T* operator->() const {
    COWIntrusiveReferenceHelpers::checkNull(m_pObj);
    return m_pObj;
  }
  const T& operator*() const {
    COWIntrusiveReferenceHelpers::checkNull(m_pObj);
    return *m_pObj;
  }
  const T* getPtr() const { return m_pObj; }
  bool isNull() const { return m_pObj == 0; }

 private:
  void decRef() {
    if (m_pRefCount != 0 && --*m_pRefCount == 0) {
      delete m_pRefCount;
      delete m_pObj;
    }
    m_pObj = 0;
    m_pRefCount = 0;
  }
  T* writable() {
    COWIntrusiveReferenceHelpers::checkNull(m_pObj);
    if (*m_pRefCount > 1) {
      COWReference(new T(*m_pObj)).swap(*this);
    }
    return m_pObj;
  }

  T* m_pObj;
  std::atomic<long>* m_pRefCount;
};

}  // namespace OW_NAMESPACE

#endif
