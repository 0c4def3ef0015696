// Session.hpp: one ras-cim run: reads the schema, loads and initialises the module, then
// runs the operation or the batch and prints each outcome as it comes.
#ifndef RAS_HOST_SESSION_HPP
#define RAS_HOST_SESSION_HPP

#include <istream>
#include <memory>

#include "Cimom.hpp"
#include "ModuleLibrary.hpp"
#include "MofSchema.hpp"
#include "Options.hpp"
#include "Outcome.hpp"

namespace rascim {

class Session {
 public:
  explicit Session(Options options);
  // Returns the exit status (see helpText()).
  int run();

 private:
  Outcome start();
  int runBatch(std::istream& in);
  int report(const Outcome& outcome);

  Options options_;
  std::shared_ptr<MofSchema> schema_;
  std::unique_ptr<ModuleLibrary> library_;
  std::unique_ptr<Cimom> cimom_;
};

}  // namespace rascim

#endif
