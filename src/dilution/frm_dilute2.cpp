#include "dilution/frm_dilute2.h"

#include <QAction>
#include <QGroupBox>
#include <QVBoxLayout>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "core/format_pattern.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "dilution/dilution_file.h"
#include "dilution/dilution_hints.h"
#include "dilution/dilution_marks.h"
#include "dilution/dilution_mirror.h"
#include "dilution/dilution_rows.h"
#include "platform/qt/fields/field_rows.h"
#include "platform/qt/fields/focus_entry.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmDilute2");
constexpr char kOpeningPattern[] = "#######0";
constexpr int kLeastTableHeight = 190;  // pixels

}  // namespace

frmDilute2::frmDilute2(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace,
                   {.topic = kScreen.topic, .placement = Screen_Setup::Placement::Centre}),
      record_(Project()),
      Text1(Named(new QLineEdit(this), "Text1")),
      F1Book2(this, "F1Book2", kDilutionTabs, 0, kBookNumbers),
      SSTab1(Named(new Tab_Pages(this), "SSTab1")),
      DilutionBars(Named(
          new Bar_Picture(QStringLiteral("Required dilutions"), QStringLiteral("dilutions"), this),
          "DilutionBars")),
      grids_(F1Book2(kBulkTab)->table(), F1Book2(kElutriateTab)->table()) {
  setWindowTitle(QStringLiteral("Dilute"));
  for (const Dilution_Tab tab : kTabs) Define_Dilute_Grid(tab, grids_(tab));
  SSTab1->addTab(Page(kBulkTab), QStringLiteral("Bulk Sediment"));
  SSTab1->addTab(Page(kElutriateTab), QStringLiteral("Elutriate"));
  auto* upper = new QHBoxLayout;
  upper->addWidget(SSTab1, 3);
  upper->addWidget(DilutionBars, 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(upper, 1);
  column->addLayout(Make_Command1({QStringLiteral("&Compute"), QStringLiteral("C&lose"),
                                   QStringLiteral("&Help"), QStringLiteral("&Read From File"),
                                   QStringLiteral("&Save To File"), QStringLiteral("Cl&ear All")}));
  Tab_Through({SSTab1->tabBar(), Text1, F1Book2(kBulkTab), F1Book2(kElutriateTab), DilutionBars});
  Connect();
}

frmDilute2::~frmDilute2() { Leave_Port(); }

QWidget* frmDilute2::Page(Dilution_Tab tab) {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  if (tab == kBulkTab) {
    auto* solids = new QWidget(page);
    Field_Rows rows(solids);
    rows.layout()->setContentsMargins(0, 0, 0, 0);
    QLabel* label = rows.Number(
        QStringLiteral("Solids Concentration of the Dredged Material Being Disposed (g/L)"), Text1,
        Real_Note);
    Named(label, "Label1");
    column->addWidget(solids);
  }
  auto* frame = new QGroupBox(page);
  auto* inside = new QVBoxLayout(frame);
  F1Book* book = F1Book2(tab);
  book->setAccessibleName(tab == kBulkTab ? QStringLiteral("Parameters in bulk sediment")
                                          : QStringLiteral("Parameters in elutriate"));
  book->KeepAnyLetters();
  book->SetNumberNote(kNameColumn, Dilution_Name_Note);
  for (const int col : {kConcentrationColumn, kCriteriaColumn, kBackgroundColumn}) {
    book->SetNumberNote(col, Real_Note);
  }
  book->SetCellLook(
      [this, tab](int row, int col) { return Look_Of_Dilution(tab, row, col, grids_); });
  // Names of a list often differ in their last letters only.
  book->setTextElideMode(Qt::ElideMiddle);
  book->setMinimumHeight(kLeastTableHeight);
  book->Keep_In_Sight(kDilutionColumn);
  inside->addWidget(book, 1);
  inside->addWidget(Label2(tab));
  column->addWidget(frame, 1);
  Add_Row_Commands(tab);
  return page;
}

void frmDilute2::Add_Row_Commands(Dilution_Tab tab) {
  F1Book* book = F1Book2(tab);
  const auto add = [&](const char* name, const QString& caption, const QKeySequence& key,
                       const auto& act) {
    auto* action = new QAction(caption, book);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, [this, tab, book, act] {
      book->FinishEdit();
      const auto rows = Shared(book->table().SelectedRange(), kDiluteCells);
      if (!rows) return;
      act(*rows);
      edited_[tab] = true;
      Follow_Rows();
    });
    book->addAction(action);
  };
  const auto select = [book](const Cell_Range& rows, int by) {
    book->table().SetActiveCell(rows.row1 + by, rows.col1);
    book->table().SelectRange({rows.row1 + by, rows.col1, rows.row2 + by, rows.col2});
  };
  add("Insert_Rows", QStringLiteral("&Insert Rows"), Qt::ALT | Qt::Key_Insert,
      [this](const Cell_Range& rows) { Insert_Dilute_Rows(rows, grids_); });
  add("Delete_Rows", QStringLiteral("&Delete Rows"), Qt::ALT | Qt::Key_Delete,
      [this](const Cell_Range& rows) { Delete_Dilute_Rows(rows, grids_); });
  add("Move_Rows_Up", QStringLiteral("&Move Rows Up"), Qt::ALT | Qt::Key_Up,
      [this, select](const Cell_Range& rows) {
        if (Move_Dilute_Rows(rows, true, grids_)) select(rows, -1);
      });
  add("Move_Rows_Down", QStringLiteral("Move Rows D&own"), Qt::ALT | Qt::Key_Down,
      [this, select](const Cell_Range& rows) {
        if (Move_Dilute_Rows(rows, false, grids_)) select(rows, 1);
      });
}

