#include "recovery/frm_recovery.h"

#include <QHeaderView>
#include <QVBoxLayout>
#include <utility>

#include "core/desk/screen_table.h"
#include "platform/files/lock_holder.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmRecovery");
constexpr QSize kTableSize(640, 230);
constexpr int kListHeight = 90;
enum Column { kWhere, kWhat, kOne, kOther, kColumns };

QString Text(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

frmRecovery::frmRecovery(QWidget* workspace, std::vector<Recovery_Row> rows,
                         Recovery_Keeper& keeper, ProjectRecord& record)
    : Input_Screen(kScreen.name, workspace,
                   {.topic = kScreen.topic,
                    .on_return = kRestore,
                    .cancel = kLater,
                    .help = kThrowAway + 1,
                    .placement = Screen_Setup::Placement::Centre}),
      rows_(std::move(rows)),
      keeper_(keeper),
      record_(record),
      Label1(new QLabel(this)),
      List1(new QListWidget(this)),
      Label2(new QLabel(this)),
      Table1(new QTableWidget(0, kColumns, this)) {
  setWindowTitle(QStringLiteral("Restore Unsaved Changes"));
  Build();
  connect(List1, &QListWidget::currentRowChanged, this, [this] { Show_Chosen(); });
}

void frmRecovery::Build() {
  Label1->setObjectName(QStringLiteral("Label1"));
  Label1->setText(
      QStringLiteral("BARVON ended before these &changes were saved. Choose a project:"));
  Label1->setBuddy(List1);
  List1->setObjectName(QStringLiteral("List1"));
  List1->setAccessibleName(QStringLiteral("Projects with unsaved changes"));
  List1->setFixedHeight(kListHeight);
  List1->setTextElideMode(Qt::ElideMiddle);
  Label2->setObjectName(QStringLiteral("Label2"));
  // A path is whatever stands in the copy.
  Label2->setTextFormat(Qt::PlainText);
  Label2->setWordWrap(true);
  Table1->setObjectName(QStringLiteral("Table1"));
  Table1->setAccessibleName(QStringLiteral("What differs"));
  Table1->setMinimumSize(kTableSize);
  Table1->setEditTriggers(QAbstractItemView::NoEditTriggers);
  Table1->setSelectionBehavior(QAbstractItemView::SelectRows);
  Table1->setTabKeyNavigation(false);
  Table1->verticalHeader()->hide();
  Table1->horizontalHeader()->setHighlightSections(false);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Label1);
  column->addWidget(List1);
  column->addWidget(Label2);
  column->addWidget(Table1, 1);
  column->addLayout(Make_Command1({QStringLiteral("&Restore"), QStringLiteral("Keep for &Later"),
                                   QStringLiteral("&Throw Away..."), QStringLiteral("&Help")}));
  Tab_Through({List1, Table1});
}

void frmRecovery::Opening() { Show_Rows(); }

int frmRecovery::Chosen() const { return List1->currentRow(); }

void frmRecovery::Show_Rows() {
  List1->clear();
  for (const Recovery_Row& row : rows_) {
    const char* const what = row.left.copy ? ", changes up to " : ", damaged, of ";
    List1->addItem(Text(row.name + what + Time_In_Words(row.left.written)));
  }
  List1->setCurrentRow(0);
}

void frmRecovery::Show_Chosen() {
  const int chosen = Chosen();
  if (chosen < 0) return;
  const Recovery_Row& row = rows_.at(static_cast<std::size_t>(chosen));
  const bool sound = row.Can_Be_Restored();
  const bool differs = !row.differences.empty();
  Label2->setText(Text(row.state) + (sound && !differs
                                         ? QStringLiteral(" Nothing that a report tells differs.")
                                         : QString()));
  Table1->setHorizontalHeaderLabels({QStringLiteral("Category"), QStringLiteral("Value"),
                                     Text(row.column), QStringLiteral("In the copy")});
  Table1->setRowCount(static_cast<int>(row.differences.size()));
  int line = 0;
  for (const Project_Difference& difference : row.differences) {
    Table1->setItem(line, kWhere, new QTableWidgetItem(Text(difference.where)));
    Table1->setItem(line, kWhat, new QTableWidgetItem(Text(difference.what)));
    Table1->setItem(line, kOne, new QTableWidgetItem(Text(difference.one)));
    Table1->setItem(line++, kOther, new QTableWidgetItem(Text(difference.other)));
  }
  Table1->resizeColumnsToContents();
  for (int i = 0; i < kOther; ++i) {
    Table1->setColumnWidth(i, std::min(Table1->columnWidth(i), kTableSize.width() / 3));
  }
  Table1->horizontalHeader()->setStretchLastSection(true);  // the widths have ended it
  Table1->resizeRowsToContents();
  if (differs) Table1->setCurrentCell(0, 0);
  Command1(kRestore)->setEnabled(sound);
}

void frmRecovery::Command1_Click(int index) {
  const int chosen = Chosen();
  if (index == kLater || chosen < 0) return Unload();
  Recovery_Row& row = rows_.at(static_cast<std::size_t>(chosen));
  if (index == kRestore) {
    restored_ = Restore_Project(row, keeper_, record_);
    if (restored_) Unload();
  } else if (index == kThrowAway && Throw_Copy_Away(row)) {
    rows_.erase(rows_.begin() + chosen);
    if (rows_.empty()) return Unload();
    Show_Rows();
    List1->setFocus();
  }
}

bool Offer_Recovery(QWidget* workspace, Recovery_Keeper& keeper) {
  std::vector<Recovery_Row> rows = Recovery_Rows();
  if (rows.empty()) return false;
  frmRecovery screen(workspace, std::move(rows), keeper, Project());
  screen.Open(true);
  return screen.Has_Restored();
}

}  // namespace barvon
