// Notifier.cpp: subscription bookkeeping, the watcher thread and callback delivery.
#include "Notifier.hpp"

#include <algorithm>
#include <chrono>
#include <system_error>

#include "StoreFile.hpp"

namespace qvl {
namespace {

// How often the store is re-read when no inotify event arrives.
constexpr std::chrono::milliseconds kPollInterval{500};

// Set on watcher threads: waiting for ourselves there would deadlock.
thread_local bool tOnWatcher = false;

std::optional<RegistryText> loadStore(const std::string& path) {
  const std::optional<std::string> text = readStore(path);
  if (!text) return std::nullopt;
  return RegistryText(*text);
}

struct Target {
  int handle;
  std::string storePath;
  EntryKey key;
};

}  // namespace

Notifier& Notifier::instance() {
  static Notifier notifier;
  return notifier;
}

Notifier::~Notifier() {
  Lock lock(mutex_);
  subscriptions_.clear();
  retireThread(lock);
  joinRetired(lock);
  // Only left when the process exits from inside a callback.
  if (thread_.joinable()) thread_.detach();
  for (std::thread& thread : retired_) thread.detach();
}

int Notifier::start(const std::string& storePath, const EntryKey& key,
                    QvlRegChangeCallback callback, unsigned long context) {
  std::optional<std::string> initial = loadStore(storePath).value_or(RegistryText()).get(key);
  Lock lock(mutex_);
  joinRetired(lock);
  const int handle = nextHandle_++;
  subscriptions_[handle] = {storePath, key, callback, context, std::move(initial)};
  try {
    ensureThread(lock);
  } catch (const std::system_error&) {
    subscriptions_.erase(handle);
    return -1;
  }
  waiter_.wake();  // so that the watcher watches this store's directory at once
  return handle;
}

bool Notifier::stop(int handle) {
  Lock lock(mutex_);
  if (subscriptions_.erase(handle) == 0) return false;
  if (!tOnWatcher) progress_.wait(lock, [&] { return delivering_.count(handle) == 0; });
  if (subscriptions_.empty()) retireThread(lock);
  return true;
}

bool Notifier::sync() {
  if (tOnWatcher) return false;
  Lock lock(mutex_);
  joinRetired(lock);
  if (subscriptions_.empty()) return true;
  const std::uint64_t request = ++requested_;
  waiter_.wake();
  progress_.wait(lock, [&] {
    return (completed_ >= request || subscriptions_.empty()) && delivering_.empty();
  });
  return true;
}

void Notifier::ensureThread(Lock&) {
  if (!thread_.joinable()) thread_ = std::thread(&Notifier::run, this, generation_);
}

// Ends the current watcher thread; joins it unless we are on it.
void Notifier::retireThread(Lock& lock) {
  ++generation_;
  waiter_.wake();
  progress_.notify_all();
  if (!thread_.joinable()) return;
  if (tOnWatcher) {
    retired_.push_back(std::move(thread_));
    return;
  }
  std::thread finished = std::move(thread_);
  lock.unlock();
  finished.join();
  lock.lock();
}

void Notifier::joinRetired(Lock& lock) {
  if (tOnWatcher || retired_.empty()) return;
  std::vector<std::thread> finished = std::move(retired_);
  retired_.clear();
  lock.unlock();
  for (std::thread& thread : finished) thread.join();
  lock.lock();
}

void Notifier::run(std::uint64_t generation) {
  tOnWatcher = true;
  Lock lock(mutex_);
  while (generation_ == generation) {
    const std::uint64_t target = requested_;
    std::vector<std::string> stores;
    for (const auto& entry : subscriptions_) stores.push_back(entry.second.storePath);
    lock.unlock();
    // Watch first, then read: a change between the two still wakes the next wait.
    for (const std::string& store : stores) waiter_.watchStore(store);
    scan(generation);
    lock.lock();
    if (generation_ != generation) break;
    completed_ = std::max(completed_, target);
    progress_.notify_all();
    if (requested_ != target) continue;
    lock.unlock();
    waiter_.wait(kPollInterval);
    lock.lock();
  }
}

// Reads every subscribed store once and delivers the changes found.
void Notifier::scan(std::uint64_t generation) {
  std::vector<Target> targets;
  {
    const Lock lock(mutex_);
    for (const auto& [handle, sub] : subscriptions_) {
      targets.push_back({handle, sub.storePath, sub.key});
    }
  }
  std::map<std::string, std::optional<RegistryText>> stores;
  for (const Target& target : targets) {
    auto store = stores.find(target.storePath);
    if (store == stores.end()) {
      store = stores.emplace(target.storePath, loadStore(target.storePath)).first;
    }
    const std::optional<std::string> value =
        store->second ? store->second->get(target.key) : std::nullopt;
    deliverIfChanged(generation, target.handle, value);
  }
}

void Notifier::deliverIfChanged(std::uint64_t generation, int handle,
                                const std::optional<std::string>& value) {
  Lock lock(mutex_);
  const auto found = subscriptions_.find(handle);
  if (generation_ != generation || found == subscriptions_.end() || found->second.last == value) {
    return;
  }
  found->second.last = value;
  const QvlRegChangeCallback callback = found->second.callback;
  const unsigned long context = found->second.context;
  const auto running = delivering_.insert(handle);
  lock.unlock();
  callback(context);
  lock.lock();
  delivering_.erase(running);
  progress_.notify_all();
}

}  // namespace qvl
