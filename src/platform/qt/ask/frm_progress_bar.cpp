#include "platform/qt/ask/frm_progress_bar.h"

#include <QCoreApplication>
#include <QVBoxLayout>
#include <cmath>

namespace barvon {
namespace {

constexpr int kBarSteps = 1000;

}  // namespace

frmProgress_Bar::frmProgress_Bar(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  setObjectName(QStringLiteral("frmProgress_Bar"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  Label1_ = new Elided_Label(this);
  Label1_->setObjectName(QStringLiteral("Label1"));
  ProgressBar1_ = new QProgressBar(this);
  ProgressBar1_->setObjectName(QStringLiteral("ProgressBar1"));
  ProgressBar1_->setAccessibleName(QStringLiteral("Progress"));
  ProgressBar1_->setRange(0, kBarSteps);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 14, 16, 16);
  layout->setSpacing(8);
  layout->addWidget(Label1_);
  layout->addWidget(ProgressBar1_);
  setFixedSize(420, sizeHint().height());
}

void frmProgress_Bar::Open(const std::string& caption) {
  const QString text = QString::fromStdString(caption);
  setWindowTitle(text);
  Label1_->setText(text);
  ProgressBar1_->setValue(0);
  if (parentWidget() != nullptr) {
    move(parentWidget()->window()->frameGeometry().center() - rect().center());
  }
  show();
  Repaint();
}

void frmProgress_Bar::Move(double share) {
  ProgressBar1_->setValue(static_cast<int>(std::lround(share * kBarSteps)));
  Repaint();
}

void frmProgress_Bar::Repaint() {
  repaint();
  // The window system maps and exposes windows by events; those of the user wait.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace barvon
