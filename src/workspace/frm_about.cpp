#include "workspace/frm_about.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QVBoxLayout>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "platform/ask/message_box.h"
#include "platform/qt/tab_order.h"
#include "workspace/about_texts.h"

namespace barvon {
namespace {

constexpr const Screen_Row& kAbout = Row_Of_Screen("frmAbout");
constexpr const Screen_Row& kAboutMore = Row_Of_Screen("frmAboutMore");
constexpr QSize kPicture{72, 72};
constexpr int kTextWidth = 500;

QLabel* Paragraph(const char* name, const QString& text, QWidget* screen) {
  auto* label = new QLabel(text, screen);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(kTextWidth);
  return label;
}

QFrame* Line(QWidget* screen) {
  auto* line = new QFrame(screen);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

}  // namespace

frmAbout::frmAbout(QWidget* workspace)
    : Input_Screen(kAbout.name, workspace,
                   {.on_return = kClose,
                    .cancel = kClose,
                    .help = {},
                    .placement = Screen_Setup::Placement::Centre}),
      lblTitle(Paragraph("lblTitle", QLatin1String(kAboutTitle), this)),
      lblVersion1(new QLabel(QLatin1String(kAboutVersion), this)),
      lblDescription(Paragraph("lblDescription", QLatin1String(kAboutDescription), this)),
      lblDisclaimer(Paragraph("lblDisclaimer", QLatin1String(kAboutDisclaimer), this)),
      cmdOK(new QPushButton(QStringLiteral("OK"), this)),
      cmdSysInfo(new QPushButton(QStringLiteral("&System Info..."), this)),
      Cmd_LoadMore(new QPushButton(QStringLiteral("More..."), this)) {
  setWindowTitle(QStringLiteral("About BARVON"));
  lblVersion1->setObjectName(QStringLiteral("lblVersion1"));
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
  Cmd_LoadMore->setObjectName(QStringLiteral("Cmd_LoadMore"));
  Build();
  Take_Commands({cmdOK, cmdSysInfo, Cmd_LoadMore});
  Set_Tab_Order({cmdOK, cmdSysInfo, Cmd_LoadMore});
}

void frmAbout::Build() {
  auto* picture = new QLabel(this);
  picture->setObjectName(QStringLiteral("picIcon"));
  picture->setAccessibleName(QStringLiteral("The sign of BARVON"));
  picture->setPixmap(QIcon(QStringLiteral(":/pictures/barvon.svg")).pixmap(kPicture));
  QFont large = lblTitle->font();
  large.setPointSizeF(large.pointSizeF() * 1.25);
  large.setBold(true);
  lblTitle->setFont(large);

  auto* texts = new QVBoxLayout;
  texts->setSpacing(10);
  for (QWidget* part : {static_cast<QWidget*>(lblTitle), static_cast<QWidget*>(lblVersion1),
                        static_cast<QWidget*>(lblDescription), static_cast<QWidget*>(Line(this)),
                        static_cast<QWidget*>(lblDisclaimer)}) {
    texts->addWidget(part);
  }
  auto* upper = new QHBoxLayout;
  upper->setSpacing(18);
  upper->addWidget(picture, 0, Qt::AlignTop);
  upper->addLayout(texts, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (QPushButton* button : {cmdOK, cmdSysInfo, Cmd_LoadMore}) buttons->addWidget(button);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(18, 18, 18, 14);
  all->setSpacing(16);
  all->addLayout(upper, 1);
  all->addLayout(buttons);
}

void frmAbout::StartSysInfo() { Show_Message({"System Information Is Unavailable At This Time"}); }

void frmAbout::Command1_Click(int index) {
  if (index == kSystemInfo) return StartSysInfo();
  if (index == kMore) return Open_Screen_Or_Tell(kAboutMore, true);
  Unload();
}

frmAboutMore::frmAboutMore(QWidget* workspace)
    : Input_Screen(kAboutMore.name, workspace, {.on_return = 0, .cancel = 0, .help = {}}) {
  setWindowTitle(QStringLiteral("More About BARVON"));
  const QString built = QLatin1String(kMoreBuilt) + QStringLiteral("Qt ") +
                        QLatin1String(qVersion()) + QLatin1String(kMorePlots);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(18, 18, 18, 14);
  all->setSpacing(14);
  int place = 0;
  for (const QString& text : {QString::fromLatin1(kMoreComputed), QString::fromLatin1(kMoreLeft),
                              QString::fromLatin1(kMoreReferences), built}) {
    const std::string name = "lblMore(" + std::to_string(place++) + ")";
    all->addWidget(Paragraph(name.c_str(), text, this));
  }
  all->addStretch();
  all->addLayout(Make_Command1({QStringLiteral("&Close")}));
}

void frmAboutMore::Command1_Click(int) { Unload(); }

}  // namespace barvon
