// Copy-on-write array with index checking, the container of the whole API.
#ifndef OW_ARRAY_HPP_INCLUDE_GUARD_
#define OW_ARRAY_HPP_INCLUDE_GUARD_
#include <vector>

#include "OW_ArrayFwd.hpp"
#include "OW_COWReference.hpp"
#include "OW_Exception.hpp"
#include "OW_Types.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

OW_DECLARE_APIEXCEPTION(OutOfBounds, OW_COMMON_API)

// Throws OutOfBoundsException for an index at or past the size.
void throwArrayOutOfBoundsIfNecessary(size_t idx, size_t size);

template <class T>
class Array {
  typedef std::vector<T> V;

 public:
  typedef typename V::value_type value_type;
  typedef typename V::pointer pointer;
  typedef typename V::const_pointer const_pointer;
  typedef typename V::iterator iterator;
  typedef typename V::const_iterator const_iterator;
  typedef typename V::reference reference;
  typedef typename V::const_reference const_reference;
  typedef typename V::size_type size_type;
  typedef typename V::difference_type difference_type;
  typedef typename V::reverse_iterator reverse_iterator;
  typedef typename V::const_reverse_iterator const_reverse_iterator;

  Array() : m_impl(new V) {}
  ~Array() {}
  explicit Array(V* toWrap) : m_impl(toWrap) {}
  explicit Array(size_type n) : m_impl(new V(n)) {}
  Array(size_type n, const T& value) : m_impl(new V(n, value)) {}
  Array(int n, const T& value) : m_impl(new V(size_type(n), value)) {}
  Array(long n, const T& value) : m_impl(new V(size_type(n), value)) {}
  template <class InputIterator>
  Array(InputIterator first, InputIterator last) : m_impl(new V(first, last)) {}

  iterator begin() { return m_impl->begin(); }
  const_iterator begin() const { return m_impl->begin(); }
  iterator end() { return m_impl->end(); }
  const_iterator end() const { return m_impl->end(); }
  reverse_iterator rbegin() { return m_impl->rbegin(); }
  const_reverse_iterator rbegin() const { return m_impl->rbegin(); }
  reverse_iterator rend() { return m_impl->rend(); }
  const_reverse_iterator rend() const { return m_impl->rend(); }
  size_type size() const { return m_impl->size(); }
  size_type max_size() const { return m_impl->max_size(); }
  size_type capacity() const { return m_impl->capacity(); }
  bool empty() const { return m_impl->empty(); }
  reference operator[](size_type n) {
    throwArrayOutOfBoundsIfNecessary(n, size());
    return (*m_impl)[n];
  }
  const_reference operator[](size_type n) const {
    throwArrayOutOfBoundsIfNecessary(n, size());
    return (*m_impl)[n];
  }
  Array<T>& operator+=(const T& x) {
    m_impl->push_back(x);
    return *this;
  }
  void reserve(size_type n) { m_impl->reserve(n); }
  reference front() { return m_impl->front(); }
  const_reference front() const { return m_impl->front(); }
  reference back() { return m_impl->back(); }
  const_reference back() const { return m_impl->back(); }
  void push_back(const T& x) { m_impl->push_back(x); }
  void append(const T& x) { push_back(x); }
  void swap(Array<T>& x) { m_impl.swap(x.m_impl); }
  iterator insert(iterator position, const T& x) { return m_impl->insert(position, x); }
  void insert(size_type position, const T& x) { m_impl->insert(m_impl->begin() + position, x); }
  void remove(size_type index) {
    throwArrayOutOfBoundsIfNecessary(index, size());
    m_impl->erase(m_impl->begin() + index);
  }
  void remove(size_type begin, size_type end) {
    throwArrayOutOfBoundsIfNecessary(begin, size());
    throwArrayOutOfBoundsIfNecessary(end - 1, size());
    m_impl->erase(m_impl->begin() + begin, m_impl->begin() + end);
  }
  template <class InputIterator>
  void insert(iterator position, InputIterator first, InputIterator last) {
    m_impl->insert(position, first, last);
  }
  void appendArray(const Array<T>& x) {
    const Array<T> copy(x);
    m_impl->insert(m_impl->end(), copy.begin(), copy.end());
  }
  void pop_back() { m_impl->pop_back(); }
  iterator erase(iterator position) { return m_impl->erase(position); }
  iterator erase(iterator first, iterator last) { return m_impl->erase(first, last); }
  void resize(size_type new_size, const T& x) { m_impl->resize(new_size, x); }
  void resize(size_type new_size) { m_impl->resize(new_size); }
  void clear() { m_impl->clear(); }

  friend bool operator==(const Array<T>& x, const Array<T>& y) { return *x.m_impl == *y.m_impl; }
  friend bool operator<(const Array<T>& x, const Array<T>& y) { return *x.m_impl < *y.m_impl; }

 private:
  COWReference<V> m_impl;
};

template <class T>
inline bool operator!=(const Array<T>& x, const Array<T>& y) {
  return !(x == y);
}
template <class T>
inline bool operator<=(const Array<T>& x, const Array<T>& y) {
  return !(y < x);
}
template <class T>
inline bool operator>=(const Array<T>& x, const Array<T>& y) {
  return !(x < y);
}
template <class T>
inline bool operator>(const Array<T>& x, const Array<T>& y) {
  return y < x;
}
template <class T>
inline void swap(Array<T>& x, Array<T>& y) {
  x.swap(y);
}

typedef Array<UInt8> UInt8Array;
typedef Array<Int8> Int8Array;
typedef Array<UInt16> UInt16Array;
typedef Array<Int16> Int16Array;
typedef Array<UInt32> UInt32Array;
typedef Array<Int32> Int32Array;
typedef Array<UInt64> UInt64Array;
typedef Array<Int64> Int64Array;
typedef Array<Real64> Real64Array;
typedef Array<Real32> Real32Array;

}  // namespace OW_NAMESPACE

#endif
