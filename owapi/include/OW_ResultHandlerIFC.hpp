// Callback through which providers and the CIMOM hand over results one at a time.
#ifndef OW_RESULT_HANDLER_IFC_HPP_INCLUDE_GUARD_
#define OW_RESULT_HANDLER_IFC_HPP_INCLUDE_GUARD_
#include "OW_IfcsFwd.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

template <typename T>
class ResultHandlerIFC {
 public:
  void handle(const T& x) { doHandle(x); }
  virtual ~ResultHandlerIFC() {}

 protected:
  virtual void doHandle(const T& x) = 0;
};

}  // namespace OW_NAMESPACE

#endif
