#include "platform/memory/names.h"

#include <algorithm>

#include "platform/text.h"

namespace platform {

std::u16string NameKey(std::u16string_view name) { return Upper(name); }

bool SameName(std::u16string_view a, std::u16string_view b) {
  return std::ranges::equal(a, b, {}, UpperUnit, UpperUnit);
}

std::vector<std::u16string_view> PathParts(std::u16string_view path) {
  std::vector<std::u16string_view> parts;
  while (!path.empty()) {
    const auto end = std::min(path.find(u'\\'), path.size());
    if (end > 0) parts.push_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return parts;
}

namespace {

bool Matches(std::u16string_view name, std::u16string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() != u'*') {
    const bool fits = !name.empty() && (pattern.front() == u'?' ||
                                        UpperUnit(pattern.front()) == UpperUnit(name.front()));
    return fits && Matches(name.substr(1), pattern.substr(1));
  }
  for (std::size_t skipped = 0; skipped <= name.size(); ++skipped) {
    if (Matches(name.substr(skipped), pattern.substr(1))) return true;
  }
  return false;
}

}  // namespace

bool MatchesPattern(std::u16string_view name, std::u16string_view pattern) {
  return Matches(name, pattern == u"*.*" ? u"*" : pattern);
}

}  // namespace platform
