// MofFiles.hpp: the MOF files of a schema in the order a compiler needs them.
#ifndef RAS_HOST_MOFFILES_HPP
#define RAS_HOST_MOFFILES_HPP

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

namespace rascim {

// The .mof files of `path` (or `path` itself, a file): qualifier declarations first, then the
// rest in name order.
inline std::vector<std::filesystem::path> mofFiles(const std::filesystem::path& path) {
  namespace fs = std::filesystem;
  if (!fs::is_directory(path)) return {path};
  std::vector<fs::path> files;
  for (const fs::directory_entry& e : fs::directory_iterator(path))
    if (e.path().extension() == ".mof") files.push_back(e.path());
  std::sort(files.begin(), files.end(), [](const fs::path& a, const fs::path& b) {
    return std::make_pair(a.filename() != "qualifiers.mof", a) <
           std::make_pair(b.filename() != "qualifiers.mof", b);
  });
  return files;
}

}  // namespace rascim

#endif
