#include "platform/win32/OleData.h"

#include <cstring>

#include "platform/win32/win.h"
// After the system's own header, on which it relies.
#include <shlobj.h>

#include "platform/win32/ComObject.h"
#include "platform/win32/DataBlocks.h"

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;

FORMATETC FormatOf(UINT format) {
  return {static_cast<CLIPFORMAT>(format), nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

OwnedGlobal CopyOf(HGLOBAL block) {
  const SIZE_T size = ::GlobalSize(block);
  OwnedGlobal copy(::GlobalAlloc(GMEM_MOVEABLE, size));
  if (!copy) return nullptr;
  const Locked from(block);
  const Locked to(copy.get());
  std::memcpy(to.As<void>(), from.As<void>(), size);
  return copy;
}

class OfferedData final : public ComObject<IDataObject> {
 public:
  explicit OfferedData(std::vector<DataBlock> blocks) : blocks_(std::move(blocks)) {}

  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
    const DataBlock* offered = Find(format);
    if (!offered) return DV_E_FORMATETC;
    OwnedGlobal copy = CopyOf(offered->block.get());
    if (!copy) return E_OUTOFMEMORY;
    *medium = {};
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = copy.release();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
    return Find(format) ? S_OK : DV_E_FORMATETC;
  }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
    if (direction != DATADIR_GET) return E_NOTIMPL;
    return Guarded([&] {
      std::vector<FORMATETC> offered;
      for (const DataBlock& each : blocks_) offered.push_back(FormatOf(each.format));
      return ::SHCreateStdEnumFmtEtc(static_cast<UINT>(offered.size()), offered.data(), formats);
    });
  }

  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override {
    out->ptd = nullptr;
    return DATA_S_SAMEFORMATETC;
  }
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }

 private:
  const DataBlock* Find(const FORMATETC* wanted) const {
    for (const DataBlock& each : blocks_) {
      const bool same = each.format == wanted->cfFormat;
      if (same && (wanted->tymed & TYMED_HGLOBAL) && wanted->dwAspect == DVASPECT_CONTENT) {
        return &each;
      }
    }
    return nullptr;
  }

  std::vector<DataBlock> blocks_;
};

/// What a data object handed out, given back at the end of the scope.
class Medium {
 public:
  Medium(IDataObject* data, UINT format) {
    FORMATETC wanted = FormatOf(format);
    if (!data || FAILED(data->GetData(&wanted, &medium_))) medium_ = {};
  }
  ~Medium() {
    if (medium_.tymed != TYMED_NULL) ::ReleaseStgMedium(&medium_);
  }
  Medium(const Medium&) = delete;
  Medium& operator=(const Medium&) = delete;
  HGLOBAL Block() const { return medium_.tymed == TYMED_HGLOBAL ? medium_.hGlobal : nullptr; }

 private:
  STGMEDIUM medium_{};
};

}  // namespace

ComPtr<IDataObject> NewDataObject(const DataContent& content) {
  std::vector<DataBlock> blocks = BlocksOf(content);
  std::erase_if(blocks, [](const DataBlock& each) { return !each.block; });
  return new OfferedData(std::move(blocks));
}

bool OleDataSource::Has(UINT format) const {
  FORMATETC wanted = FormatOf(format);
  return data_ && data_->QueryGetData(&wanted) == S_OK;
}

bool OleDataSource::OffersText() const { return Has(CF_UNICODETEXT); }
bool OleDataSource::OffersRichText() const { return Has(RichTextFormat()); }
bool OleDataSource::OffersPicture() const { return Has(CF_DIB); }
bool OleDataSource::OffersFiles() const { return Has(CF_HDROP); }
bool OleDataSource::Offers(RegisteredFormat format) const { return format != 0 && Has(format); }

std::optional<std::u16string> OleDataSource::Text() const {
  const Medium medium(data_.Get(), CF_UNICODETEXT);
  if (!medium.Block()) return std::nullopt;
  return TextOfBlock(medium.Block());
}

std::optional<std::string> OleDataSource::RichText() const {
  const Medium medium(data_.Get(), RichTextFormat());
  if (!medium.Block()) return std::nullopt;
  return RichTextOfBlock(medium.Block());
}

std::optional<Surface> OleDataSource::Picture() const {
  const Medium medium(data_.Get(), CF_DIB);
  return medium.Block() ? PictureOfBlock(medium.Block()) : std::nullopt;
}

std::vector<std::u16string> OleDataSource::Files() const {
  const Medium medium(data_.Get(), CF_HDROP);
  return medium.Block() ? FilesOfBlock(medium.Block()) : std::vector<std::u16string>();
}

std::optional<std::string> OleDataSource::Registered(RegisteredFormat format) const {
  if (format == 0) return std::nullopt;
  const Medium medium(data_.Get(), format);
  if (!medium.Block()) return std::nullopt;
  return BytesOfBlock(medium.Block());
}

}  // namespace platform
