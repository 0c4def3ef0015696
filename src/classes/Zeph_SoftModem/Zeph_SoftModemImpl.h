// The soft modem's line options in its two roles: answering (dial-in), whose codes live in
// the modem itself, and calling (dial-out), whose codes live in the dial-out connect script.
#ifndef ZEPH_SOFTMODEMIMPL_H
#define ZEPH_SOFTMODEMIMPL_H

#include <string>

#include "Zeph_InstanceManager.h"
#include "Zeph_SoftModem.h"

class Zeph_SoftModemImpl : public Zeph_SoftModem {
 public:
  Zeph_SoftModemImpl(const std::string& systemCreationClassName, const std::string& systemName,
                     const std::string& creationClassName, const std::string& deviceID);

  int getName(std::string& value, ras::Qualifiers&) const override;
  int getElementName(std::string& value, ras::Qualifiers&) const override;
  int getErrorControl(bool& value, ras::Qualifiers&) const override;
  int setErrorControl(bool value) override;
  int getCallSpeed(unsigned char& value, ras::Qualifiers&) const override;
  int setCallSpeed(unsigned char value) override;
  int getCompression(bool& value, ras::Qualifiers&) const override;
  int setCompression(bool value) override;

 private:
  enum class Role { Answering, Calling, Other };
  Role role() const;

  // Fills the cached values: from the modem when answering, from the connect script when
  // calling. A code it does not know leaves the field as it was.
  void Initialize_Parameters();
  void readAnsweringCodes();
  void readCallingCodes();

  std::string elementName_;
  std::string name_;
  bool errorControl_ = false;
  unsigned char callSpeed_ = 0;
  bool compression_ = false;
};

// Builds the answering and the calling instance.
class Zeph_SoftModemImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_SoftModemInstanceManager, Zeph_SoftModemImpl> {
 public:
  int init() override;
};

#endif
