// Verbs.hpp: the wbemcli-style verbs, each turned into one request through the CIMOM handle.
#ifndef RAS_HOST_VERBS_HPP
#define RAS_HOST_VERBS_HPP

#include <string>
#include <vector>

#include "OW_CIMOMHandleIFC.hpp"
#include "Outcome.hpp"

namespace rascim {

// Runs one operation ("gi PATH", ...); every failure ends up in the outcome.
Outcome runVerb(OpenWBEM::CIMOMHandleIFC& cimom, const std::string& defaultNamespace,
                const std::vector<std::string>& words);

// The verbs, their arguments and purpose, for --help.
std::string verbSynopsis();

}  // namespace rascim

#endif
