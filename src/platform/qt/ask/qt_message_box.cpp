#include "platform/qt/ask/qt_message_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>
#include <vector>

#include "platform/qt/ask/window_in_front.h"

namespace barvon {
namespace {

QMessageBox::Icon Box_Icon(Icon icon) {
  switch (icon) {
    case Icon::Critical:
      return QMessageBox::Critical;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Warning:
      return QMessageBox::Warning;
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

std::vector<Answer> Answers_Of(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel:
      return {Answer::Ok, Answer::Cancel};
    case Buttons::YesNo:
      return {Answer::Yes, Answer::No};
    case Buttons::YesNoCancel:
      return {Answer::Yes, Answer::No, Answer::Cancel};
    case Buttons::Ok:
      break;
  }
  return {Answer::Ok};
}

QMessageBox::StandardButton Box_Button(Answer answer) {
  switch (answer) {
    case Answer::Yes:
      return QMessageBox::Yes;
    case Answer::No:
      return QMessageBox::No;
    case Answer::Cancel:
      return QMessageBox::Cancel;
    case Answer::Ok:
      break;
  }
  return QMessageBox::Ok;
}

/// A box of few words would be too narrow for its title and what the desktop puts beside it.
void Make_Room_For_Title(QMessageBox& box) {
  constexpr int kIconAndButtons = 130;
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + kIconAndButtons;
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

void Name_Picture(const QMessageBox& box) {
  static constexpr std::pair<QMessageBox::Icon, const char*> kNames[] = {
      {QMessageBox::Critical, "Error"},
      {QMessageBox::Question, "Question"},
      {QMessageBox::Warning, "Warning"},
      {QMessageBox::Information, "Information"}};
  auto* picture = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
  if (picture == nullptr) return;
  for (const auto& [icon, name] : kNames) {
    if (icon == box.icon()) picture->setAccessibleName(QLatin1String(name));
  }
}

Answer Show_Qt_Message(const Message& message) {
  QMessageBox box(Window_In_Front());
  box.setWindowTitle(QString::fromStdString(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(message.text));
  box.setIcon(Box_Icon(message.icon));
  Name_Picture(box);
  const std::vector<Answer> answers = Answers_Of(message.buttons);
  for (const Answer answer : answers) box.addButton(Box_Button(answer));
  box.setDefaultButton(Box_Button(message.on_return.value_or(answers.front())));
  box.setEscapeButton(Box_Button(Answer_On_Close(message)));

  Make_Room_For_Title(box);

  // A question that comes up in the middle of a long action is not waiting any more.
  const bool waiting = QApplication::overrideCursor() != nullptr;
  if (waiting) QApplication::setOverrideCursor(Qt::ArrowCursor);
  const int pressed = box.exec();
  if (waiting) QApplication::restoreOverrideCursor();

  for (const Answer answer : answers) {
    if (pressed == Box_Button(answer)) return answer;
  }
  return Answer_On_Close(message);
}

}  // namespace barvon
