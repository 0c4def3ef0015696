// Output.hpp: prints an operation's outcome for people (results on one stream, errors on
// another) or as one line of JSON for scripts.
#ifndef RAS_HOST_OUTPUT_HPP
#define RAS_HOST_OUTPUT_HPP

#include <ostream>
#include <string>

#include "Outcome.hpp"

namespace rascim {

void printText(const Outcome& outcome, std::ostream& out, std::ostream& err);

// One JSON object, without a trailing newline.
std::string toJson(const Outcome& outcome);

}  // namespace rascim

#endif
