// Stories of the host window.
#include "selector/frmMenu.h"

#include "platform/memory/MemoryPlainControls.h"
#include "tests/support/Program.h"

namespace dorvalin {
namespace {

using platform::Answer;
using platform::Point;
using platform::Rect;

constexpr char16_t kAddress[] = u"www.tolvo.example";

class AHostWindow : public WithProgram {
 protected:
  void SetUp() override {
    Store(u"ShowRightBarAtStart", 0);
    StateOf<PanelTable>().factories["DVC_Chars"] = [this](PanelHost& host) {
      return std::make_unique<FakePanel>(host, record);
    };
    ASSERT_EQ(Start(), StartVerdict::Resident);
    settings.DontAnimate = true;
  }
  static Rect Area(frmMenu& host) { return host.Window().Bounds(); }

  FakePanel::Record record;
};

TEST_F(AHostWindow, OfAFunctionWithoutAPanelStandsThereAllTheSame) {
  OpenPanel(u"Farben");
  frmMenu& host = *Host();
  EXPECT_EQ(host.aCtrl(), nullptr);
  EXPECT_EQ(HostButton(host, u"Menü"), nullptr);
  EXPECT_NE(HostButton(host, u"Schließen"), nullptr);
  EXPECT_NE(HostButton(host, u"Freistellen"), nullptr);
  EXPECT_NE(HostButton(host, u"An Bildschirmrand"), nullptr);
  ClickHostButton(host, u"Schließen");
  EXPECT_EQ(Ring(), nullptr);
}

TEST_F(AHostWindow, SetFreeLosesItsWheelAndStaysUntilItIsClosed) {
  OpenWheelAt({500, 767});
  frmMenu& host = *Host();
  // Above the ring: the buttons move from the bottom to the top, the labels the other way.
  const int labels = desktop.text().Measure(kAddress, {.underline = true}).height + 2;
  const Rect freed = Area(host).Moved({0, -(17 + 2 - labels)});
  ClickHostButton(host, u"Freistellen");
  EXPECT_EQ(Ring(), nullptr);
  EXPECT_TRUE(host.Free());
  EXPECT_EQ(HostButton(host, u"Freistellen"), nullptr);
  EXPECT_EQ(HostButton(host, u"An Bildschirmrand"), nullptr);
  EXPECT_EQ(Area(host), freed);
  user.Click(Point{110, 460});
  user.Wait(500ms);
  EXPECT_TRUE(host.Visible());
  OpenWheelAt({300, 100});
  host.DoFree();
  EXPECT_EQ(Hosts().size(), 2u) << "a later wheel has a host of its own, which a free one lets be";
  user.Click(Empty(*Ring()));
  ClickHostButton(host, u"Schließen");
  EXPECT_TRUE(Hosts().empty());
  EXPECT_EQ(record.closed, 2);
}

TEST_F(AHostWindow, IsDraggedByItsTitleRowOnlyWhileItIsFree) {
  OpenWheelAt({500, 300});
  frmMenu& host = *Host();
  const Rect before = Area(host);
  const Point title{before.left + 60, before.top + 10};
  user.Drag(title, title + Point{40, 30});
  EXPECT_EQ(Area(host), before);
  host.DoFree();
  user.Drag(title, title + Point{40, 30});
  EXPECT_EQ(Area(host), before.Moved({40, 30}));
  user.Drag(title + Point{40, 50}, title + Point{90, 90});
  EXPECT_EQ(Area(host), before.Moved({40, 30})) << "below the row it is no handle";
}

TEST_F(AHostWindow, PopsThePanelsMenuUpBesideItsButton) {
  const struct {
    const char* name;
    Point pointer;
    Point at;  ///< against the host's top left or, above the ring, bottom left
  } cases[] = {
      {"below the ring", {500, 300}, {3, 22 - 4}},
      {"above the ring", {500, 767}, {3, -5}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    OpenWheelAt(c.pointer);
    frmMenu& host = *Host();
    record.duringMenu = [&] {
      EXPECT_TRUE(state.PopupOpen);
      EXPECT_EQ(Floors().CurrentPanelForm, &host);
    };
    ClickHostButton(host, u"Menü");
    ASSERT_FALSE(record.menusAt.empty());
    const Point origin{Area(host).left, c.at.y < 0 ? Area(host).bottom : Area(host).top};
    EXPECT_EQ(record.menusAt.back(), origin + c.at);
    EXPECT_FALSE(state.PopupOpen);
    user.Click(Empty(*Ring()));
  }
}

class ItsAddress : public AHostWindow {
 protected:
  void FollowLink(frmMenu& host) {
    platform::MemoryNode* link = Label(host, kAddress);
    ASSERT_NE(link, nullptr);
    user.Click(link->OnScreen().Middle());
  }
};

TEST_F(ItsAddress, AsksBeforeItGoesOutAndSetsTheHostFreeFirst) {
  OpenPanel(u"Zeichen");
  frmMenu& host = *Host();
  desktop.dialogs().whileShown = [&](const platform::Message&) {
    EXPECT_TRUE(state.ModalOpen);
    EXPECT_TRUE(host.Free());
  };
  FollowLink(*Host());
  ASSERT_EQ(desktop.dialogs().shown.size(), 1u);
  const auto& question = desktop.dialogs().shown[0];
  EXPECT_EQ(question.title, std::u16string(u"Internet-Link zu ") + kAddress);
  EXPECT_TRUE(question.text.starts_with(u"Wenn Sie diesen Link verwenden, wird Ihr Browser"));
  EXPECT_EQ(question.buttons, platform::MessageButtons::OkCancel);
  EXPECT_EQ(question.icon, platform::MessageIcon::Information);
  EXPECT_TRUE(desktop.shell().opened.empty()) << "cancelled";
  EXPECT_FALSE(state.ModalOpen);
}

TEST_F(ItsAddress, OfTheMenuWhichCannotBeSetFreeKeepsItsWheel) {
  OpenPanel(u"Menü");
  EXPECT_EQ(HostButton(*Host(), u"Freistellen"), nullptr);
  FollowLink(*Host());
  user.Wait(50ms);
  EXPECT_EQ(desktop.dialogs().shown.size(), 1u);
  ASSERT_NE(Ring(), nullptr);
  EXPECT_NE(Ring()->Host, nullptr);
}

TEST_F(ItsAddress, TriesTheBrowsersOneAfterTheOtherAndSaysSoWhenEachFails) {
  desktop.dialogs().answers = {Answer::Ok, Answer::Ok};
  OpenPanel(u"Zeichen");
  desktop.faults().FailNext("Shell.Open");
  FollowLink(*Hosts().front());
  ASSERT_EQ(desktop.shell().opened.size(), 1u);
  EXPECT_EQ(desktop.shell().opened[0].target, u"firefox");
  EXPECT_EQ(desktop.shell().opened[0].arguments, kAddress);

  desktop.faults().FailAlways("Shell.Open");
  user.Wait(1s);  // else it would be a double click
  FollowLink(*Hosts().front());
  ASSERT_EQ(desktop.dialogs().shown.size(), 3u);
  EXPECT_EQ(desktop.dialogs().shown[2].text,
            u"Ihr Browser konnte nicht gestartet werden oder es wurde kein unterstützter Browser "
            u"gefunden.");
  EXPECT_EQ(desktop.dialogs().shown[2].icon, platform::MessageIcon::Exclamation);
  EXPECT_FALSE(state.ModalOpen);
}

}  // namespace
}  // namespace dorvalin
