// The tie of a list with columns.
#pragma once

#include "platform/qt/Binding.h"
#include "platform/qt/RowsModel.h"
#include "platform/qt/RowsView.h"

namespace kontorwerk {

class ListBinding final : public Binding {
 public:
  ListBinding(RowsView* view, BindingHost& host);
  ~ListBinding() override;

  void Settle() override;
  [[nodiscard]] QList<QWidget*> InputWidgets() const override;
  // Letters look for a row.
  [[nodiscard]] bool WantsKey(const Key& key) const override {
    return key.code == KeyCode::Character && !key.ctrl && !key.alt;
  }
  void ThemeChanged() override;
  [[nodiscard]] RowsView& View() const { return *view_; }
  // The place of a column's header in the header's viewport; null if it is not in view.
  [[nodiscard]] QPoint HeaderPoint(int column) const;

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;

 private:
  enum class Waiting { Nothing, Appended, Rows, Columns };

  void Wait(Waiting waiting);
  void ShowSelection();
  void SizeColumns();
  void Search(const QString& typed);

  RowsView* view_;
  RowsModel model_;
  Waiting waiting_ = Waiting::Nothing;
  int ensureVisible_ = 0;
  bool sized_ = false;      // columns have had their widths from rows
  bool userSized_ = false;  // the user has moved a border
  bool sizing_ = false;
  const Control* shown_ = nullptr;
};

}  // namespace kontorwerk
