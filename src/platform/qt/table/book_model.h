#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <map>

#include "platform/qt/fields/number_field.h"
#include "platform/table/cell_look.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// How a cell looks now.
using Look_Of_Cell = std::function<Cell_Look(int row, int col)>;

/// A spreadsheet table as the toolkit's views see it; rows and columns count from 0 here. Setting
/// a cell's data is the user's typing.
class Book_Model : public QAbstractTableModel {
  Q_OBJECT

 public:
  Book_Model(Spreadsheet_Table& table, QObject* parent);

  /// The note for all columns, dropping those of single ones; for one column.
  void SetNumberNote(Number_Note note);
  void SetNumberNote(int col, Number_Note note);
  const Number_Note& Note_Of(int col) const;
  QString NumberNoteOf(int row, int col) const;

  void SetCellLook(Look_Of_Cell look);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Tells the views what the table's watcher was told.
  void Cells_Changed(const Cell_Range& range);
  void Shape_Changed();
  void Headings_Changed();

 signals:
  /// The user has typed something else into the cell.
  void Typed(const barvon::Cell_Range& cell);

 private:
  Cell_Look Look_Of(int row, int col) const;
  /// What is said of a cell: its note, then what stands out about it.
  QString Remark_On(int row, int col) const;

  Spreadsheet_Table& table_;
  Look_Of_Cell look_;
  Number_Note note_;
  std::map<int, Number_Note> column_notes_;
};

}  // namespace barvon
