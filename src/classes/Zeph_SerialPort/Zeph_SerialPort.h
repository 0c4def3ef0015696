// Wrapper of one Zeph_SerialPort instance: the serial device and flow control of a dial side.
// The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_SERIALPORT_H
#define ZEPH_SERIALPORT_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_SerialPortInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_SerialPortName[] = "Zeph_SerialPort";

class Zeph_SerialPort
    : public ras::SystemElementKeyed<Zeph_SerialPort, Zeph_SerialPortInstanceManager> {
 public:
  using SystemElementKeyed::SystemElementKeyed;

  virtual int getDeviceId(std::string& value, ras::Qualifiers&) const { return identityKey(value); }

  virtual int getName(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setName(std::string) { return ras::kStatusNotWritable; }
  virtual int getFlowControl(unsigned char&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setFlowControl(unsigned char) { return ras::kStatusNotWritable; }
};

#endif
