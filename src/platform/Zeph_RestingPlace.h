// Where a value the module writes comes to rest, and whether it stays data there. A setter
// asks this for every place its value reaches before it runs its first command, so that a
// value is either refused whole or written everywhere.
#ifndef ZEPH_RESTINGPLACE_H
#define ZEPH_RESTINGPLACE_H

#include <initializer_list>
#include <string>

namespace ras {

enum class RestingPlace {
  // Inside a single-quoted sed expression on a command line: no "/" (it ends an address or
  // an `s` part), and nothing but ordinary characters and blanks (no "&", backslash, quote).
  SedText,
  // Between the double quotes of a shell assignment in a script that bash runs or sources
  // later as root: no "$", backquote, double quote or backslash.
  QuotedAssignment,
  // One word of a pppd options file: nothing that splits it (blanks), quotes or escapes it,
  // or starts a comment ("#").
  PppdWord,
  // The local or the remote part of a pppd "local:remote" line: a pppd word without ":".
  AddressPart,
  // A double-quoted column of a PAP or CHAP secrets file: no double quote or backslash, and
  // no leading "@" (pppd would read the secret from the file it names).
  SecretColumn,
};

// True when `value` stays data in `place`. Control characters stay data nowhere.
bool staysData(const std::string& value, RestingPlace place);

// True when `value` stays data in every one of `places`.
bool staysData(const std::string& value, std::initializer_list<RestingPlace> places);

}  // namespace ras

#endif  // ZEPH_RESTINGPLACE_H
