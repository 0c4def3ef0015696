// Wrapper of one Zeph_SoftModem instance: the soft modem's line options, answering or calling.
// The implementation overrides the accessors; these defaults report "not provided".
#ifndef ZEPH_SOFTMODEM_H
#define ZEPH_SOFTMODEM_H

#include <string>

#include "Zeph_ClassModel.h"
#include "Zeph_SoftModemInstanceManager.h"

// The CIM class name.
inline constexpr char Zeph_SoftModemName[] = "Zeph_SoftModem";

class Zeph_SoftModem
    : public ras::SystemElementKeyed<Zeph_SoftModem, Zeph_SoftModemInstanceManager> {
 public:
  using SystemElementKeyed::SystemElementKeyed;

  virtual int getDeviceID(std::string& value, ras::Qualifiers&) const { return identityKey(value); }

  virtual int getName(std::string&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int getErrorControl(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setErrorControl(bool) { return ras::kStatusNotWritable; }
  virtual int getCallSpeed(unsigned char&, ras::Qualifiers&) const {
    return ras::kStatusNotProvided;
  }
  virtual int setCallSpeed(unsigned char) { return ras::kStatusNotWritable; }
  virtual int getCompression(bool&, ras::Qualifiers&) const { return ras::kStatusNotProvided; }
  virtual int setCompression(bool) { return ras::kStatusNotWritable; }
};

#endif
