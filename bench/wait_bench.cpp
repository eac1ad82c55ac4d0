// What waiting for a solver costs: the processor time of the program meanwhile, how soon it knows
// of the end, and how much longer a solver takes that has to share its core with the program. The
// window is open and waits as it does in use; with "console" there is none, as in barvon-run. Ends
// with 1 when a goal is missed.
//
//   QT_QPA_PLATFORM=offscreen wait_bench STUB-SOLVER [window|console] [ROUNDS]

#include <sched.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include "core/desk/project_hold.h"
#include "core/project_record.h"
#include "figures.h"
#include "platform/files/app_folder.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/qt_services.h"
#include "program_screens.h"
#include "run/create_process.h"
#include "workspace/main_window.h"

namespace {

using namespace barvon;
using namespace barvon::bench;

constexpr double kMostShare = 1, kMostNotice = 10, kMostSlower = 1.05;
constexpr char kSolver[] = "merak32";
constexpr char kTold[] = "stub_solver.told";

[[noreturn]] void Give_Up(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  std::exit(2);
}

void Order(const std::string& order) { std::ofstream("stub_solver.order") << order << "\n"; }

struct Told {
  double ended = 0;
  Cost cost;
};
Told What_It_Told() {
  Told told;
  std::ifstream(kTold) >> told.ended >> told.cost.elapsed >> told.cost.processor;
  if (::unlink(kTold) != 0) Give_Up("The solver told nothing.");
  return told;
}

/// Runs the solver as the program does; ms between its last act and the program's knowing of it.
double Notice(Told& told) {
  const Process_Outcome outcome = Create_Process_Code(kSolver);
  const double known = Now(CLOCK_MONOTONIC);
  if (!outcome.started || outcome.end.exit_code != 0) Give_Up("The solver did not run.");
  told = What_It_Told();
  return known - told.ended;
}

/// What the solver says it took, started by nobody who waits for it in any special way.
Cost Alone() {
  const pid_t child = ::fork();
  if (child == 0) {
    ::execl(kSolver, kSolver, nullptr);
    ::_exit(127);
  }
  ::waitpid(child, nullptr, 0);
  return What_It_Told().cost;
}

void Measure_Share(Figures& figures) {
  constexpr int kWait = 5000;
  Order("sleep " + std::to_string(kWait));
  Told told;
  const Cost cost = Cost_Of([&told] { Notice(told); });
  figures.Judge("processor time while it waits, of one core", 100 * cost.processor / cost.elapsed,
                "%", kMostShare);
}

void Measure_Notice(int rounds, Figures& figures) {
  Order("sleep 60");
  std::vector<double> notices;
  for (int round = 0; round < rounds; ++round) {
    Told told;
    notices.push_back(Notice(told));
  }
  figures.Note("notice of the end, the longest", *std::max_element(notices.begin(), notices.end()),
               "ms");
  figures.Judge("notice of the end, median", Median(notices), "ms", kMostNotice);
}

void Measure_Slowdown(int rounds, Figures& figures) {
  // From here on everything that is started shares one core.
  cpu_set_t one;
  CPU_ZERO(&one);
  CPU_SET(::sched_getcpu(), &one);
  if (::sched_setaffinity(0, sizeof one, &one) != 0) Give_Up("No core of its own.");
  Order("compute 20000");
  std::vector<Cost> shared, alone;
  std::vector<double> own;
  for (int round = 0; round < rounds; ++round) {
    if (round % 2 != 0) alone.push_back(Alone());
    Told told;
    own.push_back(Cost_Of([&told] { Notice(told); }).processor);
    shared.push_back(told.cost);
    if (round % 2 == 0) alone.push_back(Alone());
  }
  const Cost with = Median(shared), without = Median(alone);
  figures.Note("a solver alone", without.processor, "ms");
  figures.Note("the same solver while the program waits", with.processor, "ms");
  figures.Note("what the program takes of its core meanwhile", Median(own), "ms");
  figures.Note("ratio, elapsed", with.elapsed / without.elapsed, "");
  // What else the machine does lengthens either of them; the core's time is these two's alone.
  figures.Judge("solver and program on its core beside the solver alone",
                (with.processor + Median(own)) / without.processor, "", kMostSlower);
}

}  // namespace

int main(int count, char** values) {
  if (count < 2) Give_Up("usage: wait_bench STUB-SOLVER [window|console] [ROUNDS]");
  const std::string stub = std::filesystem::absolute(values[1]);
  const bool console = count > 2 && std::string_view(values[2]) == "console";
  const int rounds = count > 3 ? std::atoi(values[3]) : 21;
  // The offscreen display tells of what it can't do at every window.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(count, values);
  Apply_Light_Palette(application);
  const QTemporaryDir folder;
  const std::string here = folder.path().toStdString();
  std::filesystem::copy_file(stub, here + "/" + kSolver);
  Figures figures;
  std::unique_ptr<Qt_Services> services;
  std::unique_ptr<Main> main;
  if (console) {
    Set_Application_Folder(here);
    std::filesystem::current_path(here);
  } else {
    services = std::make_unique<Qt_Services>();
    main = std::make_unique<Main>(here, [] {});
    Register_Program_Screens(main.get());
    main->show();
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }
  Measure_Share(figures);
  Measure_Notice(rounds, figures);
  Measure_Slowdown(rounds, figures);
  std::fflush(nullptr);
  std::error_code error;
  std::filesystem::remove_all(here, error);
  Release_Project();  // no lock stays beside the sample
  std::_Exit(figures.Exit_Code());
}
