// The module's internal exception family: instance lookup, creation and deletion failures,
// and the configuration read/write errors that the dispatcher maps to CIM errors.
#ifndef CFG_EXCEPTION_H
#define CFG_EXCEPTION_H

#include <exception>

// Root of the family; what() is the plain std::exception text.
class CFG_Exception : public std::exception {};

// The requested instance does not exist (absent key, null entry, iteration past the end).
class CFG_NoInstance : public CFG_Exception {};

// The installed instance manager cannot create instances.
class CFG_InstanceCreationFailed : public CFG_Exception {};

// The installed instance manager cannot delete instances.
class CFG_InstanceDeletionFailed : public CFG_Exception {};

// A configuration read failed; caught by the dispatcher's read operations.
class CFG_ReadError : public CFG_Exception {};

// A configuration write failed; caught by the dispatcher's write operations.
class CFG_WriteError : public CFG_Exception {};

#endif
