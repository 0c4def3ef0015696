// The serial device through which each dial side reaches the modem, and its flow control.
#ifndef ZEPH_SERIALPORTIMPL_H
#define ZEPH_SERIALPORTIMPL_H

#include <string>

#include "Zeph_InstanceManager.h"
#include "Zeph_SerialPort.h"

class Zeph_SerialPortImpl : public Zeph_SerialPort {
 public:
  Zeph_SerialPortImpl(const std::string& systemCreationClassName, const std::string& systemName,
                      const std::string& creationClassName, const std::string& deviceId);

  int getElementName(std::string& value, ras::Qualifiers&) const override;
  int getName(std::string& value, ras::Qualifiers&) const override;
  // 301 unless every character is a letter or a digit.
  int setName(std::string value) override;
  int getFlowControl(unsigned char& value, ras::Qualifiers&) const override;
  // 0 none, 1 hardware, 2 software; 100 for any other value.
  int setFlowControl(unsigned char value) override;

  // Where one dial side keeps its port and flow control.
  struct Side;

 private:
  const Side* side() const;

  // Fills the cached values from the side's options file and port script.
  void Initialize_Parameters();

  std::string elementName_;
  std::string name_;
  unsigned char flowControl_ = 0;
};

// Builds the dial-in and the dial-out port.
class Zeph_SerialPortImplInstanceManager
    : public ras::ImplInstanceManager<Zeph_SerialPortInstanceManager, Zeph_SerialPortImpl> {
 public:
  int init() override;
};

#endif
