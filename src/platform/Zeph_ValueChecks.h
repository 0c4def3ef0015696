// Checks of client values (addresses, masks, modem lines) and the number and time formats
// the classes report.
#ifndef ZEPH_VALUECHECKS_H
#define ZEPH_VALUECHECKS_H

#include <string>

int IsIPValid(char* address);
int IsMaskValid(char* mask);
int IsLineNumberValid(int line);
void timeTodatetimeFormat(std::string& out, int seconds);
int itoa(int value, char* text);
int reverse(char* text);

namespace ras {

// The mask of a single host: that of every address and new route until one is set.
inline constexpr char kHostMask[] = "255.255.255.255";
// An address a client may set: IsIPValid accepts it, and it stays data everywhere an
// address is written (a sed expression, a double-quoted assignment of the route file, a
// part of pppd's address line). IsIPValid never looks past the fourth dot-separated token,
// so "1.2.3.4.$(id)" would pass it alone.
bool isSettableAddress(const std::string& address);

// A route mask a client may set: IsMaskValid accepts it, and it stays data in a sed
// expression and in the route file's double-quoted NETMASK element. A blank is kept: it is
// inert in both ("255.255.255.0 " is a mask inet_aton takes).
bool isSettableMask(const std::string& mask);
}  // namespace ras

#endif  // ZEPH_VALUECHECKS_H
