#include "platform/qt/qt_document_opener.h"

#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <string>
#include <utility>

#include "platform/process/viewer_program.h"

namespace barvon {
namespace {

constexpr int kQueryMilliseconds = 3000;

/// Whether the desktop names a program for the kind of file. A desktop that does not answer in
/// time has none.
bool Has_Program_For(const QString& query, const QString& kind) {
  QProcess process;
  process.start(query, {"query", "default", kind});
  return process.waitForFinished(kQueryMilliseconds) && process.exitCode() == 0 &&
         !process.readAllStandardOutput().trimmed().isEmpty();
}

Own_Text_Window& Own_Window() {
  static Own_Text_Window window;
  return window;
}

bool Open_In_Own_Window(const QString& path) {
  return Own_Window() && Own_Window()(path.toStdString());
}

/// The desktop starts its own program: it outlives this one and is not waited for. An association
/// may name a program that is gone, which only the opener's end tells.
bool Open_By_Desktop(const QString& path) {
  const QString opener = QStandardPaths::findExecutable("xdg-open");
  const QString query = QStandardPaths::findExecutable("xdg-mime");
  if (opener.isEmpty() || query.isEmpty()) return false;
  const QString kind = QMimeDatabase().mimeTypeForFile(path).name();
  if (!Has_Program_For(query, kind) && !Has_Program_For(query, "text/plain")) return false;
  const auto when_over = [path](const Process_End& end, const std::string&) {
    if (end.exit_code > 0 || end.signal != 0) Open_In_Own_Window(path);
  };
  return Start_Viewer({opener.toStdString(), path.toStdString()}, {}, when_over) == 0;
}

}  // namespace

bool Open_Qt_Document(const std::string& path) {
  const QString name = QString::fromStdString(path);
  return Open_By_Desktop(name) || Open_In_Own_Window(name);
}

Own_Text_Window Set_Own_Text_Window(Own_Text_Window window) {
  return std::exchange(Own_Window(), std::move(window));
}

}  // namespace barvon
