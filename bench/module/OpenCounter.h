/* OpenCounter.h: what the preloaded open counter (OpenCounter.c) offers the benchmark. */
#ifndef RAS_BENCH_OPENCOUNTER_H
#define RAS_BENCH_OPENCOUNTER_H

#ifdef __cplusplus
extern "C" {
#endif

/* Kinds of path: the appliance's files (what the module reads and edits), the platform
   registry's store (the registry library's own files), and the simulation's state (read
   by the stand-in CIMOM's account handle and the harness, never by the module). */
enum { RAS_OPEN_FILE, RAS_OPEN_REGISTRY, RAS_OPEN_SIMULATION, RAS_OPEN_KINDS };

/* Opens of one kind since the process started; -1 for an unknown kind. */
long ras_open_count(int kind);

#ifdef __cplusplus
}
#endif

#endif
