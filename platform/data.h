// Data that travels over the clipboard or with a drag.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/surface.h"

namespace platform {

/// A format of our own, by the number that the system gave its name; 0 for none.
using RegisteredFormat = std::uint32_t;

/// What is offered, in all its forms at once.
struct DataContent {
  std::optional<std::u16string> text;
  std::optional<std::string> richText;  ///< Rich Text source, bytes as they are
  std::optional<Surface> picture;
  std::vector<std::u16string> files;                   ///< full paths
  std::map<RegisteredFormat, std::string> registered;  ///< what has no number is left out
};

/// What somebody offers: asked form by form, as each may cost the other program work.
class DataSource {
 public:
  virtual ~DataSource() = default;
  [[nodiscard]] virtual bool OffersText() const = 0;
  [[nodiscard]] virtual bool OffersRichText() const = 0;
  [[nodiscard]] virtual bool OffersPicture() const = 0;
  [[nodiscard]] virtual bool OffersFiles() const = 0;
  [[nodiscard]] virtual bool Offers(RegisteredFormat format) const = 0;
  [[nodiscard]] virtual std::optional<std::u16string> Text() const = 0;
  [[nodiscard]] virtual std::optional<std::string> RichText() const = 0;
  [[nodiscard]] virtual std::optional<Surface> Picture() const = 0;
  [[nodiscard]] virtual std::vector<std::u16string> Files() const = 0;
  [[nodiscard]] virtual std::optional<std::string> Registered(RegisteredFormat format) const = 0;
};

/// Busy: another program holds it; the content is unchanged. Failed: the system has not taken the
/// new content; the old one is unchanged or, where it was given up already, gone.
enum class ClipboardResult { Done, Busy, Failed };

class Clipboard : public DataSource {
 public:
  /// Replaces the clipboard's content.
  [[nodiscard]] virtual ClipboardResult Put(const DataContent& content) = 0;
  [[nodiscard]] virtual ClipboardResult Clear() = 0;
  /// The same name gives the same number in every program of the session; 0 when it fails.
  [[nodiscard]] virtual RegisteredFormat Register(std::u16string_view name) = 0;
};

}  // namespace platform
