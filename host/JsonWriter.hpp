// JsonWriter.hpp: builds one compact JSON document, keeping track of the commas.
#ifndef RAS_HOST_JSONWRITER_HPP
#define RAS_HOST_JSONWRITER_HPP

#include <cstdint>
#include <string>
#include <vector>

namespace rascim {

class JsonWriter {
 public:
  JsonWriter& beginObject();
  JsonWriter& endObject();
  JsonWriter& beginArray();
  JsonWriter& endArray();
  JsonWriter& key(const std::string& name);
  JsonWriter& value(const std::string& text);
  JsonWriter& value(const char* text) { return value(std::string(text)); }
  JsonWriter& value(bool b);
  JsonWriter& value(std::int64_t n);
  JsonWriter& value(std::uint64_t n);
  JsonWriter& value(int n) { return value(static_cast<std::int64_t>(n)); }
  JsonWriter& number(const std::string& text);  // a number already formatted
  JsonWriter& null();
  const std::string& str() const { return out_; }

 private:
  void separate();
  std::string out_;
  std::vector<bool> first_{true};
  bool afterKey_ = false;
};

std::string jsonEscape(const std::string& text);

}  // namespace rascim

#endif
