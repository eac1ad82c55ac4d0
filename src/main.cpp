#include <QApplication>
#include <QIcon>
#include <clocale>

#include "dilution/dilution_file.h"
#include "platform/files/app_folder.h"
#include "platform/qt/end_signals.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/qt_services.h"
#include "program_screens.h"
#include "run/create_process.h"
#include "workspace/main_window.h"
#include "workspace/quit_rules.h"
#include "workspace/tips_file.h"

int main(int, char** arguments) {
  // The command line is not read: a project is opened from the File menu.
  int count = 1;
  QApplication application(count, arguments);
  // The toolkit takes the desktop's locale; numbers keep their point.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/barvon.svg")));
  barvon::Apply_Light_Palette(application);
  const barvon::Qt_Services services;
  barvon::Stop_Run_At_Exit();
  barvon::Register_Dilution_File();
  const barvon::End_Signals end_signals(barvon::End_Program);
  barvon::Main main(barvon::Program_Folder());
  barvon::Register_Program_Screens(&main);
  main.show();
  barvon::Open_Tips_At_Start();
  return QApplication::exec();
}
