// Pop-up menus and the task bar icon.
#include "platform/taskbar.h"
#include "tests/conformance/Conformance.h"

namespace conformance {
namespace {

using platform::TaskBarEvent;

class Menus : public WithWindow {
 protected:
  std::optional<int> Choose(int place) {
    under().ChooseInMenu(place);
    const auto chosen = desktop().menus().PopUp(*window, kOurs.Middle(), kMenu,
                                                platform::MenuButtons::LeftAndRight);
    Settle();
    return chosen;
  }

  const platform::Menu kMenu{{.id = 11, .caption = u"&Eins", .checked = true},
                             {.id = 12, .caption = u"Versteckt", .visible = false},
                             {},
                             {.id = 13, .caption = u"&Grau", .enabled = false},
                             {.id = 14, .caption = u"&Zwei", .isDefault = true}};
};

TEST_F(Menus, EntriesStandThereAsTheyWereGiven) {
  EXPECT_EQ(Choose(3), 14);
  const auto seen = under().MenuSeen();
  ASSERT_EQ(seen.size(), 4u);
  const int kIds[] = {11, 0, 13, 14};
  for (std::size_t n = 0; n < seen.size(); ++n) {
    SCOPED_TRACE(kIds[n]);
    EXPECT_EQ(seen[n].id, kIds[n]);
    EXPECT_EQ(seen[n].checked, kIds[n] == 11);
    EXPECT_EQ(seen[n].enabled, kIds[n] != 13);
    EXPECT_EQ(seen[n].isDefault, kIds[n] == 14);
  }
}

TEST_F(Menus, OnlyWhatCanBeChosenIsAnAnswer) {
  EXPECT_EQ(Choose(0), std::nullopt) << "dismissed";
  EXPECT_EQ(Choose(2), std::nullopt) << "disabled";
  EXPECT_EQ(Choose(1), 11);
  EXPECT_TRUE(HasForeground(*window));
}

TEST_F(Menus, AClosedOwnerHasNone) {
  const auto other = StartOther();
  window->Close();
  EXPECT_EQ(desktop().menus().PopUp(*window, kOurs.Middle(), kMenu, platform::MenuButtons::Left),
            std::nullopt);
  EXPECT_TRUE(OtherHasForeground());
}

class OnTaskBar : public Conformance {
 protected:
  bool Add(std::vector<TaskBarEvent>& told) {
    return taskBar().AddIcon(kIcon, u"Größe", [&](TaskBarEvent event) { told.push_back(event); });
  }
  platform::TaskBar& taskBar() { return desktop().taskBar(); }

  const platform::Icon kIcon = std::make_shared<platform::IconPixels>(
      platform::IconPixels{{16, 16}, std::vector<std::uint32_t>(std::size_t{16} * 16, 0xFF0000FF)});
  using Told = std::vector<TaskBarEvent>;
};

TEST_F(OnTaskBar, TheLastIconAloneTellsWhatHappens) {
  Told first, second;
  EXPECT_FALSE(taskBar().ChangeIcon(kIcon, u"x")) << "there is none";
  EXPECT_TRUE(Add(first));
  EXPECT_TRUE(Add(second)) << "it takes the other's place";
  EXPECT_TRUE(taskBar().ChangeIcon(kIcon, u"anders"));
  const Told kAll{TaskBarEvent::LeftUp, TaskBarEvent::LeftDoubleClick, TaskBarEvent::RightUp};
  for (const TaskBarEvent event : kAll) under().OnIcon(event);
  Settle();
  EXPECT_EQ(second, kAll);
  EXPECT_TRUE(first.empty());
  under().OnIcon(TaskBarEvent::LeftUp);
  taskBar().RemoveIcon();
  Settle();
  EXPECT_EQ(second, kAll) << "a click that was under way ends with its icon";
  EXPECT_FALSE(taskBar().ChangeIcon(kIcon, u"x"));
  taskBar().RemoveIcon();
}

TEST_F(OnTaskBar, AClickMayTakeTheIconAway) {
  int clicks = 0;
  EXPECT_TRUE(taskBar().AddIcon(kIcon, u"", [&](TaskBarEvent) {
    ++clicks;
    taskBar().RemoveIcon();
  }));
  under().OnIcon(TaskBarEvent::LeftUp);
  under().OnIcon(TaskBarEvent::LeftUp);
  Settle();
  EXPECT_EQ(clicks, 1);
}

// The menu stood up in the midst of a long text, and its end could quit the program there.
TEST_F(OnTaskBar, AClickDuringALongDeliveryWaitsForTheLoop) {
  const auto other = StartOther();
  bool typing = false, clickedMeanwhile = false;
  int clicks = 0;
  ASSERT_TRUE(taskBar().AddIcon(kIcon, u"", [&](TaskBarEvent) {
    ++clicks;
    clickedMeanwhile = clickedMeanwhile || typing;
  }));
  under().Later(50ms, [this] { under().OnIcon(TaskBarEvent::RightUp); });
  typing = true;
  EXPECT_TRUE(Type(u"{a 800}"));
  typing = false;
  EXPECT_TRUE(Until([&] { return clicks == 1; }));
  EXPECT_FALSE(clickedMeanwhile);
}

}  // namespace
}  // namespace conformance
