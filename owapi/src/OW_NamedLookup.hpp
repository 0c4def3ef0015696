// Case-insensitive lookup of named elements (properties, qualifiers) in an array (private).
#ifndef OW_NAMEDLOOKUP_HPP_INCLUDE_GUARD_
#define OW_NAMEDLOOKUP_HPP_INCLUDE_GUARD_
#include "OW_Array.hpp"
#include "OW_CIMName.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

const size_t kNotFound = size_t(~0);

template <typename T>
size_t findNamed(const Array<T>& items, const CIMName& name) {
  String wanted = name.toString();
  for (size_t i = 0; i < items.size(); ++i) {
    if (items[i].getName().equalsIgnoreCase(wanted)) {
      return i;
    }
  }
  return kNotFound;
}

// Replaces the element of the same name, or appends `item` when there is none.
template <typename T>
void putNamed(Array<T>& items, const T& item) {
  size_t i = findNamed(items, item.getName());
  if (i == kNotFound) {
    items.push_back(item);
  } else {
    items[i] = item;
  }
}

}  // namespace OW_NAMESPACE

#endif
