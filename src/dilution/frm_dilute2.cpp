#include "dilution/frm_dilute2.h"

#include <QAction>
#include <QGroupBox>
#include <QVBoxLayout>
#include <vector>

#include "core/book_numbers.h"
#include "core/desk/file_dialogs.h"
#include "core/desk/file_kinds.h"
#include "core/desk/open_file.h"
#include "core/desk/save_file.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "core/format_pattern.h"
#include "core/keys.h"
#include "core/number_reading.h"
#include "core/number_text.h"
#include "core/project_defaults.h"
#include "dilution/dilution_file.h"
#include "dilution/dilution_hints.h"
#include "dilution/dilution_marks.h"
#include "dilution/dilution_rows.h"
#include "dilution/dilution_rules.h"
#include "platform/ask/message_box.h"
#include "platform/qt/fields/field_rows.h"
#include "platform/qt/fields/focus_entry.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmDilute2");
constexpr Dilution_Tab kTabs[] = {kBulkTab, kElutriateTab};
enum Button { kCompute = 0, kClose, kHelpButton, kRead, kSave, kClear, kButtons };  // Command1
constexpr char kOpeningPattern[] = "#######0";
constexpr char kReadPattern[] = "###.00";
constexpr int kLeastTableHeight = 190;  // pixels

