#include "platform/qt/fields/field_rows.h"

#include <QEvent>
#include <utility>

#include "platform/qt/fields/plain_caption.h"

namespace barvon {
namespace {

constexpr char kTag[] = "tag";
constexpr int kFieldCharacters = 12;

/// Enables and disables a label with its control.
class Label_State : public QObject {
 public:
  Label_State(QLabel* label, QWidget* control) : QObject(label), label_(label), control_(control) {
    control->installEventFilter(this);
    label->setEnabled(control->isEnabled());
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::EnabledChange) label_->setEnabled(control_->isEnabled());
    return QObject::eventFilter(watched, event);
  }

 private:
  QLabel* label_;
  QWidget* control_;
};

/// Fields of numbers are as wide as each other, typed or shown.
void Size_For_Number(QLineEdit* field) {
  const int text_width = field->fontMetrics().averageCharWidth() * kFieldCharacters;
  field->setMinimumWidth(text_width + field->sizeHint().height());  // with room for the mark
  field->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

}  // namespace

Field_Rows::Field_Rows(QWidget* frame) : grid_(new QGridLayout(frame)) {
  grid_->setColumnStretch(0, 1);
}

QLabel* Field_Rows::Number(const QString& label, QLineEdit* field, Number_Note note,
                           const QString& tag) {
  Make_Number_Field(field, std::move(note));
  Set_Tag(field, tag);
  QLabel* const shown = Add(label, field);
  Size_For_Number(field);
  return shown;
}

QLabel* Field_Rows::Text(const QString& label, QLineEdit* field, int max_length) {
  Make_Text_Field(field, max_length);
  return Add(label, field);
}

QLabel* Field_Rows::Shown(const QString& label, QLineEdit* field, const QString& tag) {
  Set_Tag(field, tag);
  field->setReadOnly(true);
  QPalette palette = field->palette();
  palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  field->setPalette(palette);
  QLabel* const shown = Add(label, field);
  Size_For_Number(field);
  return shown;
}

void Field_Rows::Whole_Row(QWidget* control) {
  grid_->addWidget(control, grid_->rowCount(), 0, 1, 2);
  if (last_ != nullptr) QWidget::setTabOrder(last_, control);
  last_ = control;
}

QLabel* Field_Rows::Control(const QString& label, QWidget* control, const QString& tag) {
  Set_Tag(control, tag);
  return Add(label, control);
}

QLabel* Field_Rows::Add(const QString& text, QWidget* control) {
  auto* label = new QLabel(grid_->parentWidget());
  label->setWordWrap(true);
  label->setBuddy(control);
  new Label_State(label, control);
  Rename(label, text);
  const int row = grid_->rowCount();
  grid_->addWidget(label, row, 0);
  grid_->addWidget(control, row, 1);
  if (last_ != nullptr) QWidget::setTabOrder(last_, control);
  last_ = control;
  return label;
}

void Rename(QLabel* label, const QString& text) {
  label->setText(text);
  label->buddy()->setAccessibleName(Plain_Caption(text));
}

void Set_Tag(QWidget* field, const QString& tag) { field->setProperty(kTag, tag); }

QString Tag_Of(const QWidget* field) { return field->property(kTag).toString(); }

}  // namespace barvon
