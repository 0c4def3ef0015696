// StoreFile.cpp: reading, locking and atomic replacement of the registry file.
#include "StoreFile.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace qvl {
namespace {

constexpr char kStoreVariable[] = "QVL_REGISTRY";
constexpr char kDefaultStorePath[] = "/var/lib/qvl/registry";
constexpr char kLockSuffix[] = ".lock";
constexpr char kTempSuffix[] = ".tmpXXXXXX";
constexpr mode_t kDefaultMode = 0644;
constexpr std::size_t kReadChunk = 4096;

// Holds an exclusive flock on the lock file beside the store for its lifetime.
class StoreLock {
 public:
  explicit StoreLock(const std::string& storePath)
      : fd_(::open((storePath + kLockSuffix).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kDefaultMode)) {
    if (fd_ < 0) return;
    while (::flock(fd_, LOCK_EX) != 0) {
      if (errno != EINTR) {
        ::close(fd_);
        fd_ = -1;
        return;
      }
    }
  }
  ~StoreLock() {
    if (fd_ >= 0) ::close(fd_);  // closing releases the flock
  }
  StoreLock(const StoreLock&) = delete;
  StoreLock& operator=(const StoreLock&) = delete;
  bool held() const { return fd_ >= 0; }

 private:
  int fd_;
};

bool writeAll(int fd, const std::string& text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<std::size_t>(n);
  }
  return true;
}

// Keeps the mode of the file being replaced, so that readers keep their access.
mode_t modeOf(const std::string& path) {
  struct stat st {};
  return ::stat(path.c_str(), &st) == 0 ? (st.st_mode & 07777) : kDefaultMode;
}

// Writes a temporary file in the store's directory, syncs it and renames it over the store.
bool replaceAtomically(const std::string& path, const std::string& text) {
  std::string temp = path + kTempSuffix;
  const int fd = ::mkostemp(temp.data(), O_CLOEXEC);
  if (fd < 0) return false;
  const bool written = ::fchmod(fd, modeOf(path)) == 0 && writeAll(fd, text) && ::fsync(fd) == 0;
  const bool closed = ::close(fd) == 0;
  if (written && closed && ::rename(temp.c_str(), path.c_str()) == 0) return true;
  ::unlink(temp.c_str());
  return false;
}

// The store's text for editing: empty when it does not exist yet.
std::optional<std::string> readForEdit(const std::string& path) {
  std::optional<std::string> text = readStore(path);
  struct stat st {};
  if (!text && ::stat(path.c_str(), &st) != 0 && errno == ENOENT) return std::string();
  return text;
}

}  // namespace

std::string storePathFromEnvironment() {
  const char* path = std::getenv(kStoreVariable);
  return path != nullptr && *path != '\0' ? path : kDefaultStorePath;
}

std::optional<std::string> readStore(const std::string& path) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return std::nullopt;
  std::string text;
  std::array<char, kReadChunk> chunk;
  ssize_t n = 0;
  while ((n = ::read(fd, chunk.data(), chunk.size())) != 0) {
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) break;
    text.append(chunk.data(), static_cast<std::size_t>(n));
  }
  ::close(fd);
  if (n < 0) return std::nullopt;
  return text;
}

Status editStore(const std::string& path, const std::function<Status(RegistryText&)>& edit) {
  const StoreLock lock(path);
  if (!lock.held()) return Status::IoError;
  const std::optional<std::string> before = readForEdit(path);
  if (!before) return Status::IoError;
  RegistryText text(*before);
  const Status status = edit(text);
  if (status != Status::Ok) return status;
  const std::string after = text.render();
  if (after == *before) return Status::Ok;
  return replaceAtomically(path, after) ? Status::Ok : Status::IoError;
}

}  // namespace qvl
