// GoogleTest fixture for tests that run inside the simulated appliance: every test
// starts from the pristine appliance, with the helpers of Appliance.h at hand.
#pragma once

#include <gtest/gtest.h>

#include "Appliance.h"

class ApplianceTest : public ::testing::Test {
 protected:
  void SetUp() override;
};
