// Per-operation key/value store that the CIMOM hands to providers.
#ifndef OW_OPERATION_CONTEXT_HPP_INCLUDE_GUARD_
#define OW_OPERATION_CONTEXT_HPP_INCLUDE_GUARD_
#include <map>

#include "OW_IntrusiveCountableBase.hpp"
#include "OW_IntrusiveReference.hpp"
#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

OW_DECLARE_APIEXCEPTION(ContextDataNotFound, OW_COMMON_API)

class OperationContext {
 public:
  class Data : public IntrusiveCountableBase {
   public:
    virtual ~Data();
  };
  typedef IntrusiveReference<Data> DataRef;

  OperationContext();
  ~OperationContext();

  void setData(const String& key, const DataRef& data);
  void removeData(const String& key);
  DataRef getData(const String& key) const;
  void setStringData(const String& key, const String& str);
  String getStringData(const String& key) const;
  String getStringDataWithDefault(const String& key, const String& def = String()) const;
  bool keyHasData(const String& key) const;

 private:
  OperationContext(const OperationContext&);
  OperationContext& operator=(const OperationContext&);

  std::map<String, DataRef> m_data;
};

}  // namespace OW_NAMESPACE

#endif
