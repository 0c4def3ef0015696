# Registers GoogleTest binaries whose tests run inside the simulated appliance.
#
# ras_add_appliance_test(TARGET) links TARGET with the appliance harness (the
# ApplianceTest fixture and gtest_main) and has CTest list and run each of its tests
# through "appliance/run --", every test in a fresh appliance.

set(RAS_APPLIANCE_RUN ${CMAKE_CURRENT_LIST_DIR}/../appliance/run)
cmake_path(NORMAL_PATH RAS_APPLIANCE_RUN)
# A real OpenWBEM installation may lie under a path the appliance replaces (/opt, /var).
if(OPENWBEM_PREFIX)
  set(RAS_APPLIANCE_RUN "${RAS_APPLIANCE_RUN};--host-ro;${OPENWBEM_PREFIX}")
endif()
# A coverage build's programs write their counts beside their objects.
if(RAS_COVERAGE)
  set(RAS_APPLIANCE_RUN "${RAS_APPLIANCE_RUN};--host-rw;${CMAKE_BINARY_DIR}")
endif()
# The project is visible inside; a build tree elsewhere must be made visible too.
cmake_path(IS_PREFIX CMAKE_SOURCE_DIR "${CMAKE_BINARY_DIR}" NORMALIZE _ras_build_inside)
if(NOT _ras_build_inside)
  set(RAS_APPLIANCE_RUN "${RAS_APPLIANCE_RUN};--host-ro;${CMAKE_BINARY_DIR}")
endif()

function(ras_add_appliance_test TARGET)
  target_link_libraries(${TARGET} PRIVATE appliance_harness GTest::gtest_main)
  set_target_properties(${TARGET} PROPERTIES CROSSCOMPILING_EMULATOR "${RAS_APPLIANCE_RUN};--")
  gtest_discover_tests(${TARGET} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                       PROPERTIES LABELS appliance)
endfunction()
