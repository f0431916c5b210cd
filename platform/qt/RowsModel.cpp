// Reads the control at each question; between a change and its showing, rows that are gone read as empty.
#include "platform/qt/RowsModel.h"

#include "platform/ListView.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

namespace kontorwerk {

void RowsModel::SetList(const ListView* list) {
  list_ = list;
  TakeOver(Change::Columns);
}

void RowsModel::ReadColumns() {
  columns_.clear();
  if (list_ == nullptr) return;
  int column = 0;
  for (const ListColumn& described : list_->Columns()) {
    ++column;
    if (!described.hidden) columns_.append(column);
  }
}

void RowsModel::TakeOver(Change change) {
  const int rows = list_ == nullptr ? 0 : list_->RowCount();
  if (change == Change::AppendedRows && rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
    return;
  }
  beginResetModel();
  if (change == Change::Columns) ReadColumns();
  rows_ = rows;
  endResetModel();
}

void RowsModel::RowChanged(int row) {
  if (columns_.isEmpty() || row > rows_ || rows_ == 0) return;
  const int first = row < 1 ? 0 : row - 1;
  const int last = row < 1 ? rows_ - 1 : row - 1;
  emit dataChanged(index(first, 0), index(last, static_cast<int>(columns_.size()) - 1));
}

int RowsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int RowsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  const int row = index.row() + 1;
  if (list_ == nullptr || row > list_->RowCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(list_->Cell(row, ControlColumn(index.column()))).replace(QLatin1String("\r\n"), QLatin1String(" "));
    case Qt::ForegroundRole: {
      const auto& colour = list_->Rows()[static_cast<std::size_t>(row - 1)].colour;
      return colour ? QVariant(Theme::ShownText(*colour)) : QVariant();
    }
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(AlignmentOf(index.column()));
    case Qt::CheckStateRole:
      if (!list_->HasTicks() || index.column() != 0) return {};
      return list_->Ticked(row) ? Qt::Checked : Qt::Unchecked;
    default:
      return {};
  }
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || list_ == nullptr || section >= columns_.size()) return {};
  const auto column = static_cast<std::size_t>(columns_[section] - 1);
  if (role == Qt::DisplayRole && column < list_->Columns().size()) return ToQt(list_->Columns()[column].header);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(section));
  return {};
}

Qt::ItemFlags RowsModel::flags(const QModelIndex&) const {
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

Qt::Alignment RowsModel::AlignmentOf(int shown) const {
  const int letter = columns_.value(shown, 0) - 1;
  const QChar align = letter >= 0 && letter < alignments_.size() ? alignments_[letter] : QChar('l');
  if (align == QLatin1Char('r')) return Qt::AlignRight | Qt::AlignVCenter;
  return (align == QLatin1Char('c') ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace kontorwerk
