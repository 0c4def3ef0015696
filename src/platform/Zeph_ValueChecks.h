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
// An address a client may set: IsIPValid accepts it, and it is made only of characters that
// stay inert in a shell word, a sed expression and a pppd options line. IsIPValid never
// looks past the fourth dot-separated token, so "1.2.3.4.$(id)" would pass it alone.
bool isSettableAddress(const std::string& address);
}  // namespace ras

#endif  // ZEPH_VALUECHECKS_H
