// The clipboard of the in-process desktop, and data on offer in general.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/data.h"
#include "platform/memory/Faults.h"

namespace platform {

[[nodiscard]] DataContent CopyOf(const DataContent& content);

/// What is offered, read from a content that outlives it.
class OfferedData : public DataSource {
 public:
  explicit OfferedData(const DataContent& content) : content_(content) {}
  bool OffersText() const override { return content_.text.has_value(); }
  bool OffersRichText() const override { return content_.richText.has_value(); }
  bool OffersPicture() const override { return content_.picture.has_value(); }
  bool OffersFiles() const override { return !content_.files.empty(); }
  bool Offers(RegisteredFormat format) const override {
    return content_.registered.contains(format);
  }
  std::optional<std::u16string> Text() const override { return content_.text; }
  std::optional<std::string> RichText() const override { return content_.richText; }
  std::optional<Surface> Picture() const override;
  std::vector<std::u16string> Files() const override { return content_.files; }
  std::optional<std::string> Registered(RegisteredFormat format) const override;

 private:
  const DataContent& content_;
};

class MemoryClipboard : public Clipboard {
 public:
  explicit MemoryClipboard(Faults& faults) : faults_(faults) {}

  // What is offered can be asked of a clipboard that somebody holds, but not read.
  bool OffersText() const override { return offered_.OffersText(); }
  bool OffersRichText() const override { return offered_.OffersRichText(); }
  bool OffersPicture() const override { return offered_.OffersPicture(); }
  bool OffersFiles() const override { return offered_.OffersFiles(); }
  bool Offers(RegisteredFormat format) const override { return offered_.Offers(format); }
  std::optional<std::u16string> Text() const override;
  std::optional<std::string> RichText() const override;
  std::optional<Surface> Picture() const override;
  std::vector<std::u16string> Files() const override;
  std::optional<std::string> Registered(RegisteredFormat format) const override;
  ClipboardResult Put(const DataContent& content) override;
  ClipboardResult Clear() override;
  RegisteredFormat Register(std::u16string_view name) override;

  /// What it holds, for tests and other programs.
  const DataContent& Content() const { return content_; }
  void PutByOther(DataContent content) { content_ = std::move(content); }
  /// While another program holds it open nobody of us gets in.
  void HoldByOther(bool held) { held_ = held; }

 private:
  bool Opens() const { return !held_ && !faults_.Fails("Clipboard.Open"); }

  Faults& faults_;
  DataContent content_;
  OfferedData offered_{content_};
  bool held_ = false;
  std::vector<std::u16string> formats_;
};

}  // namespace platform
