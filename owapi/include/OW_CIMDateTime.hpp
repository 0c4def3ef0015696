// CIM date-time: an absolute time with UTC offset or an interval, in the 25-character form.
#ifndef OW_CIMDATETIME_HPP_INCLUDE_GUARD_
#define OW_CIMDATETIME_HPP_INCLUDE_GUARD_
#include <iosfwd>

#include "OW_CIMFwd.hpp"
#include "OW_CIMNULL.hpp"
#include "OW_COWIntrusiveReference.hpp"
#include "OW_CommonFwd.hpp"
#include "OW_Exception.hpp"
#include "OW_Types.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

OW_DECLARE_APIEXCEPTION(CIMDateTime, OW_COMMON_API)

class CIMDateTime {
 public:
  struct DateTimeData;
  enum EErrorCodes { E_INVALID_DATE_TIME_FORMAT };

  CIMDateTime();
  ~CIMDateTime();
  explicit CIMDateTime(CIMNULL_t);
  CIMDateTime(const CIMDateTime& arg);
  explicit CIMDateTime(const String& arg);
  CIMDateTime(const DateTime& arg);
  explicit CIMDateTime(UInt64 microSeconds);
  CIMDateTime& operator=(const CIMDateTime& arg);

  typedef COWIntrusiveReference<DateTimeData> CIMDateTime::*safe_bool;
  operator safe_bool() const;
  bool operator!() const;

  CIMDateTime& setYear(UInt16 arg);
  CIMDateTime& setMonth(UInt8 arg);
  CIMDateTime& setDays(UInt32 arg);
  CIMDateTime& setDay(UInt32 arg);
  CIMDateTime& setHours(UInt8 arg);
  CIMDateTime& setMinutes(UInt8 arg);
  CIMDateTime& setSeconds(UInt8 arg);
  CIMDateTime& setMicroSeconds(UInt32 arg);
  CIMDateTime& setUtc(Int16 arg);
  bool equal(const CIMDateTime& arg) const;
  UInt16 getYear() const;
  UInt8 getMonth() const;
  UInt32 getDays() const;
  UInt32 getDay() const;
  UInt8 getHours() const;
  UInt8 getMinutes() const;
  UInt8 getSeconds() const;
  UInt32 getMicroSeconds() const;
  Int16 getUtc() const;
  bool isInterval() const;
  void setInterval(bool val);
  void readObject(std::istream& istrm);
  void writeObject(std::ostream& ostrm) const;
  String toString() const;
  DateTime toDateTime() const;

  friend bool operator<(const CIMDateTime& x, const CIMDateTime& y);

 private:
  COWIntrusiveReference<DateTimeData> m_dptr;
};

std::ostream& operator<<(std::ostream& ostr, const CIMDateTime& arg);
bool operator<(const CIMDateTime& x, const CIMDateTime& y);
bool operator==(const CIMDateTime& x, const CIMDateTime& y);
bool operator!=(const CIMDateTime& x, const CIMDateTime& y);
bool operator>(const CIMDateTime& x, const CIMDateTime& y);
bool operator<=(const CIMDateTime& x, const CIMDateTime& y);
bool operator>=(const CIMDateTime& x, const CIMDateTime& y);

}  // namespace OW_NAMESPACE

#endif
