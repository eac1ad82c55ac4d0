#include "platform/qt/fields/note_box.h"

#include <cmath>

namespace barvon {

QPlainTextEdit* Make_Note_Box(const char* reference, const QString& spoken_name, int lines,
                              QWidget* parent) {
  auto* note = new QPlainTextEdit(parent);
  note->setObjectName(QLatin1String(reference));
  note->setAccessibleName(spoken_name);
  note->setReadOnly(true);
  note->setTabChangesFocus(true);
  const double room = 2 * (note->document()->documentMargin() + note->frameWidth());
  note->setFixedHeight(note->fontMetrics().lineSpacing() * lines +
                       static_cast<int>(std::ceil(room)));
  return note;
}

}  // namespace barvon
