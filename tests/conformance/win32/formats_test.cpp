// Formats that other programs write and only Windows itself reads: values of the registry, pictures
// and icons of every kind, and what the product's own file holds.
#include <array>

#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/win32/handles.h"
#include "platform/win32/wide.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::IconSize;

std::string FromHex(std::string_view hex) {
  std::string bytes;
  for (std::size_t at = 0; at < hex.size(); at += 2) {
    bytes += static_cast<char>(std::stoi(std::string(hex.substr(at, 2)), nullptr, 16));
  }
  return bytes;
}

/// Numbers of 16 bits, the lower byte first.
std::string Words(std::initializer_list<unsigned> words) {
  std::string bytes;
  for (const unsigned word : words) {
    bytes += {static_cast<char>(word & 0xFF), static_cast<char>(word >> 8)};
  }
  return bytes;
}

/// 0x112233 above 0x445566.
const std::string kGif = FromHex(
    "474946383761010002008100001122334455660000000000002c00000000010002000008050001040808003b");

/// An icon file of pictures of one colour each.
std::string IconFile(std::initializer_list<std::pair<unsigned, std::array<char, 4>>> pictures) {
  std::string directory = Words({0, 1, static_cast<unsigned>(pictures.size())});
  std::string bodies;
  for (const auto& [side, colour] : pictures) {
    const unsigned pixels = side * side * 4;
    const unsigned mask = side * ((side + 31) / 32 * 4);
    const unsigned place =
        6 + 16 * static_cast<unsigned>(pictures.size()) + static_cast<unsigned>(bodies.size());
    directory += Words({side | side << 8, 0, 1, 32, 40 + pixels + mask, 0, place, 0});
    bodies += Words({40, 0, side, 0, side * 2, 0, 1, 32, 0, 0, pixels, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    for (unsigned n = 0; n < side * side; ++n) bodies.append(colour.data(), colour.size());
    bodies.append(mask, '\0');
  }
  return directory + bodies;
}

const std::string kIcon =
    IconFile({{16, {0x33, 0x22, 0x11, '\xFF'}}, {32, {0x66, 0x55, 0x44, '\xFF'}}});

/// An inch a side, filled with one colour, with its size in its head.
std::string Metafile(COLORREF colour) {
  const HDC dc = ::CreateMetaFileW(nullptr);
  ::SetMapMode(dc, MM_ANISOTROPIC);
  ::SetWindowExtEx(dc, 100, 100, nullptr);
  const platform::OwnedBrush brush(::CreateSolidBrush(colour));
  const HGDIOBJ former = ::SelectObject(dc, brush.get());
  ::PatBlt(dc, 0, 0, 100, 100, PATCOPY);
  ::SelectObject(dc, former);
  const HMETAFILE file = ::CloseMetaFile(dc);
  std::string bytes(::GetMetaFileBitsEx(file, 0, nullptr), '\0');
  ::GetMetaFileBitsEx(file, static_cast<UINT>(bytes.size()), bytes.data());
  ::DeleteMetaFile(file);
  const unsigned check = 0xCDD7 ^ 0x9AC6 ^ 100 ^ 100 ^ 100;
  return Words({0xCDD7, 0x9AC6, 0, 0, 0, 100, 100, 100, 0, 0, check}) + bytes;
}

class Formats : public Conformance {
 protected:
  ~Formats() override { (void)desktop().files().Delete(kFile); }
  void Write(std::string_view bytes) {
    ASSERT_EQ(desktop().files().Write(kFile, bytes), platform::FileStatus::Done);
  }
  const std::u16string kFile = u"C:\\Dorvalin Conformance.dat";
};

TEST_F(Formats, PicturesOfEachKindThatTheSystemReadsAreLoaded) {
  struct Case {
    const char* name;
    std::string bytes;
    platform::Size size;
    Point where;
    platform::Pixel pixel;
  };
  const Case kCases[] = {{"gif", kGif, {1, 2}, {0, 1}, 0x445566},
                         {"icon", kIcon, {32, 32}, {16, 16}, 0x445566},
                         {"metafile", Metafile(0x665544), {96, 96}, {48, 48}, 0x445566}};
  for (const auto& [name, bytes, size, where, pixel] : kCases) {
    SCOPED_TRACE(name);
    Write(bytes);
    const auto picture = desktop().pictures().Load(kFile);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Size(), size);
    EXPECT_EQ(picture->At(where) & 0xFFFFFF, pixel);
    for (const std::size_t length : {bytes.size() / 2, std::size_t{5}}) {
      Write(std::string_view(bytes).substr(0, length));
      (void)desktop().pictures().Load(kFile);  // Whatever comes of it, it ends.
    }
  }
}

TEST_F(Formats, AnIconFileGivesThePictureOfTheSizeThatIsWanted) {
  Write(kIcon);
  const std::pair<IconSize, std::uint32_t> kSizes[] = {{IconSize::Small, 0xFF112233},
                                                       {IconSize::Large, 0xFF445566}};
  for (const auto& [size, pixel] : kSizes) {
    const auto icon = desktop().shell().IconOf(kFile, 0, size);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->pixels[0], pixel);
    EXPECT_FALSE(desktop().shell().IconOf(kFile, 1, size));
  }
}

TEST_F(Formats, TheProgramTellsItsVersion) {
  wchar_t path[MAX_PATH] = {};
  ::GetModuleFileNameW(nullptr, path, MAX_PATH);
  const auto version = desktop().shell().Version(platform::View(path));
  ASSERT_TRUE(version);
  EXPECT_EQ(version->productName, u"Tolvo Dorvalin");
  EXPECT_EQ(version->description, u"Tolvo Dorvalin");
  EXPECT_EQ(version->companyName, u"Tolvo");
  EXPECT_EQ(version->copyright, u"© Tolvo");
  EXPECT_TRUE(version->fileVersion.starts_with(u"1.10"));
}

TEST_F(Formats, TextOfOtherWritersEndsBeforeItsTerminator) {
  constexpr const wchar_t* kKey = L"Software\\Dorvalin Conformance";
  struct Case {
    const char* name;
    std::u16string_view stored;
    DWORD type;
    const char16_t* text;
  };
  const Case kCases[] = {{"with its terminator", {u"Größe\0", 6}, REG_SZ, u"Größe"},
                         {"without one", u"Größe", REG_SZ, u"Größe"},
                         {"a terminator alone", {u"\0", 1}, REG_SZ, u""},
                         {"nothing at all", {}, REG_SZ, u""},
                         {"to be expanded", {u"%TEMP%\0", 7}, REG_EXPAND_SZ, u"%TEMP%"}};
  for (const auto& [name, stored, type, text] : kCases) {
    SCOPED_TRACE(name);
    const auto bytes = static_cast<DWORD>(stored.size() * sizeof(char16_t));
    ASSERT_EQ(::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Fremd", type, stored.data(), bytes), 0);
    EXPECT_EQ(desktop().registry().Get(platform::RegistryRoot::CurrentUser, platform::View(kKey),
                                       u"Fremd"),
              platform::RegistryValue(text));
  }
  desktop().registry().DeleteKey(platform::RegistryRoot::CurrentUser, platform::View(kKey));
}

}  // namespace
}  // namespace conformance
