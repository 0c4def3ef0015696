// NotifyTest.cpp: change callbacks: once per change of the value, with the caller's context,
// silenced and joined by stop, and triggered by another process running qvlreg.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "Appliance.h"
#include "QvlShared.h"
#include "QvlStandIn.h"
#include "TempRegistry.hpp"
#include "ThreadCount.h"

namespace {

using qvltest::TempRegistry;

constexpr auto kGenerousWait = std::chrono::seconds(10);
constexpr char kSection[] = "SoftModem";
constexpr char kGroup[] = "ModemCC";
constexpr char kStatus[] = "ModemStatus";

// Counts the callbacks it receives; its address is the subscription's context.
class Recorder {
 public:
  static void callback(unsigned long context) {
    reinterpret_cast<Recorder*>(context)->record(context);
  }
  unsigned long context() const { return reinterpret_cast<unsigned long>(this); }
  std::vector<unsigned long> contexts() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return contexts_;
  }
  std::size_t count() { return contexts().size(); }
  bool waitForCount(std::size_t count) {
    std::unique_lock<std::mutex> lock(mutex_);
    return called_.wait_for(lock, kGenerousWait, [&] { return contexts_.size() >= count; });
  }
  // `action` runs inside the callback, after recording. Set under the lock: the callback's
  // thread may already be running.
  void onCall(std::function<void()> action) {
    const std::lock_guard<std::mutex> lock(mutex_);
    onCall_ = std::move(action);
  }

 private:
  void record(unsigned long context) {
    std::function<void()> action;
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      contexts_.push_back(context);
      action = onCall_;
    }
    called_.notify_all();
    if (action) action();
  }
  std::mutex mutex_;
  std::condition_variable called_;
  std::vector<unsigned long> contexts_;
  std::function<void()> onCall_;
};

// A subscription that is ended when the test leaves, even after a failed assertion.
class Subscription {
 public:
  Subscription(const char* name, Recorder& recorder)
      : result_(QvlNotifyRegChangeStart(kSection, kGroup, name, Recorder::callback,
                                        recorder.context(), &handle_)) {}
  ~Subscription() {
    if (result_ == 0 && !stopped_) QvlNotifyRegChangeStop(handle_);
  }
  int stop() {
    stopped_ = true;
    return QvlNotifyRegChangeStop(handle_);
  }
  int result() const { return result_; }
  int handle() const { return handle_; }

 private:
  int handle_ = -1;
  int result_;
  bool stopped_ = false;
};

int setStatus(const char* value) {
  return QvlSetRegEntryString(kSection, kGroup, kStatus, value);
}

TEST(Notify, CallsOncePerChangeOfTheValue) {
  struct Step {
    const char* value;  // nullptr deletes the entry
    const char* entry;
    std::size_t calls;  // total callbacks expected after the step
  };
  const Step steps[] = {
      {"DISABLED", kStatus, 1}, {"DISABLED", kStatus, 1}, {"5", "MinLine", 1},
      {"disabled", kStatus, 2}, {nullptr, kStatus, 3},    {nullptr, kStatus, 3},
      {"ENABLED", kStatus, 4},  {"ENABLED", kStatus, 4},
  };
  TempRegistry registry;
  registry.write(qvltest::kSampleStore);
  Recorder recorder;
  Subscription subscription(kStatus, recorder);
  ASSERT_EQ(0, subscription.result());
  for (const Step& step : steps) {
    SCOPED_TRACE(std::string(step.entry) + " " + (step.value ? step.value : "deleted"));
    if (step.value) {
      EXPECT_EQ(0, QvlSetRegEntryString(kSection, kGroup, step.entry, step.value));
    } else {
      QvlDeleteRegEntryString(kSection, kGroup, step.entry);
    }
    ASSERT_EQ(0, QvlNotifySync());
    EXPECT_EQ(step.calls, recorder.count());
  }
  EXPECT_EQ(std::vector<unsigned long>(4, recorder.context()), recorder.contexts());
}

