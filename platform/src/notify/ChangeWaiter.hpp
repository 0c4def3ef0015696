// ChangeWaiter.hpp: lets the watcher thread sleep until a store directory changes, it is woken,
// or the polling interval ends (the fallback for stores inotify cannot watch).
#ifndef QVL_CHANGE_WAITER_HPP
#define QVL_CHANGE_WAITER_HPP

#include <chrono>
#include <string>

namespace qvl {

class ChangeWaiter {
 public:
  ChangeWaiter();
  ~ChangeWaiter();
  ChangeWaiter(const ChangeWaiter&) = delete;
  ChangeWaiter& operator=(const ChangeWaiter&) = delete;

  // Watches the directory holding the store for renames and writes. Cheap to repeat, and
  // repeated by the watcher so that a directory created later is picked up.
  void watchStore(const std::string& storePath);
  // Ends the current or next wait early; callable from any thread.
  void wake();
  // Returns after a change in a watched directory, a wake or the timeout.
  void wait(std::chrono::milliseconds timeout);

 private:
  int inotifyFd_;
  int wakeFd_;
};

}  // namespace qvl

#endif  // QVL_CHANGE_WAITER_HPP
