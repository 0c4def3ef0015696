// RegistryStore.cpp: the registry operations over a store file.
#include "RegistryStore.hpp"

#include <optional>

namespace qvl {
namespace {

std::optional<RegistryText> load(const std::string& path) {
  const std::optional<std::string> text = readStore(path);
  if (!text) return std::nullopt;
  return RegistryText(*text);
}

}  // namespace

Status getEntry(const std::string& path, const EntryKey& key, std::string& value) {
  const std::optional<RegistryText> text = load(path);
  if (!text) return Status::IoError;
  const std::optional<std::string> found = text->get(key);
  if (!found) return Status::NotFound;
  value = *found;
  return Status::Ok;
}

Status setEntry(const std::string& path, const EntryKey& key, const std::string& value) {
  if (!isStorableKey(key) || !isStorableValue(value)) return Status::Invalid;
  return editStore(path, [&](RegistryText& text) {
    text.set(key, value);
    return Status::Ok;
  });
}

Status deleteEntry(const std::string& path, const EntryKey& key) {
  return editStore(
      path, [&](RegistryText& text) { return text.remove(key) ? Status::Ok : Status::NotFound; });
}

Status listEntries(const std::string& path, std::vector<Entry>& entries) {
  const std::optional<RegistryText> text = load(path);
  if (!text) return Status::IoError;
  entries = text->entries();
  return Status::Ok;
}

Status checkGrant(const std::string& path, const Grant& grant) {
  const std::optional<RegistryText> text = load(path);
  if (!text) return Status::IoError;
  return text->hasGrant(grant) ? Status::Ok : Status::NotFound;
}

Status addGrant(const std::string& path, const Grant& grant) {
  return editStore(path, [&](RegistryText& text) {
    text.grant(grant);
    return Status::Ok;
  });
}

Status revokeGrant(const std::string& path, const Grant& grant) {
  return editStore(
      path, [&](RegistryText& text) { return text.revoke(grant) ? Status::Ok : Status::NotFound; });
}

Status listGrants(const std::string& path, std::vector<Grant>& grants) {
  const std::optional<RegistryText> text = load(path);
  if (!text) return Status::IoError;
  grants = text->grants();
  return Status::Ok;
}

}  // namespace qvl
