// EmbeddedCimom.hpp: OpenWBEM's own CIMOM running inside ras-cim. A private directory holds
// its configuration, a provider directory with only the module, and a repository compiled
// from the project's MOF (with the appliance's accounts as Zeph_Account instances); every
// request goes through the CIMOM handle, so the module sees what it sees in owcimomd.
#ifndef RAS_HOST_EMBEDDEDCIMOM_HPP
#define RAS_HOST_EMBEDDEDCIMOM_HPP

#include <string>

#include "OW_CIMOMHandleIFC.hpp"
#include "OW_OperationContext.hpp"

namespace rascim {

struct Options;

class EmbeddedCimom {
 public:
  // Prepares the directory, starts the CIMOM and compiles the repository. Throws
  // std::runtime_error or an OpenWBEM exception on failure.
  explicit EmbeddedCimom(const Options& options);
  ~EmbeddedCimom();
  EmbeddedCimom(const EmbeddedCimom&) = delete;
  EmbeddedCimom& operator=(const EmbeddedCimom&) = delete;

  OpenWBEM::CIMOMHandleIFC& handle() { return *handle_; }

 private:
  void writeConfig(const Options& options) const;
  void compileRepository(const Options& options);

  std::string dir_;
  bool started_ = false;
  OpenWBEM::OperationContext context_;
  OpenWBEM::CIMOMHandleIFCRef handle_;
};

}  // namespace rascim

#endif
