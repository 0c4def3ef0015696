// Output string stream whose contents come back as a String.
#ifndef OW_STRINGSTREAM_HPP_INCLUDE_GUARD_
#define OW_STRINGSTREAM_HPP_INCLUDE_GUARD_
#include <sstream>

#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class OStringStream : public std::ostringstream {
 public:
  explicit OStringStream(size_t size = 256);
  ~OStringStream();
  String toString() const;
  String releaseString();
  size_t length() const;
  const char* c_str() const;
  void reset();

 private:
  mutable String m_text;
};

class IStringStream : public std::istringstream {
 public:
  explicit IStringStream(const String& s);
  ~IStringStream();
};

}  // namespace OW_NAMESPACE

#endif
