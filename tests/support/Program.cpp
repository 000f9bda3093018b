#include "tests/support/Program.h"

#include "app/tables.h"
#include "core/modRegTools.h"
#include "platform/memory/MemoryPlainControls.h"
#include "platform/text.h"
#include "selector/FunctionTable.h"

namespace dorvalin {
namespace {

using platform::MemoryNode;
using platform::Point;

void Collect(MemoryNode& node, std::vector<MemoryNode*>& into) {
  into.push_back(&node);
  for (MemoryNode* child : node.Children()) Collect(*child, into);
}

std::u16string_view SubkeyOf(std::u16string_view name) {
  const bool access = name.ends_with(u"Btn") || name == u"ScrollKey";
  return access ? u"\\Access" : u"\\Settings";
}

}  // namespace

std::vector<MemoryNode*> NodesOf(platform::Window& window) {
  std::vector<MemoryNode*> nodes;
  Collect(dynamic_cast<MemoryNode&>(window), nodes);
  return nodes;
}

Program::Program() {
  FillTables();
  user.MoveTo(editor.Middle());
}

void Program::Store(std::u16string_view name, std::int32_t number) {
  RegSetLong(ProgramKey(SubkeyOf(name)), name, number);
}

StartVerdict Program::Start() {
  const StartVerdict verdict = Main();
  user.Wait(0ms);
  return verdict;
}

void Program::ChooseInTaskMenu(std::u16string_view caption) {
  desktop.menus().Choose(std::u16string(caption));
  desktop.taskBar().Happens(platform::TaskBarEvent::RightUp);
  user.Wait(0ms);
}

void Program::OpenWheel() {
  user.Hold(Button::Middle, 450ms);
  user.Release(Button::Middle);
  user.Wait(200ms);  // a tick has to see it up
}

void Program::OpenWheelAt(Point p) {
  user.MoveTo(p);
  OpenWheel();
}

void Program::OpenSidebar() {
  user.MoveTo({desktop.screen().SizeNow().width - 1, editor.Middle().y});
  user.Wait(500ms);
}

void Program::OpenPanel(std::u16string_view caption) {
  OpenWheel();
  user.Click(Bubble(*Ring(), caption));
  user.Wait(50ms);
}

frmMenu* Program::Host() {
  if (Ring() != nullptr && Ring()->Host != nullptr) return Ring()->Host;
  return Column() != nullptr ? Column()->Host : nullptr;
}

std::vector<frmMenu*> Program::Hosts() {
  std::vector<frmMenu*> hosts;
  for (platform::Form* form : platform::TheForms().All()) {
    if (form->Name() == "frmMenu") hosts.push_back(static_cast<frmMenu*>(form));
  }
  return hosts;
}

Point Program::Bubble(frmBG& wheel, std::u16string_view caption) {
  int index = 1;
  while (FunctionOf(index)->caption != caption) ++index;
  return wheel.Window().Bounds().Origin() + wheel.BubbleCentre(index);
}

Point Program::Empty(frmBG& wheel) {
  return wheel.Window().Bounds().Origin() +
         (wheel.Vertical ? Point{2, 36}
                         : wheel.Window().Bounds().Middle() - wheel.Window().Bounds().Origin());
}

MemoryNode* Program::HostButton(frmMenu& host, std::u16string_view tip) {
  for (MemoryNode* node : NodesOf(host.Window())) {
    if (platform::Trim(node->ToolTip()) == tip && node->OwnVisible()) return node;
  }
  return nullptr;
}

void Program::ClickHostButton(frmMenu& host, std::u16string_view tip) {
  MemoryNode* button = HostButton(host, tip);
  ASSERT_NE(button, nullptr) << platform::ToUtf8(tip);
  user.Click(button->OnScreen().Middle());
}

MemoryNode* Program::Label(frmMenu& host, std::u16string_view caption) {
  for (auto* label : NodesOf<platform::MemoryLabel>(host.Window())) {
    if (label->Caption() == caption) return label;
  }
  return nullptr;
}

std::vector<platform::Form*> Program::SeenForms() {
  std::vector<platform::Form*> seen;
  for (platform::Form* form : platform::TheForms().All()) {
    if (form->Visible() && form->Name() != "frmRight") seen.push_back(form);
  }
  return seen;
}

FakePanel::FakePanel(PanelHost& host, Record& record) : host_(host), record_(record) {
  operations_["mnuSend"] = [this](int argument) { record_.called.push_back(argument); };
}

void FakePanel::ShowMenu(Point p) {
  record_.menusAt.push_back(host_.Window().Bounds().Origin() + bounds_.Origin() + p);
  if (record_.duringMenu) record_.duringMenu();
}

}  // namespace dorvalin
