// A form: a top-level window with a life cycle. Loading makes the window, hidden; Show brings it
// up; Unload asks (OnQueryUnload), tells (OnUnload) and closes the window.
//
//   made -> Forms::Load: OnLoad -> [Show, Hide]* -> Unload: OnQueryUnload, OnUnload -> retired ->
//   freed
//
// Loaded forms stand in the collection `Forms`, in the order of loading, which owns them. A form
// that was unloaded stays in memory until the loop is back at its top (Forms::Collect), because the
// unloading may come from a handler of its own child.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/window.h"

namespace platform {

class Form : protected TopWindowEvents {
 public:
  /// `name` is the form's name in the design ("frmMenu") and must be a literal.
  Form(std::string_view name, TopWindowOptions options);
  ~Form() override;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::string_view Name() const { return name_; }
  bool Loaded() const { return loaded_; }
  /// Only from OnLoad on; a husk after the unloading.
  TopWindow& Window() { return *window_; }
  const TopWindow& Window() const { return *window_; }

  void Show(ShowMode mode = ShowMode::Activate);
  void Hide();
  bool Visible() const { return loaded_ && window_->Visible(); }
  void SetEnabled(bool enabled);
  /// Shows it with every other loaded form disabled; returns when it was hidden or unloaded.
  void ShowModal();
  /// False: the form refused and stays. Unloading twice does nothing.
  bool Unload();

  /// The Tab key visits the windows in the order in which they were added. They must live as long
  /// as the form. Null is left out.
  void AddTabStop(platform::Window* window);
  /// Makes it the first that Tab visits and the one that has the keyboard when the form is shown.
  void PutFirst(platform::Window* window);
  /// Alt and the letter (upper case) run the action.
  void AddAccessKey(char16_t letter, std::function<void()> action);

 protected:
  virtual void OnLoad() {}
  /// False keeps the form.
  virtual bool OnQueryUnload() { return true; }
  virtual void OnUnload() {}
  /// Every key of the form and its children, before the child gets it.
  virtual void OnFormKey(KeyEvent&) {}

  void OnCloseRequest() override { Unload(); }

 private:
  friend class Forms;
  bool Load();
  void OnPreviewKey(KeyEvent& event, platform::Window* focused) final;
  bool RunAccessKey(const KeyEvent& event);
  void MoveFocus(const platform::Window* from, bool backward);
  void EndModal();

  std::string_view name_;
  TopWindowOptions options_;
  std::unique_ptr<TopWindow> window_;
  bool loaded_ = false;
  bool modal_ = false;
  std::vector<Form*> disabledByModal_;
  std::vector<platform::Window*> tabStops_;
  std::vector<std::pair<char16_t, std::function<void()>>> accessKeys_;
};

class Forms {
 public:
  /// Takes the form in and loads it. Null when the desktop gives it no window; it is gone then.
  template <class T>
  T* Load(std::unique_ptr<T> form) {
    T* raw = form.get();
    return LoadForm(std::move(form)) ? raw : nullptr;
  }

  /// The loaded forms in the order of loading, as they are now; any of them can go while a caller
  /// walks them, so Contains is asked before each step.
  [[nodiscard]] std::vector<Form*> All() const;
  [[nodiscard]] bool Contains(const Form* form) const;
  [[nodiscard]] bool Empty() const { return loaded_.empty(); }

  /// Frees what was unloaded. Only from the top of the loop, when no handler runs.
  void Collect() { retired_.clear(); }

  /// Dispatches until no form is loaded or the desktop ends, which unloads the rest.
  void RunUntilEmpty();
  /// The newest first. To be done while what the forms use in their events still stands.
  void UnloadAll();

 private:
  friend class Form;
  bool LoadForm(std::unique_ptr<Form> form);
  void Retire(Form& form);

  std::vector<std::unique_ptr<Form>> loaded_;
  std::vector<std::unique_ptr<Form>> retired_;
};

/// The forms of the current DesktopScope.
Forms& TheForms();

}  // namespace platform
