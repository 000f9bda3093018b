#include "platform/Form.h"

#include <algorithm>
#include <utility>

#include "platform/desktop.h"
#include "platform/pump.h"
#include "platform/text.h"

namespace platform {

Form::Form(std::string_view name, TopWindowOptions options)
    : name_(name), options_(std::move(options)) {}

Form::~Form() = default;

bool Form::Load() {
  window_ = TheDesktop().windows().NewTopWindow(options_, *this);
  loaded_ = window_ != nullptr;
  return loaded_;
}

void Form::Show(ShowMode mode) {
  if (!loaded_) return;
  window_->Show(mode);
  const bool takesKeys = mode == ShowMode::Activate && window_->Enabled();
  if (takesKeys && !tabStops_.empty() && window_->HasFocus()) MoveFocus(nullptr, false);
}

void Form::Hide() {
  if (!loaded_) return;
  EndModal();
  window_->Hide();
}

void Form::SetEnabled(bool enabled) {
  if (loaded_) window_->SetEnabled(enabled);
}

void Form::ShowModal() {
  if (!loaded_ || modal_) return;
  for (Form* other : TheForms().All()) {
    if (other == this || !other->window_->Enabled()) continue;
    other->SetEnabled(false);
    disabledByModal_.push_back(other);
  }
  modal_ = true;
  Show();
  while (modal_ && Visible() && TheDesktop().pump().WaitAndDispatch()) {
  }
  EndModal();
}

void Form::EndModal() {
  // The others are enabled before this one goes, or the activation would leave the program.
  modal_ = false;
  for (Form* other : std::exchange(disabledByModal_, {})) {
    if (TheForms().Contains(other)) other->SetEnabled(true);
  }
}

bool Form::Unload() {
  if (!loaded_) return true;
  if (!OnQueryUnload()) return false;
  if (!loaded_) return true;  // the question may have unloaded it
  loaded_ = false;
  OnUnload();
  EndModal();
  window_->Close();
  TheForms().Retire(*this);
  return true;
}

void Form::AddTabStop(platform::Window* window) {
  if (window != nullptr) tabStops_.push_back(window);
}

void Form::PutFirst(platform::Window* window) {
  if (window == nullptr) return;
  std::erase(tabStops_, window);
  tabStops_.insert(tabStops_.begin(), window);
}

void Form::AddAccessKey(char16_t letter, std::function<void()> action) {
  accessKeys_.emplace_back(UpperUnit(letter), std::move(action));
}

void Form::OnPreviewKey(KeyEvent& event, platform::Window* focused) {
  OnFormKey(event);
  if (event.handled || !loaded_) return;
  if (event.virtualKey == key::kTab && !event.modifiers.control && !event.modifiers.alt) {
    if (tabStops_.empty()) return;
    MoveFocus(focused, event.modifiers.shift);
    event.handled = true;
  } else if (event.modifiers.alt && !event.modifiers.control) {
    event.handled = RunAccessKey(event);
  }
}

bool Form::RunAccessKey(const KeyEvent& event) {
  for (const auto& [letter, action] : accessKeys_) {
    if (static_cast<int>(letter) != event.virtualKey) continue;
    const auto run = action;  // the action may unload the form
    run();
    return true;
  }
  return false;
}

void Form::MoveFocus(const platform::Window* from, bool backward) {
  const auto count = tabStops_.size();
  const auto at = std::find(tabStops_.begin(), tabStops_.end(), from);
  std::size_t index = at == tabStops_.end() ? (backward ? 0 : count - 1)
                                            : static_cast<std::size_t>(at - tabStops_.begin());
  for (std::size_t step = 0; step < count; ++step) {
    index = (index + (backward ? count - 1 : 1)) % count;
    tabStops_[index]->Focus();
    if (tabStops_[index]->HasFocus()) return;
  }
}

std::vector<Form*> Forms::All() const {
  std::vector<Form*> all;
  all.reserve(loaded_.size());
  for (const auto& form : loaded_) all.push_back(form.get());
  return all;
}

bool Forms::Contains(const Form* form) const {
  return std::any_of(loaded_.begin(), loaded_.end(),
                     [&](const auto& loaded) { return loaded.get() == form; });
}

void Forms::RunUntilEmpty() {
  while (!Empty() && TheDesktop().pump().WaitAndDispatch()) Collect();
  UnloadAll();
  Collect();
}

void Forms::UnloadAll() {
  auto all = All();
  std::reverse(all.begin(), all.end());
  for (Form* form : all) {
    if (Contains(form)) form->Unload();
  }
}

bool Forms::LoadForm(std::unique_ptr<Form> form) {
  Form& added = *form;
  if (!added.Load()) return false;
  loaded_.push_back(std::move(form));
  added.OnLoad();
  return true;
}

void Forms::Retire(Form& form) {
  const auto at = std::find_if(loaded_.begin(), loaded_.end(),
                               [&](const auto& loaded) { return loaded.get() == &form; });
  if (at == loaded_.end()) return;
  retired_.push_back(std::move(*at));
  loaded_.erase(at);
}

}  // namespace platform
