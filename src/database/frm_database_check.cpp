#include "database/frm_database_check.h"

#include <QVBoxLayout>

#include "core/desk/screen_table.h"
#include "database/database_data.h"
#include "platform/files/app_folder.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmDatabaseCheck");
constexpr QSize kListSize(560, 280);

QString Summary(const Database_Report& report) {
  const int faults = report.Faults();
  if (report.findings.empty()) return QStringLiteral("Every record of the database is found.");
  if (faults == 0) return QStringLiteral("No faults in the files of the database, but remarks:");
  return QString::fromStdString(Counted(static_cast<std::size_t>(faults), "fault") +
                                " in the files of the database:");
}

}  // namespace

frmDatabaseCheck::frmDatabaseCheck(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace, {.topic = kScreen.topic, .on_return = kClose}),
      Label1(new QLabel(this)),
      List1(new QListWidget(this)) {
  setWindowTitle(QStringLiteral("Database Files"));
  Label1->setObjectName(QStringLiteral("Label1"));
  Label1->setBuddy(List1);
  List1->setObjectName(QStringLiteral("List1"));
  List1->setAccessibleName(QStringLiteral("Faults and remarks"));
  List1->setWordWrap(true);
  List1->setMinimumSize(kListSize);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Label1);
  column->addWidget(List1, 1);
  column->addLayout(Make_Command1(
      {QStringLiteral("&Mend Files"), QStringLiteral("&Close"), QStringLiteral("&Help")}));
  Tab_Through({List1});
}

void frmDatabaseCheck::Opening() {
  Take_Delivered_Database();
  report_ = Check_Database(Application_Folder());
  Label1->setText(Summary(report_));
  List1->clear();
  for (const Database_Finding& finding : report_.findings) {
    List1->addItem(QString::fromStdString(Finding_Text(finding)));
  }
  Command1(kMend)->setEnabled(!report_.mends.empty());
}

void frmDatabaseCheck::Command1_Click(int index) {
  if (index == kMend) {
    if (Mend_Database_Files(report_)) Opening();
    List1->setFocus();
  } else if (index == kClose) {
    Unload();
  }
}

}  // namespace barvon
