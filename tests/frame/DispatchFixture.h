// Drives the module's provider object the way a CIMOM does: one call per dispatching
// operation, with the request's class name in the place the operation takes it from.
#ifndef FRAME_DISPATCHFIXTURE_H
#define FRAME_DISPATCHFIXTURE_H

#include <functional>
#include <string>
#include <vector>

#include "OW_CIMClass.hpp"
#include "OW_CIMInstance.hpp"
#include "OW_CIMObjectPath.hpp"
#include "OW_CIMParamValue.hpp"
#include "OW_CIMValue.hpp"
#include "OW_ResultHandlers.hpp"
#include "TestEnvironment.h"
#include "Zeph_RASProvider.h"

// The fixed lines of the dispatcher's table, written out independently of the module.
struct OperationLines {
  const char* name;
  bool writes;  // write operations map CFG_WriteError, read operations CFG_ReadError
  int readWriteError;
  int stdException;
  int unknownThrow;
  int unknownClass;
  int invokeWriteError;  // invokeMethod maps both; this is its CFG_WriteError line
};

inline const std::vector<OperationLines> kDispatcherLines = {
    {"enumInstanceNames", false, 188, 203, 211, 216, 0},
    {"enumInstances", false, 323, 338, 346, 351, 0},
    {"getInstance", false, 452, 467, 475, 479, 0},
    {"createInstance", true, 567, 582, 590, 595, 0},
    {"deleteInstance", true, 676, 691, 699, 704, 0},
    {"modifyInstance", true, 797, 812, 820, 825, 0},
    {"invokeMethod", false, 906, 925, 933, 936, 910},
    {"associators", false, 972, 987, 995, 1000, 0},
    {"associatorNames", false, 1031, 1046, 1054, 1059, 0},
    {"references", false, 1092, 1107, 1115, 1120, 0},
    {"referenceNames", false, 1148, 1163, 1171, 1176, 0},
};

using Request =
    std::function<void(Zeph_RASProvider&, const TestEnvRef&, const OpenWBEM::String& className)>;

// The instance and method operations name the class in their arguments; the association
// operations name it as the association class. Instance paths carry the soft modem's keys.
inline Request requestFor(const std::string& operation) {
  using namespace OpenWBEM;
  static const String ns("root/cimv2");
  const auto path = [](const String& cls) {
    CIMObjectPath p(CIMName(cls), ns);
    p.setKeyValue("SystemCreationClassName", CIMValue(String("Zeph_System")));
    p.setKeyValue("SystemName", CIMValue(String("Zeph")));
    p.setKeyValue("CreationClassName", CIMValue(String("Zeph_SoftModem")));
    p.setKeyValue("DeviceID", CIMValue(String("SoftModemIn")));
    return p;
  };
  const auto instance = [](const String& cls) {
    CIMInstance i(cls.c_str());
    i.setProperty("SystemCreationClassName", CIMValue(String("Zeph_System")));
    i.setProperty("SystemName", CIMValue(String("Zeph")));
    i.setProperty("CreationClassName", CIMValue(String("Zeph_SoftModem")));
    i.setProperty("DeviceID", CIMValue(String("SoftModemIn")));
    return i;
  };
  const CIMClass noClass(CIMNULL);
  const CIMObjectPath source(CIMName("Zeph_DialOutSettingData"), ns);
  const std::vector<std::pair<std::string, Request>> requests = {
      {"enumInstanceNames",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         CIMObjectPathArray out;
         CIMObjectPathArrayBuilder result(out);
         p.enumInstanceNames(env, ns, cls, result, noClass);
       }},
      {"enumInstances",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         CIMInstanceArray out;
         CIMInstanceArrayBuilder result(out);
         p.enumInstances(env, ns, cls, result, WBEMFlags::E_NOT_LOCAL_ONLY, WBEMFlags::E_DEEP,
                         WBEMFlags::E_EXCLUDE_QUALIFIERS, WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0,
                         noClass, noClass);
       }},
      {"getInstance",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         p.getInstance(env, ns, path(cls), WBEMFlags::E_NOT_LOCAL_ONLY,
                       WBEMFlags::E_EXCLUDE_QUALIFIERS, WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0,
                       noClass);
       }},
      {"createInstance", [=](Zeph_RASProvider& p, const TestEnvRef& env,
                             const String& cls) { p.createInstance(env, ns, instance(cls)); }},
      {"deleteInstance", [=](Zeph_RASProvider& p, const TestEnvRef& env,
                             const String& cls) { p.deleteInstance(env, ns, path(cls)); }},
      {"modifyInstance",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         p.modifyInstance(env, ns, instance(cls), instance(cls), WBEMFlags::E_EXCLUDE_QUALIFIERS, 0,
                          noClass);
       }},
      {"invokeMethod",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         CIMParamValueArray out;
         p.invokeMethod(env, ns, path(cls), "ConnectLink", CIMParamValueArray(), out);
       }},
      {"associators",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         CIMInstanceArray out;
         CIMInstanceArrayBuilder result(out);
         p.associators(env, result, ns, source, cls, "", "", "", WBEMFlags::E_EXCLUDE_QUALIFIERS,
                       WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0);
       }},
      {"associatorNames",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         CIMObjectPathArray out;
         CIMObjectPathArrayBuilder result(out);
         p.associatorNames(env, result, ns, source, cls, "", "", "");
       }},
      {"references",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         CIMInstanceArray out;
         CIMInstanceArrayBuilder result(out);
         p.references(env, result, ns, source, cls, "", WBEMFlags::E_EXCLUDE_QUALIFIERS,
                      WBEMFlags::E_EXCLUDE_CLASS_ORIGIN, 0);
       }},
      {"referenceNames",
       [=](Zeph_RASProvider& p, const TestEnvRef& env, const String& cls) {
         CIMObjectPathArray out;
         CIMObjectPathArrayBuilder result(out);
         p.referenceNames(env, result, ns, source, cls, "");
       }},
  };
  for (const auto& [name, request] : requests) {
    if (name == operation) return request;
  }
  return nullptr;
}

inline bool isAssociationOperation(const std::string& operation) {
  return operation.rfind("associator", 0) == 0 || operation.rfind("reference", 0) == 0;
}

#endif
