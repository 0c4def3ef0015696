// The appliance helpers of Appliance.h: files are read and written directly, state
// changes go through appliance-ctl run without a shell.
#include "Appliance.h"

#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace appliance {
namespace {

constexpr char kCtl[] = "appliance-ctl";

const char* directionWord(Direction direction) {
  return direction == Direction::DialIn ? "dialin" : "dialout";
}

std::vector<std::string> splitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::string chomp(std::string text) {
  if (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

void truncateFile(const char* path) {
  std::ofstream out(path, std::ios::trunc);
  if (!out) throw std::runtime_error(std::string("cannot truncate ") + path);
}

}  // namespace

bool insideAppliance() {
  return fileExists(kJournalPath) && access("/qv/etc/ppp", W_OK) == 0;
}

std::string ctl(const std::vector<std::string>& args) {
  std::vector<std::string> argv{kCtl};
  argv.insert(argv.end(), args.begin(), args.end());
  ToolResult result = runTool(argv);
  if (result.status != 0) {
    std::string command;
    for (const std::string& arg : argv) command += arg + " ";
    throw std::runtime_error(command + "failed with status " + std::to_string(result.status));
  }
  return result.output;
}

void reset() {
  ctl({"reset"});
}

bool fileExists(const std::string& path) {
  struct stat info;
  return stat(path.c_str(), &info) == 0;
}

std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

std::vector<std::string> readLines(const std::string& path) {
  return splitLines(readFile(path));
}

void writeFile(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
  if (!out.flush()) throw std::runtime_error("cannot write " + path);
}

void removeFile(const std::string& path) {
  unlink(path.c_str());
}

std::vector<std::string> journal() {
  return splitLines(readFile(kJournalPath));
}
void clearJournal() {
  truncateFile(kJournalPath);
}
std::vector<std::string> calls() {
  return splitLines(readFile(kCallsPath));
}

std::optional<std::string> regGet(const std::string& name) {
  ToolResult result = runTool({kCtl, "reg", "get", name});
  if (result.status != 0) return std::nullopt;
  return chomp(result.output);
}

void regSet(const std::string& name, const std::string& value) {
  ctl({"reg", "set", name, value});
}
void regDelete(const std::string& name) {
  ctl({"reg", "delete", name});
}

void grantPrivilege(int userId, int privilege, int kind) {
  ctl({"priv", "grant", std::to_string(userId), std::to_string(privilege), std::to_string(kind)});
}

void revokePrivilege(int userId, int privilege, int kind) {
  ctl({"priv", "revoke", std::to_string(userId), std::to_string(privilege), std::to_string(kind)});
}

void linkUp(Direction direction, const std::string& iface, const std::string& local,
            const std::string& peer, bool idle) {
  std::vector<std::string> args{"link", "up", directionWord(direction), iface, local, peer};
  if (idle) args.push_back("--idle");
  ctl(args);
}

std::string modemCode(int parameter) {
  return chomp(ctl({"modem", "get", std::to_string(parameter)}));
}

void setModemCode(int parameter, const std::string& code) {
  ctl({"modem", "set", std::to_string(parameter), code});
}

std::vector<Account> accounts() {
  std::vector<Account> result;
  for (const std::string& line : splitLines(ctl({"account", "list"}))) {
    std::istringstream fields(line);
    Account account;
    if (fields >> account.name >> account.textualUserId) result.push_back(account);
  }
  return result;
}

void addAccount(const std::string& name, const std::string& textualUserId) {
  ctl({"account", "add", name, textualUserId});
}

std::string processState(const std::string& name) {
  std::ifstream in("/var/lib/appliance/processes");
  std::string process, state;
  while (in >> process >> state) {
    if (process == name) return state;
  }
  return "";
}

}  // namespace appliance
