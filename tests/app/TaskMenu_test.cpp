// Stories of the task bar icon, its menu, and the menus that call back into panels.
#include "core/UpperFloors.h"
#include "selector/frmRightBarMsg.h"
#include "tests/support/Program.h"

namespace dorvalin {
namespace {

using platform::TaskBarEvent;

class TheTaskMenu : public WithProgram {
 protected:
  void SetUp() override { ASSERT_EQ(Start(), StartVerdict::Resident); }
};

TEST_F(TheTaskMenu, ShowsItsEntriesWithTheSidebarsMark) {
  for (const bool on : {true, false}) {
    desktop.menus().Dismiss();
    desktop.taskBar().Happens(TaskBarEvent::RightUp);
    user.Wait(0ms);
    const auto& entries = desktop.menus().Shown().back().entries;
    std::vector<std::u16string> captions;
    for (const auto& entry : entries) captions.push_back(entry.id == 0 ? u"-" : entry.caption);
    EXPECT_EQ(captions, (std::vector<std::u16string>{
                            u"&Seitenleiste aktivieren", u"-", u"&Einstellungen...", u"-",
                            u"&Hilfe zu Tolvo Dorvalin", u"&Info über Tolvo Dorvalin...", u"-",
                            u"Tolvo Dorvalin &beenden"}));
    EXPECT_EQ(entries[0].checked, on);
    EXPECT_TRUE(entries[2].isDefault);
    ChooseInTaskMenu(u"Seitenleiste aktivieren");
  }
}

TEST_F(TheTaskMenu, OpensHelpAndTheWindowsThatAreThere) {
  ChooseInTaskMenu(u"Hilfe zu Tolvo Dorvalin");
  EXPECT_EQ(desktop.shell().run.back(), u"\"C:\\Programme\\Dorvalin\\TOHelp.exe\" main");
  Floors().Forms.erase("frmSettings");
  ChooseInTaskMenu(u"Einstellungen...");
  EXPECT_TRUE(SeenForms().empty());
  Floors().Forms["frmSettings"] = [] { return std::make_unique<frmRightBarMsg>(); };
  desktop.taskBar().Happens(TaskBarEvent::LeftDoubleClick);
  user.Wait(0ms);
  EXPECT_EQ(SeenForms().size(), 1u);
}

// The menu leaves the keyboard on the hidden form.
TEST_F(TheTaskMenu, AltF4BehindItEndsNothing) {
  desktop.menus().Dismiss();
  desktop.taskBar().Happens(TaskBarEvent::RightUp);
  user.Wait(0ms);
  user.Key(platform::key::kF4, {.alt = true});
  EXPECT_TRUE(desktop.taskBar().HasIcon());
  OpenWheel();
  EXPECT_NE(Ring(), nullptr);
}

TEST_F(TheTaskMenu, TheIconGoesAndComesWithoutDoubles) {
  frmEmpty& form = *frmEmpty::Instance();
  form.AddTBIcon();
  form.TBChange();
  EXPECT_TRUE(desktop.taskBar().HasIcon());
  form.TBClose();
  form.TBClose();
  EXPECT_FALSE(desktop.taskBar().HasIcon());
  desktop.faults().FailNext("TaskBar.AddIcon");
  form.AddTBIcon();
  EXPECT_FALSE(desktop.taskBar().HasIcon());
  form.AddTBIcon();
  EXPECT_TRUE(desktop.taskBar().HasIcon()) << "a failure is no icon";
}

class APanelsMenu : public WithProgram {
 protected:
  void SetUp() override {
    StateOf<PanelTable>().factories["DVC_Phrases"] = [this](PanelHost& host) {
      return std::make_unique<FakePanel>(host, record);
    };
    ASSERT_EQ(Start(), StartVerdict::Resident);
    OpenPanel(u"Schnelltext");
    record.duringMenu = [this] {
      frmEmpty::Instance()->PopUp("mnuPhrasePopup", Host()->Window(), {300, 300});
    };
  }
  void Choose(std::u16string_view caption) {
    desktop.menus().Choose(std::u16string(caption));
    ClickHostButton(*Host(), u"Menü");
  }

  FakePanel::Record record;
};

TEST_F(APanelsMenu, CallsTheOperationThatAnEntryNames) {
  Choose(u"Eingeben");
  EXPECT_EQ(record.called, std::vector<int>{0});
  Choose(u"Bearbeiten...");
  EXPECT_EQ(record.called.size(), 1u) << "the panel has no such operation";
  desktop.menus().Dismiss();
  ClickHostButton(*Host(), u"Menü");
  EXPECT_EQ(record.called.size(), 1u);
  EXPECT_EQ(record.menusAt.size(), 3u);
}

TEST_F(APanelsMenu, DoesNothingWhenThePanelWentMeanwhile) {
  desktop.menus().WhileOpen([&] { Ring()->Unload(); });
  Choose(u"Eingeben");
  EXPECT_TRUE(record.called.empty());
  EXPECT_EQ(record.closed, 1);
  EXPECT_TRUE(Hosts().empty());
  EXPECT_FALSE(state.PopupOpen);
  EXPECT_EQ(Floors().CurrentPanelForm, nullptr);
}

TEST_F(APanelsMenu, SetsTheHostFreeBeforeADialog) {
  frmMenu* host = Host();
  Floors().Forms.erase("frmPhraseGroups");
  Choose(u"Schnelltextgruppen...");
  EXPECT_FALSE(host->Free()) << "there is no such dialog";
  Floors().Forms["frmPhraseGroups"] = [] { return std::make_unique<frmRightBarMsg>(); };
  bool modal = false;
  const auto& window = dynamic_cast<platform::MemoryTopWindow&>(host->Window());
  user.Later(100ms, [&] {
    modal = state.ModalOpen && host->Free();
    EXPECT_FALSE(window.TopMost()) << "the host stands in front of the dialog";
    desktop.input().HandKey(platform::key::kEscape, platform::Input::KeyEdge::Down);
  });
  Choose(u"Schnelltextgruppen...");
  user.Wait(100ms);
  EXPECT_TRUE(modal);
  EXPECT_FALSE(state.ModalOpen);
  EXPECT_TRUE(host->Visible() && window.TopMost());
}

TEST(PopupMenus, MarkOneAccessKeyAnEntry) {
  PopupMenus menus;
  for (const char* name :
       {"mnuTaskBar", "mnuChars", "mnuCharPopup", "mnuColorPopup", "mnuFilePopup", "mnuPhrasePopup",
        "mnuPhrases", "mnuNotePopup", "mnuNotes"}) {
    const PopupMenu& menu = menus.Menu(name);
    EXPECT_FALSE(menu.empty()) << name;
    for (const PopupEntry& entry : menu) {
      const auto mark = entry.caption.find(u'&');
      EXPECT_TRUE(entry.caption.empty() || mark + 1 < entry.caption.size()) << entry.name;
      EXPECT_EQ(entry.caption.find(u'&', mark + 1), std::u16string::npos) << entry.name;
    }
  }
  EXPECT_TRUE(menus.Menu("mnuNoSuch").empty());
  EXPECT_EQ(menus.Entry("mnuNoSuch"), nullptr);
}

}  // namespace
}  // namespace dorvalin
