// RegistryStore.hpp: the registry operations over a store file, shared by the library and qvlreg.
#ifndef QVL_REGISTRY_STORE_HPP
#define QVL_REGISTRY_STORE_HPP

#include <string>
#include <vector>

#include "RegistryText.hpp"
#include "StoreFile.hpp"

namespace qvl {

Status getEntry(const std::string& path, const EntryKey& key, std::string& value);
// Refuses keys and values that would not read back unchanged (Status::Invalid).
Status setEntry(const std::string& path, const EntryKey& key, const std::string& value);
Status deleteEntry(const std::string& path, const EntryKey& key);
Status listEntries(const std::string& path, std::vector<Entry>& entries);

Status checkGrant(const std::string& path, const Grant& grant);
Status addGrant(const std::string& path, const Grant& grant);
Status revokeGrant(const std::string& path, const Grant& grant);
Status listGrants(const std::string& path, std::vector<Grant>& grants);

}  // namespace qvl

#endif  // QVL_REGISTRY_STORE_HPP
