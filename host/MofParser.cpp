// MofParser.cpp: reads class declarations (qualifiers, properties, references, methods and
// their parameters) from MOF text. Pragmas and qualifier-type declarations are skipped.
#include <set>

#include "MofLexer.hpp"
#include "MofSchema.hpp"

namespace rascim {
namespace {

const std::set<std::string> kDataTypes = {"uint8",  "sint8",   "uint16",   "sint16", "uint32",
                                          "sint32", "uint64",  "sint64",   "real32", "real64",
                                          "string", "boolean", "datetime", "char16"};
const char kRefKeyword[] = "REF";
const char kRefType[] = "ref";

class Parser {
 public:
  Parser(std::vector<MofToken> tokens, const std::string& origin)
      : t_(std::move(tokens)), origin_(origin) {}

  void run(std::vector<MofClass>& out) {
    while (cur().kind != MofToken::kEnd) {
      if (isPunct("#")) {
        skipPast(")");
        continue;
      }
      std::vector<MofQualifier> qualifiers = qualifierList();
      const std::string word = identifier("'class'");
      if (equalsIgnoreCase(word, "qualifier")) {
        skipPast(";");
      } else if (equalsIgnoreCase(word, "class")) {
        out.push_back(classBody(std::move(qualifiers)));
      } else {
        fail("expected 'class' but found '" + word + "'");
      }
    }
  }

 private:
  const MofToken& cur() const { return t_[pos_]; }
  bool isPunct(const char* p) const { return cur().kind == MofToken::kPunct && cur().text == p; }
  [[noreturn]] void fail(const std::string& what) const {
    throw MofError(origin_ + ":" + std::to_string(cur().line) + ": " + what);
  }
  void expect(const char* p) {
    if (!isPunct(p)) fail(std::string("expected '") + p + "' but found '" + cur().text + "'");
    ++pos_;
  }
  bool accept(const char* p) {
    if (!isPunct(p)) return false;
    ++pos_;
    return true;
  }
  std::string identifier(const std::string& what) {
    if (cur().kind != MofToken::kIdentifier)
      fail("expected " + what + " but found '" + cur().text + "'");
    return t_[pos_++].text;
  }
  void skipPast(const char* p) {
    while (cur().kind != MofToken::kEnd && !isPunct(p)) ++pos_;
    expect(p);
  }

  MofClass classBody(std::vector<MofQualifier> qualifiers) {
    MofClass c;
    c.qualifiers = std::move(qualifiers);
    c.name = identifier("a class name");
    if (accept(":")) c.superClass = identifier("a superclass name");
    expect("{");
    while (!accept("}")) feature(c);
    expect(";");
    return c;
  }

  void feature(MofClass& c) {
    std::vector<MofQualifier> qualifiers = qualifierList();
    MofType type = dataType();
    const std::string name = identifier("a property or method name");
    if (accept("(")) {
      c.methods.push_back(MofMethod{name, type, parameters(), std::move(qualifiers)});
      expect(";");
      return;
    }
    type.isArray = arraySuffix();
    if (accept("=")) skipInitializer();
    expect(";");
    c.properties.push_back(MofProperty{name, type, std::move(qualifiers)});
  }

  std::vector<MofParameter> parameters() {
    std::vector<MofParameter> out;
    if (accept(")")) return out;
    do {
      std::vector<MofQualifier> qualifiers = qualifierList();
      MofType type = dataType();
      const std::string name = identifier("a parameter name");
      type.isArray = arraySuffix();
      out.push_back(MofParameter{name, type, std::move(qualifiers)});
    } while (accept(","));
    expect(")");
    return out;
  }

  MofType dataType() {
    const std::string word = identifier("a data type");
    if (cur().kind == MofToken::kIdentifier && cur().text == kRefKeyword) {
      ++pos_;
      return MofType{kRefType, word, false};
    }
    std::string lower;
    for (char ch : word) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    if (!kDataTypes.count(lower)) fail("unknown data type '" + word + "'");
    return MofType{lower, "", false};
  }

  bool arraySuffix() {
    if (!accept("[")) return false;
    if (cur().kind == MofToken::kNumber) ++pos_;
    expect("]");
    return true;
  }

  void skipInitializer() {
    while (cur().kind != MofToken::kEnd && !isPunct(";")) ++pos_;
  }

  std::vector<MofQualifier> qualifierList() {
    std::vector<MofQualifier> out;
    if (!accept("[")) return out;
    do out.push_back(qualifier());
    while (accept(","));
    expect("]");
    return out;
  }

  MofQualifier qualifier() {
    MofQualifier q;
    q.name = identifier("a qualifier name");
    if (accept("(")) {
      q.hasValue = true;
      q.values.push_back(value());
      expect(")");
    } else if (accept("{")) {
      q.hasValue = q.isArray = true;
      do q.values.push_back(value());
      while (accept(","));
      expect("}");
    }
    if (accept(":")) skipFlavors();
    return q;
  }

  void skipFlavors() {
    while (cur().kind == MofToken::kIdentifier) {
      ++pos_;
      if (accept("(")) skipPast(")");
    }
  }

  MofValue value() {
    const MofToken& tok = cur();
    MofValue v;
    v.text = tok.text;
    if (tok.kind == MofToken::kString) {
      v.kind = MofValue::kString;
      for (++pos_; cur().kind == MofToken::kString; ++pos_) v.text += cur().text;
      return v;
    }
    if (tok.kind == MofToken::kNumber) {
      v.kind = MofValue::kNumber;
    } else if (tok.kind == MofToken::kIdentifier) {
      v.kind = equalsIgnoreCase(tok.text, "true") || equalsIgnoreCase(tok.text, "false")
                   ? MofValue::kBoolean
               : equalsIgnoreCase(tok.text, "null") ? MofValue::kNull
                                                    : MofValue::kIdentifier;
    } else {
      fail("expected a value but found '" + tok.text + "'");
    }
    ++pos_;
    return v;
  }

  std::vector<MofToken> t_;
  const std::string& origin_;
  size_t pos_ = 0;
};

}  // namespace

void MofSchema::addText(const std::string& text, const std::string& origin) {
  std::vector<MofClass> parsed;
  Parser(tokenizeMof(text, origin), origin).run(parsed);
  for (MofClass& c : parsed) {
    if (findClass(c.name)) throw MofError(origin + ": class " + c.name + " declared twice");
    classes_.push_back(std::move(c));
  }
}

}  // namespace rascim