void frmDilute2::Connect() {
  connect(SSTab1, &Tab_Pages::Left, this, &frmDilute2::SSTab1_Click);
  connect(Text1, &QLineEdit::textChanged, this, [this] {
    grids_.solids = Solids();
    Follow_Rows();
  });
  for (const Dilution_Tab tab : kTabs) {
    connect(F1Book2(tab), &F1Book::Edited, this,
            [this, tab](int row1, int col1, int row2, int col2) {
              F1Book2_Edited(tab, {row1, col1, row2, col2});
            });
  }
  connect(this, &QDialog::finished, this, [this] {
    Leave_Port();
    Give_Project_Back();
  });
  Connect_Hints();
}

void frmDilute2::Connect_Hints() {
  for (int i = 0; !Button_Hint(i).empty(); ++i) {
    const std::string hint = Button_Hint(i);
    When_Focused(Command1(i), [this, hint] { Show_Hint(hint); });
  }
  for (const Dilution_Tab tab : kTabs) {
    connect(F1Book2(tab), &F1Book::Cursor_Moved, this, [this, tab] { Show_Column_Hint(tab); });
    connect(F1Book2(tab), &F1Book::Got_Focus, this, [this, tab] { Show_Column_Hint(tab); });
  }
}

void frmDilute2::Fill_Port() {
  Port().dilution.close = [this] {
    Clear_Screen();
    // The project that was open when the calculator opened is gone.
    project_is_changed_ = false;
  };
  Port().dilution.clear = [this] { Clear_Screen(); };
  Port().dilution.leave = [this] { return Leave(); };
  Port().dilution.name_project = [this](ProjectRecord& copy) { Name_Project(copy); };
  port_is_filled_ = true;
}

void frmDilute2::Leave_Port() {
  if (port_is_filled_) Port().dilution = {};
  port_is_filled_ = false;
}

void frmDilute2::Opening() {
  SSTab1->Start_At(kBulkTab);
  project_ = {record_.ProjectFileName, record_.ProjectTitle, Port().board.caption()};
  list_file_ = record_.ProjectFileName;
  Fill_Port();
  Show_Solids(record_.DiluteSolidsConc, kOpeningPattern);
  Keep_Computed(grids_, record_);
  Fill_Dilute_Grids(grids_, record_);
  for (const Dilution_Tab tab : kTabs) {
    grids_(tab).Centred(kDiluteCells, true);
    grids_(tab).SetActiveCell(1, 1);
    grids_(tab).ForgetEdits();
  }
  Follow_Rows();
}

Dilution_Tab frmDilute2::Front() const {
  return SSTab1->currentIndex() == kElutriateTab ? kElutriateTab : kBulkTab;
}

// Solids concentration

double frmDilute2::Solids() const {
  if (Text1->text() == shown_solids_) return filled_solids_;
  return Lenient_Number(Text1->text().toStdString());
}

void frmDilute2::Show_Solids(double solids, const char* pattern) {
  filled_solids_ = solids;
  shown_solids_ = QString::fromStdString(Format_Number(solids, pattern));
  Text1->setText(shown_solids_);
  grids_.solids = solids;
}

void frmDilute2::Solids_Are_Taken() {
  filled_solids_ = record_.DiluteSolidsConc;
  shown_solids_ = Text1->text();
}

// Tables

void frmDilute2::SSTab1_Click(int left) {
  const Dilution_Tab tab = left == kElutriateTab ? kElutriateTab : kBulkTab;
  Leave_Dilute_Tab(tab, grids_, record_);
  for (const Dilution_Tab each : kTabs) {
    edited_[each] = edited_[each] && Holds_Rows_Below_List(grids_(each));
  }
  Follow_Rows();
}

void frmDilute2::F1Book2_Edited(Dilution_Tab tab, const Cell_Range& range) {
  if (range.col1 <= kBackgroundColumn) {
    edited_[tab] = true;
    Follow_Dilute_Edit(tab, range, grids_);
  }
  Follow_Rows();
}

void frmDilute2::Show_Column_Hint(Dilution_Tab tab) {
  const std::string hint = Column_Hint(tab, grids_(tab).Col());
  if (!hint.empty()) Label2(tab)->setText(QString::fromStdString(hint));
}

void frmDilute2::Show_Hint(const std::string& text) {
  for (QLabel* label : Label2) label->setText(QString::fromStdString(text));
}

/// Looks and picture hang on other cells than the one that changed.
void frmDilute2::Follow_Rows() {
  for (F1Book* book : F1Book2) book->viewport()->update();
  DilutionBars->Show(Dilution_Bars(Front(), grids_));
  DilutionBars->Set_Caption(QString::fromStdString(Changed_Rows_Note(Front(), grids_)));
}

}  // namespace barvon
