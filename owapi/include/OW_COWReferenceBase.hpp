// The shared count of a COWReference, apart from the handled type.
#ifndef OW_COW_REFERENCE_BASE_HPP_INCLUDE_GUARD_
#define OW_COW_REFERENCE_BASE_HPP_INCLUDE_GUARD_
#include <atomic>

#include "OW_config.h"

namespace OW_NAMESPACE {

class COWReferenceBase {
 protected:
  COWReferenceBase() : m_pRefCount(new std::atomic<long>(1)) {}
  COWReferenceBase(const COWReferenceBase& arg) : m_pRefCount(arg.m_pRefCount) { ++*m_pRefCount; }
  COWReferenceBase& operator=(const COWReferenceBase&) = delete;

  // True when this was the last handle; the count is gone then.
  bool decRef() {
    if (--*m_pRefCount == 0) {
      delete m_pRefCount;
      return true;
    }
    return false;
  }
  bool refCountGreaterThanOne() const { return *m_pRefCount > 1; }
  // Leaves this handle with a count of its own. True when it was the only one left, so the
  // caller keeps its object; false when the caller must switch to its copy.
  bool getWriteLock() {
    if (--*m_pRefCount == 0) {
      ++*m_pRefCount;
      return true;
    }
    m_pRefCount = new std::atomic<long>(1);
    return false;
  }
  void swap(COWReferenceBase& arg) {
    std::atomic<long>* count = m_pRefCount;
    m_pRefCount = arg.m_pRefCount;
    arg.m_pRefCount = count;
  }
  // Throws the exception used for a member access through a null handle.
  [[noreturn]] static void throwNULLException();
  static void checkNull(const void* p) {
    if (p == 0) {
      throwNULLException();
    }
  }

 private:
  std::atomic<long>* m_pRefCount;
};

}  // namespace OW_NAMESPACE

#endif
