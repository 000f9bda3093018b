// A notice between all open views of the same data: whoever changes the data raises it, everyone
// who shows the data listens. Two hosts on the screen stay in step in this way.
#pragma once

#include <functional>
#include <list>
#include <memory>

namespace dorvalin {

class CPhraseNotif {
 public:
  struct Listener {
    std::function<void()> Change;        ///< the data of one group or palette changed
    std::function<void()> GroupsChange;  ///< the set of groups or palettes changed
  };

  /// Listens for as long as the result lives.
  [[nodiscard]] std::shared_ptr<void> Listen(Listener listener);

  /// Both call every listener at once, on this thread. A listener may end itself or others
  /// meanwhile.
  void RaiseChange() const { Raise(&Listener::Change); }
  void RaiseGroupsChange() const { Raise(&Listener::GroupsChange); }

 private:
  void Raise(std::function<void()> Listener::*event) const;

  std::list<std::weak_ptr<Listener>> listeners_;
};

}  // namespace dorvalin
