// Drives the module's provider object the way a CIMOM does: one call per dispatching
// operation, with the request's class name in the place the operation takes it from.
#ifndef FRAME_DISPATCHFIXTURE_H
#define FRAME_DISPATCHFIXTURE_H

#include <stdexcept>
#include <string>
#include <vector>

#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ResultHandlers.hpp"
#include "TestEnvironment.h"
#include "Zeph_DispatchOperations.h"
#include "Zeph_RASProvider.h"

// The fixed lines of the dispatcher's table, written out independently of the module; each
// row also names the module's operation it describes.
struct OperationLines {
  const char* name;
  const ras::Operation* operation;
  bool writes;  // write operations map CFG_WriteError, read operations CFG_ReadError
  int readWriteError;
  int stdException;
  int unknownThrow;
  int unknownClass;
  int invokeWriteError;  // invokeMethod maps both; this is its CFG_WriteError line
  bool association;
};

inline const std::vector<OperationLines> kDispatcherLines = [] {
  using namespace ras::operations;
  return std::vector<OperationLines>{
      {"enumInstanceNames", &kEnumInstanceNames, false, 188, 203, 211, 216, 0, false},
      {"enumInstances", &kEnumInstances, false, 323, 338, 346, 351, 0, false},
      {"getInstance", &kGetInstance, false, 452, 467, 475, 479, 0, false},
      {"createInstance", &kCreateInstance, true, 567, 582, 590, 595, 0, false},
      {"deleteInstance", &kDeleteInstance, true, 676, 691, 699, 704, 0, false},
      {"modifyInstance", &kModifyInstance, true, 797, 812, 820, 825, 0, false},
      {"invokeMethod", &kInvokeMethod, false, 906, 925, 933, 936, 910, false},
      {"associators", &kAssociators, false, 972, 987, 995, 1000, 0, true},
      {"associatorNames", &kAssociatorNames, false, 1031, 1046, 1054, 1059, 0, true},
      {"references", &kReferences, false, 1092, 1107, 1115, 1120, 0, true},
      {"referenceNames", &kReferenceNames, false, 1148, 1163, 1171, 1176, 0, true}};
}();

// Calls an association operation with `cls` as the association class.
inline void requestAssociation(const std::string& operation, Zeph_RASProvider& p,
                               const TestEnvRef& env, const OpenWBEM::String& cls) {
  using namespace OpenWBEM;
  using WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, WBEMFlags::E_EXCLUDE_QUALIFIERS;
  const String ns("root/cimv2");
  const CIMObjectPath source(CIMName("Zeph_DialOutSettingData"), ns);
  CIMObjectPathArray paths;
  CIMObjectPathArrayBuilder names(paths);
  CIMInstanceArray instances;
  CIMInstanceArrayBuilder objects(instances);
  if (operation == "associators") {
    p.associators(env, objects, ns, source, cls, "", "", "", E_EXCLUDE_QUALIFIERS,
                  E_EXCLUDE_CLASS_ORIGIN, 0);
  } else if (operation == "associatorNames") {
    p.associatorNames(env, names, ns, source, cls, "", "", "");
  } else if (operation == "references") {
    p.references(env, objects, ns, source, cls, "", E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN,
                 0);
  } else if (operation == "referenceNames") {
    p.referenceNames(env, names, ns, source, cls, "");
  } else {
    throw std::logic_error("no such operation " + operation);
  }
}

// Calls `operation` on the provider. The instance and method operations name the class in
// their arguments, with the soft modem's keys; the association operations name it as the
// association class.
inline void request(const std::string& operation, Zeph_RASProvider& p, const TestEnvRef& env,
                    const OpenWBEM::String& cls) {
  using namespace OpenWBEM;
  using WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, WBEMFlags::E_EXCLUDE_QUALIFIERS;
  const String ns("root/cimv2");
  const CIMClass noClass(CIMNULL);
  CIMObjectPath path(CIMName(cls), ns);
  CIMInstance instance(cls.c_str());
  for (const auto& [key, value] : {std::pair{"SystemCreationClassName", "Zeph_System"},
                                   {"SystemName", "Zeph"},
                                   {"CreationClassName", "Zeph_SoftModem"},
                                   {"DeviceID", "SoftModemIn"}}) {
    path.setKeyValue(key, CIMValue(String(value)));
    instance.setProperty(key, CIMValue(String(value)));
  }
  CIMObjectPathArray paths;
  CIMObjectPathArrayBuilder names(paths);
  CIMInstanceArray instances;
  CIMInstanceArrayBuilder objects(instances);
  CIMParamValueArray out;
  if (operation == "enumInstanceNames") {
    p.enumInstanceNames(env, ns, cls, names, noClass);
  } else if (operation == "enumInstances") {
    p.enumInstances(env, ns, cls, objects, WBEMFlags::E_NOT_LOCAL_ONLY, WBEMFlags::E_DEEP,
                    E_EXCLUDE_QUALIFIERS, E_EXCLUDE_CLASS_ORIGIN, 0, noClass, noClass);
  } else if (operation == "getInstance") {
    p.getInstance(env, ns, path, WBEMFlags::E_NOT_LOCAL_ONLY, E_EXCLUDE_QUALIFIERS,
                  E_EXCLUDE_CLASS_ORIGIN, 0, noClass);
  } else if (operation == "createInstance") {
    p.createInstance(env, ns, instance);
  } else if (operation == "deleteInstance") {
    p.deleteInstance(env, ns, path);
  } else if (operation == "modifyInstance") {
    p.modifyInstance(env, ns, instance, instance, E_EXCLUDE_QUALIFIERS, 0, noClass);
  } else if (operation == "invokeMethod") {
    p.invokeMethod(env, ns, path, "ConnectLink", CIMParamValueArray(), out);
  } else {
    requestAssociation(operation, p, env, cls);
  }
}

#endif