TEST(Notify, EachSubscriberGetsItsContextUntilStoppedAndTheLastStopJoinsTheThread) {
  TempRegistry registry;  // no store yet: the entry starts absent
  const std::size_t baseline = threadCount();
  Recorder first, second, other;
  Subscription a(kStatus, first), b(kStatus, second), c("MinLine", other);
  ASSERT_EQ(0, a.result() | b.result() | c.result());
  EXPECT_EQ(baseline + 1, threadCount());
  EXPECT_GE(a.handle(), 0);
  EXPECT_NE(a.handle(), b.handle());
  EXPECT_NE(b.handle(), c.handle());
  ASSERT_EQ(0, setStatus("ENABLED"));
  ASSERT_EQ(0, QvlNotifySync());
  EXPECT_EQ(std::vector<unsigned long>{first.context()}, first.contexts());
  EXPECT_EQ(std::vector<unsigned long>{second.context()}, second.contexts());
  EXPECT_EQ(0u, other.count());
  EXPECT_EQ(0, c.stop());
  EXPECT_NE(0, QvlNotifyRegChangeStop(c.handle()));
  EXPECT_NE(0, QvlNotifyRegChangeStop(-1));
  ASSERT_EQ(0, a.stop());
  ASSERT_EQ(0, setStatus("DISABLED"));
  ASSERT_EQ(0, QvlNotifySync());
  EXPECT_EQ(1u, first.count());
  EXPECT_EQ(2u, second.count());
  ASSERT_EQ(0, b.stop());
  EXPECT_EQ(baseline, threadCountSettlingAt(baseline));
}

TEST(Notify, StopAndSyncFromInsideACallbackDoNotDeadlock) {
  TempRegistry registry;
  registry.write(qvltest::kSampleStore);
  const std::size_t baseline = threadCount();
  Recorder selfStopping, witness;
  std::atomic<int> stopResult{-1}, syncResult{0};
  Subscription own(kStatus, selfStopping), other(kStatus, witness);
  selfStopping.onCall([&] {
    stopResult = QvlNotifyRegChangeStop(own.handle());
    syncResult = QvlNotifySync();
  });
  for (const char* value : {"DISABLED", "ENABLED"}) {
    ASSERT_EQ(0, setStatus(value));
    ASSERT_EQ(0, QvlNotifySync());
  }
  EXPECT_EQ(1u, selfStopping.count());
  EXPECT_EQ(2u, witness.count());
  EXPECT_EQ(0, stopResult);
  EXPECT_NE(0, syncResult);
  // When the callback ends the last subscription, its thread is joined by the next call.
  Recorder last;
  Subscription only(kStatus, last);
  last.onCall([&] { stopResult = QvlNotifyRegChangeStop(only.handle()); });
  ASSERT_EQ(0, other.stop());
  ASSERT_EQ(0, setStatus("DISABLED"));
  ASSERT_EQ(0, QvlNotifySync());
  ASSERT_EQ(0, QvlNotifySync());
  EXPECT_EQ(1u, last.count());
  EXPECT_EQ(baseline, threadCountSettlingAt(baseline));
}

TEST(Notify, StopWaitsForTheRunningCallback) {
  TempRegistry registry;
  registry.write(qvltest::kSampleStore);
  Recorder blocked;
  std::mutex mutex;
  std::condition_variable changed;
  bool released = false;
  std::atomic<bool> finished{false};
  blocked.onCall([&] {
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait_for(lock, kGenerousWait, [&] { return released; });
    finished = true;
  });
  Recorder bystander;  // keeps the thread alive, so that stop cannot rely on joining it
  Subscription subscription(kStatus, blocked), kept(kStatus, bystander);
  ASSERT_EQ(0, setStatus("DISABLED"));
  ASSERT_TRUE(blocked.waitForCount(1));
  std::atomic<bool> finishedWhenStopReturned{false};
  std::thread stopper([&] {
    subscription.stop();
    finishedWhenStopReturned = finished.load();
  });
  {
    const std::lock_guard<std::mutex> lock(mutex);
    released = true;
  }
  changed.notify_all();
  stopper.join();
  EXPECT_TRUE(finishedWhenStopReturned);
}

TEST(Notify, QvlregInAnotherProcessTriggersTheCallback) {
  TempRegistry registry;
  registry.write(qvltest::kSampleStore);
  Recorder recorder;
  Subscription subscription(kStatus, recorder);
  ASSERT_EQ(0, subscription.result());
  const std::vector<std::string> command = {QVLREG_PATH, "set",   kSection,
                                            kGroup,      kStatus, "DISABLED"};
  ASSERT_EQ(0, appliance::runTool(command).status);
  ASSERT_TRUE(recorder.waitForCount(1));
  EXPECT_EQ(recorder.context(), recorder.contexts().front());
  // The same value written again from outside is no change.
  ASSERT_EQ(0, appliance::runTool(command).status);
  ASSERT_EQ(0, QvlNotifySync());
  EXPECT_EQ(1u, recorder.count());
}

}  // namespace
