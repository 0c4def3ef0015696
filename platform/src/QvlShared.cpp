// QvlShared.cpp: the C functions of libQvlShared.so over the text store and the notifier.
#include "QvlShared.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <string>

#include "QvlStandIn.h"
#include "notify/Notifier.hpp"
#include "store/RegistryStore.hpp"

namespace {

using qvl::Status;

int result(Status status) {
  return static_cast<int>(status);
}

// No C++ exception may cross into the C caller.
template <typename Operation>
int guarded(Operation operation) noexcept {
  try {
    return operation();
  } catch (const std::exception&) {
    return result(Status::IoError);
  }
}

bool present(const char* section, const char* group, const char* name) {
  return section != nullptr && group != nullptr && name != nullptr;
}

}  // namespace

extern "C" {

int QvlGetRegEntryString(const char* section, const char* group, const char* name, char* buffer,
                         int bufferSize) {
  if (!present(section, group, name) || buffer == nullptr || bufferSize <= 0) {
    return result(Status::Invalid);
  }
  return guarded([&] {
    std::string value;
    const Status status =
        qvl::getEntry(qvl::storePathFromEnvironment(), {section, group, name}, value);
    if (status != Status::Ok) return result(status);
    const std::size_t length = std::min(value.size(), static_cast<std::size_t>(bufferSize - 1));
    std::memcpy(buffer, value.data(), length);
    buffer[length] = '\0';
    return result(Status::Ok);
  });
}

int QvlSetRegEntryString(const char* section, const char* group, const char* name,
                         const char* value) {
  if (!present(section, group, name) || value == nullptr) return result(Status::Invalid);
  return guarded([&] {
    return result(qvl::setEntry(qvl::storePathFromEnvironment(), {section, group, name}, value));
  });
}

int QvlNotifyRegChangeStart(const char* section, const char* group, const char* name,
                            QvlRegChangeCallback callback, unsigned long context, int* handleOut) {
  if (!present(section, group, name) || callback == nullptr || handleOut == nullptr) {
    return result(Status::Invalid);
  }
  return guarded([&] {
    const int handle = qvl::Notifier::instance().start(qvl::storePathFromEnvironment(),
                                                       {section, group, name}, callback, context);
    if (handle < 0) return result(Status::IoError);
    *handleOut = handle;
    return result(Status::Ok);
  });
}

int QvlNotifyRegChangeStop(int handle) {
  return guarded([&] {
    return result(qvl::Notifier::instance().stop(handle) ? Status::Ok : Status::NotFound);
  });
}

int QvlAuthCheckPriv(int kind, int userId, int privilege) {
  return guarded([&] {
    return result(qvl::checkGrant(qvl::storePathFromEnvironment(), {kind, userId, privilege}));
  });
}

int QvlNotifySync(void) {
  return guarded(
      [] { return result(qvl::Notifier::instance().sync() ? Status::Ok : Status::Invalid); });
}

int QvlDeleteRegEntryString(const char* section, const char* group, const char* name) {
  if (!present(section, group, name)) return result(Status::Invalid);
  return guarded([&] {
    return result(qvl::deleteEntry(qvl::storePathFromEnvironment(), {section, group, name}));
  });
}

int QvlGrantPriv(int kind, int userId, int privilege) {
  return guarded([&] {
    return result(qvl::addGrant(qvl::storePathFromEnvironment(), {kind, userId, privilege}));
  });
}

int QvlRevokePriv(int kind, int userId, int privilege) {
  return guarded([&] {
    return result(qvl::revokeGrant(qvl::storePathFromEnvironment(), {kind, userId, privilege}));
  });
}

}  // extern "C"
