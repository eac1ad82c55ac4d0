#include "workspace/frm_open.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/project_record.h"
#include "platform/qt/fields/option_paint.h"
#include "platform/qt/screen_window.h"
#include "platform/qt/show_dialog.h"
#include "workspace/file_menu.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmOpen");
constexpr char kTitle[] = "BARVON  -  Dredged Material Released Into Open Water";
constexpr QSize kPicture{150, 200};

enum Choice { kExistingProject = 0, kNewProject, kWithWizard, kConventionally };
constexpr const char* kChoices[] = {
    "Do You Wish To Open an Existing Project?", "Do You Wish To Create a New Project?",
    "Do You Wish To Use the Data Wizard?", "Do You Wish To Enter Data Conventionally?"};
constexpr char kLastPage[] = "Select Next to Enter Project File Name";

enum Button { kBack = 0, kNext, kCancel, kHelp };
constexpr const char* kButtons[] = {"<< &Back", "&Next >>", "&Cancel", "&Help"};

constexpr int kPages = 3;
constexpr int kOptionsPerPage = 2;

}  // namespace

frmOpen::frmOpen(QWidget* workspace)
    : QDialog(workspace),
      pages_(new Page_Stack(this)),
      Frame2(this, "Frame2", kPages),
      Option1(this, "Option1", 4),
      Command1(this, "Command1", 4) {
  Name_Screen(*this, kScreen.name);
  setWindowTitle(QStringLiteral("BARVON"));
  Build();
  for (QRadioButton* option : Option1) {
    option->installEventFilter(this);
    connect(option, &QRadioButton::toggled, this, [this] { Paint_Options(Option1); });
  }
  connect(Command1(kBack), &QPushButton::clicked, pages_, &Page_Stack::Go_Back);
  connect(Command1(kNext), &QPushButton::clicked, this, [this] { Next(); });
  connect(Command1(kCancel), &QPushButton::clicked, this, &QDialog::reject);
}

void frmOpen::Build() {
  auto* picture = new QLabel(this);
  picture->setObjectName(QStringLiteral("Picture1"));
  picture->setAccessibleName(QStringLiteral("A vessel that releases its load into the water"));
  picture->setPixmap(QIcon(QStringLiteral(":/pictures/start.svg")).pixmap(kPicture));
  auto* title = new QLabel(QLatin1String(kTitle), this);
  title->setObjectName(QStringLiteral("Label1"));
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.25);
  large.setBold(true);
  title->setFont(large);

  for (int page = 0; page < kPages; ++page) {
    auto* column = new QVBoxLayout(Frame2(page));
    column->addStretch();
    pages_->addWidget(Frame2(page));
  }
  for (int index = 0; index <= Option1.last(); ++index) {
    Option1(index)->setText(QLatin1String(kChoices[index]));
    auto* column = Frame2(index / kOptionsPerPage)->layout();
    column->addWidget(Option1(index));
  }
  auto* last = new QLabel(QLatin1String(kLastPage), Frame2(kPages - 1));
  last->setObjectName(QStringLiteral("Label2"));
  Frame2(kPages - 1)->layout()->addWidget(last);
  for (QGroupBox* frame : Frame2) {
    static_cast<QVBoxLayout*>(frame->layout())->addStretch();
    frame->layout()->setContentsMargins(18, 12, 18, 12);
    frame->layout()->setSpacing(14);
  }

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (int index = 0; index <= Command1.last(); ++index) {
    Command1(index)->setText(QLatin1String(kButtons[index]));
    buttons->addWidget(Command1(index));
  }
  Command1(kNext)->setDefault(true);

  auto* right = new QVBoxLayout;
  right->addWidget(title);
  right->addWidget(pages_, 1);
  auto* upper = new QHBoxLayout;
  upper->setSpacing(18);
  upper->addWidget(picture);
  upper->addLayout(right, 1);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(18, 18, 18, 14);
  all->setSpacing(16);
  all->addLayout(upper);
  all->addLayout(buttons);
  all->setSizeConstraint(QLayout::SetFixedSize);
}

void frmOpen::Open(bool blocking) {
  if (isVisible()) {
    raise();
    activateWindow();
    return;
  }
  pages_->Start();
  Project().WizardAtStart = kFalse;
  Show_Option(Option1, -1);
  Option1(kExistingProject)->setFocus();
  Centre_On_Display(*this);
  Show_Dialog(*this, blocking);
}

void frmOpen::Next() {
  if (Option1(kExistingProject)->isChecked()) {
    accept();
    mnuFileItem_Click(kFileOpen, Project());
    return;
  }
  if (pages_->currentIndex() == 1) {
    // With neither chosen it keeps what it holds.
    if (Option1(kWithWizard)->isChecked()) Project().WizardAtStart = kTrue;
    if (Option1(kConventionally)->isChecked()) Project().WizardAtStart = kFalse;
  }
  if (!pages_->Is_At_End()) {
    pages_->Go_On();
    return;
  }
  accept();
  if (Project().WizardAtStart != kFalse) Open_Screen_Or_Tell(Row_Of_Screen("Data_Wiz"), true);
}

bool frmOpen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick &&
      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    Next();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void Register_frmOpen(QWidget* workspace) {
  Register_Screen(kScreen, Lasting_Screen<frmOpen>(workspace));
  QObject::connect(workspace, &QObject::destroyed, [] { Register_Screen(kScreen, {}); });
}

}  // namespace barvon
