// Dial service process control: the restarts after a settings change, the stop and resume of
// both directions, and the "ModemStatus" subscription that drives them.
#ifndef ZEPH_DIALSERVICE_H
#define ZEPH_DIALSERVICE_H

#include <string>

// Notification handle of the "ModemStatus" subscription; -1 while there is none.
extern int handle;

void Restart_ppp_add_v2k();
void RestartMgetty();
void remove_ppp_link(unsigned long);

namespace ras {

// Steps that remove_ppp_link and the RAS service share.
void stopDialOut();
void stopDialIn();
void resumeDialOut();
void resumeDialIn();

// The dial-out interface, "ppp" followed by its unit ("ppp" alone when none is found).
std::string findDialOutInterface();

// The interface recorded in the marker file, "ppp" followed by its unit.
std::string readActiveInterface();

// Subscribes remove_ppp_link to changes of "ModemStatus", ending any earlier subscription;
// the platform's result. The subscription ends at the latest when the module is unloaded.
int startModemStatusNotify();

// Ends the subscription if there is one.
void stopModemStatusNotify();

}  // namespace ras

#endif  // ZEPH_DIALSERVICE_H
