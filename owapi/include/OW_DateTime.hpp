// Point in time with microsecond resolution, used for provider access times.
#ifndef OW_DATETIME_HPP_INCLUDE_GUARD_
#define OW_DATETIME_HPP_INCLUDE_GUARD_
#include <ctime>

#include "OW_CommonFwd.hpp"
#include "OW_Types.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class DateTime {
 public:
  DateTime();
  explicit DateTime(time_t t, UInt32 microseconds = 0);
  ~DateTime();
  time_t get() const;
  UInt32 getMicrosecond() const;
  void setTime(time_t t);
  void setMicrosecond(UInt32 microseconds);
  void setToCurrent();
  String toString() const;
  static DateTime getCurrent();
  bool operator<(const DateTime& tm) const;
  bool operator>(const DateTime& tm) const { return tm < *this; }
  bool operator==(const DateTime& tm) const;
  bool operator!=(const DateTime& tm) const { return !(*this == tm); }

 private:
  time_t m_time;
  UInt32 m_microseconds;
};

}  // namespace OW_NAMESPACE

#endif
