/* OpenCounter.c: a preloaded library that counts the files this process opens, by kind of
   path, so that a benchmark can tell how many files an operation opened. It wraps the
   libc entry points a C or C++ program opens files through (open, openat, fopen and
   their 64-bit forms; glibc's fopen opens through an internal call, so nothing is
   counted twice). It removes itself from LD_PRELOAD at load, so that the commands the
   process spawns run without it. */
#define _GNU_SOURCE
#include "OpenCounter.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static atomic_long counts[RAS_OPEN_KINDS];
static int trace; /* RAS_OPEN_TRACE set: every opened path goes to standard error */

static int kindOf(const char* path) {
  if (path && strncmp(path, "/var/lib/qvl/", 13) == 0) return RAS_OPEN_REGISTRY;
  if (path && strncmp(path, "/var/lib/appliance/", 19) == 0) return RAS_OPEN_SIMULATION;
  return RAS_OPEN_FILE;
}

static void count(const char* path) {
  atomic_fetch_add(&counts[kindOf(path)], 1);
  if (trace) fprintf(stderr, "open %s\n", path ? path : "(null)");
}

static void* next(const char* name) {
  return dlsym(RTLD_NEXT, name);
}

__attribute__((constructor)) static void start(void) {
  trace = getenv("RAS_OPEN_TRACE") != NULL;
  unsetenv("LD_PRELOAD");
}

long ras_open_count(int kind) {
  return kind >= 0 && kind < RAS_OPEN_KINDS ? atomic_load(&counts[kind]) : -1;
}

/* The mode argument exists only when the flags need one, as open(2) reads it. */
static int needsMode(int flags) {
  return (flags & O_CREAT) || (flags & __O_TMPFILE) == __O_TMPFILE;
}

/* Declares `mode` in a variadic open function: its third argument when the flags need one. */
#define TAKE_MODE(flags)      \
  int mode = 0;               \
  if (needsMode(flags)) {     \
    va_list args;             \
    va_start(args, flags);    \
    mode = va_arg(args, int); \
    va_end(args);             \
  }

int open(const char* path, int flags, ...) {
  TAKE_MODE(flags);
  count(path);
  return ((int (*)(const char*, int, ...))next("open"))(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  TAKE_MODE(flags);
  count(path);
  return ((int (*)(const char*, int, ...))next("open64"))(path, flags, mode);
}

int openat(int dir, const char* path, int flags, ...) {
  TAKE_MODE(flags);
  count(path);
  return ((int (*)(int, const char*, int, ...))next("openat"))(dir, path, flags, mode);
}

int openat64(int dir, const char* path, int flags, ...) {
  TAKE_MODE(flags);
  count(path);
  return ((int (*)(int, const char*, int, ...))next("openat64"))(dir, path, flags, mode);
}

FILE* fopen(const char* path, const char* how) {
  count(path);
  return ((FILE * (*)(const char*, const char*)) next("fopen"))(path, how);
}

FILE* fopen64(const char* path, const char* how) {
  count(path);
  return ((FILE * (*)(const char*, const char*)) next("fopen64"))(path, how);
}
