// The test environment: recording logger and a CIMOM handle that refuses every request.
#include "TestEnvironment.h"

#include "RefusingHandle.h"

using namespace OpenWBEM;

TestEnvironment::TestEnvironment()
    : recorder_(new RecordingLogger(E_ALL_LEVEL, "frame_tests")),
      logger_(recorder_),
      // The frame itself never reads other classes; a test that reached the handle would fail.
      handle_(new harness::RefusingHandle(__FILE__, 0, nullptr)) {}
