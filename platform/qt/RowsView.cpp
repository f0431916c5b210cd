// Mouse and drawing of a list; nothing here changes a row or the selection by itself.
#include "platform/qt/RowsView.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>

namespace kontorwerk {
namespace {

constexpr int kRowsInHint = 8;
constexpr int kColumnsInHint = 48;

}  // namespace

RowsView::RowsView(QWidget* parent) : QTreeView(parent) {
  setUniformRowHeights(true);
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setExpandsOnDoubleClick(false);
  setAllColumnsShowFocus(true);
  setAlternatingRowColors(true);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setAutoScroll(false);
  setTextElideMode(Qt::ElideRight);
  header()->setSectionsClickable(true);
  header()->setHighlightSections(false);
  header()->setStretchLastSection(true);
  header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void RowsView::SetEmptyText(const QString& text) {
  emptyText_ = text;
  viewport()->update();
}

QPoint RowsView::RowPoint(int row) {
  if (model() == nullptr || row < 1 || row > model()->rowCount()) return {};
  const QModelIndex index = model()->index(row - 1, 0);
  scrollTo(index);
  const QRect cell = visualRect(index);
  return cell.isValid() && viewport()->rect().contains(cell.center()) ? cell.center() : QPoint();
}

QPoint RowsView::TickPoint(int row) {
  if (RowPoint(row).isNull()) return {};
  const QRect box = TickRect(model()->index(row - 1, 0));
  return box.isValid() ? box.center() : QPoint();
}

void RowsView::keyboardSearch(const QString& search) {
  if (onSearch) onSearch(search);
}

int RowsView::RowAt(const QPoint& point) const {
  const QModelIndex index = indexAt(point);
  return index.isValid() ? index.row() + 1 : 0;
}

QRect RowsView::TickRect(const QModelIndex& index) const {
  if (!index.data(Qt::CheckStateRole).isValid()) return {};
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = visualRect(index.siblingAtColumn(0));
  option.features |= QStyleOptionViewItem::HasCheckIndicator;
  option.widget = this;
  return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this);
}

void RowsView::mousePressEvent(QMouseEvent* event) {
  tickPressed_ = 0;
  if (event->button() != Qt::LeftButton) return;
  const QModelIndex index = indexAt(event->pos()).siblingAtColumn(0);
  if (index.isValid() && TickRect(index).contains(event->pos()))
    tickPressed_ = index.row() + 1;
  else if (onClick)
    onClick(RowAt(event->pos()));
}

void RowsView::mouseReleaseEvent(QMouseEvent* event) {
  const int row = tickPressed_;
  tickPressed_ = 0;
  if (row == 0 || row != RowAt(event->pos()) || !onTick) return;
  if (TickRect(model()->index(row - 1, 0)).contains(event->pos())) onTick(row);
}

// Dragging over the rows selects nothing.
void RowsView::mouseMoveEvent(QMouseEvent*) {}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->pos()).siblingAtColumn(0);
  if (index.isValid() && TickRect(index).contains(event->pos()))
    mousePressEvent(event);
  else if (event->button() == Qt::LeftButton && onDoubleClick)
    onDoubleClick(RowAt(event->pos()));
}

void RowsView::paintEvent(QPaintEvent* event) {
  QTreeView::paintEvent(event);
  if (emptyText_.isEmpty() || model() == nullptr || model()->rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(viewport()->rect().adjusted(16, 16, -16, -16), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                   emptyText_);
}

QSize RowsView::sizeHint() const {
  const QFontMetrics metrics(font());
  return {metrics.averageCharWidth() * kColumnsInHint, metrics.height() * 2 * kRowsInHint};
}

}  // namespace kontorwerk
