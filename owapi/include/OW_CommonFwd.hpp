// Forward declarations of the common layer's classes and their handle and array typedefs.
#ifndef OW_COMMON_FWD_HPP_INCLUDE_GUARD_
#define OW_COMMON_FWD_HPP_INCLUDE_GUARD_
#include "OW_ArrayFwd.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class String;
typedef Array<String> StringArray;
class Bool;
typedef Array<Bool> BoolArray;
class Char16;
typedef Array<Char16> Char16Array;
class DateTime;
class Format;
class Logger;
struct LogMessage;
class OperationContext;
class StringBuffer;
class OStringStream;
class IntrusiveCountableBase;
template <class T>
class IntrusiveReference;
typedef IntrusiveReference<Logger> LoggerRef;
template <class T>
class Enumeration;
typedef Enumeration<String> StringEnumeration;
class Exception;
class SharedLibrary;
template <class T>
class SharedLibraryReference;

}  // namespace OW_NAMESPACE

#endif
