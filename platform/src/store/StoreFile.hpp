// StoreFile.hpp: where the registry file lives, and how it is read and replaced so that
// readers never see half a file and writers in several processes lose no update.
#ifndef QVL_STORE_FILE_HPP
#define QVL_STORE_FILE_HPP

#include <functional>
#include <optional>
#include <string>

#include "RegistryText.hpp"

namespace qvl {

// Results of store operations; the C functions return these numbers.
enum class Status { Ok = 0, NotFound = 1, Invalid = 2, IoError = 3 };

// $QVL_REGISTRY, or the appliance's own location when it is unset or empty.
std::string storePathFromEnvironment();

// The whole file, or nothing when it is missing or unreadable.
std::optional<std::string> readStore(const std::string& path);

// Runs edit on the store's text while holding the lock beside the store, then replaces the
// file atomically if edit returned Ok and changed the text. A missing store reads as empty.
Status editStore(const std::string& path, const std::function<Status(RegistryText&)>& edit);

}  // namespace qvl

#endif  // QVL_STORE_FILE_HPP
