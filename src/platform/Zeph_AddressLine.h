// The local:remote address line of a pppd options file: read with getIPFromFile, replaced
// through the appliance's setIPEx script.
#ifndef ZEPH_ADDRESSLINE_H
#define ZEPH_ADDRESSLINE_H

#include <string>

#include "Zeph_CommandRunner.h"

namespace ras {

struct AddressLine {
  std::string local;
  std::string remote;  // keeps the newline of the line it was read from
};

// Both parts empty when the file has no address line or cannot be read.
AddressLine readAddressLine(const char* optionsFile);

// The command "setIPEx FILE LOCAL:REMOTE"; either part may be empty. A remote part that still
// ends in its line's newline puts that newline at the end of the command line, where the
// shell ignores it. Not valid when a part is not safe for the shell.
ShellCommand addressLineEdit(const char* optionsFile, const std::string& local,
                             const std::string& remote);

// Logs the line at debug level as four messages: localLabel, the local part, remoteLabel, the
// remote part.
void logAddressLine(const char* localLabel, const char* remoteLabel, const AddressLine& line);

// The labels of the address line after a change: "LOCAL IP \n" and "REMOTE IP\n".
extern const char* const kLogLocalOnSet;
extern const char* const kLogRemote;

// The remote part without the newline of its line.
std::string withoutNewline(const std::string& remote);

}  // namespace ras

#endif  // ZEPH_ADDRESSLINE_H
