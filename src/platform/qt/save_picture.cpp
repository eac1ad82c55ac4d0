#include "platform/qt/save_picture.h"

#include <QString>
#include <system_error>

#include "platform/ask/file_dialog.h"
#include "platform/ask/message_box.h"
#include "platform/files/safe_file.h"

namespace barvon {
namespace {

bool Tell_Failure(const std::string& path, const std::string& reason) {
  Show_Critical("The picture was not saved as " + path + ": " + reason +
                ".\nA file that was there before is unchanged.");
  return false;
}

}  // namespace

bool Save_Picture(const std::string& name, const std::string& kind,
                  const std::function<std::string()>& content) {
  const QString extension = QStringLiteral(".") + QString::fromStdString(kind).toLower();
  const auto complete = [extension](const std::string& path) {
    const bool has_it = QString::fromStdString(path).endsWith(extension, Qt::CaseInsensitive);
    return has_it ? path : path + extension.toStdString();
  };
  const std::string pattern = "*" + extension.toStdString();
  const auto chosen = Ask_Save_File({.title = "Save Picture as " + kind,
                                     .filters = {{kind + " Pictures (" + pattern + ")", pattern}},
                                     .name = complete(name),
                                     .complete = complete});
  if (!chosen) return false;
  const std::string path = complete(*chosen);
  const std::string bytes = content();
  if (bytes.empty()) return Tell_Failure(path, "it could not be drawn");
  const int error = Write_Whole_File(path, bytes);
  if (error == 0) return true;
  return Tell_Failure(path, std::generic_category().message(error));
}

}  // namespace barvon
