// Controls of one name, told apart by an index from 0, that can grow and shrink while the screen is in use.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Desktop.h"
#include "platform/Screen.h"

namespace kontorwerk {

class ControlArrayBase {
 protected:
  ControlArrayBase(Screen& owner, std::string_view name) : owner_(owner), name_(name) {
    owner.arrays_.push_back(name_);
  }
  void Announce(int count) { owner_.desktop_.NotifyArray(owner_, name_, count); }
  void Reset(Control& control) const;

  Screen& owner_;
  std::string name_;
};

template <typename ControlType>
class ControlArray final : private ControlArrayBase {
 public:
  // `wire` is called once for each new element, to set its handlers.
  ControlArray(Screen& owner, std::string_view name) : ControlArrayBase(owner, name) {}

  [[nodiscard]] int Count() const { return static_cast<int>(elements_.size()); }
  [[nodiscard]] ControlType& operator[](int index) { return *elements_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] const ControlType& operator[](int index) const { return *elements_[static_cast<std::size_t>(index)]; }

  // Grows with elements in their form's state, shrinks from the end.
  template <typename Wire>
  void Resize(int count, Wire&& wire) {
    if (count == Count()) return;
    while (Count() > count) elements_.pop_back();
    while (Count() < count) {
      elements_.push_back(std::make_unique<ControlType>(owner_, name_, Count()));
      Reset(*elements_.back());
      wire(*elements_.back(), Count() - 1);
    }
    Announce(count);
  }

 private:
  std::vector<std::unique_ptr<ControlType>> elements_;
};

}  // namespace kontorwerk
