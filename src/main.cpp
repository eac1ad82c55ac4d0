#include <QApplication>
#include <QIcon>
#include <clocale>
#include <string_view>

#include "core/desk/recent_files.h"
#include "core/desk/settings_keys.h"
#include "core/desk/workspace_port.h"
#include "dilution/dilution_file.h"
#include "platform/files/app_folder.h"
#include "platform/files/paths.h"
#include "platform/process/search_path.h"
#include "platform/qt/ask/qt_file_dialog.h"
#include "platform/qt/end_signals.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/qt_services.h"
#include "platform/qt/toolkit_files.h"
#include "program_screens.h"
#include "recovery/frm_recovery.h"
#include "recovery/recovery_clock.h"
#include "report/report_commands.h"
#include "run/create_process.h"
#include "workspace/main_window.h"
#include "workspace/quit_rules.h"
#include "workspace/tips_file.h"

int main(int given, char** arguments) {
  barvon::Keep_Lasting_Search_Path();
  // The command line is read for nothing but the report that barvon-run asks for: a project is
  // opened from the File menu.
  const bool reports = given == 4 && std::string_view(arguments[1]) == "--report-pdf";
  int count = 1;
  barvon::Load_No_Plugins_From(barvon::Program_Folder());
  QApplication application(count, arguments);
  // The toolkit takes the desktop's locale; numbers keep their point.
  std::setlocale(LC_NUMERIC, "C");
  if (reports) return barvon::Write_Report_Pdf(arguments[2], arguments[3]);
  // A desktop finds the program's menu entry and picture by it.
  QApplication::setDesktopFileName(QStringLiteral("barvon"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/barvon.svg")));
  barvon::Apply_Light_Palette(application);
  const barvon::Qt_Services services;
  barvon::Stop_Run_At_Exit();
  barvon::Register_Dilution_File();
  const barvon::End_Signals end_signals([] {
    barvon::Port().recovery.leave_unasked();
    barvon::End_Program();
  });
  barvon::Take_Program_Folder(barvon::Program_Folder());
  barvon::Keep_No_Toolkit_Settings();
  barvon::Take_Delivered_Settings();
  barvon::Main main(barvon::Application_Folder());
  barvon::Register_Program_Screens(&main);
  main.show();
  barvon::Begin_Dialogs_In(barvon::Folder_Of(barvon::Recent_Menu()[1]));
  barvon::Tell_Settings_Left();
  barvon::Recovery_Keeper keeper(barvon::Project());
  const barvon::Recovery_Clock clock(keeper);
  // One thing at a time: who goes on with yesterday's work needs no tip.
  if (!barvon::Offer_Recovery(&main, keeper)) barvon::Open_Tips_At_Start();
  return QApplication::exec();
}
