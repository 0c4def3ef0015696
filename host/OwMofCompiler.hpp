// OwMofCompiler.hpp: OpenWBEM's MOF compiler header, made to compile with a current g++.
// Its grammar header instantiates List<T>::front() inline, whose copy-on-write clone is
// declared only after the template that calls it, which two-phase lookup rejects; declaring
// that overload first lets the header compile unchanged.
#ifndef RAS_HOST_OWMOFCOMPILER_HPP
#define RAS_HOST_OWMOFCOMPILER_HPP

#include <list>

#include "OW_config.h"

namespace OW_NAMESPACE {
template <class T>
std::list<T>* COWReferenceClone(std::list<T>* obj);
}  // namespace OW_NAMESPACE

#include "OW_MOFCompiler.hpp"

#endif
