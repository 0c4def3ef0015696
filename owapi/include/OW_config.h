// Build configuration of the provider API: version, namespace and linkage macros.
#ifndef OW_CONFIG_H_INCLUDE_GUARD_
#define OW_CONFIG_H_INCLUDE_GUARD_

#define OW_VERSION "3.0.3"
#define OW_OPENWBEM_MAJOR_VERSION 3
#define OW_OPENWBEM_MINOR_VERSION 0
#define OW_OPENWBEM_MICRO_VERSION 3
#define OW_OPENWBEM_VERSION (3 * 10000 + 0 * 100 + 3)
#define OW_OPENWBEM_LIBRARY_VERSION 4

#define OW_NAMESPACE_AUX(name) name
#define OW_NAMESPACE_CAT(name) OW_NAMESPACE_AUX(name)
#define OW_NAMESPACE OW_NAMESPACE_CAT(OpenWBEM4)

namespace OW_NAMESPACE {}
namespace OpenWBEM = OW_NAMESPACE;

#define OW_EXPORT
#define OW_IMPORT
#define OW_COMMON_API OW_EXPORT
#define OW_PROVIDER_API OW_EXPORT
#define OW_CPPPROVIFC_API OW_EXPORT
#define OW_DEPRECATED __attribute__((deprecated))

#define OW_CHECK_NULL_REFERENCES 1
#define OW_CHECK_ARRAY_INDEXING 1
#define OW_HAVE_UUPRETTY_FUNCTIONUU 1
#define OW_SHAREDLIB_EXTENSION ".so"

#endif
