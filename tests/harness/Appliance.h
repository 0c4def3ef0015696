// Access to the simulated appliance from a test running inside appliance/run: its files,
// the command journal, the stand-ins' call log, the registry, links, modem and accounts.
// Nothing here goes through "sh -c", so the journal holds only what the code under test ran.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace appliance {

enum class Direction { DialIn, DialOut };

struct ToolResult {
  int status;          // exit status, or 128 + signal number
  std::string output;  // standard output
};

struct Account {
  std::string name;  // numeric user id
  std::string textualUserId;
  bool operator==(const Account& other) const {
    return name == other.name && textualUserId == other.textualUserId;
  }
};

// Fixed paths inside the appliance.
inline constexpr char kJournalPath[] = "/var/lib/appliance/journal";
inline constexpr char kCallsPath[] = "/var/lib/appliance/calls";
inline constexpr char kMarkerPath[] = "/qv/etc/ppp/ppp_active_if_file";

// True when running inside appliance/run.
bool insideAppliance();

// Runs argv[0] (searched in PATH) with the arguments, without a shell.
ToolResult runTool(const std::vector<std::string>& argv);
// Runs appliance-ctl with the arguments; throws std::runtime_error when it fails.
std::string ctl(const std::vector<std::string>& args);

// Back to the pristine appliance: files, registry, links, processes, empty journal.
void reset();

bool fileExists(const std::string& path);
// The whole file; throws std::runtime_error when it cannot be read.
std::string readFile(const std::string& path);
// The file split at newlines (no trailing empty line for a final newline).
std::vector<std::string> readLines(const std::string& path);
void writeFile(const std::string& path, const std::string& content);
void removeFile(const std::string& path);

// Every command line run through "sh -c", split at newlines: a command that itself
// ends in a newline is followed by an empty line.
std::vector<std::string> journal();
void clearJournal();
// What the stand-ins were asked, one "NAME ARG..." line per call.
std::vector<std::string> calls();

// Registry entries of SoftModem/ModemCC (or NAME given as SECTION/GROUP/NAME).
std::optional<std::string> regGet(const std::string& name);
void regSet(const std::string& name, const std::string& value);
void regDelete(const std::string& name);
void grantPrivilege(int userId, int privilege = 11, int kind = 1);
void revokePrivilege(int userId, int privilege = 11, int kind = 1);

// A PPP link up on iface (e.g. "ppp0") with the local and peer addresses; it shows in
// ifconfig and in the marker file. idle: a demand-dial interface not yet connected.
void linkUp(Direction direction, const std::string& iface, const std::string& local,
            const std::string& peer, bool idle = false);

// Modem codes by parameter: 2 error control ("m5"), 3 compression ("k2"), 4 speed ("n0").
std::string modemCode(int parameter);
void setModemCode(int parameter, const std::string& code);

// The Zeph_Account instances the CIMOM serves.
std::vector<Account> accounts();
void addAccount(const std::string& name, const std::string& textualUserId);

// State of a simulated process ("running", "stopped"), empty when it does not run.
std::string processState(const std::string& name);

}  // namespace appliance
