// CIMException: status code, the provider's own text, and the long message built from both.
#include "OW_CIMException.hpp"

#include <cstring>
#include <new>
#include <string>

namespace OW_NAMESPACE {

namespace {
const char* const kCodeDescriptions[] = {
    "no error",
    "general error",
    "access to CIM resource is unavailable to client",
    "the target namespace does not exist",
    "one or more parameter values passed to the method were invalid",
    "the specified Class does not exist",
    "the requested object could not be found",
    "the requested operation is not supported",
    "operation cannot be carried out on this class since it has subclasses",
    "operation cannot be carried out on this class since it has instances",
    "operation cannot be carried out since the specified superclass does not exist",
    "operation cannot be carried out because an object already exists",
    "the specified property does not exist",
    "the value supplied is incompatible with the type",
    "the query language is not recognized or supported",
    "the query is not valid for the specified query language",
    "the extrinsic method could not be executed",
    "the specified extrinsic method does not exist"};
const char* const kUnknownError = "unknown error";

char* dupString(const char* s) {
  if (s == 0) {
    return 0;
  }
  size_t len = std::strlen(s) + 1;
  char* copy = new (std::nothrow) char[len];
  if (copy != 0) {
    std::memcpy(copy, s, len);
  }
  return copy;
}

// The long message: the code's description, then the provider's text in parentheses
// unless the text already starts with the description.
std::string longMessage(CIMException::ErrNoType errval, const char* msg) {
  std::string description = CIMException::getCodeDescription(errval);
  if (msg == 0 || *msg == '\0') {
    return description;
  }
  if (std::strncmp(msg, description.c_str(), description.size()) == 0) {
    return msg;
  }
  return description + " (" + msg + ")";
}
}  // namespace

CIMException::CIMException(const char* file, int line, ErrNoType errval, const char* msg,
                           const Exception* otherException)
    : Exception(file, line, longMessage(errval, msg).c_str(), errval, otherException),
      m_description(dupString(msg)) {}

CIMException::~CIMException() throw() {
  delete[] m_description;
}

CIMException::CIMException(const CIMException& x)
    : Exception(x), m_description(dupString(x.m_description)) {}

CIMException& CIMException::operator=(const CIMException& x) {
  CIMException(x).swap(*this);
  return *this;
}

void CIMException::swap(CIMException& other) {
  Exception::swap(other);
  std::swap(m_description, other.m_description);
}

const char* CIMException::getDescription() const {
  return m_description;
}
const char* CIMException::type() const {
  return "CIMException";
}

CIMException* CIMException::clone() const throw() {
  return new (std::nothrow) CIMException(*this);
}

const char* CIMException::getCodeDescription(ErrNoType errCode) {
  if (errCode >= SUCCESS && errCode <= METHOD_NOT_FOUND) {
    return kCodeDescriptions[errCode];
  }
  return kUnknownError;
}

}  // namespace OW_NAMESPACE
