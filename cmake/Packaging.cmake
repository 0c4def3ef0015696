# What an appliance image takes from this project: the module in the CIMOM's C++ provider
# directory, the schema, the registration command and the deployment notes. Everything is in
# the install component "runtime"; nothing else of the project has install rules (tests,
# ras-cim, the platform stand-ins and the appliance stay in the build tree).
include(GNUInstallDirs)
# install and cpack need only what they install, not every test of the build.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

set(RAS_PROVIDER_DIR ${OPENWBEM_PREFIX}/lib/openwbem/c++providers CACHE PATH
    "The CIMOM's C++ provider directory (cppprovifc.prov_location) the module is installed into")
set(RAS_MOF_INSTALL_DIR ${CMAKE_INSTALL_DATADIR}/zeph-ras/mof)

# The CIMOM loads every *.so of its provider directory: the module alone goes there, without
# an import library or version links.
install(TARGETS Zeph_RASProvider
        LIBRARY DESTINATION ${RAS_PROVIDER_DIR} COMPONENT runtime
        NAMELINK_SKIP)
install(FILES mof/qualifiers.mof mof/Zeph_Account.mof mof/Zeph_RAS.mof
        DESTINATION ${RAS_MOF_INSTALL_DIR} COMPONENT runtime)

# The registration command finds the MOF files relative to itself, so that an unpacked
# package works wherever it lies.
file(RELATIVE_PATH RAS_BIN_TO_MOF /${CMAKE_INSTALL_BINDIR} /${RAS_MOF_INSTALL_DIR})
set(RAS_OPENWBEM_PREFIX ${OPENWBEM_PREFIX})
configure_file(scripts/zeph-ras-register.in ${CMAKE_BINARY_DIR}/zeph-ras-register @ONLY)
install(PROGRAMS ${CMAKE_BINARY_DIR}/zeph-ras-register
        DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(FILES docs/deploy.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/zeph-ras-provider
        COMPONENT runtime)

# Packages: a .deb and a .tar.gz of the same files, at their installed paths.
set(CPACK_PACKAGE_NAME zeph-ras-provider)
set(CPACK_PACKAGE_VENDOR "Zeph")
set(CPACK_PACKAGE_CONTACT "Zeph RAS team <ras@zeph.invalid>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Remote-access provider module for the OpenWBEM 3.2 CIM object manager")
set(CPACK_PACKAGE_DESCRIPTION
    "libZeph_RASProvider.so, a provider of OpenWBEM's C++ provider interface, installed into
${RAS_PROVIDER_DIR}; the CIM schema in /usr/${RAS_MOF_INSTALL_DIR} and
zeph-ras-register, which imports it into a namespace. Requires OpenWBEM 3.2 (provider
interface version 3.0.3) installed at ${OPENWBEM_PREFIX}, as it was built against; no
distribution packages OpenWBEM, so the package cannot depend on it. Requires the appliance's
libQvlShared.so and libTORapi.so on the library path.")
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_GENERATOR DEB TGZ)
# The archive unpacks at the root of an image (tar -C IMAGE -xzf ...).
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_COMPONENTS_ALL runtime)
# The provider directory is an absolute path outside the package's prefix: installed with
# DESTDIR, so that the archive keeps it too.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
# A module linked with packed relative relocations (the release preset) needs glibc 2.36.
if(RAS_HAVE_PACKED_RELOCS)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6 (>= 2.36), libstdc++6 (>= 12), libgcc-s1")
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6 (>= 2.34), libstdc++6 (>= 12), libgcc-s1")
endif()
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "sblim-wbemcli")
set(CPACK_STRIP_FILES ON)
include(CPack)
