// The rows of a list control as the toolkit's views want them: nothing is copied. Changes of many rows come through
// together, so that filling a long list costs one step.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

namespace kontorwerk {

class ListView;

class RowsModel final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  // The list that is shown from now on; null for none.
  void SetList(const ListView* list);
  void SetAlignments(const QString& letters) { alignments_ = letters; }
  // Takes over columns and rows as they are now. Rows that were only appended are only added here.
  enum class Change { Rows, AppendedRows, Columns };
  void TakeOver(Change change);
  // The look or text of one row; all rows for 0 and less.
  void RowChanged(int row);
  // The column of the control (from 1) behind a shown column (from 0).
  [[nodiscard]] int ControlColumn(int shown) const { return columns_.value(shown, 0); }
  // The shown column of a column of the control, -1 if it is hidden.
  [[nodiscard]] int ShownColumn(int column) const { return static_cast<int>(columns_.indexOf(column)); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  void ReadColumns();
  [[nodiscard]] Qt::Alignment AlignmentOf(int shown) const;

  const ListView* list_ = nullptr;
  int rows_ = 0;        // that the views know of
  QList<int> columns_;  // of the control, from 1, that are shown
  QString alignments_;
};

}  // namespace kontorwerk
