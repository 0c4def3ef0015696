// MofCompile.hpp: MOF compiled into a repository through a CIMOM handle.
#ifndef RAS_HOST_MOFCOMPILE_HPP
#define RAS_HOST_MOFCOMPILE_HPP

#include <string>
#include <vector>

#include "OW_CIMOMHandleIFC.hpp"

namespace rascim {

// Compiles `files` in order, then `text`, into namespace `ns`. Throws std::runtime_error
// with the first error's file and line.
void compileMof(const OpenWBEM::CIMOMHandleIFCRef& repository, const OpenWBEM::String& ns,
                const std::vector<std::string>& files, const std::string& text);

}  // namespace rascim

#endif
