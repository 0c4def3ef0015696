// The address each dial link hands to its far end: the remote part of the link's pppd address
// line, and whether a static address is handed out at all.
#ifndef ZEPH_RASSTATICIPADDRESSPOOLIMPL_H
#define ZEPH_RASSTATICIPADDRESSPOOLIMPL_H

#include <string>

#include "Zeph_RASStaticIPAddressPool.h"

class Zeph_RASStaticIPAddressPoolImpl : public Zeph_RASStaticIPAddressPool {
 public:
  explicit Zeph_RASStaticIPAddressPoolImpl(const std::string& instanceID);

  int getElementName(std::string& value, ras::Qualifiers&) const override;
  // "Write" is true only while a static address is handed out.
  int getipAddr(std::string& value, ras::Qualifiers& qualifiers) const override;
  // 12 for a malformed address; the empty text removes the remote address.
  int setipAddr(std::string value) override;
  int getnetMask(std::string& value, ras::Qualifiers&) const override;
  int getuseStaticPool(bool& value, ras::Qualifiers& qualifiers) const override;
  // Writes the remembered address back (true) or leaves the remote part empty (false).
  int setuseStaticPool(bool value) override;
  int getCaption(std::string& value, ras::Qualifiers&) const override;
  int getDescription(std::string& value, ras::Qualifiers&) const override;
  int getStartAddress(std::string& value, ras::Qualifiers&) const override;
  int getEndAddress(std::string& value, ras::Qualifiers&) const override;
  int getAddressType(unsigned short& value, ras::Qualifiers&) const override;

 private:
  bool dialIn() const;
  const char* optionsFile() const;
  std::string instanceID() const;
  void restartLink() const;

  std::string elementName_;
  std::string ipAddr_;
  std::string netMask_;
  bool useStaticPool_ = false;
  std::string caption_;
  std::string description_;
  std::string startAddress_;
  std::string endAddress_;
  unsigned short addressType_ = 0;
};

// Builds the dial-in and the dial-out pool; clients can neither create nor delete one.
class Zeph_RASStaticIPAddressPoolImplInstanceManager
    : public Zeph_RASStaticIPAddressPoolInstanceManager {
 public:
  int init() override;
};

#endif
