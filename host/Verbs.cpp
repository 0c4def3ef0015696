// Verbs.cpp: argument handling of each verb, and the conversion of every failure into the
// outcome.
#include "Verbs.hpp"

#include <algorithm>

#include "CimBuild.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMProperty.hpp"
#include "PathSyntax.hpp"
#include "SchemaCheck.hpp"

using namespace OpenWBEM;

namespace rascim {
namespace {

using Words = std::vector<std::string>;

const char kNamedOnly[] = "--named-only";
using Handler = void (*)(VerbContext&, const Words&, Outcome&);

struct Verb {
  const char* name;
  const char* arguments;
  const char* purpose;
  Handler run;
};

struct Target {
  String ns;
  CIMObjectPath path;
  PathText text;
};

Target target(const VerbContext& c, const std::string& word) {
  Target t{"", CIMObjectPath(), parsePath(word)};
  t.ns = (t.text.nameSpace.empty() ? c.defaultNamespace : t.text.nameSpace).c_str();
  t.path = buildPath(t.text, c.schema);
  return t;
}

void expectCount(const Words& args, size_t least, size_t most, const char* verb) {
  if (args.size() < least || args.size() > most)
    throw UsageError(std::string("wrong number of arguments for ") + verb + " (see --help)");
}

std::vector<Binding> bindingsOf(const Words& args, size_t first) {
  std::vector<Binding> out;
  for (size_t i = first; i < args.size(); ++i)
    for (Binding& b : parseBindings(args[i])) out.push_back(std::move(b));
  return out;
}

void addInstances(Outcome& o, const CIMInstanceArray& all, const MofSchema& schema) {
  o.shape = Outcome::kInstances;
  for (size_t i = 0; i < all.size(); ++i) {
    o.instances.push_back(all[i]);
    for (std::string& p : checkInstance(all[i], schema)) o.schemaErrors.push_back(std::move(p));
  }
}

void addPaths(Outcome& o, const CIMObjectPathArray& all, const MofSchema& schema) {
  o.shape = Outcome::kPaths;
  for (size_t i = 0; i < all.size(); ++i) {
    o.paths.push_back(all[i]);
    for (std::string& p : checkPath(all[i], schema)) o.schemaErrors.push_back(std::move(p));
  }
}

void runEin(VerbContext& c, const Words& a, Outcome& o) {
  expectCount(a, 1, 1, "ein");
  const Target t = target(c, a[0]);
  addPaths(o, c.cimom.enumInstanceNames(t.ns, t.text.className.c_str()), c.schema);
}

void runEi(VerbContext& c, const Words& a, Outcome& o) {
  expectCount(a, 1, 1, "ei");
  const Target t = target(c, a[0]);
  addInstances(o, c.cimom.enumInstances(t.ns, t.text.className.c_str()), c.schema);
}

void runGi(VerbContext& c, const Words& a, Outcome& o) {
  expectCount(a, 1, 1, "gi");
  const Target t = target(c, a[0]);
  CIMInstanceArray one;
  one.push_back(c.cimom.getInstance(t.ns, t.path));
  addInstances(o, one, c.schema);
  o.shape = Outcome::kInstance;
}

void runDi(VerbContext& c, const Words& a, Outcome&) {
  expectCount(a, 1, 1, "di");
  const Target t = target(c, a[0]);
  c.cimom.deleteInstance(t.ns, t.path);
}

void runCi(VerbContext& c, const Words& a, Outcome& o) {
  expectCount(a, 1, ~size_t(0), "ci");
  const Target t = target(c, a[0]);
  std::vector<Binding> values = t.text.keys;
  for (Binding& b : bindingsOf(a, 1)) values.push_back(std::move(b));
  const CIMInstance inst = buildInstance(t.text.className, values, c.schema, true);
  CIMObjectPathArray created;
  created.push_back(c.cimom.createInstance(t.ns, inst));
  addPaths(o, created, c.schema);
  o.shape = Outcome::kPath;
}

// As wbemcli does: read the instance, put the given values in, and send it whole (every
// writable property reaches the provider). With --named-only, only the keys and the given
// properties, with the list of their names.
void runMi(VerbContext& c, const Words& a, Outcome&) {
  Words args = a;
  const auto flag = std::find(args.begin(), args.end(), kNamedOnly);
  const bool namedOnly = flag != args.end();
  if (namedOnly) args.erase(flag);
  expectCount(args, 2, ~size_t(0), "mi");
  const Target t = target(c, args[0]);
  const std::vector<Binding> changes = bindingsOf(args, 1);
  if (namedOnly) {
    std::vector<Binding> values = t.text.keys;
    values.insert(values.end(), changes.begin(), changes.end());
    StringArray propertyList;
    for (const Binding& b : changes) propertyList.push_back(b.name.c_str());
    c.cimom.modifyInstance(t.ns, t.path, buildInstance(t.text.className, values, c.schema, false),
                           &propertyList);
    return;
  }
  const CIMInstance given = buildInstance(t.text.className, changes, c.schema, false);
  CIMInstance whole = c.cimom.getInstance(t.ns, t.path);
  for (const CIMProperty& p : given.getProperties()) whole.setProperty(p);
  c.cimom.modifyInstance(t.ns, t.path, whole, nullptr);
}

// "Method" or "Method.Param=value,..." followed by more "Param=value" words.
void runCm(VerbContext& c, const Words& a, Outcome& o) {
  expectCount(a, 2, ~size_t(0), "cm");
  const Target t = target(c, a[0]);
  const size_t dot = a[1].find('.');
  const std::string method = a[1].substr(0, dot);
  std::vector<Binding> values =
      dot == std::string::npos ? std::vector<Binding>() : parseBindings(a[1].substr(dot + 1));
  for (Binding& b : bindingsOf(a, 2)) values.push_back(std::move(b));
  MethodParams params = buildMethodParams(t.text.className, method, values, c.schema);
  o.returnValue = c.cimom.invokeMethod(t.ns, t.path, method.c_str(), params.in, params.out);
  o.outParams = params.out;
  o.shape = Outcome::kMethodResult;
  o.schemaErrors = checkReturn(t.text.className, method, o.returnValue, c.schema);
}

// Splits the -ac/-arc/-ar/-arr options off; what remains must be one object path.
std::string associationArgs(const Words& a, const char* verb, bool references,
                            AssociationFilter& f) {
  Words rest;
  for (size_t i = 0; i < a.size(); ++i) {
    const std::string& w = a[i];
    const bool option = w == "-ac" || w == "-arc" || w == "-ar" || w == "-arr";
    if (!option) {
      rest.push_back(w);
      continue;
    }
    if (i + 1 >= a.size()) throw UsageError(w + " needs a value");
    const std::string& v = a[++i];
    if (w == "-ac" || (references && w == "-arc"))
      f.assocClass = v;
    else if (w == "-arc")
      f.resultClass = v;
    else if (w == "-ar")
      f.role = v;
    else if (!references)
      f.resultRole = v;
    else
      throw UsageError(std::string("-arr is not an option of ") + verb);
  }
  expectCount(rest, 1, 1, verb);
  return rest[0];
}

void runAi(VerbContext& c, const Words& a, Outcome& o) {
  AssociationFilter f;
  const Target t = target(c, associationArgs(a, "ai", false, f));
  addInstances(o, c.cimom.associators(t.ns, t.path, f), c.schema);
}

void runAin(VerbContext& c, const Words& a, Outcome& o) {
  AssociationFilter f;
  const Target t = target(c, associationArgs(a, "ain", false, f));
  addPaths(o, c.cimom.associatorNames(t.ns, t.path, f), c.schema);
}

void runRi(VerbContext& c, const Words& a, Outcome& o) {
  AssociationFilter f;
  const Target t = target(c, associationArgs(a, "ri", true, f));
  addInstances(o, c.cimom.references(t.ns, t.path, f), c.schema);
}

void runRin(VerbContext& c, const Words& a, Outcome& o) {
  AssociationFilter f;
  const Target t = target(c, associationArgs(a, "rin", true, f));
  addPaths(o, c.cimom.referenceNames(t.ns, t.path, f), c.schema);
}

const Verb kVerbs[] = {
    {"ein", "CLASSPATH", "enumerate instance names", runEin},
    {"ei", "CLASSPATH", "enumerate instances", runEi},
    {"gi", "PATH", "get an instance", runGi},
    {"mi", "[--named-only] PATH Name=value[,...] ...",
     "modify an instance: the whole instance read, with the given values (as wbemcli); "
     "--named-only: only the given properties",
     runMi},
    {"ci", "PATH [Name=value[,...] ...]", "create an instance (keys from PATH)", runCi},
    {"di", "PATH", "delete an instance", runDi},
    {"cm", "PATH Method[.Param=value,...] [Param=value ...]", "invoke a method", runCm},
    {"ai", "[-ac ASSOC] [-arc RESULT] [-ar ROLE] [-arr RESULTROLE] PATH", "associated instances",
     runAi},
    {"ain", "[-ac ASSOC] [-arc RESULT] [-ar ROLE] [-arr RESULTROLE] PATH",
     "paths of associated instances", runAin},
    {"ri", "[-arc ASSOC] [-ar ROLE] PATH", "association instances referring to PATH", runRi},
    {"rin", "[-arc ASSOC] [-ar ROLE] PATH", "paths of association instances referring to PATH",
     runRin},
};

const Verb& findVerb(const std::string& name) {
  for (const Verb& v : kVerbs)
    if (name == v.name) return v;
  throw UsageError("unknown verb '" + name + "' (see --help)");
}

void recordCimError(Outcome& o, const CIMException& e) {
  o.hasCimError = true;
  o.cimError.code = e.getErrNo();
  o.cimError.message = e.getDescription() ? e.getDescription() : "";
  o.cimError.file = e.getFile() ? e.getFile() : "";
  o.cimError.line = e.getLine();
}

}  // namespace

Outcome runVerb(VerbContext& context, const std::vector<std::string>& words) {
  Outcome o;
  o.verb = words.empty() ? "" : words[0];
  try {
    if (words.empty()) throw UsageError("no verb given (see --help)");
    findVerb(words[0]).run(context, Words(words.begin() + 1, words.end()), o);
  } catch (const CIMException& e) {
    recordCimError(o, e);
  } catch (const OpenWBEM::Exception& e) {
    o.failure = std::string(e.type()) + ": " + e.getMessage();
  } catch (const UsageError& e) {
    o.failure = e.what();
    o.usageError = true;
  } catch (const SyntaxError& e) {
    o.failure = e.what();
    o.usageError = true;
  } catch (const TypingError& e) {
    o.failure = e.what();
    o.usageError = true;
  } catch (const std::exception& e) {
    o.failure = e.what();
  }
  return o;
}

std::string verbSynopsis() {
  std::string out;
  for (const Verb& v : kVerbs)
    out += "  " + std::string(v.name) + " " + v.arguments + "\n      " + v.purpose + "\n";
  return out;
}

}  // namespace rascim
