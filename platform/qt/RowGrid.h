// The rows in view of arrays that grow: as many rows of widgets as the form has room for, tied to the elements from the
// scroll bar's value on. Scrolling ties the same widgets to other elements, whatever their number.
#pragma once

#include <QObject>
#include <QStringList>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/qt/Binding.h"
#include "platform/qt/FormFile.h"

namespace kontorwerk {

class FormLoader;
class RangeControl;
class Screen;

class RowGrid final : public QObject {
 public:
  // `place` is the empty container of the row in the window.
  RowGrid(Screen& screen, QWidget& place, const RowTemplate& row, FormLoader& loader, BindingHost& host);

  [[nodiscard]] bool Holds(std::string_view array) const;
  // The tie that shows the element now, null if it is out of view.
  [[nodiscard]] Binding* BindingOf(const Control& element) const;
  // An array has another size: what is gone is let go at once.
  void OnArray(std::string_view name, int count);
  // Something about the scroll bar has changed.
  void OnScroll(const Control& control);
  // Brings the element's row into view without moving the scroll bar's own value.
  void Reveal(const Control& element);
  // Ties the rows anew if elements have come or gone.
  void Settle();
  [[nodiscard]] const std::vector<std::unique_ptr<Binding>>& Cells() const { return cells_; }
  // Called after rows have been tied to other elements.
  std::function<void()> onTied;

 private:
  void BuildRow(int row, QWidget& place, const RowTemplate& description, FormLoader& loader, BindingHost& host);
  void ReadElements();
  void Tie();
  [[nodiscard]] Binding& Cell(int row, int column) const {
    return *cells_[static_cast<std::size_t>(row) * names_.size() + static_cast<std::size_t>(column)];
  }

  Screen& screen_;
  RangeControl* scroll_ = nullptr;
  std::vector<std::string> names_;               // of the arrays, in the order of the columns
  std::vector<std::vector<Control*>> elements_;  // of each array
  std::vector<std::unique_ptr<Binding>> cells_;  // row by row
  int rows_ = 0;
  int top_ = 0;  // the element of the first row in view
  bool stale_ = true;
};

}  // namespace kontorwerk
