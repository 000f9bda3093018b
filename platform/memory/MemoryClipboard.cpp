#include "platform/memory/MemoryClipboard.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"

namespace platform {
namespace {

/// The system numbers registered formats from here on.
constexpr RegisteredFormat kFirstFormat = 0xC000;

}  // namespace

DataContent CopyOf(const DataContent& content) {
  DataContent copy{content.text, content.richText, std::nullopt, content.files, content.registered};
  if (content.picture) copy.picture = content.picture->Clone();
  copy.registered.erase(0);
  return copy;
}

std::optional<Surface> OfferedData::Picture() const {
  return content_.picture ? std::optional(content_.picture->Clone()) : std::nullopt;
}

std::optional<std::string> OfferedData::Registered(RegisteredFormat format) const {
  const auto found = content_.registered.find(format);
  return found != content_.registered.end() ? std::optional(found->second) : std::nullopt;
}

std::optional<std::u16string> MemoryClipboard::Text() const {
  return Opens() ? offered_.Text() : std::nullopt;
}

std::optional<std::string> MemoryClipboard::RichText() const {
  return Opens() ? offered_.RichText() : std::nullopt;
}

std::optional<Surface> MemoryClipboard::Picture() const {
  return Opens() ? offered_.Picture() : std::nullopt;
}

std::vector<std::u16string> MemoryClipboard::Files() const {
  return Opens() ? offered_.Files() : std::vector<std::u16string>{};
}

std::optional<std::string> MemoryClipboard::Registered(RegisteredFormat format) const {
  return Opens() ? offered_.Registered(format) : std::nullopt;
}

ClipboardResult MemoryClipboard::Put(const DataContent& content) {
  if (held_ || faults_.Fails("Clipboard.Put")) return ClipboardResult::Busy;
  content_ = CopyOf(content);
  return ClipboardResult::Done;
}

ClipboardResult MemoryClipboard::Clear() {
  if (held_ || faults_.Fails("Clipboard.Clear")) return ClipboardResult::Busy;
  content_ = {};
  return ClipboardResult::Done;
}

RegisteredFormat MemoryClipboard::Register(std::u16string_view name) {
  if (name.empty() || faults_.Fails("Clipboard.Register")) return 0;
  const auto lower = Lower(name);
  const auto known = std::find(formats_.begin(), formats_.end(), lower);
  const auto number = static_cast<RegisteredFormat>(known - formats_.begin());
  if (known == formats_.end()) formats_.push_back(lower);
  return kFirstFormat + number;
}

}  // namespace platform
