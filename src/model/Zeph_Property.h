// One row of a class's property table: CIM name and type, role (key, read-only, writable),
// the wrapper's getter and setter, and the provider-side limits checked before the setter.
#ifndef ZEPH_PROPERTY_H
#define ZEPH_PROPERTY_H

#include <initializer_list>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "Zeph_ClassModel.h"

namespace ras {

enum class Role { Key, ReadOnly, Writable };

// CIM type of the property; datetime and reference values travel as text inside the module.
enum class CimType { String, UInt16, UInt8, Boolean, DateTime, Reference };

// A setter's own check of a text value, free of side effects: the status the setter gives
// the value before it runs anything (kStatusOk when it takes it).
using TextCheck = int (*)(const std::string&);

// Provider checks: upper bound before lower bound for integers, length for text. `accept`,
// when set, lets a creation refuse a value before its object exists.
struct Limits {
  std::optional<unsigned> minimum;
  std::optional<unsigned> maximum;
  std::optional<unsigned> maximumLength;
  TextCheck accept = nullptr;
};

inline Limits range(unsigned minimum, unsigned maximum) {
  return {minimum, maximum, {}};
}
inline Limits maxLength(unsigned length, TextCheck accept = nullptr) {
  return {{}, {}, length, accept};
}

template <class W, class T>
using Getter = int (W::*)(T&, Qualifiers&) const;
template <class W, class T>
using Setter = int (W::*)(T);

template <class W, class T>
struct Accessors {
  using Value = T;
  Getter<W, T> get;
  Setter<W, T> set;  // null for keys and read-only properties
};

template <class W>
using AnyAccessors = std::variant<Accessors<W, std::string>, Accessors<W, unsigned short>,
                                  Accessors<W, unsigned char>, Accessors<W, bool>>;

template <class W>
struct Property {
  const char* name;
  Role role;
  CimType type;
  AnyAccessors<W> access;
  Limits limits;
  const char* referenceClass;  // class of the referenced path, for references only
};

template <class W>
using PropertyTable = std::vector<Property<W>>;

template <class T>
constexpr CimType cimTypeOf() {
  if constexpr (std::is_same_v<T, unsigned short>) return CimType::UInt16;
  if constexpr (std::is_same_v<T, unsigned char>) return CimType::UInt8;
  if constexpr (std::is_same_v<T, bool>) return CimType::Boolean;
  return CimType::String;
}

// Row builders for one value type; Rows<W> merges them into one overload set.
template <class W, class T>
struct TypedRows {
  static Property<W> readonly(const char* name, Getter<W, T> get) {
    return {name, Role::ReadOnly, cimTypeOf<T>(), Accessors<W, T>{get, nullptr}, {}, nullptr};
  }
  static Property<W> writable(const char* name, Getter<W, T> get, Setter<W, T> set,
                              Limits limits = {}) {
    return {name, Role::Writable, cimTypeOf<T>(), Accessors<W, T>{get, set}, limits, nullptr};
  }
};

template <class W>
struct Rows : TypedRows<W, std::string>,
              TypedRows<W, unsigned short>,
              TypedRows<W, unsigned char>,
              TypedRows<W, bool> {
  using TypedRows<W, std::string>::readonly;
  using TypedRows<W, unsigned short>::readonly;
  using TypedRows<W, unsigned char>::readonly;
  using TypedRows<W, bool>::readonly;
  using TypedRows<W, std::string>::writable;
  using TypedRows<W, unsigned short>::writable;
  using TypedRows<W, unsigned char>::writable;
  using TypedRows<W, bool>::writable;

  static Property<W> key(const char* name, Getter<W, std::string> get) {
    return {name, Role::Key, CimType::String, Accessors<W, std::string>{get, nullptr}, {}, nullptr};
  }
  // A key that is a reference to an instance of `target`, named by its InstanceID.
  static Property<W> referenceKey(const char* name, Getter<W, std::string> get,
                                  const char* target) {
    return {name, Role::Key, CimType::Reference, Accessors<W, std::string>{get, nullptr},
            {},   target};
  }
  // The four keys of a CIM system element, in key order; `identity` is the class's own.
  static PropertyTable<W> systemElementKeys(const char* identity, Getter<W, std::string> get) {
    return {key("SystemCreationClassName", &W::getSystemCreationClassName),
            key("SystemName", &W::getSystemName),
            key("CreationClassName", &W::getCreationClassName), key(identity, get)};
  }
  static PropertyTable<W> joined(PropertyTable<W> head, std::initializer_list<Property<W>> tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
  }
  static Property<W> datetime(const char* name, Getter<W, std::string> get) {
    return {name, Role::ReadOnly, CimType::DateTime, Accessors<W, std::string>{get, nullptr},
            {},   nullptr};
  }
};

}  // namespace ras

#endif
