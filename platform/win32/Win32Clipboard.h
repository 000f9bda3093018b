#pragma once

#include "platform/data.h"
#include "platform/win32/handles.h"

namespace platform {

/// What is put there is handed over to the system whole, so that it outlives the program.
class Win32Clipboard final : public Clipboard {
 public:
  Win32Clipboard();
  ClipboardResult Put(const DataContent& content) override;
  ClipboardResult Clear() override;
  RegisteredFormat Register(std::u16string_view name) override;

  bool OffersText() const override;
  bool OffersRichText() const override;
  bool OffersPicture() const override;
  bool OffersFiles() const override;
  bool Offers(RegisteredFormat format) const override;
  std::optional<std::u16string> Text() const override;
  std::optional<std::string> RichText() const override;
  std::optional<Surface> Picture() const override;
  std::vector<std::u16string> Files() const override;
  std::optional<std::string> Registered(RegisteredFormat format) const override;

 private:
  /// The system takes data only from a program that opens the clipboard with a window.
  OwnedWindow owner_;
};

}  // namespace platform
