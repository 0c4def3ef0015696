// The shared buffer behind String (private to the library).
#ifndef OW_STRINGBYTEBUF_HPP_INCLUDE_GUARD_
#define OW_STRINGBYTEBUF_HPP_INCLUDE_GUARD_
#include <string>

#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

class String::ByteBuf : public COWIntrusiveCountableBase {
 public:
  ByteBuf() {}
  explicit ByteBuf(const std::string& s) : str(s) {}
  std::string str;
};

}  // namespace OW_NAMESPACE

#endif
