// Verbs.cpp: argument handling of each verb, and the conversion of every failure into the
// outcome. Paths are parsed by CIMObjectPath::parse; values are typed from the class the
// repository holds; what a request means is up to the CIMOM.
#include "Verbs.hpp"

#include <algorithm>

#include "Bindings.hpp"
#include "OW_CIMClass.hpp"
#include "OW_CIMException.hpp"
#include "OW_CIMMethod.hpp"
#include "OW_CIMParameter.hpp"
#include "OW_CIMProperty.hpp"
#include "SchemaCheck.hpp"

using namespace OpenWBEM;
using namespace OpenWBEM::WBEMFlags;

namespace rascim {
namespace {

using Words = std::vector<std::string>;

struct Request {
  CIMOMHandleIFC& cimom;
  String ns;  // of the path, or the default
  CIMObjectPath path;
  bool namedOnly;  // mi --named-only
  Outcome& outcome;
};
using Handler = void (*)(Request&, const Words&);

struct Verb {
  const char* name;
  const char* arguments;
  const char* purpose;
  size_t least, most;  // arguments besides the path
  bool pathLast;       // the association verbs: options first
  Handler run;
};

const char kNamedOnly[] = "--named-only";
const char kUrlMark[] = "://";

// wbemcli accepts a URL in front of the path; the CIMOM is this process, so it is dropped.
// A path without a namespace gets the default one (CIMObjectPath::parse would take "root").
// A class path has no keys, which CIMObjectPath::parse refuses: its name is taken as it is.
CIMObjectPath parsePath(const std::string& word, const std::string& defaultNs) {
  std::string text = word;
  const size_t url = text.find(kUrlMark);
  if (url != std::string::npos && url < text.find('"')) {
    const size_t slash = text.find('/', url + sizeof kUrlMark - 1);
    text = slash == std::string::npos ? "" : text.substr(slash + 1);
  }
  const size_t colon = text.find(':');
  if (colon == std::string::npos || colon > text.find_first_of(".\""))
    text = defaultNs + ":" + text;
  const size_t dot = text.find('.');
  if (dot == std::string::npos) {
    const size_t at = text.rfind(':');
    return CIMObjectPath(text.substr(at + 1).c_str(), text.substr(0, at).c_str());
  }
  try {
    return CIMObjectPath::parse(text.c_str());
  } catch (const Exception& e) {
    throw UsageError("not an object path: " + word + " (" + e.getMessage() + ")");
  }
}

CIMClass classOf(Request& r) {
  return r.cimom.getClass(r.ns, r.path.getClassName(), E_NOT_LOCAL_ONLY, E_INCLUDE_QUALIFIERS);
}

// The given properties, typed from the class (a property it does not declare stays text).
CIMPropertyArray propertiesOf(Request& r, const Words& a, size_t first) {
  const CIMClass cls = classOf(r);
  CIMPropertyArray out;
  for (size_t i = first; i < a.size(); ++i)
    for (const Binding& b : parseBindings(a[i])) {
      const CIMProperty declared = cls.getProperty(b.name.c_str());
      const CIMDataType type = declared ? declared.getDataType() : CIMDataType();
      out.push_back(CIMProperty(b.name.c_str(), typedValue(b, type)));
    }
  return out;
}

void addInstances(Request& r, const CIMInstanceArray& all, Outcome::Shape shape) {
  r.outcome.shape = shape;
  SchemaCheck check(r.cimom, r.ns);
  for (const CIMInstance& i : all) {
    r.outcome.instances.push_back(i);
    r.outcome.instancePaths.push_back(check.instance(i, r.outcome.schemaErrors));
  }
}

void addPaths(Request& r, const CIMObjectPathArray& all, Outcome::Shape shape) {
  r.outcome.shape = shape;
  SchemaCheck check(r.cimom, r.ns);
  for (const CIMObjectPath& p : all) {
    r.outcome.paths.push_back(p);
    check.path(p, r.outcome.schemaErrors);
  }
}

void runEin(Request& r, const Words&) {
  addPaths(r, r.cimom.enumInstanceNamesA(r.ns, r.path.getClassName()), Outcome::kPaths);
}

void runEi(Request& r, const Words&) {
  addInstances(r,
               r.cimom.enumInstancesA(r.ns, r.path.getClassName(), E_DEEP, E_NOT_LOCAL_ONLY,
                                      E_INCLUDE_QUALIFIERS),
               Outcome::kInstances);
}

void runGi(Request& r, const Words&) {
  const CIMInstance one = r.cimom.getInstance(r.ns, r.path, E_NOT_LOCAL_ONLY, E_INCLUDE_QUALIFIERS);
  addInstances(r, CIMInstanceArray(1, one), Outcome::kInstance);
}

void runDi(Request& r, const Words&) {
  r.cimom.deleteInstance(r.ns, r.path);
}

// The keys from the path and the given values.
void runCi(Request& r, const Words& a) {
  CIMInstance inst(r.path.getClassName());
  inst.setProperties(r.path.getKeys());
  inst.setKeys(r.path.getKeys());
  for (const CIMProperty& p : propertiesOf(r, a, 0)) inst.setProperty(p);
  addPaths(r, CIMObjectPathArray(1, r.cimom.createInstance(r.ns, inst)), Outcome::kPath);
}

// As wbemcli does: the instance read, with the given values put in, sent whole. With
// --named-only: the keys and the given properties, with the list of their names (the CIMOM
// drops what the list does not name, keys included).
void runMi(Request& r, const Words& a) {
  const CIMPropertyArray given = propertiesOf(r, a, 0);
  if (r.namedOnly) {
    CIMInstance inst(r.path.getClassName());
    inst.setProperties(r.path.getKeys());
    inst.setKeys(r.path.getKeys());
    StringArray names;
    for (const CIMProperty& key : r.path.getKeys()) names.push_back(key.getName());
    for (const CIMProperty& p : given) {
      inst.setProperty(p);
      names.push_back(p.getName());
    }
    r.cimom.modifyInstance(r.ns, inst, E_EXCLUDE_QUALIFIERS, &names);
    return;
  }
  CIMInstance whole = r.cimom.getInstance(r.ns, r.path);
  for (const CIMProperty& p : given) whole.setProperty(p);
  r.cimom.modifyInstance(r.ns, whole, E_EXCLUDE_QUALIFIERS, nullptr);
}

// "Method" or "Method.Param=value,..." followed by more "Param=value" words; each value
// typed as the class declares the parameter.
void runCm(Request& r, const Words& a) {
  const size_t dot = a[0].find('.');
  const std::string method = a[0].substr(0, dot);
  Words lists(a.begin() + 1, a.end());
  if (dot != std::string::npos) lists.push_back(a[0].substr(dot + 1));
  const CIMMethod declared = classOf(r).getMethod(method.c_str());
  CIMParamValueArray in, out;
  for (const std::string& list : lists)
    for (const Binding& b : parseBindings(list)) {
      CIMDataType type;
      for (const CIMParameter& p : declared ? declared.getParameters() : CIMParameterArray())
        if (p.getName().equalsIgnoreCase(b.name.c_str())) type = p.getType();
      in.push_back(CIMParamValue(b.name.c_str(), typedValue(b, type)));
    }
  r.outcome.returnValue = r.cimom.invokeMethod(r.ns, r.path, method.c_str(), in, out);
  r.outcome.outParams = out;
  r.outcome.shape = Outcome::kMethodResult;
  SchemaCheck(r.cimom, r.ns)
      .returnValue(r.path, method, r.outcome.returnValue, r.outcome.schemaErrors);
}

// The association filters: -ac, -arc, -ar, -arr, each followed by a value.
struct Filters {
  String assocClass, resultClass, role, resultRole;
};

Filters filtersOf(const Words& a, bool references) {
  Filters f;
  for (size_t i = 0; i < a.size(); i += 2) {
    const std::string& w = a[i];
    if (i + 1 >= a.size()) throw UsageError(w + " needs a value");
    const String v = a[i + 1].c_str();
    if (w == "-ac" && !references)
      f.assocClass = v;
    else if (w == "-arc")
      (references ? f.assocClass : f.resultClass) = v;
    else if (w == "-ar")
      f.role = v;
    else if (w == "-arr" && !references)
      f.resultRole = v;
    else
      throw UsageError("not an option here: " + w);
  }
  return f;
}

void runAi(Request& r, const Words& a) {
  const Filters f = filtersOf(a, false);
  addInstances(r,
               r.cimom.associatorsA(r.ns, r.path, f.assocClass, f.resultClass, f.role, f.resultRole,
                                    E_INCLUDE_QUALIFIERS),
               Outcome::kInstances);
}

void runAin(Request& r, const Words& a) {
  const Filters f = filtersOf(a, false);
  addPaths(
      r, r.cimom.associatorNamesA(r.ns, r.path, f.assocClass, f.resultClass, f.role, f.resultRole),
      Outcome::kPaths);
}

void runRi(Request& r, const Words& a) {
  const Filters f = filtersOf(a, true);
  addInstances(r, r.cimom.referencesA(r.ns, r.path, f.assocClass, f.role, E_INCLUDE_QUALIFIERS),
               Outcome::kInstances);
}

void runRin(Request& r, const Words& a) {
  const Filters f = filtersOf(a, true);
  addPaths(r, r.cimom.referenceNamesA(r.ns, r.path, f.assocClass, f.role), Outcome::kPaths);
}

const size_t kAny = ~size_t(0);
const char kAssocArgs[] = "[-ac ASSOC] [-arc RESULT] [-ar ROLE] [-arr RESULTROLE] PATH";
const char kRefArgs[] = "[-arc ASSOC] [-ar ROLE] PATH";

const Verb kVerbs[] = {
    {"ein", "CLASSPATH", "enumerate instance names", 0, 0, false, runEin},
    {"ei", "CLASSPATH", "enumerate instances", 0, 0, false, runEi},
    {"gi", "PATH", "get an instance", 0, 0, false, runGi},
    {"mi", "[--named-only] PATH Name=value[,...] ...",
     "modify an instance: the whole instance read, with the given values (as wbemcli); "
     "--named-only: only the given properties",
     1, kAny, false, runMi},
    {"ci", "PATH [Name=value[,...] ...]", "create an instance (keys from PATH)", 0, kAny, false,
     runCi},
    {"di", "PATH", "delete an instance", 0, 0, false, runDi},
    {"cm", "PATH Method[.Param=value,...] [Param=value ...]", "invoke a method", 1, kAny, false,
     runCm},
    {"ai", kAssocArgs, "associated instances", 0, 8, true, runAi},
    {"ain", kAssocArgs, "paths of associated instances", 0, 8, true, runAin},
    {"ri", kRefArgs, "association instances referring to PATH", 0, 4, true, runRi},
    {"rin", kRefArgs, "paths of association instances referring to PATH", 0, 4, true, runRin},
};

const Verb& findVerb(const std::string& name) {
  for (const Verb& v : kVerbs)
    if (name == v.name) return v;
  throw UsageError("unknown verb '" + name + "' (see --help)");
}

// The words of a verb: the path (last for the association verbs, first otherwise) and
// the rest.
void run(const Verb& verb, CIMOMHandleIFC& cimom, const std::string& defaultNs, Words args,
         Outcome& o) {
  const bool named = verb.run == runMi && !args.empty() && args[0] == kNamedOnly;
  if (named) args.erase(args.begin());
  if (args.empty() || args.size() - 1 < verb.least || args.size() - 1 > verb.most)
    throw UsageError(std::string("wrong number of arguments for ") + verb.name + " (see --help)");
  const auto at = verb.pathLast ? args.end() - 1 : args.begin();
  const CIMObjectPath path = parsePath(*at, defaultNs);
  args.erase(at);
  Request r{cimom, path.getNameSpace(), path, named, o};
  verb.run(r, args);
}

}  // namespace

Outcome runVerb(CIMOMHandleIFC& cimom, const std::string& defaultNamespace, const Words& words) {
  Outcome o;
  o.verb = words.empty() ? "" : words[0];
  try {
    if (words.empty()) throw UsageError("no verb given (see --help)");
    run(findVerb(words[0]), cimom, defaultNamespace, Words(words.begin() + 1, words.end()), o);
  } catch (const CIMException& e) {
    o.hasCimError = true;
    o.cimError = CimError{e.getErrNo(), e.getDescription() ? e.getDescription() : "",
                          e.getFile() ? e.getFile() : "", e.getLine()};
  } catch (const Exception& e) {
    o.failure = std::string(e.type()) + ": " + e.getMessage();
  } catch (const UsageError& e) {
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
