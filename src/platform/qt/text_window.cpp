#include "platform/qt/text_window.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/files/safe_file.h"
#include "platform/files/text_encoding.h"
#include "platform/qt/find_bar.h"

namespace barvon {
namespace {

// Wide enough for a listing of 80 columns.
constexpr QSize kSize{760, 560};

}  // namespace

Text_Window::Text_Window(QWidget* parent) : QDialog(parent), Text1(new QPlainTextEdit(this)) {
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

  auto* find_bar = new Find_Bar(
      {"Find", "&Find", "Not in this text.",
       [this](const QString& text, bool backward) { return Find_Around(*Text1, text, backward); }},
      this);
  find_bar->layout()->setContentsMargins(0, 0, 0, 0);
  auto* close = new QPushButton("&Close", this);
  close->setAutoDefault(false);
  auto* row = new QHBoxLayout;
  row->addWidget(find_bar, 1);
  row->addWidget(close, 0, Qt::AlignBottom);
  auto* column = new QVBoxLayout(this);
  column->addWidget(Text1, 1);
  column->addLayout(row);

  connect(close, &QPushButton::clicked, this, &QDialog::close);
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, find_bar, &Find_Bar::Open);
}

bool Text_Window::Load(const std::string& path) {
  std::string bytes;
  if (Read_Whole_File(path, bytes) != 0) return false;
  Text1->setPlainText(QString::fromStdString(From_Settings_Bytes(bytes)));
  setWindowTitle(QString::fromStdString(path));
  return true;
}

}  // namespace barvon
