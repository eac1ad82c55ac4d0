#include "platform/qt/help/help_find_bar.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt/help/help_page.h"

namespace barvon {

Help_Find_Bar::Help_Find_Bar(Help_Page& page, QWidget* parent)
    : QWidget(parent), page_(page), text_(new QLineEdit(this)), outcome_(new QLabel(this)) {
  setObjectName(QStringLiteral("HelpFindBar"));
  auto* label = new QLabel(QStringLiteral("Find in &page:"), this);
  label->setBuddy(text_);
  text_->setObjectName(QStringLiteral("HelpFindText"));
  outcome_->setObjectName(QStringLiteral("HelpFindOutcome"));
  auto* next = new QPushButton(QStringLiteral("&Next"), this);
  auto* previous = new QPushButton(QStringLiteral("Pre&vious"), this);

  auto* captions = new QHBoxLayout;
  captions->addWidget(label);
  captions->addWidget(outcome_, 1, Qt::AlignRight);
  auto* line = new QHBoxLayout;
  line->addWidget(text_, 1);
  line->addWidget(next);
  line->addWidget(previous);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(6, 4, 6, 6);
  column->addLayout(captions);
  column->addLayout(line);
  hide();

  connect(text_, &QLineEdit::returnPressed, this, [this] { Find(false); });
  connect(next, &QPushButton::clicked, this, [this] { Find(false); });
  connect(previous, &QPushButton::clicked, this, [this] { Find(true); });
}

void Help_Find_Bar::Open() {
  show();
  outcome_->clear();
  text_->setFocus();
  text_->selectAll();
}

void Help_Find_Bar::Find(bool backward) {
  if (text_->text().isEmpty()) {
    Open();
    return;
  }
  const bool found = page_.Find_Next(text_->text(), backward);
  outcome_->setText(found ? QString() : QStringLiteral("Not on this page."));
}

}  // namespace barvon
