// Captures what a client would see of a CIMException: code, source file, line and message
// (absent when the exception carries none).
#ifndef FRAME_CIMFAILURE_H
#define FRAME_CIMFAILURE_H

#include <optional>
#include <ostream>
#include <string>

#include "OW_CIMException.hpp"

struct CimFailure {
  int code = -1;
  std::string file;
  int line = 0;
  std::optional<std::string> message;

  bool operator==(const CimFailure& other) const {
    return code == other.code && file == other.file && line == other.line &&
           message == other.message;
  }
};

inline std::ostream& operator<<(std::ostream& out, const CimFailure& failure) {
  return out << "{code " << failure.code << ", " << failure.file << ":" << failure.line << ", "
             << (failure.message ? "\"" + *failure.message + "\"" : std::string("no message"))
             << "}";
}

// Runs `call` and returns the CIM error it raised (code -1 if it raised none).
template <class Call>
CimFailure cimFailureOf(Call call) {
  try {
    call();
  } catch (const OpenWBEM::CIMException& e) {
    CimFailure failure{e.getErrNo(), e.getFile(), e.getLine(), std::nullopt};
    if (e.getDescription() != nullptr) failure.message = e.getDescription();
    return failure;
  }
  return CimFailure{};
}

#endif
