// A panel: the content of a host window for one function. The host knows no more of it than this;
// the panel knows its host and nothing of wheels.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "core/PanelHost.h"
#include "platform/geometry.h"

namespace dorvalin {

class Panel {
 public:
  virtual ~Panel() = default;

  /// The host then shows its menu button and calls ShowMenu.
  [[nodiscard]] virtual bool HasMenu() const = 0;
  [[nodiscard]] virtual std::u16string Title() const = 0;
  /// Wanted size in pixels, without the host's frame; the same for as long as the panel is open.
  [[nodiscard]] virtual int NeededWidth() const = 0;
  [[nodiscard]] virtual int NeededHeight() const = 0;
  /// Pops the panel's menu up at a point of the panel.
  virtual void ShowMenu(platform::Point) {}
  /// The sidebar came back with this panel in it.
  virtual void ShownAgain() {}

  virtual void Move(const platform::Rect& bounds) = 0;
  /// The host is being closed: the last moment to store what the user selected.
  virtual void Closing() {}

  /// The operations that menus call by name, each with a number that most ignore.
  using Operations = std::map<std::string_view, std::function<void(int)>>;
  [[nodiscard]] virtual const Operations& PublishedOperations() const {
    static const Operations kNone;
    return kNone;
  }
};

using PanelFactory = std::function<std::unique_ptr<Panel>(PanelHost& host)>;

/// Panels by their control names; filled by the composition root.
struct PanelTable {
  std::map<std::string_view, PanelFactory> factories;
};

/// The panel of a function. Null where the index or the table has none.
[[nodiscard]] std::unique_ptr<Panel> CreatePanel(int index, PanelHost& host);

}  // namespace dorvalin
