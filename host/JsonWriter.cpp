// JsonWriter.cpp: the JSON document builder and string escaping.
#include "JsonWriter.hpp"

#include <cstdio>

namespace rascim {

std::string jsonEscape(const std::string& text) {
  std::string out = "\"";
  for (unsigned char c : text) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\t':
        out += "\\t";
        break;
      case '\r':
        out += "\\r";
        break;
      default:
        if (c < 0x20) {
          char buf[8];
          std::snprintf(buf, sizeof buf, "\\u%04x", c);
          out += buf;
        } else {
          out += static_cast<char>(c);
        }
    }
  }
  return out + "\"";
}

void JsonWriter::separate() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (!first_.back()) out_ += ',';
  first_.back() = false;
}

JsonWriter& JsonWriter::beginObject() {
  separate();
  out_ += '{';
  first_.push_back(true);
  return *this;
}

JsonWriter& JsonWriter::endObject() {
  first_.pop_back();
  out_ += '}';
  return *this;
}

JsonWriter& JsonWriter::beginArray() {
  separate();
  out_ += '[';
  first_.push_back(true);
  return *this;
}

JsonWriter& JsonWriter::endArray() {
  first_.pop_back();
  out_ += ']';
  return *this;
}

JsonWriter& JsonWriter::key(const std::string& name) {
  separate();
  out_ += jsonEscape(name) + ':';
  afterKey_ = true;
  return *this;
}

JsonWriter& JsonWriter::value(const std::string& text) {
  separate();
  out_ += jsonEscape(text);
  return *this;
}

JsonWriter& JsonWriter::value(bool b) {
  return number(b ? "true" : "false");
}

JsonWriter& JsonWriter::value(std::int64_t n) {
  return number(std::to_string(n));
}

JsonWriter& JsonWriter::value(std::uint64_t n) {
  return number(std::to_string(n));
}

JsonWriter& JsonWriter::number(const std::string& text) {
  separate();
  out_ += text;
  return *this;
}

JsonWriter& JsonWriter::null() {
  return number("null");
}

}  // namespace rascim
