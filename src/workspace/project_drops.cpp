#include "workspace/project_drops.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <string>

#include "core/desk/file_kinds.h"
#include "workspace/file_menu.h"

namespace barvon {
namespace {

/// The file of the drop, "" when it holds none that opens as a project.
std::string Project_Of(const QDropEvent& drop) {
  const QList<QUrl> files = drop.mimeData()->urls();
  if (files.size() != 1 || !files.front().isLocalFile()) return "";
  const std::string path = files.front().toLocalFile().toStdString();
  const std::string letters = Last_Three_Letters(path);
  return letters == kProjectLetters || letters == kDilutionLetters ? path : "";
}

class Project_Drops : public QObject {
 public:
  Project_Drops(QWidget& window, ProjectRecord& record) : QObject(&window), record_(record) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
      return QObject::eventFilter(watched, event);
    }
    auto* drop = static_cast<QDropEvent*>(event);
    const std::string path = Project_Of(*drop);
    if (path.empty()) return QObject::eventFilter(watched, event);
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    // Whoever dragged the file waits for this to end, and a question may be asked.
    if (event->type() == QEvent::Drop) {
      QTimer::singleShot(0, this, [this, path] { Open_From_Workspace(path, record_); });
    }
    return true;
  }

 private:
  ProjectRecord& record_;
};

}  // namespace

void Take_Project_Drops(QWidget& window, ProjectRecord& record) {
  new Project_Drops(window, record);
}

}  // namespace barvon
