// The memory of the program after every screen was open once, held against the goal in all and
// without the unchanged pages of files: those of the libraries are in memory once for all programs,
// and given up when memory runs short. Ends with 1 when either misses the goal, with 2 when a
// screen of the table was not open.
//
//   QT_QPA_PLATFORM=offscreen memory_bench

#include <QApplication>
#include <QDialog>
#include <QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "checks/check_data.h"
#include "core/desk/open_file.h"
#include "core/desk/project_hold.h"
#include "core/desk/screen_register.h"
#include "core/project_record.h"
#include "figures.h"
#include "platform/qt/end_signals.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/qt_services.h"
#include "program_screens.h"
#include "workspace/main_window.h"
#include "workspace/quit_rules.h"

namespace {

using namespace barvon;

constexpr double kMost = 48;  // MiB

struct Memory {
  double total = 0;      // MiB in memory, whoever else uses the pages too
  double own = 0;        // of them, without the unchanged pages of files
  double unchanged = 0;  // pages of files as they are on disk
};

/// Sums up what each mapping says of itself.
Memory Memory_Now() {
  constexpr double kMiB = 1024;
  Memory memory;
  std::ifstream maps("/proc/self/smaps");
  bool of_file = false;
  double clean = 0;
  for (std::string line; std::getline(maps, line);) {
    const auto value = [&line] { return std::atof(line.substr(line.find(':') + 1).c_str()); };
    if (line.find(':') > line.find('-')) of_file = line.find('/') != std::string::npos;
    if (line.starts_with("Rss:")) memory.total += value() / kMiB;
    if (line.starts_with("Shared_Clean:")) clean = value();
    if (line.starts_with("Private_Clean:") && of_file) {
      memory.unchanged += (clean + value()) / kMiB;
    }
  }
  memory.own = memory.total - memory.unchanged;
  return memory;
}

[[noreturn]] void Give_Up(const char* what) {
  std::fprintf(stderr, "%s: does not open as it should\n", what);
  Release_Project();  // no lock stays beside the sample
  std::_Exit(2);
}

void Let_All_Happen() {
  for (int i = 0; i < 5; ++i) QApplication::processEvents();
}

/// Every window but the main one is closed.
void Close_All(const QWidget* main) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window == main || !window->isVisible()) continue;
    if (auto* screen = dynamic_cast<Input_Screen*>(window)) {
      screen->Unload();
    } else if (auto* dialog = qobject_cast<QDialog*>(window)) {
      dialog->reject();
    } else {
      window->close();
    }
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Let_All_Happen();
}

void Load(const char* sample) {
  if (!Open_Project(sample, Project())) Give_Up(sample);
  Project().ShowMode = 0;  // screens open beside each other
}

/// All but the main window and the offer at a start of what a killed window left.
bool Is_Opened_Alone(const Screen_Row& row) {
  const std::string name = row.name;
  return row.kind != Screen_Kind::Command && name != "Main" && name != "frmRecovery";
}

bool Is_Any_Open(const QWidget* main) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window != main && window->isVisible()) return true;
  }
  return false;
}

void Open_And_Close(const QWidget* main, const Screen_Row& row, int& opened) {
  if (!Open_Screen(row, false)) Give_Up(row.name);
  Let_All_Happen();
  if (QApplication::activeModalWidget() != nullptr || !Is_Any_Open(main)) Give_Up(row.name);
  ++opened;
  Close_All(main);
}

}  // namespace

int main(int count, char** values) {
  // The offscreen display tells of what it can't do at every window.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(count, values);
  Apply_Light_Palette(application);
  const QTemporaryDir folder;
  const std::string application_folder = folder.path().toStdString();
  std::filesystem::copy_file(BARVON_HELP_FILE, application_folder + "/BARVON.HLP");
  std::filesystem::copy(BARVON_SAMPLES "/database", application_folder);
  const Qt_Services services;
  Main main(application_folder);
  Register_Program_Screens(&main);
  main.show();
  Let_All_Happen();
  setvbuf(stdout, nullptr, _IOLBF, 0);
  const Memory at_start = Memory_Now();
  Load(BARVON_SAMPLES "/Variable_96_By_96.DUI");
  const Memory loaded = Memory_Now();
  int opened = 0;
  for (const Screen_Row& row : kScreens) {
    std::puts(row.name);
    if (Is_Opened_Alone(row)) Open_And_Close(&main, row, opened);
  }
  Check_Project(Project());
  Open_And_Close(&main, Row_Of_Screen("frmErrorList"), opened);
  Show_Help({Help_Command::Index, 0, "", false});
  Let_All_Happen();
  Close_All(&main);
  const Memory at_end = Memory_Now();
  bench::Figures figures;
  figures.Note("screens that were open", opened, "");
  figures.Note("at the start, in all", at_start.total, "MiB");
  figures.Note("at the start, its own", at_start.own, "MiB");
  figures.Note("with the project, its own", loaded.own, "MiB");
  figures.Note("at the end, unchanged pages of files", at_end.unchanged, "MiB");
  figures.Note("growth by all screens and the help, in all", at_end.total - loaded.total, "MiB");
  figures.Judge("memory after every screen, in all", at_end.total, "MiB", kMost);
  figures.Judge("memory after every screen, its own", at_end.own, "MiB", kMost);
  std::fflush(nullptr);
  Release_Project();  // no lock stays beside the sample
  std::_Exit(figures.Exit_Code());
}
