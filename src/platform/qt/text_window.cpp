#include "platform/qt/text_window.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

// Wide enough for a listing of 80 columns.
constexpr QSize kSize{760, 560};

}  // namespace

Text_Window::Text_Window(QWidget* parent)
    : QDialog(parent), Text1(new QPlainTextEdit(this)), Find(new QLineEdit(this)) {
  setObjectName("Text_Window");
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(false);
  resize(kSize);

  Text1->setObjectName("Text1");
  Text1->setAccessibleName("Text of the file");
  Text1->setReadOnly(true);
  Text1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  Text1->setLineWrapMode(QPlainTextEdit::NoWrap);
  Text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

  Find->setObjectName("Find");
  auto* label = new QLabel("&Find", this);
  label->setBuddy(Find);
  auto* next = new QPushButton("&Next", this);
  auto* close = new QPushButton("&Close", this);
  close->setAutoDefault(false);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(Find, 1);
  row->addWidget(next);
  row->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Text1, 1);
  column->addLayout(row);

  next->setDefault(true);
  connect(next, &QPushButton::clicked, this, &Text_Window::Find_Next);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, Find, [this] { Find->setFocus(); });
}

bool Text_Window::Load(const std::string& path) {
  std::string bytes;
  if (Read_Whole_File(path, bytes) != 0) return false;
  Text1->setPlainText(QString::fromStdString(From_Settings_Bytes(bytes)));
  setWindowTitle(QString::fromStdString(path));
  return true;
}

void Text_Window::Find_Next() {
  if (Find->text().isEmpty() || Text1->find(Find->text())) return;
  // Behind the last place the search starts again at the top.
  const QTextCursor former = Text1->textCursor();
  Text1->moveCursor(QTextCursor::Start);
  if (!Text1->find(Find->text())) Text1->setTextCursor(former);
}

}  // namespace barvon
