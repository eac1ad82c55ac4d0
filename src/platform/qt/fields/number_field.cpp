#include "platform/qt/fields/number_field.h"

#include <QAction>
#include <QEvent>
#include <QIcon>
#include <QPointer>
#include <utility>

#include "platform/qt/fields/encoding_validator.h"

namespace barvon {
namespace {

constexpr char kMark[] = "reads_as";

/// A text of the field that the note stands in for while there is one.
struct Lent_Text {
  QString note, own;

  /// What the field is to show, given what it shows now.
  QString Next(const QString& shown, const QString& next_note) {
    if (note.isEmpty() || shown != note) own = shown;
    note = next_note;
    return note.isEmpty() ? own : note;
  }
};

class Number_Mark : public QAction {
 public:
  Number_Mark(QLineEdit* field, Number_Note note)
      : QAction(field), field_(field), note_(std::move(note)) {
    setObjectName(QLatin1String(kMark));
    setIcon(QIcon(QStringLiteral(":/pictures/reads-as.svg")));
    field->addAction(this, QLineEdit::TrailingPosition);
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, [this] { Follow(); });
    Follow();
  }

  QString note() const { return QString::fromStdString(note_(field_->text().toStdString())); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // A change under blocked signals shows itself by a repaint at the latest.
    if (event->type() == QEvent::Paint && field_->text() != followed_) {
      QMetaObject::invokeMethod(
          this, [this] { Follow(); }, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::ToolTip) Follow();
    return QAction::eventFilter(watched, event);
  }

 private:
  void Follow() {
    followed_ = field_->text();
    const QString now = note();
    setVisible(!now.isEmpty());
    setToolTip(now);
    setText(now);
    field_->setToolTip(tool_tip_.Next(field_->toolTip(), now));
    field_->setAccessibleDescription(description_.Next(field_->accessibleDescription(), now));
  }

  QLineEdit* field_;
  Number_Note note_;
  QString followed_;
  Lent_Text tool_tip_, description_;
};

Number_Mark* Mark_Of(const QLineEdit* field) {
  return static_cast<Number_Mark*>(
      field->findChild<QAction*>(QLatin1String(kMark), Qt::FindDirectChildrenOnly));
}

}  // namespace

void Make_Number_Field(QLineEdit* field, Number_Note note) {
  delete Mark_Of(field);
  new Number_Mark(field, std::move(note));
}

QString Number_Note_Of(const QLineEdit* field) {
  const Number_Mark* mark = Mark_Of(field);
  return mark == nullptr ? QString() : mark->note();
}

void Enter_Text(QLineEdit* field, const QString& text) {
  field->selectAll();
  field->insert(text);
}

void Make_Text_Field(QLineEdit* field, int max_length) {
  field->setValidator(new Encoding_Validator(field));
  if (max_length > 0) field->setMaxLength(max_length);
}

}  // namespace barvon
