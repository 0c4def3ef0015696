// Reading and replacing the address line of a pppd options file.
#include "Zeph_AddressLine.h"

#include "Zeph_CommandRunner.h"
#include "Zeph_ConfigReader.h"

namespace ras {

namespace {

const char* const kSetIPEx = "/opt/etc/RasProviderScripts/setIPEx";
const char* const kCmdSetIPEx = "%s %s %s:%s";
// The same line for a remote part read from a file: its newline comes back at the end.
const char* const kCmdSetIPExLine = "%s %s %s:%s\n";
const char* const kDelimiters = ":";

bool endsInNewline(const std::string& text) {
  return !text.empty() && text.back() == '\n';
}

}  // namespace

AddressLine readAddressLine(const char* optionsFile) {
  AddressLine line;
  getIPFromFile(optionsFile, nullptr, kDelimiters, line.local, line.remote);
  return line;
}

int setAddressLine(const char* optionsFile, const std::string& local, const std::string& remote) {
  if (endsInNewline(remote))
    return runCommand(kCmdSetIPExLine, {kSetIPEx, optionsFile, local, withoutNewline(remote)});
  return runCommand(kCmdSetIPEx, {kSetIPEx, optionsFile, local, remote});
}

std::string withoutNewline(const std::string& remote) {
  return endsInNewline(remote) ? remote.substr(0, remote.size() - 1) : remote;
}

}  // namespace ras
