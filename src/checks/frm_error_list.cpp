#include "checks/frm_error_list.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include "checks/check_data.h"
#include "checks/error_navigation.h"
#include "core/desk/help_topics.h"
#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/project_record.h"
#include "platform/ask/help_viewer.h"
#include "platform/ask/message_box.h"
#include "platform/qt/screen_window.h"
#include "platform/qt/show_dialog.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmErrorList");
constexpr int kDetails = 0;
constexpr int kClose = 1;
constexpr QSize kSize(600, 360);

}  // namespace

frmErrorList::frmErrorList(QWidget* workspace)
    : QDialog(workspace),
      List1(new QListWidget(this)),
      List2(new QListWidget(this)),
      SSCommand1(this, "SSCommand1", 2) {
  Name_Screen(*this, kScreen.name);
  setWindowTitle("Error List");
  resize(kSize);
  List1->setObjectName("List1");
  List1->setAccessibleName("Notes, warnings and errors");
  List1->setWordWrap(true);
  List2->setObjectName("List2");
  List2->hide();

  auto* label = new QLabel(
      "List of Notes, Warnings && Errors.  Double Click on Error to Automatically Go To Form Where "
      "the Problem Can Be Corrected.",
      this);
  label->setObjectName("Label1");
  label->setWordWrap(true);
  label->setBuddy(List1);
  SSCommand1(kDetails)->setText("&Detailed Error Description");
  SSCommand1(kClose)->setText("&Close");
  for (QPushButton* button : SSCommand1) button->setAutoDefault(false);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(SSCommand1(kDetails));
  buttons->addWidget(SSCommand1(kClose));
  auto* column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(List1, 1);
  column->addLayout(buttons);

  // Not itemActivated: on some desktops a single click is enough for it.
  connect(List1, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* item) { List1_DblClick(List1->row(item)); });
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {  // for those who use no mouse
    auto* shortcut = new QShortcut(key, List1);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, [this] { List1_DblClick(Selected()); });
  }
  for (int index = SSCommand1.first(); index <= SSCommand1.last(); ++index) {
    connect(SSCommand1(index), &QPushButton::clicked, this,
            [this, index] { SSCommand1_Click(index); });
  }
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [] { Show_Topic(kScreen.topic); });
  Set_Findings_Listener([this] { Fill(); });
}

frmErrorList::~frmErrorList() { Set_Findings_Listener({}); }

void frmErrorList::Fill() {
  List1->clear();
  List2->clear();
  for (const Error_Entry& entry : Current_Errors().entries) {
    List1->addItem(QString::fromStdString(entry.message));
    List2->addItem(QString::fromStdString(entry.reference));
  }
  // Or the first line would look chosen as soon as the list gets the focus.
  List1->setCurrentIndex({});
  SSCommand1(kDetails)->setEnabled(List1->count() > 0);
}

void frmErrorList::Open(bool blocking) {
  Fill();
  if (const QWidget* workspace = parentWidget()) {
    QRect place = geometry();
    place.moveCenter(workspace->geometry().center());
    move(place.topLeft());
  }
  List1->setFocus();
  Show_Dialog(*this, blocking);
}

/// The row that shows as selected, -1 for none: a row can be the current one without that.
int frmErrorList::Selected() const {
  const auto selected = List1->selectedItems();
  return selected.isEmpty() ? -1 : List1->row(selected.first());
}

void frmErrorList::List1_DblClick(int index) {
  const QListWidgetItem* reference = List2->item(index);
  if (reference == nullptr) return;
  const auto target = Error_Target_Of(reference->text().toStdString());
  if (!target) return;
  const Lead_To_Screen lead(*target->screen);
  // Over a blocking list a screen that does not block would take no input.
  Open_Screen_Or_Tell(*target->screen, isModal() || Opens_Blocking(Project()), target->control);
}

void frmErrorList::SSCommand1_Click(int index) {
  if (index == kClose) {
    close();
    return;
  }
  const int entry = Selected();
  if (entry < 0) {
    Show_Information(
        "Please choose a line of the list first: by a click, or by the arrow keys while the list "
        "has the keyboard.");
    return;
  }
  const int topic = entry + 1 < kErrorHelpTopics ? Current_Errors().ErrorHelpTopics[entry + 1]
                                                 : help_topic::kContents;
  Show_Topic(topic);
}

void Register_frmErrorList(QWidget* workspace) {
  Register_Screen(kScreen, Lasting_Screen<frmErrorList>(workspace));
  QObject::connect(workspace, &QObject::destroyed, [] { Register_Screen(kScreen, nullptr); });
}

}  // namespace barvon
