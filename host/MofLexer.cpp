// MofLexer.cpp: the MOF tokenizer.
#include "MofLexer.hpp"

#include <cctype>

#include "MofSchema.hpp"

namespace rascim {
namespace {

const std::string kPunctuation = "[](){},;:=#";

class Lexer {
 public:
  Lexer(const std::string& text, const std::string& origin) : s_(text), origin_(origin) {}

  std::vector<MofToken> run() {
    std::vector<MofToken> out;
    while (skipBlanksAndComments()) out.push_back(next());
    out.push_back(MofToken{MofToken::kEnd, "", line_});
    return out;
  }

 private:
  [[noreturn]] void fail(const std::string& what) const {
    throw MofError(origin_ + ":" + std::to_string(line_) + ": " + what);
  }
  char peek(size_t ahead = 0) const { return pos_ + ahead < s_.size() ? s_[pos_ + ahead] : '\0'; }
  void advance() {
    if (s_[pos_] == '\n') ++line_;
    ++pos_;
  }

  // Returns false at the end of the text.
  bool skipBlanksAndComments() {
    while (pos_ < s_.size()) {
      if (std::isspace(static_cast<unsigned char>(peek()))) {
        advance();
      } else if (peek() == '/' && peek(1) == '/') {
        while (pos_ < s_.size() && peek() != '\n') advance();
      } else if (peek() == '/' && peek(1) == '*') {
        skipBlockComment();
      } else {
        return true;
      }
    }
    return false;
  }

  void skipBlockComment() {
    advance();
    advance();
    while (!(peek() == '*' && peek(1) == '/')) {
      if (pos_ >= s_.size()) fail("unterminated comment");
      advance();
    }
    advance();
    advance();
  }

  MofToken next() {
    const char c = peek();
    if (c == '"') return stringToken();
    if (std::isalpha(static_cast<unsigned char>(c)) || c == '_')
      return wordToken(MofToken::kIdentifier);
    if (std::isdigit(static_cast<unsigned char>(c)) || c == '-' || c == '+' || c == '.')
      return wordToken(MofToken::kNumber);
    if (kPunctuation.find(c) == std::string::npos)
      fail(std::string("unexpected character '") + c + "'");
    MofToken t{MofToken::kPunct, std::string(1, c), line_};
    advance();
    return t;
  }

  MofToken wordToken(MofToken::Kind kind) {
    MofToken t{kind, "", line_};
    while (std::isalnum(static_cast<unsigned char>(peek())) || peek() == '_' || peek() == '.' ||
           (kind == MofToken::kNumber && (peek() == '-' || peek() == '+'))) {
      t.text += peek();
      advance();
    }
    return t;
  }

  MofToken stringToken() {
    MofToken t{MofToken::kString, "", line_};
    advance();
    while (peek() != '"') {
      if (pos_ >= s_.size() || peek() == '\n') fail("unterminated string");
      if (peek() == '\\') {
        advance();
        t.text += unescape(peek());
      } else {
        t.text += peek();
      }
      advance();
    }
    advance();
    return t;
  }

  static char unescape(char c) {
    switch (c) {
      case 'n':
        return '\n';
      case 't':
        return '\t';
      case 'r':
        return '\r';
      default:
        return c;
    }
  }

  const std::string& s_;
  const std::string& origin_;
  size_t pos_ = 0;
  int line_ = 1;
};

}  // namespace

std::vector<MofToken> tokenizeMof(const std::string& text, const std::string& origin) {
  return Lexer(text, origin).run();
}

}  // namespace rascim
