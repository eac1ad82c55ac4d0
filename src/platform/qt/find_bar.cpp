#include "platform/qt/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

namespace barvon {

Find_Bar::Find_Bar(Find_Bar_Parts parts, QWidget* parent)
    : QWidget(parent),
      parts_(std::move(parts)),
      text_(new QLineEdit(this)),
      outcome_(new QLabel(this)) {
  setObjectName(parts_.name + QStringLiteral("Bar"));
  auto* label = new QLabel(parts_.caption, this);
  label->setBuddy(text_);
  text_->setObjectName(parts_.name + QStringLiteral("Text"));
  outcome_->setObjectName(parts_.name + QStringLiteral("Outcome"));
  auto* next = new QPushButton(QStringLiteral("&Next"), this);
  auto* previous = new QPushButton(parts_.previous, this);

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

  connect(next, &QPushButton::clicked, this, [this] { Find(false); });
  connect(previous, &QPushButton::clicked, this, [this] { Find(true); });
}

void Find_Bar::Open() {
  show();
  outcome_->clear();
  text_->setFocus();
  text_->selectAll();
}

void Find_Bar::Find(bool backward) {
  if (text_->text().isEmpty()) {
    Open();
    return;
  }
  const bool found = parts_.find(text_->text(), backward);
  outcome_->setText(found ? QString() : parts_.not_found);
}

/// The field leaves Return to its window, where a dialog would press its default button.
void Find_Bar::keyPressEvent(QKeyEvent* event) {
  const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (is_return && focusWidget() == text_) {
    Find(false);
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace barvon
