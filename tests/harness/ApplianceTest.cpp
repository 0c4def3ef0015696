// Resets the appliance before each test; refuses to run outside appliance/run.
#include "ApplianceTest.h"

void ApplianceTest::SetUp() {
  ASSERT_TRUE(appliance::insideAppliance())
      << "this test must run inside the simulated appliance (appliance/run -- ...)";
  appliance::reset();
}