bool Is_Project_Name(const std::string& path) {
  return Last_Three_Letters(path) == kProjectLetters;
}

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
  for (const int col : {kConcentrationColumn, kCriteriaColumn, kBackgroundColumn}) {
    book->SetNumberNote(col, Real_Note);
  }
  book->SetCellLook(
      [this, tab](int row, int col) { return Look_Of_Dilution(tab, row, col, grids_); });
  book->setMinimumHeight(kLeastTableHeight);
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
    connect(action, &QAction::triggered, this, [this, book, act] {
      book->FinishEdit();
      const auto rows = Shared(book->table().SelectedRange(), kDiluteCells);
      if (!rows) return;
      act(*rows);
      Follow_Rows();
    });
    book->addAction(action);
  };
  const auto select = [book](const Cell_Range& rows, int by) {
    book->table().SetActiveCell(rows.row1 + by, rows.col1);
    book->table().SelectRange({rows.row1 + by, rows.col1, rows.row2 + by, rows.col2});
  };
  add("Insert_Rows", QStringLiteral("&Insert Rows"), Qt::ALT | Qt::Key_Insert,
      [this](const Cell_Range& rows) { Insert_Dilute_Rows(rows, grids_, record_); });
  add("Delete_Rows", QStringLiteral("&Delete Rows"), Qt::ALT | Qt::Key_Delete,
      [this](const Cell_Range& rows) { Delete_Dilute_Rows(rows, grids_, record_); });
  add("Move_Rows_Up", QStringLiteral("&Move Rows Up"), Qt::ALT | Qt::Key_Up,
      [this, select](const Cell_Range& rows) {
        if (Move_Dilute_Rows(rows, true, grids_, record_)) select(rows, -1);
      });
  add("Move_Rows_Down", QStringLiteral("Move Rows D&own"), Qt::ALT | Qt::Key_Down,
      [this, select](const Cell_Range& rows) {
        if (Move_Dilute_Rows(rows, false, grids_, record_)) select(rows, 1);
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
  for (int i = 0; i < kButtons; ++i) {
    const std::string hint = Button_Hint(i);
    if (hint.empty()) continue;
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
  edited_[tab] = edited_[tab] && Holds_Rows_Below_List(grids_(tab));
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

// Commands

void frmDilute2::Command1_Click(int index) {
  switch (index) {
    case kCompute:
      return Compute();
    case kClose:
      return Close();
    case kRead:
      return Read_File();
    case kSave:
      return Save_File();
    case kClear:
      return Clear_All();
    default:
      return;
  }
}

void frmDilute2::Compute() {
  // Always the first tab: what is typed on the other one is taken when that is left.
  Read_Dilute_Grid(kBulkTab, grids_, record_);
  edited_[kBulkTab] = edited_[kBulkTab] && Holds_Rows_Below_List(grids_(kBulkTab));
  Compute_List();
}

void frmDilute2::Compute_List() {
  const bool computed = Compute_Dilutions(Solids(), record_);
  Solids_Are_Taken();
  if (computed) {
    Keep_Computed(grids_, record_);
    Show_Dilutions(grids_, record_);
  }
  Follow_Rows();
}

void frmDilute2::Clear_All() {
  if (Ask("Clearing All Will Erase ALL Data.  Do You Wish to Continue?", Buttons::YesNo,
          Icon::Warning) != Answer::Yes) {
    return;
  }
  Set_Dilution_Defaults(record_);
  Clear_Screen();
}

void frmDilute2::Clear_Screen() {
  Clear_Dilute_Grids(grids_);
  filled_solids_ = 0;
  shown_solids_.clear();
  Text1->clear();
  grids_.solids = 0;
  edited_ = {};
  Follow_Rows();
}

void frmDilute2::Save_File() {
  if (!Settle_Typed()) return;
  const std::optional<std::string> path = File_SaveAs_Dialog(list_file_, kDilutionKind);
  if (path && Is_Project_Name(*path)) {
    Show_Warning(
        "A Dilution File Can't Have the Extension of a Project, .DUI.  Nothing Was Saved.");
    return;
  }
  project_is_changed_ = true;
  record_.ProjectFileName = path.value_or("");
  if (!path || !barvon::Save_File(*path, kDilutionKind, record_)) return;
  list_file_ = *path;
  const int cut = Names_To_Be_Cut(record_);
  if (cut == 0) return;
  const std::string note = Counted(static_cast<std::size_t>(cut), "name") +
                           " of more than 20 letters: the first 20 are read back";
  Port().board.show_note({note, {}});
  Show_Hint(note);
}

void frmDilute2::Read_File() {
  if (!Settle_Typed()) return;
  const std::optional<std::string> path = Ask_File_To_Open(kDilutionKind, list_file_);
  if (!path) return;
  if (Is_Project_Name(*path)) {
    Show_Warning("That Is a Project, Not a Dilution File.  Nothing Was Read.");
    return;
  }
  if (!Open_File(*path, record_)) return;
  project_is_changed_ = true;
  Show_File(*path);
  Compute_List();
}

void frmDilute2::Show_File(const std::string& path) {
  list_file_ = record_.ProjectFileName = path;
  Port().board.set_caption("BARVON - " + path);
  Show_Solids(record_.DiluteSolidsConc, kReadPattern);
  for (const Dilution_Tab tab : kTabs) grids_(tab).NumberFormat(kReadPattern);
  Show_Read_List(grids_, record_);
  edited_ = {};
  setWindowTitle(QString::fromStdString("Dilute - " + path));
  for (const Dilution_Tab tab : kTabs) {
    grids_(tab).Centred(kDiluteCells, true);
    grids_(tab).SetActiveCell(1, 1);
  }
}

// Leaving

void frmDilute2::Close() {
  if (discarding_ || Settle_Typed()) Unload();
}

bool frmDilute2::Leave() {
  for (F1Book* book : F1Book2) book->FinishEdit();
  if (!Settle_Typed()) return false;
  Unload();
  return true;
}

void frmDilute2::Give_Project_Back() {
  if (!project_is_changed_) return;
  project_is_changed_ = false;
  record_.ProjectFileName = project_.file;
  record_.ProjectTitle = project_.title;
  Port().board.set_caption(project_.caption);
}

bool frmDilute2::Holds_Unsaved_Input() {
  for (F1Book* book : F1Book2) book->FinishEdit();
  return Holds_Untaken();
}

bool frmDilute2::Holds_Untaken() const {
  if (Text1->text() != shown_solids_ && Solids() != record_.DiluteSolidsConc) return true;
  for (const Dilution_Tab tab : kTabs) {
    if (edited_[tab] && Holds_Untaken_Values(tab, grids_, record_)) return true;
  }
  return false;
}

bool frmDilute2::Settle_Typed() {
  if (!Holds_Untaken()) return true;
  switch (Ask("Values typed since the last Compute are not taken. Take them?", Buttons::YesNoCancel,
              Icon::Question)) {
    case Answer::Yes:
      return Take_Typed();
    case Answer::No:
      return true;
    default:
      return false;
  }
}

bool frmDilute2::Take_Typed() {
  record_.DiluteSolidsConc = Solids();
  Solids_Are_Taken();
  Read_Dilute_Grid(Front(), grids_, record_);
  Fill_Dilute_Grids(grids_, record_);
  bool taken = true;
  for (const Dilution_Tab tab : kTabs) {
    edited_[tab] = edited_[tab] && Holds_Rows_Below_List(grids_(tab));
    taken = taken && !edited_[tab];
  }
  Follow_Rows();
  if (!taken) Show_Warning(kNameMissing);
  return taken;
}

}  // namespace barvon
