// Reference-count base of the implementation objects behind the copy-on-write handles.
#ifndef OW_COW_INTRUSIVE_COUNTABLE_BASE_HPP_INCLUDE_GUARD_
#define OW_COW_INTRUSIVE_COUNTABLE_BASE_HPP_INCLUDE_GUARD_
#include <atomic>

#include "OW_config.h"

namespace OW_NAMESPACE {

class COWIntrusiveCountableBase {
 protected:
  COWIntrusiveCountableBase() : m_usecount(0) {}
  COWIntrusiveCountableBase(const COWIntrusiveCountableBase&) : m_usecount(0) {}
  COWIntrusiveCountableBase& operator=(const COWIntrusiveCountableBase&) { return *this; }
  virtual ~COWIntrusiveCountableBase();

 public:
  friend void COWIntrusiveReferenceAddRef(COWIntrusiveCountableBase* p) { ++p->m_usecount; }
  friend void COWIntrusiveReferenceRelease(COWIntrusiveCountableBase* p) {
    if (--p->m_usecount == 0) {
      delete p;
    }
  }
  friend bool COWIntrusiveReferenceUnique(COWIntrusiveCountableBase* p) {
    return p->m_usecount == 1;
  }
  // Gives up one reference to a shared object and returns a private copy (count 1).
  template <typename T>
  friend T* COWIntrusiveReferenceClone(T* p) {
    T* tmp = new T(*p);
    COWIntrusiveReferenceAddRef(tmp);
    COWIntrusiveReferenceRelease(p);
    return tmp;
  }

 private:
  std::atomic<long> m_usecount;
};

}  // namespace OW_NAMESPACE

#endif
