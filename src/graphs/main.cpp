#include <QApplication>
#include <QIcon>
#include <QSettings>
#include <QTimer>
#include <clocale>

#include "graphs/frm_graphs.h"
#include "graphs/graph_menus.h"
#include "graphs/hand_over.h"
#include "platform/files/app_folder.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/qt/end_signals.h"
#include "platform/qt/help/qt_help_viewer.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/qt_services.h"

int main(int given, char** arguments) {
  // The main program hands over by the settings; a person who starts this by hand may name a file.
  const std::string named = given > 1 ? arguments[1] : "";
  int count = 1;
  QApplication application(count, arguments);
  // The toolkit takes the desktop's locale; numbers keep their point.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setDesktopFileName(QStringLiteral("barvon"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/barvon.svg")));
  barvon::Apply_Light_Palette(application);
  const barvon::Qt_Services services;
  const barvon::End_Signals end_signals([] { QApplication::quit(); });
  barvon::Take_Program_Folder(barvon::Program_Folder());
  // A picture that was being saved when the program was killed is found by its note.
  barvon::Set_Save_Notes_Folder(barvon::Application_Folder());
  barvon::Remove_Leftover_Saves({});
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QString::fromStdString(barvon::Application_Folder()));
  barvon::Set_Help_File(barvon::Join_Path(barvon::Delivered_Folder(), barvon::kHelpFileOfGraphics));
  barvon::Hand_Over given_over = barvon::Read_Hand_Over(barvon::Application_Folder());
  if (!named.empty()) given_over = {barvon::Absolute_Path(named), barvon::kOverview};
  barvon::frmGraphs window;
  barvon::Build_Graph_Menus(window);
  const bool usable = barvon::Leads_To_Results(given_over.file);
  window.tabs().setCurrentIndex(given_over.view);
  if (usable) window.Show_Results_Of(given_over.file, given_over.view);
  window.show();
  if (!usable) QTimer::singleShot(0, &window, &barvon::frmGraphs::Open);
  return QApplication::exec();
}
