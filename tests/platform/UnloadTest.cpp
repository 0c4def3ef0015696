// The stand-in library closed by its last user while a subscription is still running, as a
// module that is unloaded without stopping it would: the library stays mapped, so its
// notification thread keeps running in code that exists. This binary does not link the
// library, so that its dlclose is the last one.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <atomic>

#include "TempRegistry.hpp"
#include "ThreadCount.h"

namespace {

std::atomic<int> calls{0};
void count(unsigned long) {
  ++calls;
}

template <class Function>
Function symbol(void* library, const char* name) {
  return reinterpret_cast<Function>(dlsym(library, name));
}

TEST(StandInUnload, StaysLoadedSoThatARunningSubscriptionIsSafe) {
  qvltest::TempRegistry registry;
  registry.write("[SoftModem/ModemCC]\nModemStatus=ENABLED\n");
  const std::size_t before = threadCount();
  void* library = dlopen(QVLSHARED_PATH, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  const auto start = symbol<int (*)(const char*, const char*, const char*, void (*)(unsigned long),
                                    unsigned long, int*)>(library, "QvlNotifyRegChangeStart");
  const auto set = symbol<int (*)(const char*, const char*, const char*, const char*)>(
      library, "QvlSetRegEntryString");
  const auto sync = symbol<int (*)()>(library, "QvlNotifySync");
  ASSERT_TRUE(start != nullptr && set != nullptr && sync != nullptr);

  int handle = -1;
  ASSERT_EQ(start("SoftModem", "ModemCC", "ModemStatus", count, 0, &handle), 0);
  ASSERT_EQ(set("SoftModem", "ModemCC", "ModemStatus", "DISABLED"), 0);
  ASSERT_EQ(sync(), 0);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(threadCountSettlingAt(before + 1), before + 1);

  ASSERT_EQ(dlclose(library), 0);
  EXPECT_NE(dlopen(QVLSHARED_PATH, RTLD_NOW | RTLD_NOLOAD), nullptr);
  ASSERT_EQ(set("SoftModem", "ModemCC", "ModemStatus", "ENABLED"), 0);
  ASSERT_EQ(sync(), 0);
  EXPECT_EQ(calls, 2);
}

}  // namespace
