// MofLexer.hpp: splits MOF text into tokens (identifiers, literals, punctuation), skipping
// white space and comments, and keeping line numbers for error messages.
#ifndef RAS_HOST_MOFLEXER_HPP
#define RAS_HOST_MOFLEXER_HPP

#include <string>
#include <vector>

namespace rascim {

struct MofToken {
  enum Kind { kIdentifier, kString, kNumber, kPunct, kEnd };
  Kind kind = kEnd;
  std::string text;  // for kString the unescaped contents
  int line = 0;
};

// Throws MofError on an unterminated string or comment, or a character MOF does not use.
std::vector<MofToken> tokenizeMof(const std::string& text, const std::string& origin);

}  // namespace rascim

#endif
