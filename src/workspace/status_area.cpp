#include "workspace/status_area.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLayout>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "platform/files/paths.h"
#include "run/create_process.h"

namespace barvon {
namespace {

/// A button that goes away must not hand the focus on to the project's title, all of it selected:
/// the next key would replace it.
void Give_Up_Focus(QPushButton* button) { button->clearFocus(); }

}  // namespace

Status_Area::Status_Area(QWidget* parent) : QStatusBar(parent) {
  setObjectName(QStringLiteral("StatusArea"));
  setSizeGripEnabled(false);
  setContentsMargins(6, 0, 6, 0);

  Note_ = new Elided_Label(this);
  Note_->setObjectName(QStringLiteral("StatusNote"));
  Details_ = new QPushButton(QStringLiteral("Details..."), this);
  Details_->setObjectName(QStringLiteral("StatusDetails"));
  Program_ = new QLabel(this);
  Program_->setObjectName(QStringLiteral("StatusProgram"));
  Program_->setTextFormat(Qt::PlainText);
  StopRun_ = new QPushButton(QStringLiteral("Stop"), this);
  StopRun_->setObjectName(QStringLiteral("StopRun"));
  StopRun_->setToolTip(QStringLiteral("Ends the running program and everything that it started"));

  addWidget(Note_, 1);
  addPermanentWidget(Details_);
  addPermanentWidget(Program_);
  addPermanentWidget(StopRun_);
  // The line keeps its height while buttons come and go.
  setFixedHeight(sizeHint().height());
  Details_->hide();
  Show_Run(false, {});

  connect(Details_, &QPushButton::clicked, this, &Status_Area::Show_Details);
  connect(StopRun_, &QPushButton::clicked, this, [this] {
    Give_Up_Focus(StopRun_);
    StopRun_->setEnabled(false);
    Stop_Run();
  });
}

void Status_Area::Show_Note(const Status_Note& note) {
  Note_->setText(QString::fromStdString(note.text));
  details_ = QString::fromStdString(note.details);
  if (details_.isEmpty()) Give_Up_Focus(Details_);
  Details_->setVisible(!details_.isEmpty());
  // What does not fit is to be had in whole too, without a mouse to hover.
  layout()->activate();
  if (Note_->Is_Cut()) Details_->show();
}

void Status_Area::Take_Back_Note(const std::string& text) {
  if (Note_->text().toStdString() == text) Show_Note({});
}

void Status_Area::Show_Run(bool running, const std::string& program) {
  if (running) Show_Note({});
  Program_->setText(running ? "Running " + QString::fromStdString(Name_Of(program)) : QString());
  Program_->setToolTip(QString::fromStdString(program).toHtmlEscaped());
  Program_->setVisible(running);
  if (!running) Give_Up_Focus(StopRun_);
  StopRun_->setEnabled(running);
  StopRun_->setVisible(running);
}

void Status_Area::Show_Details() {
  auto* dialog = new QDialog(window());
  dialog->setObjectName(QStringLiteral("StatusDetailsDialog"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(QStringLiteral("BARVON"));
  auto* note = new QLabel(Note_->text(), dialog);
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  note->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* lines = new QPlainTextEdit(details_, dialog);
  lines->setObjectName(QStringLiteral("Text1"));
  lines->setAccessibleName(QStringLiteral("Details"));
  lines->setReadOnly(true);
  lines->setVisible(!details_.isEmpty());
  lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
  connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(dialog);
  layout->addWidget(note);
  layout->addWidget(lines, 1);
  if (details_.isEmpty()) layout->addStretch();
  layout->addWidget(buttons);
  dialog->resize(560, details_.isEmpty() ? 160 : 320);
  dialog->show();
  // What a program said last is what matters.
  lines->moveCursor(QTextCursor::End);
}

}  // namespace barvon
