// One entry of the configuration reader's file cache (the global FileList).
#ifndef ZEPH_CACHEDCONFIGFILE_H
#define ZEPH_CACHEDCONFIGFILE_H

#include <cstdio>

namespace ras {

// One configuration file kept open for the cached reads.
struct CachedConfigFile {
  const char* path;
  int count;  // uses left before CloseFile closes the stream
  FILE* stream;
};

constexpr int kFileListSize = 8;

}  // namespace ras

#endif  // ZEPH_CACHEDCONFIGFILE_H
