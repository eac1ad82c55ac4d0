#include "platform/qt/qt_document_opener.h"

#include <QMimeDatabase>
#include <QProcess>
#include <QProcessEnvironment>
#include <optional>
#include <string>
#include <utility>

#include "platform/files/paths.h"
#include "platform/process/search_path.h"
#include "platform/process/viewer_program.h"

namespace barvon {
namespace {

constexpr int kQueryMilliseconds = 3000;

/// Whether the desktop names a program for the kind of file. A desktop that does not answer in
/// time has none.
bool Has_Program_For(const std::string& query, const QString& kind) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  if (const auto path = Lasting_Search_Path()) {
    environment.insert(QStringLiteral("PATH"), QString::fromStdString(*path));
  }
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(QString::fromStdString(query), {"query", "default", kind});
  return process.waitForFinished(kQueryMilliseconds) && process.exitCode() == 0 &&
         !process.readAllStandardOutput().trimmed().isEmpty();
}

Own_Text_Window& Own_Window() {
  static Own_Text_Window window;
  return window;
}

bool Open_In_Own_Window(const std::string& path) { return Own_Window() && Own_Window()(path); }

/// The desktop starts its own program: it outlives this one and is not waited for. An association
/// may name a program that is gone, which only the opener's end tells.
bool Open_By_Desktop(const std::string& path) {
  const std::optional<std::string> opener = Find_Program("xdg-open");
  const std::optional<std::string> query = Find_Program("xdg-mime");
  if (!opener || !query) return false;
  const QString kind = QMimeDatabase().mimeTypeForFile(QString::fromStdString(path)).name();
  if (!Has_Program_For(*query, kind) && !Has_Program_For(*query, "text/plain")) return false;
  const auto when_over = [path](const Process_End& end, const std::string&) {
    if (end.exit_code > 0 || end.signal != 0) Open_In_Own_Window(path);
  };
  // From the root on no name is taken for an option or for an address.
  return Start_Viewer({*opener, Absolute_Path(path)}, {}, when_over) == 0;
}

}  // namespace

bool Open_Qt_Document(const std::string& path) {
  return Open_By_Desktop(path) || Open_In_Own_Window(path);
}

Own_Text_Window Set_Own_Text_Window(Own_Text_Window window) {
  return std::exchange(Own_Window(), std::move(window));
}

}  // namespace barvon
