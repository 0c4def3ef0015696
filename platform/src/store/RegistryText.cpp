// RegistryText.cpp: parsing and editing of the registry's text form.
#include "RegistryText.hpp"

#include <algorithm>
#include <sstream>

namespace qvl {
namespace {

constexpr char kPrivilegesHeader[] = "[privileges]";
constexpr char kCommentMark = '#';
constexpr char kSectionSeparator = '/';
constexpr char kAssign = '=';
constexpr char kNewline = '\n';
constexpr char kWhitespace[] = " \t\r";
constexpr std::size_t kNone = std::string::npos;

std::string sectionHeader(const std::string& section, const std::string& group) {
  return "[" + section + kSectionSeparator + group + "]";
}

std::string grantLine(const Grant& grant) {
  return std::to_string(grant.kind) + " " + std::to_string(grant.userId) + " " +
         std::to_string(grant.privilege);
}

bool isHeader(const std::string& text) {
  return text.size() >= 2 && text.front() == '[' && text.back() == ']';
}

bool isBlankOrComment(const std::string& text) {
  const std::size_t first = text.find_first_not_of(kWhitespace);
  return first == kNone || text[first] == kCommentMark;
}

// A line of exactly three decimal integers.
bool parseGrant(const std::string& text, Grant& grant) {
  std::istringstream in(text);
  std::string extra;
  return static_cast<bool>(in >> grant.kind >> grant.userId >> grant.privilege) && !(in >> extra);
}

bool hasNewline(const std::string& text) {
  return text.find(kNewline) != kNone;
}

bool sameKey(const EntryKey& a, const EntryKey& b) {
  return a.section == b.section && a.group == b.group && a.name == b.name;
}

}  // namespace

bool isStorableKey(const EntryKey& key) {
  const std::string& name = key.name;
  if (key.section.empty() || key.group.empty() || name.empty()) return false;
  if (key.section.find(kSectionSeparator) != kNone) return false;
  if (hasNewline(key.section) || hasNewline(key.group) || hasNewline(name)) return false;
  // The line must read back as an entry: not blank, comment or header, name ends at the '='.
  return name.find(kAssign) == kNone && name.find_first_of(kWhitespace) != 0 &&
         name.front() != kCommentMark && name.front() != '[';
}

bool isStorableValue(const std::string& value) {
  return !hasNewline(value);
}

RegistryText::RegistryText(const std::string& text) {
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines_.push_back(line);
}

std::string RegistryText::render() const {
  std::string text;
  for (const std::string& line : lines_) text += line + kNewline;
  return text;
}

std::vector<RegistryText::Line> RegistryText::classify() const {
  std::vector<Line> out(lines_.size());
  bool privileges = false;
  std::optional<EntryKey> block;  // section and group of the current entry block
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const std::string& text = lines_[i];
    Line& line = out[i];
    if (isHeader(text)) {
      line.kind = Kind::Header;
      privileges = text == kPrivilegesHeader;
      const std::string inner = text.substr(1, text.size() - 2);
      const std::size_t slash = inner.find(kSectionSeparator);
      block.reset();
      if (slash != kNone) block = EntryKey{inner.substr(0, slash), inner.substr(slash + 1), ""};
      continue;
    }
    if (isBlankOrComment(text)) continue;
    if (privileges && parseGrant(text, line.grant)) line.kind = Kind::Grant;
    const std::size_t eq = text.find(kAssign);
    if (!block || eq == kNone) continue;
    line.kind = Kind::Entry;
    line.entry = {{block->section, block->group, text.substr(0, eq)}, text.substr(eq + 1)};
  }
  return out;
}

std::optional<std::string> RegistryText::get(const EntryKey& key) const {
  for (const Line& line : classify()) {
    if (line.kind == Kind::Entry && sameKey(line.entry.key, key)) return line.entry.value;
  }
  return std::nullopt;
}

void RegistryText::set(const EntryKey& key, const std::string& value) {
  const std::string text = key.name + kAssign + value;
  const std::vector<Line> lines = classify();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].kind == Kind::Entry && sameKey(lines[i].entry.key, key)) {
      lines_[i] = text;
      return;
    }
  }
  insertIntoBlock(sectionHeader(key.section, key.group), text);
}

// Puts the line after the last entry of the first block with this header (before the
// comments that lead into the next block), or appends a new block at the end.
void RegistryText::insertIntoBlock(const std::string& header, const std::string& text) {
  const auto found = std::find(lines_.begin(), lines_.end(), header);
  if (found == lines_.end()) {
    if (!lines_.empty() && !isBlankOrComment(lines_.back())) lines_.emplace_back();
    lines_.push_back(header);
    lines_.push_back(text);
    return;
  }
  std::size_t at = static_cast<std::size_t>(found - lines_.begin()) + 1;
  for (std::size_t i = at; i < lines_.size() && !isHeader(lines_[i]); ++i) {
    if (!isBlankOrComment(lines_[i])) at = i + 1;
  }
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), text);
}

bool RegistryText::remove(const EntryKey& key) {
  return eraseLines([&key](const Line& line) {
    return line.kind == Kind::Entry && sameKey(line.entry.key, key);
  });
}

bool RegistryText::eraseLines(const std::function<bool(const Line&)>& matches) {
  const std::vector<Line> lines = classify();
  bool erased = false;
  for (std::size_t i = lines.size(); i-- > 0;) {
    if (!matches(lines[i])) continue;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(i));
    erased = true;
  }
  return erased;
}

std::vector<Entry> RegistryText::entries() const {
  std::vector<Entry> out;
  for (const Line& line : classify()) {
    if (line.kind == Kind::Entry) out.push_back(line.entry);
  }
  return out;
}

std::vector<Grant> RegistryText::grants() const {
  std::vector<Grant> out;
  for (const Line& line : classify()) {
    if (line.kind == Kind::Grant) out.push_back(line.grant);
  }
  return out;
}

bool RegistryText::hasGrant(const Grant& grant) const {
  const std::vector<Grant> all = grants();
  return std::find(all.begin(), all.end(), grant) != all.end();
}

void RegistryText::grant(const Grant& grant) {
  if (!hasGrant(grant)) insertIntoBlock(kPrivilegesHeader, grantLine(grant));
}

bool RegistryText::revoke(const Grant& grant) {
  return eraseLines(
      [&grant](const Line& line) { return line.kind == Kind::Grant && line.grant == grant; });
}

}  // namespace qvl
