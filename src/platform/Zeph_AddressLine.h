// The local:remote address line of a pppd options file: read with getIPFromFile, replaced
// through the appliance's setIPEx script.
#ifndef ZEPH_ADDRESSLINE_H
#define ZEPH_ADDRESSLINE_H

#include <string>

namespace ras {

struct AddressLine {
  std::string local;
  std::string remote;  // keeps the newline of the line it was read from
};

// Both parts empty when the file has no address line or cannot be read.
AddressLine readAddressLine(const char* optionsFile);

// Runs "setIPEx FILE LOCAL:REMOTE"; either part may be empty. A remote part that still ends
// in its line's newline puts that newline at the end of the command line, where the shell
// ignores it. system()'s result, or -1 when a part is not safe for the shell.
int setAddressLine(const char* optionsFile, const std::string& local, const std::string& remote);

// Logs the line at debug level as four messages: localLabel, the local part, remoteLabel, the
// remote part.
void logAddressLine(const char* localLabel, const char* remoteLabel, const AddressLine& line);

// The remote part without the newline of its line.
std::string withoutNewline(const std::string& remote);

}  // namespace ras

#endif  // ZEPH_ADDRESSLINE_H
