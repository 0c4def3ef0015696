// A call-in settings implementation whose statuses a test scripts, and which records the
// setters it ran, to drive the provider template's operations.
#ifndef FRAME_SCRIPTEDCALLIN_H
#define FRAME_SCRIPTEDCALLIN_H

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Zeph_CallInSettingData.h"
#include "Zeph_ImpactWarning.h"

struct CallInScript {
  CallInScript(int startStatus = 0, int endStatus = 0, std::map<std::string, int> setters = {})
      : start(startStatus), end(endStatus), setterStatus(std::move(setters)) {}
  int start;
  int end;
  int keyStatus = 0;
  std::map<std::string, int> setterStatus;
  std::vector<std::string> applied;
};

inline CallInScript callInScript;

class ScriptedCallIn : public Zeph_CallInSettingData {
 public:
  using Zeph_CallInSettingData::Zeph_CallInSettingData;

  int startChange() override { return callInScript.start; }
  int endChange() override { return callInScript.end; }
  int getInstanceID(std::string& value, ras::Qualifiers& qualifiers) const override {
    Zeph_CallInSettingData::getInstanceID(value, qualifiers);
    return callInScript.keyStatus;
  }
  int getElementName(std::string& value, ras::Qualifiers&) const override {
    value = "Dial-In Configuration";
    return ras::kStatusOk;
  }
  int getLineToAnswer(unsigned short& value, ras::Qualifiers&) const override {
    value = 3;
    return ras::kStatusOk;
  }
  int getRingsBeforeAnswer(unsigned short& value, ras::Qualifiers& qualifiers) const override {
    value = 4;
    ShowWarningMessage(qualifiers);
    return ras::kStatusOk;
  }
  int getAutoDisableFlag(bool& value, ras::Qualifiers&) const override {
    value = true;
    return ras::kStatusOk;
  }
  int setLineToAnswer(unsigned short) override { return record("LineToAnswer"); }
  int setRingsBeforeAnswer(unsigned short) override { return record("RingsBeforeAnswer"); }
  int setAutoDisableTimer(unsigned short) override { return record("AutoDisableTimer"); }
  int setAutoDisableFlag(bool) override { return record("AutoDisableFlag"); }

 private:
  static int record(const std::string& property) {
    callInScript.applied.push_back(property);
    return callInScript.setterStatus[property];
  }
};

class ScriptedCallInManager
    : public ras::ImplInstanceManager<Zeph_CallInSettingDataInstanceManager, ScriptedCallIn> {
 public:
  int init() override {
    new ScriptedCallIn("Velmar:Zeph_CallInSettingData");
    return ras::kStatusOk;
  }
};

#endif
