# The two things the module links: the OpenWBEM 3.2 installation it is a provider of
# (ras::openwbem) and the appliance's platform libraries (ras::platform), or their stand-ins.

# No distribution packages OpenWBEM: scripts/setup installs the team's build into
# /opt/openwbem; an appliance SDK names its own with -DOPENWBEM_PREFIX.
if(NOT EXISTS ${OPENWBEM_PREFIX}/include/openwbem/OW_config.h)
  message(FATAL_ERROR
    "OpenWBEM 3.2 not found: ${OPENWBEM_PREFIX}/include/openwbem/OW_config.h is missing.\n"
    "Supply it in one of these ways:\n"
    "  scripts/setup                                  "
    "(installs ../shared/openwbem/openwbem-3.2.2-amd64.tar.xz into /opt/openwbem)\n"
    "  OPENWBEM_ARCHIVE=/path/to/openwbem.tar.xz scripts/setup   (installs that archive)\n"
    "  cmake -DOPENWBEM_PREFIX=/path/to/openwbem ...  (an installation you have, e.g. your SDK's)")
endif()
set(_ow_libs "")
foreach(lib openwbem owprovider owcppprovifc)
  find_library(OW_LIB_${lib} ${lib} PATHS ${OPENWBEM_PREFIX}/lib ${OPENWBEM_PREFIX}/lib64
               NO_DEFAULT_PATH REQUIRED)
  list(APPEND _ow_libs ${OW_LIB_${lib}})
endforeach()
add_library(ras_openwbem INTERFACE)
target_include_directories(ras_openwbem SYSTEM INTERFACE ${OPENWBEM_PREFIX}/include/openwbem)
target_link_libraries(ras_openwbem INTERFACE ${_ow_libs})
# libowcppprovifc needs libowprovider.so.4, which the linker drops from our own binaries as
# unused. A DT_RUNPATH serves only the object's own dependencies, a DT_RPATH theirs too (and
# those of libraries loaded later): so that the build tree's programs find the installation's
# libraries at test discovery and at run time (also inside the appliance) without
# LD_LIBRARY_PATH, executables get the old kind. Not the module: it is what ships into a
# CIMOM, whose own LD_LIBRARY_PATH must keep precedence.
target_link_options(ras_openwbem INTERFACE
                    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-Wl,--disable-new-dtags>)
add_library(ras::openwbem ALIAS ras_openwbem)

# The platform library headers are ours in both cases: the appliance ships no headers.
if(QVL_LIBDIR)
  find_library(QVL_LIB_SHARED QvlShared PATHS ${QVL_LIBDIR} NO_DEFAULT_PATH REQUIRED)
  find_library(QVL_LIB_TORAPI TORapi PATHS ${QVL_LIBDIR} NO_DEFAULT_PATH REQUIRED)
  add_library(ras_platform INTERFACE)
  target_include_directories(ras_platform INTERFACE ${CMAKE_SOURCE_DIR}/platform/include)
  target_link_libraries(ras_platform INTERFACE ${QVL_LIB_SHARED} ${QVL_LIB_TORAPI})
  set(RAS_PLATFORM_STANDIN OFF)
else()
  add_subdirectory(platform)
  add_library(ras_platform INTERFACE)
  target_link_libraries(ras_platform INTERFACE QvlShared TORapi)
  set(RAS_PLATFORM_STANDIN ON)
endif()
add_library(ras::platform ALIAS ras_platform)
