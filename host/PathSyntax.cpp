// PathSyntax.cpp: parsing of wbemcli object paths, binding lists and batch lines.
#include "PathSyntax.hpp"

#include <cctype>

namespace rascim {
namespace {

const char kUrlMark[] = "://";

class BindingReader {
 public:
  explicit BindingReader(const std::string& s) : s_(s) {}

  std::vector<Binding> all() {
    std::vector<Binding> out;
    if (s_.empty()) return out;
    do out.push_back(binding());
    while (accept(','));
    if (pos_ != s_.size()) fail("unexpected '" + s_.substr(pos_) + "'");
    return out;
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw SyntaxError("in '" + s_ + "': " + what);
  }
  bool accept(char c) {
    if (pos_ < s_.size() && s_[pos_] == c) {
      ++pos_;
      return true;
    }
    return false;
  }

  Binding binding() {
    Binding b;
    while (pos_ < s_.size() && s_[pos_] != '=' && s_[pos_] != ',') b.name += s_[pos_++];
    if (b.name.empty()) fail("a property name is missing");
    if (!accept('=')) fail("'" + b.name + "' has no '=value'");
    b.value = value(true);
    return b;
  }

  TextValue value(bool arrayAllowed) {
    TextValue v;
    if (arrayAllowed && accept('{')) {
      v.isArray = true;
      if (accept('}')) return v;
      do v.items.push_back(value(false));
      while (accept(','));
      if (!accept('}')) fail("'{' without '}'");
      return v;
    }
    if (accept('"')) {
      v.quoted = true;
      v.text = quotedText();
      return v;
    }
    while (pos_ < s_.size() && s_[pos_] != ',' && s_[pos_] != '}') v.text += s_[pos_++];
    return v;
  }

  std::string quotedText() {
    std::string out;
    while (pos_ < s_.size() && s_[pos_] != '"') {
      if (s_[pos_] == '\\' && pos_ + 1 < s_.size()) ++pos_;
      out += s_[pos_++];
    }
    if (!accept('"')) fail("unterminated quoted value");
    return out;
  }

  const std::string& s_;
  size_t pos_ = 0;
};

// Drops "scheme://user@host:port" and returns the rest, starting at the namespace.
std::string withoutUrl(const std::string& text) {
  const size_t mark = text.find(kUrlMark);
  const size_t quote = text.find('"');
  if (mark == std::string::npos || (quote != std::string::npos && quote < mark)) return text;
  const size_t slash = text.find('/', mark + sizeof(kUrlMark) - 1);
  if (slash == std::string::npos) throw SyntaxError("'" + text + "': no namespace after the host");
  return text.substr(slash);
}

// Shell-like word splitting of one batch line.
class WordSplitter {
 public:
  explicit WordSplitter(const std::string& line) : s_(line) {}

  std::vector<std::string> all() {
    for (; i_ < s_.size(); ++i_) {
      const char c = s_[i_];
      if (std::isspace(static_cast<unsigned char>(c))) {
        endWord();
      } else if (c == '#' && !inWord_) {
        break;
      } else {
        inWord_ = true;
        take(c);
      }
    }
    endWord();
    return words_;
  }

 private:
  void endWord() {
    if (inWord_) words_.push_back(word_);
    word_.clear();
    inWord_ = false;
  }

  void take(char c) {
    if (c == '\'') {
      const size_t end = s_.find('\'', i_ + 1);
      if (end == std::string::npos) throw SyntaxError("unterminated ' in: " + s_);
      word_ += s_.substr(i_ + 1, end - i_ - 1);
      i_ = end;
    } else if (c == '"') {
      takeDoubleQuoted();
    } else if (c == '\\' && i_ + 1 < s_.size()) {
      word_ += s_[++i_];
    } else {
      word_ += c;
    }
  }

  // Inside double quotes only \" and \\ are escapes.
  void takeDoubleQuoted() {
    for (++i_; i_ < s_.size() && s_[i_] != '"'; ++i_) {
      if (s_[i_] == '\\' && i_ + 1 < s_.size() && (s_[i_ + 1] == '"' || s_[i_ + 1] == '\\')) ++i_;
      word_ += s_[i_];
    }
    if (i_ >= s_.size()) throw SyntaxError("unterminated \" in: " + s_);
  }

  const std::string& s_;
  size_t i_ = 0;
  bool inWord_ = false;
  std::string word_;
  std::vector<std::string> words_;
};

}  // namespace

PathText parsePath(const std::string& text) {
  const std::string rest = withoutUrl(text);
  const size_t dot = rest.find('.');
  const std::string head = rest.substr(0, dot);
  PathText path;
  const size_t colon = head.rfind(':');
  path.className = colon == std::string::npos ? head : head.substr(colon + 1);
  if (colon != std::string::npos) {
    path.nameSpace = head.substr(0, colon);
    while (!path.nameSpace.empty() && path.nameSpace[0] == '/') path.nameSpace.erase(0, 1);
  }
  if (path.className.empty()) throw SyntaxError("'" + text + "': no class name");
  if (dot != std::string::npos) path.keys = parseBindings(rest.substr(dot + 1));
  return path;
}

std::vector<Binding> parseBindings(const std::string& text) {
  return BindingReader(text).all();
}

std::vector<std::string> splitWords(const std::string& line) {
  return WordSplitter(line).all();
}

std::string quoteValue(const std::string& text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return out + "\"";
}

}  // namespace rascim
