// The collection of Zeph_SerialPort objects; this abstract manager refuses to create or delete
// them.
#ifndef ZEPH_SERIALPORTINSTANCEMANAGER_H
#define ZEPH_SERIALPORTINSTANCEMANAGER_H

#include <string>

#include "Zeph_InstanceManager.h"

class Zeph_SerialPort;

class Zeph_SerialPortInstanceManager : public ras::InstanceManager<Zeph_SerialPort> {
 public:
  virtual Zeph_SerialPort* createZeph_SerialPort(const std::string& systemCreationClassName,
                                                 const std::string& systemName,
                                                 const std::string& creationClassName,
                                                 const std::string& deviceId) {
    return create({systemCreationClassName, systemName, creationClassName, deviceId});
  }
  virtual void destroyZeph_SerialPort(Zeph_SerialPort* object) { destroy(object); }
};

#endif
