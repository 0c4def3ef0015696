// ChangeWaiter.cpp: inotify on the store directories plus an eventfd for wake-ups.
#include "ChangeWaiter.hpp"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstdint>

namespace qvl {
namespace {

// The store is replaced by a rename; the rest covers editors and removal.
constexpr std::uint32_t kWatchMask =
    IN_MOVED_TO | IN_MOVED_FROM | IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_DELETE_SELF;
constexpr std::size_t kDrainBufferSize = 4096;

std::string directoryOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

void drain(int fd) {
  if (fd < 0) return;
  alignas(inotify_event) std::array<char, kDrainBufferSize> buffer;
  while (::read(fd, buffer.data(), buffer.size()) > 0) continue;
}

}  // namespace

ChangeWaiter::ChangeWaiter()
    : inotifyFd_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
      wakeFd_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}

ChangeWaiter::~ChangeWaiter() {
  if (inotifyFd_ >= 0) ::close(inotifyFd_);
  if (wakeFd_ >= 0) ::close(wakeFd_);
}

void ChangeWaiter::watchStore(const std::string& storePath) {
  // Failure (no such directory, no inotify) leaves the store to the polling fallback.
  if (inotifyFd_ >= 0) ::inotify_add_watch(inotifyFd_, directoryOf(storePath).c_str(), kWatchMask);
}

void ChangeWaiter::wake() {
  const std::uint64_t one = 1;
  // A failed write means the counter is saturated: a wake-up is pending anyway.
  [[maybe_unused]] const ssize_t written = wakeFd_ >= 0 ? ::write(wakeFd_, &one, sizeof one) : 0;
}

void ChangeWaiter::wait(std::chrono::milliseconds timeout) {
  std::array<pollfd, 2> fds{{{inotifyFd_, POLLIN, 0}, {wakeFd_, POLLIN, 0}}};
  if (::poll(fds.data(), fds.size(), static_cast<int>(timeout.count())) <= 0) return;
  drain(inotifyFd_);
  drain(wakeFd_);
}

}  // namespace qvl
