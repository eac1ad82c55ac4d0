#include "platform/qt/table/book_model.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <algorithm>

#include "platform/table/spreadsheet_edits.h"

namespace barvon {
namespace {

// Told apart by lightness too, for those who see no red.
constexpr QColor kWarnLetters{176, 42, 32}, kWarnGround{250, 228, 224};
constexpr QColor kGreyLetters{112, 112, 112};

QString Q(const std::string& text) { return QString::fromStdString(text); }

/// A heading for the ear: one line.
QString Spoken(const std::string& heading) { return Q(heading).simplified(); }

QVariant Letters_Of(const Cell_Look& look) {
  if (look.warned) return kWarnLetters;
  return look.grey ? QVariant(kGreyLetters) : QVariant();
}

/// A font that the desktop does not have is left to the table's own, at the size asked for. None
/// is smaller than the table's own: who has set a large one needs it.
QVariant Cell_Font(const Cell_Style& style, bool bold) {
  if (style.font.empty() && style.font_size == 0 && !bold) return {};
  QFont font = QApplication::font("QTableView");
  if (QFontDatabase::hasFamily(Q(style.font))) font.setFamily(Q(style.font));
  if (style.font_size > font.pointSize()) font.setPointSize(style.font_size);
  if (bold) font.setBold(true);
  return font;
}

}  // namespace

Book_Model::Book_Model(Spreadsheet_Table& table, QObject* parent)
    : QAbstractTableModel(parent), table_(table) {}

void Book_Model::SetNumberNote(Number_Note note) {
  note_ = std::move(note);
  column_notes_.clear();
  Cells_Changed(table_.TableRange());
}

void Book_Model::SetNumberNote(int col, Number_Note note) {
  column_notes_[col] = std::move(note);
  Cells_Changed({1, col, table_.MaxRow(), col});
}

const Number_Note& Book_Model::Note_Of(int col) const {
  const auto own = column_notes_.find(col);
  return own == column_notes_.end() ? note_ : own->second;
}

QString Book_Model::NumberNoteOf(int row, int col) const {
  const Number_Note& note = Note_Of(col);
  if (!note || row <= table_.FixedRows() || col <= table_.FixedCols()) return {};
  const auto* text = std::get_if<std::string>(&table_.ValueRC(row, col));
  return text == nullptr ? QString() : Q(note(*text));
}

void Book_Model::SetCellLook(Look_Of_Cell look) {
  look_ = std::move(look);
  Cells_Changed(table_.TableRange());
}

Cell_Look Book_Model::Look_Of(int row, int col) const {
  return look_ ? look_(row, col) : Cell_Look();
}

QString Book_Model::Remark_On(int row, int col) const {
  QStringList parts = {NumberNoteOf(row, col), Q(Look_Of(row, col).tip)};
  parts.removeAll(QString());
  return parts.join(QStringLiteral("; "));
}

int Book_Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : table_.MaxRow();
}

int Book_Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : table_.MaxCol();
}

QVariant Book_Model::data(const QModelIndex& index, int role) const {
  const int row = index.row() + 1;
  const int col = index.column() + 1;
  switch (role) {
    case Qt::DisplayRole:
      return Q(table_.ShownRC(row, col));
    case Qt::EditRole:
      return Q(table_.EntryRC(row, col));
    case Qt::TextAlignmentRole:
      if (table_.StyleRC(row, col).centred) return int(Qt::AlignCenter);
      return int((table_.IsNumberRC(row, col) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::FontRole:
      return Cell_Font(table_.StyleRC(row, col), Look_Of(row, col).bold);
    case Qt::ForegroundRole:
      return Letters_Of(Look_Of(row, col));
    case Qt::BackgroundRole:
      if (Look_Of(row, col).warned) return kWarnGround;
      if (row > table_.FixedRows() && col > table_.FixedCols()) return {};
      return QApplication::palette().brush(QPalette::Button);
    case Qt::ToolTipRole: {
      const QString remark = Remark_On(row, col);
      return remark.isEmpty() ? QVariant() : remark;
    }
    case Qt::AccessibleDescriptionRole: {
      const QString headings = Spoken(table_.RowText(row)) + ", " + Spoken(table_.ColText(col));
      const QString remark = Remark_On(row, col);
      return remark.isEmpty() ? headings : headings + "; " + remark;
    }
    default:
      return {};
  }
}

bool Book_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  const Edit_Outcome outcome =
      Type_Cell(table_, index.row() + 1, index.column() + 1, value.toString().toStdString());
  if (outcome.changed) emit Typed(*outcome.changed);
  return outcome.refusal.empty();
}

QVariant Book_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto text = [&] {
    return orientation == Qt::Horizontal ? table_.ColText(section + 1)
                                         : table_.RowText(section + 1);
  };
  if (role == Qt::AccessibleTextRole) return Spoken(text());
  if (role == Qt::DisplayRole) return Q(text());
  return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags Book_Model::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return Can_Edit(table_, index.row() + 1, index.column() + 1) ? flags | Qt::ItemIsEditable : flags;
}

void Book_Model::Cells_Changed(const Cell_Range& range) {
  const auto shown = Shared(range, {1, 1, table_.MaxRow(), table_.MaxCol()});
  if (!shown) return;
  emit dataChanged(index(shown->row1 - 1, shown->col1 - 1),
                   index(shown->row2 - 1, shown->col2 - 1));
}

void Book_Model::Shape_Changed() {
  beginResetModel();
  endResetModel();
}

void Book_Model::Headings_Changed() {
  if (table_.MaxCol() > 0) emit headerDataChanged(Qt::Horizontal, 0, table_.MaxCol() - 1);
  if (table_.MaxRow() > 0) emit headerDataChanged(Qt::Vertical, 0, table_.MaxRow() - 1);
}

}  // namespace barvon
