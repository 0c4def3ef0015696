// Reading and replacing the address line of a pppd options file.
#include "Zeph_AddressLine.h"

#include "Zeph_CommandRunner.h"
#include "Zeph_ConfigReader.h"
#include "Zeph_PlatformLog.h"

namespace ras {

const char* const kLogLocalOnSet = "LOCAL IP \n";
const char* const kLogRemote = "REMOTE IP\n";

namespace {

constexpr auto kSetIPEx = helperScript("setIPEx");
// A remote part read from a file keeps its line's newline; the command runner then lets it
// end the command line.
const char* const kCmdSetIPEx = "%s %s %s:%s";
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

ShellCommand addressLineEdit(const char* optionsFile, const std::string& local,
                             const std::string& remote) {
  return ShellCommand(kCmdSetIPEx, {kSetIPEx, optionsFile, local, remote});
}

std::string withoutNewline(const std::string& remote) {
  return endsInNewline(remote) ? remote.substr(0, remote.size() - 1) : remote;
}

void logAddressLine(const char* localLabel, const char* remoteLabel, const AddressLine& line) {
  platformLogDebug(localLabel);
  platformLogDebug(line.local);
  platformLogDebug(remoteLabel);
  platformLogDebug(line.remote);
}

}  // namespace ras
