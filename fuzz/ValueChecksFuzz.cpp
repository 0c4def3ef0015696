// Fuzzes the value checks and the datetime format. The address and mask checks see the input
// as one terminated string, as a client's value reaches them; the time format sees its first
// four bytes as the number of seconds and must give a 25-character datetime or leave its
// output alone.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "FuzzLogger.h"
#include "Zeph_ValueChecks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  rasfuzz::installLogger();
  std::vector<char> text(data, data + size);
  text.push_back('\0');
  std::vector<char> copy = text;
  const int ip = IsIPValid(copy.data());
  if (ip != 0 && ip != 1) std::abort();
  copy = text;
  const int mask = IsMaskValid(copy.data());
  if (mask != 0 && mask != 1) std::abort();

  int seconds = 0;
  std::memcpy(&seconds, data, size < sizeof(seconds) ? size : sizeof(seconds));
  std::string out = "unchanged";
  timeTodatetimeFormat(out, seconds);
  if (out != "unchanged" && out.size() != 25) std::abort();
  return 0;
}
