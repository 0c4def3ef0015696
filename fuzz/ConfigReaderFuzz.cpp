// Fuzzes the configuration readers with generated file contents: the first input byte picks
// a reader and one of the formats or prefixes the module reads with, the rest is the file.
// The file lies under /tmp, where the readers delete what they read, so each run writes it
// afresh; nothing here runs a command.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "FuzzLogger.h"
#include "Zeph_ConfigReader.h"

namespace {

// The formats the classes scan with: "%d" and "%s" conversions, bare markers, and a few
// shapes that stress the key extraction.
const char* const kFormats[] = {"declare -r NUMBER_OF_RINGS=\"%d\"",
                                "declare TELEPHONE_NUMBER=\"%s",
                                "declare CALLBACK_DELAY=\"%d\"",
                                "name %s",
                                "ppp%s",
                                "\"%s",
                                "ADDO",
                                "DIN",
                                "%s",
                                "%d",
                                "%%s%s",
                                "require-pap"};
const char* const kPrefixes[] = {"#$IF_ENABLE_CMD", "#ENABLED", "#DISABLED", "ppp", "", "declare "};
constexpr std::size_t kFormatCount = sizeof(kFormats) / sizeof(kFormats[0]);
constexpr std::size_t kPrefixCount = sizeof(kPrefixes) / sizeof(kPrefixes[0]);

const std::string& scratchPath() {
  static const std::string path = [] {
    char dir[] = "/tmp/rasfuzz.XXXXXX";
    if (mkdtemp(dir) == nullptr) std::abort();
    return std::string(dir) + "/config";
  }();
  return path;
}

void writeFile(const std::string& path, const std::uint8_t* data, std::size_t size) {
  FILE* file = std::fopen(path.c_str(), "w");
  if (file == nullptr) std::abort();
  if (size > 0 && std::fwrite(data, 1, size, file) != size) std::abort();
  std::fclose(file);
}

void scanWith(int (*reader)(const char*, const char*, ...), const char* path, const char* format) {
  const std::string text(format);
  if (text.find("%d") != std::string::npos) {
    int number = 7;
    reader(path, format, &number);
  } else if (text.find("%s") != std::string::npos) {
    std::string value = "unchanged";
    reader(path, format, &value);
  } else {
    reader(path, format);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  rasfuzz::installLogger();
  const std::uint8_t selector = data[0];
  const std::string& path = scratchPath();
  writeFile(path, data + 1, size - 1);
  std::string first;
  std::string second;
  switch (selector % 4) {
    case 0:
      scanWith(getConfigParameter, path.c_str(), kFormats[(selector / 4) % kFormatCount]);
      break;
    case 1:
      scanWith(getConfigParameterEx, path.c_str(), kFormats[(selector / 4) % kFormatCount]);
      break;
    case 2:
      getParameterFromFile(path.c_str(), "%s", kPrefixes[(selector / 4) % kPrefixCount], first);
      break;
    default:
      getIPFromFile(path.c_str(), nullptr, ":", first, second);
      break;
  }
  std::remove(path.c_str());
  return 0;
}
