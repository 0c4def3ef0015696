// Exception carrying a CIM status code back to the client.
#ifndef OW_CIMEXCEPTION_HPP_INCLUDE_GUARD_
#define OW_CIMEXCEPTION_HPP_INCLUDE_GUARD_
#include "OW_Exception.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class CIMException : public Exception {
 public:
  enum ErrNoType {
    SUCCESS = 0,
    FAILED = 1,
    ACCESS_DENIED = 2,
    INVALID_NAMESPACE = 3,
    INVALID_PARAMETER = 4,
    INVALID_CLASS = 5,
    NOT_FOUND = 6,
    NOT_SUPPORTED = 7,
    CLASS_HAS_CHILDREN = 8,
    CLASS_HAS_INSTANCES = 9,
    INVALID_SUPERCLASS = 10,
    ALREADY_EXISTS = 11,
    NO_SUCH_PROPERTY = 12,
    TYPE_MISMATCH = 13,
    QUERY_LANGUAGE_NOT_SUPPORTED = 14,
    INVALID_QUERY = 15,
    METHOD_NOT_AVAILABLE = 16,
    METHOD_NOT_FOUND = 17
  };

  CIMException(const char* file, int line, ErrNoType errval, const char* msg = 0,
               const Exception* otherException = 0);
  virtual ~CIMException() throw();
  void swap(CIMException& other);
  CIMException(const CIMException& x);
  CIMException& operator=(const CIMException& x);

  ErrNoType getErrNo() const { return ErrNoType(getErrorCode()); }
  void setErrNo(ErrNoType e) { setErrorCode(e); }
  const char* getDescription() const;
  virtual const char* type() const;
  virtual CIMException* clone() const throw();
  static const char* getCodeDescription(ErrNoType errCode);

 private:
  char* m_description;
};

}  // namespace OW_NAMESPACE

#define OW_THROWCIM(errval) throw CIMException(__FILE__, __LINE__, (errval))
#define OW_THROWCIM_SUBEX(errval, subex) \
  throw CIMException(__FILE__, __LINE__, (errval), (subex).getMessage(), &(subex))
#define OW_THROWCIMMSG(errval, msg) throw CIMException(__FILE__, __LINE__, (errval), (msg))
#define OW_THROWCIMMSG_SUBEX(errval, msg, subex) \
  throw CIMException(__FILE__, __LINE__, (errval), (msg), &(subex))

#endif
