// Operation context, access-time clock, string streams and provider registration records.
#include <sys/time.h>

#include "OW_DateTime.hpp"
#include "OW_InstanceProviderInfo.hpp"
#include "OW_MethodProviderInfo.hpp"
#include "OW_OperationContext.hpp"
#include "OW_ProviderInfoBase.hpp"
#include "OW_String.hpp"
#include "OW_StringStream.hpp"

namespace OW_NAMESPACE {

OperationContext::Data::~Data() {}
OperationContext::OperationContext() {}
OperationContext::~OperationContext() {}

void OperationContext::setData(const String& key, const DataRef& data) {
  m_data[key] = data;
}
void OperationContext::removeData(const String& key) {
  m_data.erase(key);
}

OperationContext::DataRef OperationContext::getData(const String& key) const {
  std::map<String, DataRef>::const_iterator it = m_data.find(key);
  return it != m_data.end() ? it->second : DataRef();
}

namespace {
class StringData : public OperationContext::Data {
 public:
  explicit StringData(const String& s) : str(s) {}
  String str;
};
}  // namespace

void OperationContext::setStringData(const String& key, const String& str) {
  setData(key, DataRef(new StringData(str)));
}

String OperationContext::getStringData(const String& key) const {
  StringData* data = dynamic_cast<StringData*>(getData(key).getPtr());
  if (data == 0) {
    OW_THROW(ContextDataNotFoundException, key.c_str());
  }
  return data->str;
}

String OperationContext::getStringDataWithDefault(const String& key, const String& def) const {
  StringData* data = dynamic_cast<StringData*>(getData(key).getPtr());
  return data != 0 ? data->str : def;
}

bool OperationContext::keyHasData(const String& key) const {
  return bool(getData(key));
}

DateTime::DateTime() : m_time(0), m_microseconds(0) {}
DateTime::DateTime(time_t t, UInt32 microseconds) : m_time(t), m_microseconds(microseconds) {}
DateTime::~DateTime() {}
time_t DateTime::get() const {
  return m_time;
}
UInt32 DateTime::getMicrosecond() const {
  return m_microseconds;
}
void DateTime::setTime(time_t t) {
  m_time = t;
}
void DateTime::setMicrosecond(UInt32 microseconds) {
  m_microseconds = microseconds;
}

void DateTime::setToCurrent() {
  struct timeval tv;
  gettimeofday(&tv, 0);
  m_time = tv.tv_sec;
  m_microseconds = static_cast<UInt32>(tv.tv_usec);
}

String DateTime::toString() const {
  return String(static_cast<Int64>(m_time));
}

DateTime DateTime::getCurrent() {
  DateTime now;
  now.setToCurrent();
  return now;
}

bool DateTime::operator<(const DateTime& tm) const {
  return m_time < tm.m_time || (m_time == tm.m_time && m_microseconds < tm.m_microseconds);
}

bool DateTime::operator==(const DateTime& tm) const {
  return m_time == tm.m_time && m_microseconds == tm.m_microseconds;
}

OStringStream::OStringStream(size_t) {}
OStringStream::~OStringStream() {}
String OStringStream::toString() const {
  return String(str().c_str());
}

String OStringStream::releaseString() {
  String out = toString();
  reset();
  return out;
}

size_t OStringStream::length() const {
  return str().size();
}

const char* OStringStream::c_str() const {
  m_text = toString();
  return m_text.c_str();
}

void OStringStream::reset() {
  str(std::string());
}

IStringStream::IStringStream(const String& s) : std::istringstream(std::string(s.c_str())) {}
IStringStream::~IStringStream() {}

InstClassInfo::InstClassInfo(String const& className_) : className(className_) {}
InstClassInfo::InstClassInfo(String const& className_, StringArray const& namespaces_)
    : className(className_), namespaces(namespaces_) {}
InstClassInfo::~InstClassInfo() {}

MethodProviderInfo::ClassInfo::ClassInfo(String const& className_) : className(className_) {}
MethodProviderInfo::ClassInfo::ClassInfo(String const& className_, StringArray const& namespaces_,
                                         StringArray const& methods_)
    : className(className_), namespaces(namespaces_), methods(methods_) {}

void MethodProviderInfo::addInstrumentedClass(String const& className) {
  m_instrumentedClasses.push_back(ClassInfo(className));
}
void MethodProviderInfo::addInstrumentedClass(ClassInfo const& classInfo) {
  m_instrumentedClasses.push_back(classInfo);
}
const MethodProviderInfo::ClassInfoArray& MethodProviderInfo::getClassInfo() const {
  return m_instrumentedClasses;
}
void MethodProviderInfo::setProviderName(String const& name) {
  m_name = name;
}
String MethodProviderInfo::getProviderName() const {
  return m_name;
}

}  // namespace OW_NAMESPACE
