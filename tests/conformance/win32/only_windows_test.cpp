// What only Windows can show: windows and messages that no port makes, data of other programs, and
// the edge to the system's own code.
#include <cstring>
#include <new>

#include "platform/win32/DataBlocks.h"
#include "platform/win32/Win32TaskBar.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::TaskBarEvent;

class OnlyWindows : public Conformance {};
class ASource : public WithWindow {};

TEST_F(OnlyWindows, WindowsOfAClassAreHiddenByTheBeginningOfItsName) {
  const auto make = [](const wchar_t* className) {
    return platform::OwnedWindow(::CreateWindowExW(0, className, L"", WS_POPUP | WS_VISIBLE, 10, 10,
                                                   50, 50, nullptr, nullptr, nullptr, nullptr));
  };
  const auto label = make(L"Static"), field = make(L"Edit");
  ASSERT_TRUE(::IsWindowVisible(label.get()) && ::IsWindowVisible(field.get()));
  desktop().windows().HideWindowsOfClass(u"Stat");
  EXPECT_FALSE(::IsWindowVisible(label.get()));
  EXPECT_TRUE(::IsWindowVisible(field.get()));
}

TEST_F(OnlyWindows, TheScreenIsAskedAnewAfterItsSizeChanged) {
  Listener listener;
  const auto window = NewWindow(listener);
  const platform::Size before = desktop().screen().Size();
  DEVMODEW mode{};
  mode.dmSize = sizeof(mode);
  mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
  mode.dmPelsWidth = 800;
  mode.dmPelsHeight = 600;
  ASSERT_EQ(::ChangeDisplaySettingsW(&mode, CDS_FULLSCREEN), DISP_CHANGE_SUCCESSFUL);
  EXPECT_TRUE(Until([&] { return desktop().screen().Size() == platform::Size{800, 600}; }));
  ASSERT_EQ(::ChangeDisplaySettingsW(nullptr, 0), DISP_CHANGE_SUCCESSFUL);
  EXPECT_TRUE(Until([&] { return desktop().screen().Size() == before; }));
}

// Its window was destroyed behind its owner, and the icon was dead.
TEST_F(OnlyWindows, TheIconOutlivesAWishToCloseAndAHandlerThatThrows) {
  int clicks = 0;
  ASSERT_TRUE(desktop().taskBar().AddIcon(nullptr, u"", [&](TaskBarEvent) {
    if (++clicks == 1) throw std::bad_alloc();
  }));
  const HWND window = ::FindWindowW(platform::kTaskBarIconClass, nullptr);
  ASSERT_TRUE(window);
  ::SendMessageW(window, WM_CLOSE, 0, 0);
  under().OnIcon(TaskBarEvent::LeftUp);
  under().OnIcon(TaskBarEvent::LeftUp);
  EXPECT_EQ(clicks, 0) << "only a pump brings them";
  Settle();
  EXPECT_EQ(clicks, 2);
  desktop().taskBar().RemoveIcon();
}

TEST_F(ASource, ThatThrowsEndsItsDrag) {
  struct Throwing : platform::DragFeedback {
    std::optional<platform::Pointer> PointerFor(platform::DropEffect) override {
      throw std::bad_alloc();
    }
  } feedback;
  std::optional<platform::DropEffect> effect;
  listener.onMouseMove = [&] {
    if (!listener.lastMouse.left || effect) return;
    effect = platform::DropEffect::Move;
    platform::DataContent content;
    content.text = u"x";
    effect = window->Drag(content, platform::DropEffect::Copy, &feedback);
  };
  PlanDrag(kOurs.Middle(), kOurs.Middle() + platform::Point{60, 0});
  EXPECT_TRUE(Until([&] { return effect == platform::DropEffect::None; }));
  EXPECT_TRUE(Until([&] { return !desktop().input().ButtonDown(Button::Left); }));
}

struct Dib {
  BITMAPINFOHEADER header{sizeof(BITMAPINFOHEADER), 4, 1, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  RGBQUAD colours[256] = {};

  std::optional<platform::Surface> Read(std::string_view pixels) const {
    const std::size_t table = header.biBitCount == 8 ? sizeof(colours) : 0;
    std::string bytes(sizeof(header) + table, '\0');
    std::memcpy(bytes.data(), &header, sizeof(header));
    std::memcpy(bytes.data() + sizeof(header), colours, table);
    return platform::PictureOfDib(bytes.append(pixels));
  }
};

// They became black pictures, or were read beyond their end.
TEST_F(OnlyWindows, ABitmapThatCannotBeReadIsNone) {
  const std::string_view rows("\1\2\3\4\5\6\7\10\11\12\13\14", 12);
  const std::string_view runs("\4\1\0\1", 4);
  Dib plain;
  ASSERT_TRUE(plain.Read(rows));
  EXPECT_EQ(plain.Read(rows)->At({0, 0}) & 0xFFFFFF, 0x030201u);
  EXPECT_FALSE(plain.Read(rows.substr(1)));
  Dib packed;
  packed.header.biBitCount = 8;
  packed.header.biCompression = BI_RLE8;
  packed.header.biSizeImage = 4;
  packed.colours[1] = {1, 2, 3, 0};
  const auto unpacked = packed.Read(runs);
  ASSERT_TRUE(unpacked);
  EXPECT_EQ(unpacked->At({3, 0}) & 0xFFFFFF, 0x030201u);
  EXPECT_FALSE(packed.Read(runs.substr(1)));
  packed.header.biSizeImage = 0;
  EXPECT_FALSE(packed.Read(runs)) << "nothing says where its runs end";
  Dib wrong;
  wrong.header.biCompression = BI_RLE8;
  wrong.header.biSizeImage = 4;
  EXPECT_FALSE(wrong.Read(rows)) << "runs of 24 bits";
}

}  // namespace
}  // namespace conformance
