#include "platform/qt/toolkit_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QStringList>

namespace barvon {

void Load_No_Plugins_From(const std::string& program_folder) {
  const int folder = ::open(program_folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  // The application adds its folder to the paths while it is made and then does anew what was
  // changed in them before. So the folder is made one of them, and taken out. Its name may hold
  // what separates two of them, so it is not given by name.
  constexpr char kPaths[] = "QT_PLUGIN_PATH";
  const bool was_set = qEnvironmentVariableIsSet(kPaths);
  const QByteArray former = qgetenv(kPaths);
  const QByteArray entry = "/proc/self/fd/" + QByteArray::number(folder);
  qputenv(kPaths, former + ':' + entry);
  QStringList paths = QCoreApplication::libraryPaths();
  paths.removeAll(QDir(QString::fromLatin1(entry)).canonicalPath());
  QCoreApplication::setLibraryPaths(paths);
  if (was_set) {
    qputenv(kPaths, former);
  } else {
    qunsetenv(kPaths);
  }
  ::close(folder);
}

void Keep_No_Toolkit_Settings() {
  // Nothing can stand below a device.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

}  // namespace barvon
