#include "workspace/frm_tip.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QScrollArea>
#include <QVBoxLayout>

#include "core/desk/screen_table.h"
#include "platform/files/app_folder.h"
#include "platform/qt/spoken_roles.h"
#include "platform/qt/tab_order.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kScreen = Row_Of_Screen("frmTip");
constexpr QSize kPicture{48, 48};
constexpr QSize kTipSize{380, 110};

}  // namespace

frmTip::frmTip(QWidget* workspace)
    : Input_Screen(kScreen.name, workspace,
                   {.on_return = kClose,
                    .cancel = kClose,
                    .help = {},
                    .placement = Screen_Setup::Placement::Centre}),
      lblTipText(new QLabel),
      chkLoadTipsAtStartup(new QCheckBox(QStringLiteral("&Show Tips at Startup"), this)),
      cmdNextTip(new QPushButton(QStringLiteral("&Next Tip"), this)),
      cmdOK(new QPushButton(QStringLiteral("OK"), this)) {
  setWindowTitle(QStringLiteral("Tip of the Day"));
  lblTipText->setObjectName(QStringLiteral("lblTipText"));
  chkLoadTipsAtStartup->setObjectName(QStringLiteral("chkLoadTipsAtStartup"));
  cmdNextTip->setObjectName(QStringLiteral("cmdNextTip"));
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  Build();
  Take_Commands({cmdOK, cmdNextTip});
  connect(chkLoadTipsAtStartup, &QCheckBox::clicked, this, [this](bool wanted) {
    Choose_Tips_At_Start(wanted);
    Controls_Are_Stored();  // nobody is to be asked about a choice that is kept already
  });
}

void frmTip::Build() {
  auto* picture = new QLabel(this);
  picture->setAccessibleName(QStringLiteral("A lamp"));
  picture->setPixmap(QIcon(QStringLiteral(":/pictures/tip.svg")).pixmap(kPicture));
  auto* heading = new QLabel(QStringLiteral("Did you know..."), this);
  QFont large = heading->font();
  large.setPointSizeF(large.pointSizeF() * 1.25);
  large.setBold(true);
  heading->setFont(large);

  // A tip is whatever stands in the file.
  lblTipText->setTextFormat(Qt::PlainText);
  lblTipText->setWordWrap(true);
  lblTipText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblTipText->setMargin(8);
  auto* tip = new QScrollArea(this);
  Speak_As(tip, QAccessible::Document);
  tip->setAccessibleName(QStringLiteral("Tip"));
  tip->setWidgetResizable(true);
  tip->setMinimumSize(kTipSize);
  tip->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  tip->setWidget(lblTipText);
  lblTipText->setBackgroundRole(QPalette::Base);
  lblTipText->setAutoFillBackground(true);

  auto* head = new QHBoxLayout;
  head->setSpacing(12);
  head->addWidget(picture);
  head->addWidget(heading, 1);
  auto* left = new QVBoxLayout;
  left->addLayout(head);
  left->addWidget(tip, 1);
  left->addWidget(chkLoadTipsAtStartup);
  auto* right = new QVBoxLayout;
  right->addWidget(cmdOK);
  right->addWidget(cmdNextTip);
  right->addStretch();
  auto* all = new QHBoxLayout(this);
  all->setContentsMargins(16, 16, 16, 14);
  all->setSpacing(14);
  all->addLayout(left, 1);
  all->addLayout(right);
  Set_Tab_Order({cmdOK, cmdNextTip, chkLoadTipsAtStartup, tip});
}

void frmTip::Opening() {
  chkLoadTipsAtStartup->setChecked(Tips_At_Start_Wanted());
  if (LoadTips(Own_Or_Delivered(kTipsFile), tips_)) {
    DisplayCurrentTip();
  } else {
    lblTipText->setText(QString::fromStdString(Missing_Tips_Text()));
  }
}

void frmTip::DisplayCurrentTip() {
  if (tips_.tips.empty()) return;
  lblTipText->setText(QString::fromStdString(Current_Tip(tips_)));
}

void frmTip::Command1_Click(int index) {
  if (index == kClose) return Unload();
  Next_Tip(tips_);
  DisplayCurrentTip();
}

}  // namespace barvon
