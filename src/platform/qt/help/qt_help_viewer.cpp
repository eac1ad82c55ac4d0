#include "platform/qt/help/qt_help_viewer.h"

#include <QPointer>
#include <QString>
#include <filesystem>
#include <system_error>

#include "platform/ask/message_box.h"
#include "platform/qt/help/help_window.h"

namespace barvon {
namespace {

std::string& Help_File() {
  static std::string path;
  return path;
}

QPointer<Help_Window>& Window() {
  static QPointer<Help_Window> window;
  return window;
}

/// The help window on the present help file; none when the user has been told that it can't be.
Help_Window* Open_Window() {
  const QString path = QString::fromStdString(Help_File());
  if (Window() && Window()->library().path() == path) return Window();
  delete Window();
  std::error_code error;
  if (!std::filesystem::exists(Help_File(), error)) {
    Show_Warning("The help file is missing: " + Help_File());
    return nullptr;
  }
  auto library = Help_Library::Open(path);
  if (library == nullptr) {
    Show_Warning("The help file can't be shown: " + Help_File());
    return nullptr;
  }
  Window() = new Help_Window(std::move(library));
  return Window();
}

}  // namespace

void Set_Help_File(const std::string& path) { Help_File() = path; }

void Show_Qt_Help(const Help_Request& request) {
  if (request.command == Help_Command::Quit) {
    delete Window();
    return;
  }
  Help_Window* window = Open_Window();
  if (window == nullptr) return;
  switch (request.command) {
    case Help_Command::Context:
      window->Show_Topic(request.topic);
      break;
    case Help_Command::Index:
      window->Show_Contents();
      break;
    case Help_Command::Finder:
      window->navigation().Open_Contents();
      break;
    case Help_Command::PartialKey:
      window->navigation().Open_Index(QString::fromStdString(request.key));
      break;
    case Help_Command::Quit:
      break;
  }
  if (request.beside) {
    window->Come_Beside();
  } else {
    window->Come_Forward();
  }
}

}  // namespace barvon
