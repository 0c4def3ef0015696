// Commands.cpp: the command table of qvlreg and one handler per command.
#include "Commands.hpp"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <optional>

#include "store/RegistryStore.hpp"

namespace qvlreg {
namespace {

using Args = std::vector<std::string>;
using qvl::Status;

constexpr char kProgram[] = "qvlreg: ";
constexpr char kUsage[] =
    "usage: qvlreg [--file PATH] COMMAND ARGS...\n"
    "Reads and changes the simulated platform registry ($QVL_REGISTRY, default\n"
    "/var/lib/qvl/registry; --file PATH overrides it).\n"
    "commands:\n";
constexpr char kMsgUnknownCommand[] = "unknown command: ";
constexpr char kMsgArguments[] = "wrong number of arguments; usage: qvlreg ";
constexpr char kMsgNotNumber[] = "not a decimal integer: ";
constexpr char kMsgNoEntry[] = "no such entry: ";
constexpr char kMsgNoGrant[] = "no such grant: ";
constexpr char kMsgRefused[] =
    "refused: section, group and name must be non-empty, the section without '/', the name "
    "without '=' and not starting with '#', '[' or a blank, and nothing may contain a newline";
constexpr char kMsgCannotAccess[] = "cannot read or write the registry store ";

struct Command {
  const char* name;
  const char* usage;
  std::size_t minArgs;
  std::size_t maxArgs;
  int (*run)(const Args& args, Context& context);
};

// Turns a store status into an exit status, with a message for a failure.
int finish(Status status, const std::string& subject, Context& context) {
  switch (status) {
    case Status::Ok:
      return kExitOk;
    case Status::NotFound:
      context.err << kProgram << subject << '\n';
      return kExitAbsent;
    case Status::Invalid:
      context.err << kProgram << kMsgRefused << '\n';
      return kExitUsage;
    case Status::IoError:
      break;
  }
  context.err << kProgram << kMsgCannotAccess << context.storePath << '\n';
  return kExitFailed;
}

qvl::EntryKey keyOf(const Args& args) {
  return {args[0], args[1], args[2]};
}

std::string describe(const qvl::EntryKey& key) {
  return kMsgNoEntry + key.section + "/" + key.group + "/" + key.name;
}

std::optional<int> parseInt(const std::string& text) {
  errno = 0;
  char* end = nullptr;
  const long value = std::strtol(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || errno != 0 || value < INT_MIN || value > INT_MAX) {
    return std::nullopt;
  }
  return static_cast<int>(value);
}

std::string grantText(const qvl::Grant& grant) {
  return std::to_string(grant.kind) + " " + std::to_string(grant.userId) + " " +
         std::to_string(grant.privilege);
}

int runGet(const Args& args, Context& context) {
  std::string value;
  const Status status = qvl::getEntry(context.storePath, keyOf(args), value);
  if (status == Status::Ok) context.out << value << '\n';
  return finish(status, describe(keyOf(args)), context);
}

int runSet(const Args& args, Context& context) {
  return finish(qvl::setEntry(context.storePath, keyOf(args), args[3]), "", context);
}

int runDelete(const Args& args, Context& context) {
  return finish(qvl::deleteEntry(context.storePath, keyOf(args)), describe(keyOf(args)), context);
}

// Lists entries, optionally only those of one section or one section and group.
int runList(const Args& args, Context& context) {
  std::vector<qvl::Entry> entries;
  const Status status = qvl::listEntries(context.storePath, entries);
  for (const qvl::Entry& entry : entries) {
    if (!args.empty() && entry.key.section != args[0]) continue;
    if (args.size() > 1 && entry.key.group != args[1]) continue;
    context.out << entry.key.section << '/' << entry.key.group << '/' << entry.key.name << '='
                << entry.value << '\n';
  }
  return finish(status, "", context);
}

// Runs a grant-changing operation on the three numbers in args.
int runOnGrant(const Args& args, Context& context,
               Status (*operation)(const std::string&, const qvl::Grant&)) {
  std::optional<int> numbers[3];
  for (std::size_t i = 0; i < 3; ++i) {
    numbers[i] = parseInt(args[i]);
    if (!numbers[i]) {
      context.err << kProgram << kMsgNotNumber << args[i] << '\n';
      return kExitUsage;
    }
  }
  const qvl::Grant grant{*numbers[0], *numbers[1], *numbers[2]};
  return finish(operation(context.storePath, grant), kMsgNoGrant + grantText(grant), context);
}

int runGrant(const Args& args, Context& context) {
  return runOnGrant(args, context, qvl::addGrant);
}

int runRevoke(const Args& args, Context& context) {
  return runOnGrant(args, context, qvl::revokeGrant);
}

int runPrivileges(const Args&, Context& context) {
  std::vector<qvl::Grant> grants;
  const Status status = qvl::listGrants(context.storePath, grants);
  for (const qvl::Grant& grant : grants) context.out << grantText(grant) << '\n';
  return finish(status, "", context);
}

constexpr Command kCommands[] = {
    {"get", "get SECTION GROUP NAME", 3, 3, runGet},
    {"set", "set SECTION GROUP NAME VALUE", 4, 4, runSet},
    {"delete", "delete SECTION GROUP NAME", 3, 3, runDelete},
    {"list", "list [SECTION [GROUP]]", 0, 2, runList},
    {"grant", "grant KIND USER PRIV", 3, 3, runGrant},
    {"revoke", "revoke KIND USER PRIV", 3, 3, runRevoke},
    {"privileges", "privileges", 0, 0, runPrivileges},
};

}  // namespace

void printUsage(std::ostream& out) {
  out << kUsage;
  for (const Command& command : kCommands) out << "  " << command.usage << '\n';
}

int runCommand(const std::string& name, const Args& args, Context& context) {
  for (const Command& command : kCommands) {
    if (name != command.name) continue;
    if (args.size() < command.minArgs || args.size() > command.maxArgs) {
      context.err << kProgram << kMsgArguments << command.usage << '\n';
      return kExitUsage;
    }
    return command.run(args, context);
  }
  context.err << kProgram << kMsgUnknownCommand << name << '\n';
  printUsage(context.err);
  return kExitUsage;
}

}  // namespace qvlreg
