#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <filesystem>
#include <functional>
#include <set>

#include "checks/check_data.h"
#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "core/project_record.h"
#include "platform/qt/ask/frm_progress_bar.h"
#include "platform/qt/ask/qt_file_dialog.h"
#include "platform/qt/help/help_window.h"
#include "platform/qt/help/qt_help_viewer.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/screen_window.h"
#include "program_screens.h"
#include "recovery/frm_recovery.h"
#include "support/screen_support.h"
#include "support/window_walk.h"
#include "workspace/note_pads.h"

namespace barvon {
namespace {

using namespace barvon::testing;

/// The program's screens for as long as a main window is there.
class Program_Screens {
 public:
  explicit Program_Screens(QWidget* main) { Register_Program_Screens(main); }
  ~Program_Screens() {
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
  }
};

using Look = std::function<void(QWidget& window, const std::string& state)>;

QWidget& Window_Named(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == QLatin1String(name)) return *window;
  }
  throw std::runtime_error(std::string("no window ") + name);
}

void Show(QWidget& window) {
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) throw std::runtime_error("a window stays hidden");
}

QWidget& Opened(const char* screen) {
  const Screen_Row* row = Find_Screen(screen);
  if (row == nullptr || !Open_Screen(*row, false)) {
    throw std::runtime_error(std::string("no screen ") + screen);
  }
  QWidget& window = Window_Named(screen);
  Show(window);
  return window;
}

void Look_At_Main(Main_Bench& bench, const Look& look) {
  look(bench.main(), "main menu board at start");
  for (int type = 0; type < 3; ++type) {
    bench.controls().SSPanel3(4)->click();
    bench.controls().SSOption1(type)->click();
    bench.controls().SSOption2(type % 2)->click();
    look(bench.main(), "main menu board, type " + std::to_string(type));
    bench.controls().SSPanel3(0)->click();
    look(bench.main(), "data board, type " + std::to_string(type));
  }
  Port().board.show_note({"It ended with code 1.", "its last words"});
  look(bench.main(), "with a remark");
  Port().run.state(true, "/opt/barvon/merak32");
  look(bench.main(), "while a program runs");
  Port().run.state(false, "");
}

