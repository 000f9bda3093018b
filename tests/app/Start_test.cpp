// Stories of the program's begin and end.
#include "core/modRegTools.h"
#include "platform/memory/MemoryButtons.h"
#include "selector/frmRight.h"
#include "selector/frmRightBarMsg.h"
#include "tests/support/Program.h"

namespace dorvalin {
namespace {

using platform::TheForms;

constexpr char16_t kAutostart[] = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class TheStart : public WithProgram {
 protected:
  TheStart() {
    Floors().Forms["frmFirstStart"] = [this] {
      ++welcomed;
      atWelcome = FirstStart();
      return std::make_unique<frmRightBarMsg>();
    };
  }
  std::u16string FirstStart() { return RegGetString(kProgramKey, u"FirstStart", u""); }
  std::u16string Autostart() { return RegGetString(kAutostart, u"Tolvo Dorvalin", u""); }
  std::u16string FirstName() { return RegGetString(ProgramKey(u"\\UserData"), u"FirstName", u""); }

  int welcomed = 0;
  std::u16string atWelcome;
};

TEST_F(TheStart, TheFirstTimeTurnsAutostartOnAndWelcomesTheUser) {
  ASSERT_EQ(Start(), StartVerdict::Resident);
  EXPECT_EQ(atWelcome, u"NO") << "written before the window, whose failure must not repeat it";
  EXPECT_EQ(Autostart(), u"\"C:\\Programme\\Dorvalin\\Dorvalin.exe\"");
  EXPECT_EQ(FirstName(), u"Anna");
  EXPECT_EQ(SeenForms().size(), 1u);
  EXPECT_FALSE(state.ModalOpen);
}

TEST_F(TheStart, TheSecondTimeTouchesNothing) {
  RegSetString(kProgramKey, u"FirstStart", u"NO");
  ASSERT_EQ(Start(), StartVerdict::Resident);
  EXPECT_EQ(Autostart(), u"");
  EXPECT_EQ(FirstName(), u"");
  EXPECT_EQ(welcomed, 0);
}

TEST_F(TheStart, WithoutAWritableRegistryStillWelcomesTheUser) {
  desktop.faults().FailAlways("Registry.Set");
  ASSERT_EQ(Start(), StartVerdict::Resident);
  EXPECT_EQ(welcomed, 1);
}

TEST_F(TheStart, FindsItsFolderAlsoAtADrivesRoot) {
  desktop.shell().programFolder = u"D:\\";
  ASSERT_EQ(Start(), StartVerdict::Resident);
  EXPECT_EQ(state.AppPath, u"D:\\");
  EXPECT_EQ(state.HelpFileUrl, u"mk:@MSITStore:D:\\Dorvalin.chm::/");
  EXPECT_EQ(desktop.windows().HiddenClasses(), std::vector<std::u16string>{u"Static"});
}

TEST_F(TheStart, ShowsIconAndSidebarAsTheUserWantsThem) {
  for (const bool wanted : {false, true}) {
    Program p;
    p.Store(u"TaskBarIcon", wanted);
    p.Store(u"ShowRightBarAtStart", wanted);
    ASSERT_EQ(p.Start(), StartVerdict::Resident);
    EXPECT_EQ(p.desktop.taskBar().HasIcon(), wanted);
    EXPECT_EQ(p.state.SidebarOn, wanted);
    EXPECT_EQ(p.desktop.taskBar().Tip(), wanted ? u"Tolvo Dorvalin" : u"");
  }
}

constexpr char16_t kNotice[] =
    u"Tolvo Dorvalin läuft bereits im Hintergrund und ist wartet darauf, aufgerufen zu werden. Um "
    u"Dorvalin jetzt aufzurufen, haben Sie folgende Möglichkeiten:";

struct RoadCase {
  const char16_t* value;
  const char16_t* line;
};

const RoadCase kRoads[] = {
    {u"BothBtn",
     u"\r\n- Drücken Sie gleichzeitig die linke und die rechte Maustaste und halten Sie sie "
     u"gedrückt"},
    {u"MiddleBtn",
     u"\r\n- Drücken Sie die mittlere Maustaste/das Mausrad und halten Sie sie/es gedrückt"},
    {u"LeftBtn", u"\r\n- Drücken Sie die linke Maustaste und halten Sie sie länger gedrückt"},
    {u"RightBtn", u"\r\n- Drücken Sie die rechte Maustaste und halten Sie sie länger gedrückt"},
    {u"ScrollKey",
     u"\r\n- Drücken Sie die Rollen-/ScrollLock-Taste auf der Tastatur und halten Sie sie "
     u"gedrückt"},
};

TEST_F(TheStart, OfASecondInstanceNamesTheRoadsThatAreOnAndMakesNothing) {
  for (unsigned roads = 0; roads < 32; ++roads) {
    Program p;
    p.desktop.shell().previousInstance = true;
    std::u16string expected = kNotice;
    for (unsigned i = 0; i < 5; ++i) {
      const bool on = (roads >> i & 1) != 0;
      p.Store(kRoads[i].value, on);
      if (on) expected += kRoads[i].line;
    }
    ASSERT_EQ(p.Start(), StartVerdict::SecondInstance);
    ASSERT_EQ(p.desktop.dialogs().shown.size(), 1u);
    const auto& notice = p.desktop.dialogs().shown[0];
    EXPECT_EQ(notice.text, expected) << roads;
    EXPECT_EQ(notice.title, u"Tolvo Dorvalin");
    EXPECT_EQ(notice.icon, platform::MessageIcon::Exclamation);
    EXPECT_TRUE(TheForms().Empty());
    EXPECT_FALSE(p.desktop.taskBar().HasIcon());
    EXPECT_EQ(RegGetString(kProgramKey, u"FirstStart", u""), u"");
  }
}

TEST_F(TheStart, WithoutAWindowSaysSo) {
  desktop.faults().FailNext("Windows.NewTopWindow");
  EXPECT_EQ(Start(), StartVerdict::Failed);
  EXPECT_TRUE(TheForms().Empty());
}

class TheEnd : public WithProgram {
 protected:
  /// No form, no icon, and nothing that ever ticks again.
  void ExpectNothingLeft() {
    EXPECT_TRUE(TheForms().Empty());
    EXPECT_FALSE(desktop.taskBar().HasIcon());
    EXPECT_TRUE(desktop.windows().TopWindows().empty());
    EXPECT_FALSE(desktop.pump().WaitAndDispatch());
    EXPECT_EQ(Ring(), nullptr);
    EXPECT_EQ(Column(), nullptr);
    EXPECT_EQ(frmRight::Instance(), nullptr);
    EXPECT_EQ(frmEmpty::Instance(), nullptr);
    EXPECT_FALSE(state.SidebarOn || state.Sending || state.ModalOpen || state.PopupOpen);
  }
  frmRightBarMsg* Question() {
    for (platform::Form* form : TheForms().All()) {
      if (form->Name() == "frmRightBarMsg") return static_cast<frmRightBarMsg*>(form);
    }
    return nullptr;
  }
};

TEST_F(TheEnd, ComesWithEverythingOpenAndTheLastFunctionIsStored) {
  Start();
  OpenPanel(u"Rechner");
  Host()->DoFree();
  OpenSidebar();
  user.MoveTo({300, 400});
  OpenPanel(u"Dateien");
  ASSERT_EQ(Hosts().size(), 3u);
  Quit();
  ExpectNothingLeft();
  EXPECT_TRUE(EditorIsActive());
  EXPECT_EQ(RegGetLong(kProgramKey, u"LastFunction", 0), 6);
}

// A session that ends takes the message loop away while everything is open.
TEST_F(TheEnd, OfTheDesktopTakesWhatIsOpenAlong) {
  Start();
  OpenSidebar();
  user.MoveTo({300, 400});
  OpenPanel(u"Rechner");
  desktop.pump().End();
  TheForms().RunUntilEmpty();
  ExpectNothingLeft();
}

// The second answer was lost, and with it the wish not to be asked again.
TEST_F(TheEnd, IsAskedForOnceHoweverOftenTheUserQuits) {
  Start();
  ChooseInTaskMenu(u"Seitenleiste aktivieren");
  user.Later(50ms, [&] { Quit(); });
  user.Later(100ms, [&] {
    EXPECT_TRUE(TheForms().Empty()) << "the second one ends it without another question";
  });
  Quit();
  user.Wait(200ms);
  ExpectNothingLeft();
}

TEST_F(TheEnd, AsksNothingWhenTheSidebarIsAsWantedOrTheUserWantsNoQuestion) {
  const struct {
    const char* name;
    bool atStart, switched;
  } cases[] = {
      {"on as wanted", true, false},
      {"off as wanted", false, false},
      {"switched, but the user wants no question", false, true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Program p;
    p.Store(u"ShowRightBarAtStart", c.atStart);
    if (c.switched) RegSetLong(ProgramKey(u"\\DontShowAgain"), u"ShowRightBarAtStart", 1);
    p.Start();
    if (c.switched) p.ChooseInTaskMenu(u"Seitenleiste aktivieren");
    p.user.Later(50ms, [&] { EXPECT_EQ(Question(), nullptr); });
    p.Quit();
    p.user.Wait(100ms);
    EXPECT_TRUE(TheForms().Empty());
  }
}

TEST_F(TheEnd, TheAnswerOfTheSidebarsQuestionIsStored) {
  for (const bool atStart : {false, true}) {
    for (const bool other : {false, true}) {
      for (const bool ticked : {false, true}) {
        SCOPED_TRACE(testing::Message() << atStart << other << ticked);
        Program p;
        p.Store(u"ShowRightBarAtStart", atStart);
        p.Start();
        p.ChooseInTaskMenu(u"Seitenleiste aktivieren");
        p.user.Later(50ms, [&] {
          EXPECT_TRUE(p.state.ModalOpen);
          const auto boxes = NodesOf<platform::MemoryCheckBox>(Question()->Window());
          ASSERT_EQ(boxes.size(), 1u);
          EXPECT_EQ(boxes[0]->Caption(), u"Diese Meldung in Zukunft nicht mehr anzeigen");
          if (ticked) boxes[0]->SetChecked(true);
          const auto press = [&](int virtualKey) {
            p.desktop.input().HandKey(virtualKey, platform::Input::KeyEdge::Down);
            p.desktop.input().HandKey(virtualKey, platform::Input::KeyEdge::Up);
          };
          // The other answer stands behind the check box.
          if (other) press(platform::key::kTab), press(platform::key::kTab);
          press(platform::key::kEnter);
        });
        p.Quit();
        EXPECT_TRUE(TheForms().Empty());
        // Enter alone keeps what the user has switched to by hand.
        EXPECT_EQ(RegGetLong(ProgramKey(u"\\Settings"), u"ShowRightBarAtStart", -1),
                  atStart == other);
        EXPECT_EQ(RegGetLong(ProgramKey(u"\\DontShowAgain"), u"ShowRightBarAtStart", -1), ticked);
      }
    }
  }
}

}  // namespace
}  // namespace dorvalin
