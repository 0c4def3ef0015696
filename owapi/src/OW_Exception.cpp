// Exception: keeps private copies of the file and message and a clone of the cause.
#include "OW_Exception.hpp"

#include <cstring>
#include <new>
#include <ostream>

namespace OW_NAMESPACE {

namespace {
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
}  // namespace

const int Exception::UNKNOWN_SUBCLASS_ID;
const int Exception::UNKNOWN_ERROR_CODE;

Exception::Exception(const char* file, int line, const char* msg, int errorCode,
                     const Exception* otherException, int subClassId)
    : std::exception(),
      m_file(dupString(file)),
      m_line(line),
      m_msg(dupString(msg)),
      m_subClassId(subClassId),
      m_subException(otherException ? otherException->clone() : 0),
      m_errorCode(errorCode) {}

Exception::Exception(const char* file, int line, const char* msg)
    : Exception(file, line, msg, UNKNOWN_ERROR_CODE) {}

Exception::Exception(const Exception& e)
    : std::exception(e),
      m_file(dupString(e.m_file)),
      m_line(e.m_line),
      m_msg(dupString(e.m_msg)),
      m_subClassId(e.m_subClassId),
      m_subException(e.m_subException ? e.m_subException->clone() : 0),
      m_errorCode(e.m_errorCode) {}

Exception::~Exception() throw() {
  delete[] m_file;
  delete[] m_msg;
  delete m_subException;
}

Exception& Exception::operator=(const Exception& rhs) {
  Exception(rhs).swap(*this);
  return *this;
}

void Exception::swap(Exception& x) {
  std::swap(m_file, x.m_file);
  std::swap(m_line, x.m_line);
  std::swap(m_msg, x.m_msg);
  std::swap(m_subClassId, x.m_subClassId);
  std::swap(m_subException, x.m_subException);
  std::swap(m_errorCode, x.m_errorCode);
}

void Exception::setSubClassId(int subClassId) {
  m_subClassId = subClassId;
}
void Exception::setErrorCode(int errorCode) {
  m_errorCode = errorCode;
}
const char* Exception::type() const {
  return "Exception";
}
const char* Exception::getMessage() const {
  return m_msg != 0 ? m_msg : "";
}
const char* Exception::getFile() const {
  return m_file != 0 ? m_file : "";
}
int Exception::getLine() const {
  return m_line;
}
int Exception::getSubClassId() const {
  return m_subClassId;
}
const Exception* Exception::getSubException() const {
  return m_subException;
}
int Exception::getErrorCode() const {
  return m_errorCode;
}
const char* Exception::what() const throw() {
  return getMessage();
}

Exception* Exception::clone() const throw() {
  return new (std::nothrow) Exception(*this);
}

std::ostream& operator<<(std::ostream& os, const Exception& e) {
  if (*e.getFile() == '\0') {
    os << "[no file]: ";
  } else {
    os << e.getFile() << ": ";
  }
  if (e.getLine() == 0) {
    os << "[no line] ";
  } else {
    os << e.getLine() << ' ';
  }
  os << e.type() << ": ";
  if (*e.getMessage() == '\0') {
    os << "[no message]";
  } else {
    os << e.getMessage();
  }
  if (e.getSubException() != 0) {
    os << " <" << *e.getSubException() << '>';
  }
  return os;
}

}  // namespace OW_NAMESPACE