void Look_At_Details(Main_Bench& bench, const Look& look) {
  for (const char* details : {"line\nline", ""}) {
    Port().board.show_note({std::string(200, 'w') + " words " + std::string(60, 'w'), details});
    bench.Child<QPushButton>("StatusDetails")->click();
    QWidget& dialog = Window_Named("StatusDetailsDialog");
    Show(dialog);
    look(dialog, details);
    dialog.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void Look_At_Start_Dialog(const Look& look) {
  QWidget& dialog = Opened("frmOpen");
  auto* next = dialog.findChild<QPushButton*>("Command1(1)");
  for (int page = 0; page < 3; ++page) {
    look(dialog, "page " + std::to_string(page));
    next->click();
  }
}

void Unload(QWidget& screen) {
  static_cast<Input_Screen&>(screen).Unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Look_At_Tips(Main_Bench& bench, const Look& look) {
  for (const char* tips : {BARVON_SOURCE "/resources/TIPOFDAY.TXT", ""}) {
    if (*tips != '\0') std::filesystem::copy_file(tips, bench.folder / "TIPOFDAY.TXT");
    QWidget& tip = Opened("frmTip");
    look(tip, *tips == '\0' ? "without the file" : "with a tip");
    Unload(tip);
    std::filesystem::remove(bench.folder / "TIPOFDAY.TXT");
  }
}

void Look_At_Error_List(const Look& look) {
  Check_Project(Project());
  QWidget& list = Opened("frmErrorList");
  look(list, "with findings");
  list.close();
}

void Look_At_Velocity(const Look& look) {
  Project().SimulationDuration = 5000;
  Project().AvgVelocityX = 0.25;
  Project().ConstVelocityX = 1.25;
  for (const double type : {0, 1, 2, 3, 4, 5}) {
    Project().VelocityProfileType = type;
    QWidget& screen = Opened("frmVelocity");
    look(screen, "type " + std::to_string(static_cast<int>(type)));
    Unload(screen);
  }
}

void Look_At_Simulation(const Look& look) {
  Project().NumPrintTimes = 0;
  QWidget& screen = Opened("frmSimulation");
  look(screen, "printed quarterly");
  screen.findChild<QCheckBox*>("SSCheck2(2)")->click();
  screen.findChild<QLineEdit*>("Text2")->setText("12");
  look(screen, "with own print times");
  screen.findChild<QLineEdit*>("Text1(1)")->setFocus();
  look(screen, "with the advice on the time step");
  Unload(screen);
}

void Look_At_Evaluation(const Look& look) {
  for (std::int16_t key3 = 0; key3 <= 7; ++key3) {
    Project().KEY3 = key3;
    Project().AnalysisType = Analysis_Type_Of_KEY3(key3);
    Project().ZidFlag = 1;
    QWidget& screen = Opened("frmMdlkyn");
    auto* tabs = screen.findChild<QTabWidget*>();
    for (int page = 0; page < tabs->count(); ++page) {
      if (!tabs->isTabEnabled(page)) continue;
      tabs->setCurrentIndex(page);
      look(screen, "evaluation " + std::to_string(key3) + ", " + tabs->tabText(page).toStdString());
    }
    Unload(screen);
  }
  const Lead_To_Screen lead(Row_Of_Screen("frmMdlkyn"));
  Project().KEY3 = kTracer;
  QWidget& screen = Opened("frmMdlkyn");
  look(screen, "a tracer's boundary");
  Unload(screen);
}

void Look_At_Coefficients(const Look& look) {
  for (const std::int16_t method : {1, 2}) {
    Project().DisposalMethod = method;
    QWidget& screen = Opened("frmCoefficients");
    screen.findChild<F1Book*>("F1Book1")->table().TextRC(3, 4, "-0.5 or so");
    look(screen, "method " + std::to_string(method));
    Unload(screen);
  }
}

void Look_At_Operation(const Look& look) {
  ProjectRecord& record = Project();
  record.MMAX0 = record.NMAX0 = 45;
  record.DX0 = record.DZ0 = 100;
  record.XBARGE = 9000;
  record.NOPENS = 6;
  for (const std::int16_t method : {0, 1, 2, 3}) {
    record.DisposalMethod = method;
    QWidget& screen = Opened("frmOperation");
    look(screen, "method " + std::to_string(method));
    if (method == 1 || method == 3) screen.findChild<QCheckBox*>("Check3D1")->click();
    screen.findChild<QLineEdit*>("Text2")->clear();
    look(screen, "method " + std::to_string(method) + ", over a depression, without openings");
    Unload(screen);
  }
}

/// An input screen with each of its tabs in front.
void Look_At_Input_Screen(const char* name, const Look& look) {
  QWidget& screen = Opened(name);
  look(screen, "as it opens");
  for (auto* tabs : screen.findChildren<QTabWidget*>()) {
    for (int page = 0; page < tabs->count(); ++page) {
      tabs->setCurrentIndex(page);
      look(screen, tabs->tabText(page).toStdString());
    }
  }
  Unload(screen);
}

void Look_At_Material(const Look& look) {
  Project().LAYERS = 6;
  Project().NumSolids = 4;
  for (const char* screen : {"frmMatHopper", "frmMatBarge"}) {
    for (const std::int16_t on : {0, 1}) {
      Project().SeparationFlag = on;
      Project().JBFCFlag = 1;
      Look_At_Input_Screen(screen, look);
    }
  }
}

void Look_At_Dilution(const Look& look) {
  ProjectRecord& record = Project();
  record.DiluteSolidsConc = 392.4;
  record.DiluteRowCount = 3;
  record.DiluteParameterNames = {"", "Copper", "Tributyl tin", "Lead"};
  record.DiluteBulk = {0, 123456.75, 8, 9};
  record.DiluteElutriate = {0, 26, 8, 9};
  record.DiluteCriteria = {0, 10, 10, 0};
  QWidget& screen = Opened("frmDilute2");
  screen.findChild<QPushButton*>("Command1(0)")->click();
  screen.findChild<QPushButton*>("Command1(1)")->setFocus();
  screen.findChild<F1Book*>("F1Book2(0)")->table().TextRC(2, 2, "<0.5");
  look(screen, "computed, with a row that has changed since");
  screen.findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
  look(screen, "elutriate");
  Unload(screen);
}

/// Each page of the wizard. It comes last: the screens that it leads to open no more.
void Look_At_Wizard(const Look& look) {
  for (const Screen_Row& row : kScreens) {
    if (row.kind == Screen_Kind::Input) Register_Screen(row, [](bool, const std::string&) {});
  }
  for (int analysis = 0; analysis < 3; ++analysis) {
    Project().WizardHelpOn = kFalse;
    QWidget& wizard = Opened("Data_Wiz");
    const auto control = [&wizard](const std::string& name) {
      return wizard.findChild<QAbstractButton*>(QString::fromStdString(name));
    };
    control("SSOption2(" + std::to_string(analysis) + ")")->click();
    control("SSOption4(1)")->click();
    control("SSOption1(1)")->click();
    for (const int field : {0, 2, 4, 5}) {
      wizard.findChild<QLineEdit*>(QStringLiteral("Text7(%1)").arg(field))->setText("64,5");
    }
    const Scripted_Messages messages({Answer::No});
    for (int page = 0; page < 8; ++page) {
      look(wizard, "analysis " + std::to_string(analysis) + ", page " + std::to_string(page));
      if (page < 7) control("Command1(1)")->click();
    }
    Unload(wizard);
  }
}

void Look_At_Graphical_Page(const Look& look) {
  QWidget& page = Opened("Graphic_Data_Entry");
  look(page, "empty");
  page.findChild<QLineEdit*>("Text6(0)")->setText("-100,5");
  page.findChild<QLineEdit*>("Text6(4)")->setText("30000");
  page.findChild<QLineEdit*>("Text6(5)")->setText("15000");
  page.findChild<QPushButton*>("Command3")->click();
  look(page, "with a grid");
  Unload(page);
}

void Look_At_Help(const Look& look) {
  Set_Help_File(BARVON_HELP_FILE);
  Show_Help({Help_Command::Index, 0, ""});
  auto& help = static_cast<Help_Window&>(Window_Named("Help"));
  Show(help);
  help.navigation().Open_Contents();
  look(help, "contents");
  help.navigation().Open_Index("salinity");
  look(help, "index");
  help.navigation().Open_Search();
  look(help, "search");
  help.findChild<QAction*>("HelpFind")->trigger();
  look(help, "find bar");
  Show_Help({Help_Command::Quit, 0, ""});
}

void Look_At_Text(Main_Bench& bench, const Look& look) {
  look(Opened("frmNotePad"), "untitled");
  Port().board.show_note({});
  look(bench.main(), "with the Window menu");
  Discard_Texts();
  Scratch_Folder folder;
  Write_Text(folder / "site.duo", std::string(80, 'x') + "\r\nline\r\n");
  Write_Text(folder / "long.duo", std::string(20000, 'x'));
  ASSERT_TRUE(Open_Text(folder / "site.duo", bench.main()));
  look(Window_Named("frmNotePad"), "with a file");
  Discard_Texts();
  // In a text that is edited Tab is typed.
  ASSERT_TRUE(Open_Text(folder / "long.duo", bench.main()));
  QWidget& text = Window_Named("frmNotePad");
  text.findChild<QAction*>("NotePadFind")->trigger();
  look(text, "read only, with the find bar");
  Discard_Texts();
}

void Look_At_Site(const Look& look) {
  ProjectRecord& record = Project();
  record.NROA0 = 5;
  record.DepthGrid[1][1] = 12345.5;
  QWidget& site = Opened("frmDescription");
  look(site, "constant depth, typed densities");
  for (const char* box : {"Check3D1(0)", "Check3D1(1)"}) site.findChild<QCheckBox*>(box)->click();
  look(site, "variable depth, computed densities");
  site.findChild<QLineEdit*>("Text1(0)")->setText("40.5");
  look(site, "a number that is read as another one");
  QWidget& grid = Opened("frmGridDescrip");
  look(grid, "not square");
  grid.findChild<QCheckBox*>("Check3D2")->click();
  look(grid, "to be initialized");
  Unload(grid);
  Unload(site);
}

void Look_At_Database(Main_Bench& bench, const Look& look) {
  for (const auto& file : std::filesystem::directory_iterator(BARVON_SAMPLES "/database")) {
    std::filesystem::copy_file(file.path(), bench.folder / file.path().filename().string());
  }
  Project().NOPENS = 1;  // by which the walk passes the vessels
  QWidget& screen = Opened("DataBase");
  look(screen, "as it opens");
  for (auto* list : screen.findChildren<QComboBox*>()) list->setCurrentIndex(list->count() - 1);
  screen.findChild<QPushButton*>("SSPanel1(0)")->click();
  look(screen, "with choices");
  bench.controls().SSPanel3(4)->click();
  look(bench.main(), "with what was chosen");
  Unload(screen);
  Write_Text(bench.folder / "dispdb.dat", "no record\n");
  QWidget& check = Opened("frmDatabaseCheck");
  look(check, "with faults");
  Unload(check);
}

/// What two ended windows left, one of it damaged.
void Look_At_Recovery(Main_Bench& bench, const Look& look) {
  std::vector<Recovery_Row> rows(2);
  rows[0].name = "RIVER.DUI";
  rows[0].state = "/home/anna/projects/RIVER.DUI has been changed since.";
  rows[0].column = "In the file";
  rows[0].left.copy.emplace();
  rows[0].differences = {{"Site Description", "Depth", "10 ft", "12 ft"}};
  rows[1].name = "4711-1764000000-0.barvon-copy";
  rows[1].state = "This copy is damaged.";
  Recovery_Keeper keeper(Project());
  frmRecovery screen(&bench.main(), std::move(rows), keeper, Project());
  screen.Open(false);
  look(screen, "with what differs");
  screen.findChild<QListWidget*>("List1")->setCurrentRow(1);
  look(screen, "with a damaged copy");
  Unload(screen);
}

void Look_At_Progress(const Look& look) {
  frmProgress_Bar progress(nullptr);
  progress.Open("Reading Velocity Data...");
  progress.Move(0.5);
  look(progress, "");
}

/// Looks at the blocking dialog that `open` brings up, and calls it off.
void Look_At_Blocking(const std::string& name, const std::function<void()>& open,
                      const Look& look) {
  Modal_Replies replies({[&](QWidget* dialog) {
    if (dialog->objectName().isEmpty()) dialog->setObjectName(QString::fromStdString(name));
    if (!QTest::qWaitForWindowExposed(dialog)) ADD_FAILURE() << name << " stays hidden";
    look(*dialog, name);
    dialog->close();
  }});
  open();
}

void Look_At_File_Dialogs(const Look& look) {
  Scratch_Folder folder;
  for (const char* name : {"Barge_Four_Layers.DUI", "Section_103_Water_Quality.DUI"}) {
    Write_Text(folder / name, std::string(258000, 'x'));
  }
  const File_Request request{"", {{"BARVON Data Files", "*.DUI"}}, folder.path(), {}};
  Look_At_Blocking(
      "open", [&] { Ask_Qt_Open_File(request); }, look);
  Look_At_Blocking(
      "save", [&] { Ask_Qt_Save_File(request); }, look);
  Look_At_Blocking("printer", Show_Qt_Printer_Setup, look);
}

void Walk_All_Windows(const Look& look) {
  const Look settled = [&look](QWidget& window, const std::string& state) {
    QCoreApplication::processEvents();
    look(window, state);
  };
  Main_Bench bench;
  const Program_Screens screens(&bench.main());
  Look_At_Main(bench, settled);
  Look_At_Details(bench, settled);
  Look_At_Start_Dialog(settled);
  Look_At_Input_Screen("frmAbout", settled);
  Look_At_Input_Screen("frmAboutMore", settled);
  Look_At_Tips(bench, settled);
  Look_At_Error_List(settled);
  Look_At_Input_Screen("frmDensity", settled);
  Look_At_Simulation(settled);
  Look_At_Coefficients(settled);
  Look_At_Evaluation(settled);
  Look_At_Operation(settled);
  Look_At_Velocity(settled);
  Look_At_Material(settled);
  Look_At_Dilution(settled);
  Look_At_Graphical_Page(settled);
  Look_At_Help(settled);
  Look_At_Text(bench, settled);
  Look_At_Site(settled);
  Look_At_Database(bench, settled);
  Look_At_Recovery(bench, settled);
  Look_At_Progress(settled);
  Look_At_File_Dialogs(settled);
  Look_At_Wizard(settled);
}

std::string Where(const QWidget& window, const std::string& state) {
  return window.objectName().toStdString() + ", " + state + ":";
}

TEST(AllWindows, No_Text_Is_Cut_Off_And_Nothing_Lies_On_Another) {
  Walk_All_Windows([](QWidget& window, const std::string& state) {
    const Complaints complaints = Cut_Off_Texts(window);
    EXPECT_TRUE(complaints.empty()) << Where(window, state) << Listed(complaints);
  });
}

TEST(AllWindows, No_Line_Is_Shortened_But_A_Long_Remark) {
  Walk_All_Windows([](QWidget& window, const std::string& state) {
    const Complaints complaints = Shortened_Texts(window);
    EXPECT_TRUE(complaints.empty()) << Where(window, state) << Listed(complaints);
  });
}

TEST(AllWindows, No_Letter_Or_Key_Has_Two_Meanings) {
  Walk_All_Windows([](QWidget& window, const std::string& state) {
    const Complaints complaints = Clashing_Keys(window);
    EXPECT_TRUE(complaints.empty()) << Where(window, state) << Listed(complaints);
  });
}

TEST(AllWindows, Tab_Reaches_Every_Control) {
  Walk_All_Windows([](QWidget& window, const std::string& state) {
    const Complaints complaints = Unreached_Controls(window);
    EXPECT_TRUE(complaints.empty()) << Where(window, state) << Listed(complaints);
  });
}

TEST(AllWindows, Every_Control_Has_A_Name_To_Be_Read_Out) {
  Walk_All_Windows([](QWidget& window, const std::string& state) {
    const Complaints complaints = Unnamed_Controls(window);
    EXPECT_TRUE(complaints.empty()) << Where(window, state) << Listed(complaints);
  });
}

TEST(AllWindows, Every_Control_Is_Told_As_It_Is_Seen) {
  Walk_All_Windows([](QWidget& window, const std::string& state) {
    const Complaints complaints = Misread_Controls(window);
    EXPECT_TRUE(complaints.empty()) << Where(window, state) << Listed(complaints);
  });
}

// Coming back to an input screen from one of these activates it, from any other window it does not.
TEST(AllWindows, The_Screens_Are_The_Windows_That_The_Table_Names) {
  Walk_All_Windows([](QWidget& window, const std::string& state) {
    const std::string name = window.objectName().toStdString();
    EXPECT_EQ(Is_Screen(window), Find_Screen(name) != nullptr) << Where(window, state);
  });
}

TEST(AllWindows, Every_Screen_That_The_Program_Registers_Is_Walked) {
  std::set<std::string> walked;
  Walk_All_Windows([&walked](QWidget& window, const std::string&) {
    walked.insert(window.objectName().toStdString());
  });
  Main_Bench bench;
  const Program_Screens screens(&bench.main());
  int registered = 0;
  for (const Screen_Row& row : kScreens) {
    if (!Screen_Stands(row) || row.kind == Screen_Kind::Command) continue;
    EXPECT_EQ(walked.count(row.name), 1U) << row.name << " is not in Walk_All_Windows";
    ++registered;
  }
  EXPECT_GE(registered, 6);
  for (const char* window : {"Main", "Help", "StatusDetailsDialog", "frmProgress_Bar"}) {
    EXPECT_EQ(walked.count(window), 1U) << window;
  }
}

}  // namespace
}  // namespace barvon
