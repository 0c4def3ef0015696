// Notifier.hpp: subscriptions to registry entries and the watcher thread that calls their
// callbacks once per observed change of the value, whoever changed it.
#ifndef QVL_NOTIFIER_HPP
#define QVL_NOTIFIER_HPP

#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "ChangeWaiter.hpp"
#include "QvlShared.h"
#include "RegistryText.hpp"

namespace qvl {

class Notifier {
 public:
  // The process-wide notifier of the library.
  static Notifier& instance();
  ~Notifier();

  // Records the entry's current value (or absence) and returns the new handle (>= 0).
  int start(const std::string& storePath, const EntryKey& key, QvlRegChangeCallback callback,
            unsigned long context);
  // False for an unknown handle. No callback of the handle runs after this returns; from
  // inside a callback the running call itself may still finish.
  bool stop(int handle);
  // Waits until a scan started after this call has delivered its callbacks. False from
  // inside a callback, where waiting would deadlock.
  bool sync();

 private:
  struct Subscription {
    std::string storePath;
    EntryKey key;
    QvlRegChangeCallback callback;
    unsigned long context;
    std::optional<std::string> last;
  };
  using Lock = std::unique_lock<std::mutex>;

  Notifier() = default;
  void run(std::uint64_t generation);
  void scan(std::uint64_t generation);
  void deliverIfChanged(std::uint64_t generation, int handle,
                        const std::optional<std::string>& value);
  void ensureThread(Lock& lock);
  void retireThread(Lock& lock);
  void joinRetired(Lock& lock);

  std::mutex mutex_;
  std::condition_variable progress_;  // a callback returned, a scan finished or a thread ended
  std::map<int, Subscription> subscriptions_;
  int nextHandle_ = 0;
  std::multiset<int> delivering_;  // handles whose callback is running
  std::uint64_t generation_ = 0;   // bumped to end the current watcher thread
  std::uint64_t requested_ = 0;    // scans asked for by sync
  std::uint64_t completed_ = 0;    // last request covered by a finished scan
  std::thread thread_;
  std::vector<std::thread> retired_;  // ended from their own callback, joined later
  ChangeWaiter waiter_;
};

}  // namespace qvl

#endif  // QVL_NOTIFIER_HPP
