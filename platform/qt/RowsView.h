// The view of a list with columns. What is selected and ticked is decided by the control: the view only tells what the
// user has done and shows what the control says. Rows count from 1.
#pragma once

#include <QTreeView>
#include <functional>

namespace kontorwerk {

class RowsView final : public QTreeView {
 public:
  explicit RowsView(QWidget* parent);

  std::function<void(int row)> onClick;        // 0: beside the rows
  std::function<void(int row)> onDoubleClick;  // after the click on the row
  std::function<void(int row)> onTick;         // on the tick box of the row
  std::function<void(const QString& typed)> onSearch;
  void SetEmptyText(const QString& text);
  // The middle of a row's first cell, of its tick box, in the viewport; null if it cannot be brought into view.
  [[nodiscard]] QPoint RowPoint(int row);
  [[nodiscard]] QPoint TickPoint(int row);

  void keyboardSearch(const QString& search) override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  QSize sizeHint() const override;

 private:
  [[nodiscard]] int RowAt(const QPoint& point) const;
  [[nodiscard]] QRect TickRect(const QModelIndex& index) const;

  QString emptyText_;
  int tickPressed_ = 0;
};

}  // namespace kontorwerk
