// Verbs.hpp: wbemcli's verbs (ein, ei, gi, mi, ci, di, cm, ai, ain, ri, rin): each takes
// its words, builds the typed request, runs it through the Cimom and returns the outcome,
// including a CIM error, a mistake in the request or a disagreement with the schema.
#ifndef RAS_HOST_VERBS_HPP
#define RAS_HOST_VERBS_HPP

#include <stdexcept>
#include <string>
#include <vector>

#include "Cimom.hpp"
#include "MofSchema.hpp"
#include "Outcome.hpp"

namespace rascim {

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct VerbContext {
  Cimom& cimom;
  const MofSchema& schema;
  std::string defaultNamespace;
};

// `words` starts with the verb. Never throws: every failure is in the outcome.
Outcome runVerb(VerbContext& context, const std::vector<std::string>& words);

// One line per verb: its name, arguments and what it does (for --help).
std::string verbSynopsis();

}  // namespace rascim

#endif
