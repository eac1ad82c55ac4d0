#include "platform/ask/file_dialog.h"

#include <utility>

namespace barvon {
namespace {

File_Dialog_Presenter& Presenter() {
  static File_Dialog_Presenter presenter;
  return presenter;
}

}  // namespace

std::optional<std::string> Ask_Open_File(const File_Request& request) {
  return Presenter().open ? Presenter().open(request) : std::nullopt;
}

std::optional<std::string> Ask_Save_File(const File_Request& request) {
  return Presenter().save ? Presenter().save(request) : std::nullopt;
}

bool Ask_Printer(const std::string& title, int pages) {
  return Presenter().printer && Presenter().printer(title, pages);
}

void Show_Printer_Setup() {
  if (Presenter().printer_setup) Presenter().printer_setup();
}

File_Dialog_Presenter Set_File_Dialog_Presenter(File_Dialog_Presenter presenter) {
  return std::exchange(Presenter(), std::move(presenter));
}

}  // namespace barvon
