// Waits with changes of rows until the running handler is through, then shows them in one step.
#include "platform/qt/ListBinding.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTimer>
#include <algorithm>

#include "platform/ListView.h"
#include "platform/qt/QtText.h"

namespace kontorwerk {
namespace {

constexpr int kRowsMeasured = 100;
constexpr int kWidestColumns = 36;  // characters that a column takes by itself
constexpr int kCellPadding = 24;

}  // namespace

ListBinding::ListBinding(RowsView* view, BindingHost& host) : Binding(view, host), view_(view) {
  model_.SetAlignments(view->property("align").toString());
  view->setModel(&model_);
  view->onClick = [this](int row) { UserAct([&] { As<ListView>()->UserClick(row); }); };
  // The click on the row came with the first press already.
  view->onDoubleClick = [this](int) { UserAct([this] { As<ListView>()->UserDoubleClick(0); }); };
  view->onTick = [this](int row) { UserAct([&] { As<ListView>()->UserTick(row, !As<ListView>()->Ticked(row)); }); };
  view->onSearch = [this](const QString& typed) { Search(typed); };
  connect(view->header(), &QHeaderView::sectionClicked, this,
          [this](int section) { UserAct([&] { As<ListView>()->UserSort(model_.ControlColumn(section)); }); });
  connect(view->header(), &QHeaderView::sectionResized, this, [this] { userSized_ = userSized_ || !sizing_; });
}

ListBinding::~ListBinding() { view_->setModel(nullptr); }

QList<QWidget*> ListBinding::InputWidgets() const { return {view_, view_->viewport()}; }

void ListBinding::ThemeChanged() {
  Binding::ThemeChanged();
  model_.RowChanged(0);
}

void ListBinding::ShowState(Aspect aspect, int detail) {
  switch (aspect) {
    case Aspect::Columns:
      Wait(Waiting::Columns);
      break;
    case Aspect::Rows:
      Wait(detail > 0 ? Waiting::Appended : Waiting::Rows);
      break;
    case Aspect::RowLook:
      if (detail < 1) view_->SetEmptyText(ToQt(As<ListView>()->EmptyText()));
      if (waiting_ < Waiting::Rows) model_.RowChanged(detail);
      break;
    case Aspect::Selection:
      if (waiting_ == Waiting::Nothing) ShowSelection();
      break;
    case Aspect::EnsureVisible:
      ensureVisible_ = detail;
      if (waiting_ == Waiting::Nothing) ShowSelection();
      break;
    default:
      break;
  }
}

void ListBinding::ShowAll() {
  if (shown_ != Bound()) {
    shown_ = Bound();
    model_.SetList(As<ListView>());
    view_->SetEmptyText(ToQt(As<ListView>()->EmptyText()));
    SizeColumns();
  }
  if (waiting_ == Waiting::Nothing) ShowSelection();
}

void ListBinding::Wait(Waiting waiting) {
  if (waiting_ == Waiting::Nothing) QTimer::singleShot(0, this, [this] { Settle(); });
  waiting_ = std::max(waiting_, waiting);
}

void ListBinding::Settle() {
  if (waiting_ == Waiting::Nothing || Bound() == nullptr) return;
  const Waiting waiting = waiting_;
  waiting_ = Waiting::Nothing;
  const bool wasEmpty = model_.rowCount() == 0;
  model_.TakeOver(waiting == Waiting::Columns    ? RowsModel::Change::Columns
                  : waiting == Waiting::Appended ? RowsModel::Change::AppendedRows
                                                 : RowsModel::Change::Rows);
  if (waiting == Waiting::Columns) sized_ = userSized_ = false;
  if (waiting == Waiting::Columns || wasEmpty) SizeColumns();
  ShowSelection();
}

void ListBinding::ShowSelection() {
  const int row = As<ListView>()->Selected();
  QItemSelectionModel* selection = view_->selectionModel();
  const QModelIndex wanted = model_.index(row - 1, 0);
  if (!wanted.isValid()) {
    selection->clear();
  } else if (selection->currentIndex().row() != wanted.row() || !selection->isRowSelected(wanted.row())) {
    selection->setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
  if (const QModelIndex index = model_.index(ensureVisible_ - 1, 0); index.isValid()) view_->scrollTo(index);
  ensureVisible_ = 0;
}

// By the form's widths in characters, else as wide as the headers and the first rows need.
void ListBinding::SizeColumns() {
  if (userSized_ || sized_) return;
  sizing_ = true;
  const QStringList widths = view_->property("widths").toString().split(QLatin1Char('|'), Qt::SkipEmptyParts);
  const QFontMetrics metrics(view_->font());
  QHeaderView* header = view_->header();
  const int columns = model_.columnCount();
  bool hasRest = false;
  for (int shown = 0; shown < columns; ++shown) {
    const int column = model_.ControlColumn(shown) - 1;
    const int characters = column < widths.size() ? widths[column].toInt() : -1;
    const bool takesRest = characters == 0;
    hasRest = hasRest || takesRest;
    header->setSectionResizeMode(shown, takesRest ? QHeaderView::Stretch : QHeaderView::Interactive);
    if (takesRest) continue;
    int width = header->sectionSizeHint(shown);
    if (characters > 0) {
      width = std::max(width, metrics.averageCharWidth() * characters + kCellPadding);
    } else {
      const int widest = metrics.averageCharWidth() * kWidestColumns;
      for (int row = 0; row < std::min(model_.rowCount(), kRowsMeasured); ++row) {
        const QString text = model_.data(model_.index(row, shown), Qt::DisplayRole).toString();
        width = std::max(width, std::min(widest, metrics.horizontalAdvance(text)) + kCellPadding);
      }
    }
    header->resizeSection(shown, width);
  }
  header->setStretchLastSection(!hasRest);
  sized_ = !widths.isEmpty() || model_.rowCount() > 0;
  sizing_ = false;
}

// Typed letters go on to the next row that begins with them in its first column.
void ListBinding::Search(const QString& typed) {
  if (Bound() == nullptr || typed.trimmed().isEmpty()) return;
  const auto& list = *As<ListView>();
  const int rows = list.RowCount();
  for (int step = 1; step <= rows; ++step) {
    const int row = (list.Selected() + step - 1) % rows + 1;
    if (!ToQt(list.Cell(row, model_.ControlColumn(0))).startsWith(typed, Qt::CaseInsensitive)) continue;
    UserAct([&] { As<ListView>()->UserClick(row); });
    return;
  }
}

QPoint ListBinding::HeaderPoint(int column) const {
  const int shown = model_.ShownColumn(column);
  const QHeaderView* header = view_->header();
  if (shown < 0 || !header->isVisible()) return {};
  const QPoint point(header->sectionViewportPosition(shown) + header->sectionSize(shown) / 2, header->height() / 2);
  return header->viewport()->rect().contains(point) ? point : QPoint();
}

}  // namespace kontorwerk
