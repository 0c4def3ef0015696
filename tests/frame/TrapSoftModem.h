// A soft-modem implementation whose accessors and manager can be armed to throw, to see what
// the module makes of exceptions escaping a per-class provider.
#ifndef FRAME_TRAPSOFTMODEM_H
#define FRAME_TRAPSOFTMODEM_H

#include <functional>
#include <string>

#include "Zeph_SoftModem.h"

inline std::function<void()> softModemTrap;

inline void springSoftModemTrap() {
  if (softModemTrap) softModemTrap();
}

class TrapSoftModem : public Zeph_SoftModem {
 public:
  using Zeph_SoftModem::Zeph_SoftModem;
  int getDeviceID(std::string& value, ras::Qualifiers& qualifiers) const override {
    springSoftModemTrap();
    return Zeph_SoftModem::getDeviceID(value, qualifiers);
  }
  int startChange() override {
    springSoftModemTrap();
    return ras::kStatusOk;
  }
};

class TrapSoftModemManager
    : public ras::ImplInstanceManager<Zeph_SoftModemInstanceManager, TrapSoftModem> {
 public:
  int init() override {
    new TrapSoftModem("Zeph_System", "Zeph", "Zeph_SoftModem", "SoftModemIn");
    return ras::kStatusOk;
  }
  Zeph_SoftModem* create(const KeyValues& keys) override {
    springSoftModemTrap();
    return ImplInstanceManager::create(keys);
  }
  void destroy(Zeph_SoftModem* object) override {
    springSoftModemTrap();
    ImplInstanceManager::destroy(object);
  }
};

// Installs the trap manager for the life of the object; afterwards the class is back on its
// default manager and the trap's objects are gone.
class TrapSoftModemInstaller {
 public:
  TrapSoftModemInstaller() { Zeph_SoftModem::SetInstanceManager(&manager_); }
  ~TrapSoftModemInstaller() {
    softModemTrap = nullptr;
    for (manager_.startIteration(); manager_.hasNext();) delete manager_.next();
    Zeph_SoftModem::ClearInstanceManager();
  }
  void arm(std::function<void()> trap) { softModemTrap = std::move(trap); }

 private:
  TrapSoftModemManager manager_;
};

#endif
