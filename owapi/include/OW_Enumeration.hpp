// Shared queue of results, filled by a result handler and drained by the caller.
#ifndef OW_ENUMERATION_HPP_INCLUDE_GUARD_
#define OW_ENUMERATION_HPP_INCLUDE_GUARD_
#include <deque>

#include "OW_Exception.hpp"
#include "OW_IntrusiveCountableBase.hpp"
#include "OW_IntrusiveReference.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

OW_DECLARE_APIEXCEPTION(Enumeration, OW_COMMON_API)

// Throws EnumerationException for the operations this in-memory enumeration cannot do.
[[noreturn]] void throwEnumerationException(const char* msg);

template <class T>
class Enumeration {
  struct Queue : public IntrusiveCountableBase {
    std::deque<T> items;
  };

 public:
  Enumeration() : m_impl(new Queue) {}
  // File-backed enumerations are not supported by this implementation.
  explicit Enumeration(String const& filename) : m_impl(new Queue) {
    throwEnumerationException(filename.c_str());
  }
  bool hasMoreElements() const { return !m_impl->items.empty(); }
  void nextElement(T& arg) {
    if (m_impl->items.empty()) {
      throwEnumerationException("Attempt to Extract from empty Enum");
    }
    arg = m_impl->items.front();
    m_impl->items.pop_front();
  }
  T nextElement() {
    T rval;
    nextElement(rval);
    return rval;
  }
  size_t numberOfElements() const { return m_impl->items.size(); }
  void addElement(const T& arg) { m_impl->items.push_back(arg); }
  void clear() { m_impl->items.clear(); }

 private:
  IntrusiveReference<Queue> m_impl;
};

typedef Enumeration<String> StringEnumeration;

}  // namespace OW_NAMESPACE

#endif
