// A 16-bit CIM character.
#ifndef OW_CHAR16_HPP_INCLUDE_GUARD_
#define OW_CHAR16_HPP_INCLUDE_GUARD_
#include <iosfwd>

#include "OW_ArrayFwd.hpp"
#include "OW_Types.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class String;

class Char16 {
 public:
  Char16() : m_value(0) {}
  Char16(const Char16& arg) : m_value(arg.m_value) {}
  explicit Char16(char c) : m_value(static_cast<UInt8>(c)) {}
  explicit Char16(const String& x);
  Char16(UInt16 val) : m_value(val) {}
  explicit Char16(Int16 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(UInt8 val) : m_value(val) {}
  explicit Char16(Int8 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(UInt32 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(Int32 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(UInt64 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(Int64 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(Real32 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(Real64 val) : m_value(static_cast<UInt16>(val)) {}
  explicit Char16(bool val) : m_value(val ? 1 : 0) {}
  Char16& operator=(const Char16& arg) {
    m_value = arg.m_value;
    return *this;
  }
  UInt16 getValue() const { return m_value; }
  operator UInt16() const { return m_value; }
  String toString() const;
  void writeObject(std::ostream& ostrm) const;
  void readObject(std::istream& istrm);

 private:
  UInt16 m_value;
};

typedef Array<Char16> Char16Array;

std::ostream& operator<<(std::ostream& ostrm, const Char16& arg);

}  // namespace OW_NAMESPACE

#endif
