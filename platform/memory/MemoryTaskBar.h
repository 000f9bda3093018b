// The task bar icon as a record, with a hand to click it.
#pragma once

#include <string>
#include <utility>

#include "platform/memory/Faults.h"
#include "platform/memory/MemoryPump.h"
#include "platform/taskbar.h"

namespace platform {

class MemoryTaskBar : public TaskBar {
 public:
  MemoryTaskBar(MemoryPump& pump, Faults& faults) : pump_(pump), faults_(faults) {}

  bool AddIcon(const Icon&, std::u16string_view tip,
               std::function<void(TaskBarEvent)> happened) override {
    RemoveIcon();
    if (faults_.Fails("TaskBar.AddIcon")) return false;
    happened_ = std::move(happened);
    tip_ = tip;
    return true;
  }
  bool ChangeIcon(const Icon&, std::u16string_view tip) override {
    if (!HasIcon() || faults_.Fails("TaskBar.ChangeIcon")) return false;
    tip_ = tip;
    return true;
  }
  void RemoveIcon() override { happened_ = nullptr; }

  bool HasIcon() const { return happened_ != nullptr; }
  const std::u16string& Tip() const { return tip_; }
  /// The user does it; it arrives when somebody pumps.
  void Happens(TaskBarEvent event) {
    pump_.Post([this, event] {
      if (const auto happened = happened_) happened(event);
    });
  }

 private:
  MemoryPump& pump_;
  Faults& faults_;
  std::function<void(TaskBarEvent)> happened_;
  std::u16string tip_;
};

}  // namespace platform
