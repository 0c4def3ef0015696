// Base class holding the reference count used by IntrusiveReference.
#ifndef OW_INTRUSIVE_COUNTABLE_BASE_HPP_INCLUDE_GUARD_
#define OW_INTRUSIVE_COUNTABLE_BASE_HPP_INCLUDE_GUARD_
#include <atomic>

#include "OW_config.h"

namespace OW_NAMESPACE {

class IntrusiveCountableBase;
void IntrusiveReferenceAddRef(IntrusiveCountableBase* p);
void IntrusiveReferenceRelease(IntrusiveCountableBase* p);

class IntrusiveCountableBase {
 protected:
  IntrusiveCountableBase() : m_usecount(0) {}
  // A copy is a new object: it starts unreferenced.
  IntrusiveCountableBase(const IntrusiveCountableBase&) : m_usecount(0) {}
  IntrusiveCountableBase& operator=(const IntrusiveCountableBase&) { return *this; }
  virtual ~IntrusiveCountableBase();

 public:
  friend void IntrusiveReferenceAddRef(IntrusiveCountableBase* p) { ++p->m_usecount; }
  friend void IntrusiveReferenceRelease(IntrusiveCountableBase* p) {
    if (--p->m_usecount == 0) {
      delete p;
    }
  }

 private:
  std::atomic<long> m_usecount;
};

}  // namespace OW_NAMESPACE

#endif
