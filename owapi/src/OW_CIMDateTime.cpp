// CIMDateTime: parse and format of the 25-character form, and field access.
#include "OW_CIMDateTime.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <istream>
#include <ostream>
#include <string>
#include <tuple>

#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_DateTime.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

struct CIMDateTime::DateTimeData : public COWIntrusiveCountableBase {
  UInt16 year = 0;
  UInt8 month = 0;
  UInt32 days = 0;
  UInt8 hours = 0;
  UInt8 minutes = 0;
  UInt8 seconds = 0;
  UInt32 microSeconds = 0;
  Int16 utc = 0;
  bool isInterval = true;

  std::tuple<UInt16, UInt8, UInt32, UInt8, UInt8, UInt8, UInt32, Int16, bool> fields() const {
    return std::make_tuple(year, month, days, hours, minutes, seconds, microSeconds, utc,
                           isInterval);
  }
};

namespace {
const size_t kFormIndex = 21;
const char* const kAbsoluteFormat = "%04u%02u%02u%02u%02u%02u.%06u%+04d";
const char* const kIntervalFormat = "%08u%02u%02u%02u.%06u:000";
const char* const kBadFormatMsg = "Invalid DateTime format: ";
const UInt64 kMicrosPerSecond = 1000000;

// atoi of text[begin, begin + len), without any range check.
int field(const std::string& text, size_t begin, size_t len) {
  return begin < text.size() ? std::atoi(text.substr(begin, len).c_str()) : 0;
}

void parseInterval(const std::string& s, CIMDateTime::DateTimeData& d) {
  d.isInterval = true;
  d.days = static_cast<UInt32>(field(s, 0, 8));
  d.hours = static_cast<UInt8>(field(s, 8, 2));
  d.minutes = static_cast<UInt8>(field(s, 10, 2));
  d.seconds = static_cast<UInt8>(field(s, 12, 2));
  d.microSeconds = static_cast<UInt32>(field(s, 15, 6));
}

void parseAbsolute(const std::string& s, CIMDateTime::DateTimeData& d) {
  d.isInterval = false;
  d.year = static_cast<UInt16>(field(s, 0, 4));
  d.month = static_cast<UInt8>(field(s, 4, 2));
  d.days = static_cast<UInt32>(field(s, 6, 2));
  d.hours = static_cast<UInt8>(field(s, 8, 2));
  d.minutes = static_cast<UInt8>(field(s, 10, 2));
  d.seconds = static_cast<UInt8>(field(s, 12, 2));
  d.microSeconds = static_cast<UInt32>(field(s, 15, 6));
  Int16 utc = static_cast<Int16>(field(s, 22, 3));
  d.utc = s[kFormIndex] == '-' ? static_cast<Int16>(-utc) : utc;
}
}  // namespace

CIMDateTime::CIMDateTime() : m_dptr(new DateTimeData) {}
CIMDateTime::~CIMDateTime() {}
CIMDateTime::CIMDateTime(CIMNULL_t) : m_dptr(0) {}
CIMDateTime::CIMDateTime(const CIMDateTime& arg) : m_dptr(arg.m_dptr) {}

// The character at index 21 tells the form: ':' interval, '+' or '-' absolute.
CIMDateTime::CIMDateTime(const String& arg) : m_dptr(new DateTimeData) {
  std::string s(arg.c_str());
  if (s.empty()) {
    return;
  }
  char form = s.size() > kFormIndex ? s[kFormIndex] : '\0';
  if (form == ':') {
    parseInterval(s, *m_dptr);
  } else if (form == '+' || form == '-') {
    parseAbsolute(s, *m_dptr);
  } else {
    String msg = String(kBadFormatMsg) + arg;
    OW_THROW_ERR(CIMDateTimeException, msg.c_str(), E_INVALID_DATE_TIME_FORMAT);
  }
}

CIMDateTime::CIMDateTime(const DateTime& arg) : m_dptr(new DateTimeData) {
  time_t t = arg.get();
  struct tm parts;
  gmtime_r(&t, &parts);
  m_dptr->isInterval = false;
  m_dptr->year = static_cast<UInt16>(parts.tm_year + 1900);
  m_dptr->month = static_cast<UInt8>(parts.tm_mon + 1);
  m_dptr->days = static_cast<UInt32>(parts.tm_mday);
  m_dptr->hours = static_cast<UInt8>(parts.tm_hour);
  m_dptr->minutes = static_cast<UInt8>(parts.tm_min);
  m_dptr->seconds = static_cast<UInt8>(parts.tm_sec);
  m_dptr->microSeconds = arg.getMicrosecond();
}

CIMDateTime::CIMDateTime(UInt64 microSeconds) : m_dptr(new DateTimeData) {
  UInt64 secs = microSeconds / kMicrosPerSecond;
  m_dptr->microSeconds = static_cast<UInt32>(microSeconds % kMicrosPerSecond);
  m_dptr->seconds = static_cast<UInt8>(secs % 60);
  m_dptr->minutes = static_cast<UInt8>((secs / 60) % 60);
  m_dptr->hours = static_cast<UInt8>((secs / 3600) % 24);
  m_dptr->days = static_cast<UInt32>(secs / 86400);
}

CIMDateTime& CIMDateTime::operator=(const CIMDateTime& arg) {
  m_dptr = arg.m_dptr;
  return *this;
}

