// Call-in settings of the appliance: the line to answer and the modem's DN number read live
// from the registry, the rings before answer kept from mgetty's start script, and the
// automatic disabling of dial-in kept from the registry.
#ifndef ZEPH_CALLINSETTINGDATAIMPL_H
#define ZEPH_CALLINSETTINGDATAIMPL_H

#include <string>

#include "Zeph_CallInSettingData.h"
#include "Zeph_InstanceManager.h"

class Zeph_CallInSettingDataImpl : public Zeph_CallInSettingData {
 public:
  explicit Zeph_CallInSettingDataImpl(const std::string& instanceID);

  int getElementName(std::string& value, ras::Qualifiers&) const override;
  int getLineToAnswer(unsigned short& value, ras::Qualifiers&) const override;
  int setLineToAnswer(unsigned short value) override;
  int getRingsBeforeAnswer(unsigned short& value, ras::Qualifiers& qualifiers) const override;
  int setRingsBeforeAnswer(unsigned short value) override;
  int getAutoDisableTimer(unsigned short& value, ras::Qualifiers&) const override;
  int setAutoDisableTimer(unsigned short value) override;
  int getAutoDisableFlag(bool& value, ras::Qualifiers&) const override;
  int setAutoDisableFlag(bool value) override;
  int getDNNumber(std::string& value, ras::Qualifiers&) const override;

 private:
  // Fills the cached values from mgetty's start script and the registry.
  void Initialize_Parameters();
  void initializeLineToAnswer();
  void initializeAutoDisableTimer();
  void initializeAutoDisableFlag();

  std::string elementName_;
  mutable std::string dnNumber_;  // the last DN number read
  unsigned short lineToAnswer_ = 0;
  unsigned short ringsBeforeAnswer_ = 0;
  unsigned short autoDisableTimer_ = 0;
  bool autoDisableFlag_ = false;
};

// Builds the class's single instance.
class Zeph_CallInSettingDataImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_CallInSettingDataInstanceManager,
                                      Zeph_CallInSettingDataImpl> {
 public:
  int init() override;
};

#endif
