# RAS_SIZE_RELEASE (the "release" preset): the module built for the appliance's small flash
# and memory. Optimised for size with link-time optimisation, every function and object in a
# section of its own so that the linker drops the unused ones, and stripped. The exported
# entry points stay the two of src/exports.map.
option(RAS_SIZE_RELEASE "Build the module for size (-Os, LTO, --gc-sections, stripped)" OFF)
if(RAS_SIZE_RELEASE)
  # With LTO the code is generated at link time: the code generation flags go there too.
  add_compile_options(-Os -ffunction-sections -fdata-sections)
  add_link_options(-Os -ffunction-sections -fdata-sections LINKER:--gc-sections)
  set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
  # Relative relocations packed (DT_RELR): the vtables and pointer tables of the module
  # otherwise carry 24 bytes of relocation per pointer. Needs glibc 2.36 on the target, which
  # the package states.
  include(CheckLinkerFlag)
  check_linker_flag(CXX "LINKER:-z,pack-relative-relocs" RAS_HAVE_PACKED_RELOCS)
  if(RAS_HAVE_PACKED_RELOCS)
    add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:LINKER:-z,pack-relative-relocs>)
  endif()
  # Stripped at link time, so that the build tree holds what ships.
  add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:LINKER:--strip-all>)
endif()
