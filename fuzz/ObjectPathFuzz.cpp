// Fuzzes ras-cim's readers of wbemcli's text forms: object paths, property bindings and batch
// lines. A malformed text must end in SyntaxError, never in a crash or another exception, and
// any text quoted as a key value must read back as itself.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "PathSyntax.hpp"

namespace {

// Runs one reader; a SyntaxError is its refusal of the text, an answer like any other.
template <class Read>
void readOrRefuse(Read read) {
  try {
    read();
  } catch (const rascim::SyntaxError&) {
    return;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  readOrRefuse([&] { rascim::parsePath(text); });
  readOrRefuse([&] { rascim::parseBindings(text); });
  readOrRefuse([&] { rascim::splitWords(text); });

  const rascim::PathText path = rascim::parsePath("Zeph_X.Key=" + rascim::quoteValue(text));
  if (path.keys.size() != 1 || path.keys[0].value.text != text) std::abort();
  return 0;
}
