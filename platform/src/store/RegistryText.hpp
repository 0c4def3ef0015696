// RegistryText.hpp: the registry's text form, parsed, queried and edited line by line so that
// comments, blank lines and the order of untouched lines survive every edit.
#ifndef QVL_REGISTRY_TEXT_HPP
#define QVL_REGISTRY_TEXT_HPP

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace qvl {

// Section, group and value name of one entry.
struct EntryKey {
  std::string section;
  std::string group;
  std::string name;
};

struct Entry {
  EntryKey key;
  std::string value;
};

// One line of the privileges block: a user holds a privilege of a kind.
struct Grant {
  int kind;
  int userId;
  int privilege;
  bool operator==(const Grant& other) const {
    return kind == other.kind && userId == other.userId && privilege == other.privilege;
  }
};

// True when the key can be written and read back unchanged.
bool isStorableKey(const EntryKey& key);
// True when the value fits on one line.
bool isStorableValue(const std::string& value);

class RegistryText {
 public:
  explicit RegistryText(const std::string& text = std::string());

  std::string render() const;

  std::optional<std::string> get(const EntryKey& key) const;
  // Replaces the first matching entry, or adds one (and its section) when there is none.
  void set(const EntryKey& key, const std::string& value);
  // Removes every matching entry; false when there was none.
  bool remove(const EntryKey& key);
  std::vector<Entry> entries() const;

  std::vector<Grant> grants() const;
  bool hasGrant(const Grant& grant) const;
  // Adds the grant unless it is already present.
  void grant(const Grant& grant);
  // Removes every copy of the grant; false when there was none.
  bool revoke(const Grant& grant);

 private:
  enum class Kind { Other, Header, Entry, Grant };
  struct Line {
    Kind kind = Kind::Other;
    Entry entry;
    Grant grant{};
  };

  std::vector<Line> classify() const;
  void insertIntoBlock(const std::string& header, const std::string& line);
  bool eraseLines(const std::function<bool(const Line&)>& matches);

  std::vector<std::string> lines_;
};

}  // namespace qvl

#endif  // QVL_REGISTRY_TEXT_HPP