// False for a null handle and for a value whose fields (other than the offset) are all zero.
CIMDateTime::operator safe_bool() const {
  if (!m_dptr) {
    return 0;
  }
  const DateTimeData& d = *m_dptr;
  bool zero = d.year == 0 && d.month == 0 && d.days == 0 && d.hours == 0 && d.minutes == 0 &&
              d.seconds == 0 && d.microSeconds == 0;
  return zero ? 0 : &CIMDateTime::m_dptr;
}

bool CIMDateTime::operator!() const {
  return !static_cast<bool>(*this);
}

CIMDateTime& CIMDateTime::setYear(UInt16 arg) {
  m_dptr->year = arg;
  return *this;
}
CIMDateTime& CIMDateTime::setMonth(UInt8 arg) {
  m_dptr->month = arg;
  return *this;
}
CIMDateTime& CIMDateTime::setDays(UInt32 arg) {
  m_dptr->days = arg;
  return *this;
}
CIMDateTime& CIMDateTime::setDay(UInt32 arg) {
  return setDays(arg);
}
CIMDateTime& CIMDateTime::setHours(UInt8 arg) {
  m_dptr->hours = arg;
  return *this;
}
CIMDateTime& CIMDateTime::setMinutes(UInt8 arg) {
  m_dptr->minutes = arg;
  return *this;
}
CIMDateTime& CIMDateTime::setSeconds(UInt8 arg) {
  m_dptr->seconds = arg;
  return *this;
}
CIMDateTime& CIMDateTime::setMicroSeconds(UInt32 arg) {
  m_dptr->microSeconds = arg;
  return *this;
}
CIMDateTime& CIMDateTime::setUtc(Int16 arg) {
  m_dptr->utc = arg;
  return *this;
}

bool CIMDateTime::equal(const CIMDateTime& arg) const {
  return m_dptr->fields() == arg.m_dptr->fields();
}

UInt16 CIMDateTime::getYear() const {
  return m_dptr->year;
}
UInt8 CIMDateTime::getMonth() const {
  return m_dptr->month;
}
UInt32 CIMDateTime::getDays() const {
  return m_dptr->days;
}
UInt32 CIMDateTime::getDay() const {
  return m_dptr->days;
}
UInt8 CIMDateTime::getHours() const {
  return m_dptr->hours;
}
UInt8 CIMDateTime::getMinutes() const {
  return m_dptr->minutes;
}
UInt8 CIMDateTime::getSeconds() const {
  return m_dptr->seconds;
}
UInt32 CIMDateTime::getMicroSeconds() const {
  return m_dptr->microSeconds;
}
Int16 CIMDateTime::getUtc() const {
  return m_dptr->utc;
}
bool CIMDateTime::isInterval() const {
  return m_dptr->isInterval;
}
void CIMDateTime::setInterval(bool val) {
  m_dptr->isInterval = val;
}

String CIMDateTime::toString() const {
  const DateTimeData& d = *m_dptr;
  char buf[64];
  if (d.isInterval) {
    std::snprintf(buf, sizeof(buf), kIntervalFormat, d.days, unsigned(d.hours), unsigned(d.minutes),
                  unsigned(d.seconds), d.microSeconds);
  } else {
    std::snprintf(buf, sizeof(buf), kAbsoluteFormat, unsigned(d.year), unsigned(d.month), d.days,
                  unsigned(d.hours), unsigned(d.minutes), unsigned(d.seconds), d.microSeconds,
                  int(d.utc));
  }
  return String(buf);
}

DateTime CIMDateTime::toDateTime() const {
  const DateTimeData& d = *m_dptr;
  if (d.isInterval) {
    time_t secs = time_t(d.days) * 86400 + d.hours * 3600 + d.minutes * 60 + d.seconds;
    return DateTime(secs, d.microSeconds);
  }
  struct tm parts;
  std::memset(&parts, 0, sizeof(parts));
  parts.tm_year = d.year - 1900;
  parts.tm_mon = d.month - 1;
  parts.tm_mday = static_cast<int>(d.days);
  parts.tm_hour = d.hours;
  parts.tm_min = d.minutes;
  parts.tm_sec = d.seconds;
  return DateTime(timegm(&parts) - time_t(d.utc) * 60, d.microSeconds);
}

void CIMDateTime::readObject(std::istream& istrm) {
  String text;
  text.readObject(istrm);
  *this = CIMDateTime(text);
}

void CIMDateTime::writeObject(std::ostream& ostrm) const {
  toString().writeObject(ostrm);
}

std::ostream& operator<<(std::ostream& ostr, const CIMDateTime& arg) {
  return ostr << arg.toString();
}

bool operator<(const CIMDateTime& x, const CIMDateTime& y) {
  return x.m_dptr->fields() < y.m_dptr->fields();
}
bool operator==(const CIMDateTime& x, const CIMDateTime& y) {
  return x.equal(y);
}
bool operator!=(const CIMDateTime& x, const CIMDateTime& y) {
  return !x.equal(y);
}
bool operator>(const CIMDateTime& x, const CIMDateTime& y) {
  return y < x;
}
bool operator<=(const CIMDateTime& x, const CIMDateTime& y) {
  return !(y < x);
}
bool operator>=(const CIMDateTime& x, const CIMDateTime& y) {
  return !(x < y);
}

}  // namespace OW_NAMESPACE
