// Description of what a CIM server supports, as reported to clients.
#ifndef OW_CIMFEATURES_HPP_INCLUDE_GUARD_
#define OW_CIMFEATURES_HPP_INCLUDE_GUARD_
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

struct CIMFeatures {
  enum CIMProtocolType { CIM_HTTP, CIM_OTHER };
  CIMFeatures() : protocolType(CIM_HTTP), supportsBatch(false) {}

  CIMProtocolType protocolType;
  String protocolVersion;
  String cimProduct;
  String cimom;
  String cimVersion;
  bool supportsBatch;
  String validation;
};

}  // namespace OW_NAMESPACE

#endif
