// Travelling data as the system's data objects, for drag and drop.
#pragma once

#include <wrl/client.h>

#include "platform/data.h"
#include "platform/win32/handles.h"

namespace platform {

/// Offers a copy of the content. Forms that there is no memory for are not offered.
Microsoft::WRL::ComPtr<IDataObject> NewDataObject(const DataContent& content);

/// Reads another program's (or our own) data object, form by form. It may hold anything; what
/// cannot be read is not there.
class OleDataSource final : public DataSource {
 public:
  explicit OleDataSource(IDataObject* data) : data_(data) {}

  [[nodiscard]] bool OffersText() const override;
  [[nodiscard]] bool OffersRichText() const override;
  [[nodiscard]] bool OffersPicture() const override;
  [[nodiscard]] bool OffersFiles() const override;
  [[nodiscard]] bool Offers(RegisteredFormat format) const override;
  [[nodiscard]] std::optional<std::u16string> Text() const override;
  [[nodiscard]] std::optional<std::string> RichText() const override;
  [[nodiscard]] std::optional<Surface> Picture() const override;
  [[nodiscard]] std::vector<std::u16string> Files() const override;
  [[nodiscard]] std::optional<std::string> Registered(RegisteredFormat format) const override;

 private:
  bool Has(UINT format) const;

  Microsoft::WRL::ComPtr<IDataObject> data_;
};

}  // namespace platform
