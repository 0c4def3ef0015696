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

#endif  // ZEPH_VALUECHECKS_H
