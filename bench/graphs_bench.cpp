// What the graphics program takes to open a run's outputs and to paint them, view by view, and what
// a step of a map's slider takes. A goal is held against the processor time of this process, which
// is the time that passes on a machine that does nothing else; both are printed. Last the program
// itself is started on the outputs. Ends with 1 when a goal is missed.
//
//   QT_QPA_PLATFORM=offscreen graphs_bench OUTPUT PROGRAM PLUGIN-FOLDER [ROUNDS]

#include <QApplication>
#include <QLabel>
#include <cstdlib>
#include <string>
#include <vector>

#include "figures.h"
#include "graphs/frm_graphs.h"
#include "graphs/graph_menus.h"
#include "painted.h"
#include "pictures/picture.h"
#include "platform/qt/light_palette.h"
#include "platform/qt/qt_services.h"
#include "started.h"

namespace {

using namespace barvon;
using namespace barvon::bench;

constexpr double kMostToOpen = 300;  // ms
constexpr double kMostOfAStep = 33;  // ms, two frames of a display

void Demand(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::exit(2);
}

/// The part of a picture that paints it: the other one is its caption.
const QWidget* Content_Of(Graph_Page& page) {
  for (const QWidget* part :
       page.Shown_Picture()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (qobject_cast<const QLabel*>(part) == nullptr) return part;
  }
  Demand(false, "A picture has no content.");
  return nullptr;
}

/// From the file's name to the picture on the display, in a window that was not there before.
void Measure_Opening(const std::string& output, int view, int rounds, Figures& figures) {
  std::vector<Cost> costs;
  for (int round = 0; round < rounds; ++round) {
    Painted painted;
    frmGraphs window;
    Build_Graph_Menus(window);
    costs.push_back(Cost_Of([&] {
      window.Show_Results_Of(output, view);
      window.show();
      Demand(window.Page_In_Front() != nullptr, "The outputs can't be shown.");
      painted.Wait_For(Content_Of(*window.Page_In_Front()));
    }));
  }
  const Cost cost = Median(costs);
  const std::string name = std::string(kGraphNames[static_cast<std::size_t>(view)]) + " opens";
  figures.Note((name + ", elapsed").c_str(), cost.elapsed, "ms");
  figures.Judge(name.c_str(), cost.processor, "ms", kMostToOpen);
}

/// Each step of the view's slider, forth and back.
void Measure_Steps(const std::string& output, int view, int rounds, Figures& figures) {
  Painted painted;
  frmGraphs window;
  window.Show_Results_Of(output, view);
  window.show();
  Graph_Page& page = *window.Page_In_Front();
  painted.Wait_For(Content_Of(page));
  const int steps = page.Sequence_Length();
  Demand(steps > 1, "There is no sequence.");
  std::vector<Cost> costs;
  double slowest = 0;
  for (int step = 1; step <= rounds * (steps - 1); ++step) {
    costs.push_back(Cost_Of([&] {
      page.Show_In_Sequence(step % steps);
      painted.Wait_For(Content_Of(page));
    }));
    slowest = std::max(slowest, costs.back().processor);
  }
  const Cost cost = Median(costs);
  const std::string name = std::string(kGraphNames[static_cast<std::size_t>(view)]) + ", a step";
  figures.Note((name + ", elapsed").c_str(), cost.elapsed, "ms");
  figures.Note((name + ", the slowest").c_str(), slowest, "ms");
  figures.Judge(name.c_str(), cost.processor, "ms", kMostOfAStep);
}

void Measure_Start(const std::string& output, const std::string& program, int rounds,
                   Figures& figures) {
  std::vector<Cost> costs;
  for (int round = 0; round < rounds; ++round) costs.push_back(Started(program, output).cost);
  const Cost cost = Median(costs);
  figures.Note("start of the program to the overview, elapsed", cost.elapsed, "ms");
  figures.Note("start of the program to the overview, processor", cost.processor, "ms");
}

}  // namespace

int main(int count, char** values) {
  if (count < 4) {
    std::fprintf(stderr, "usage: graphs_bench OUTPUT PROGRAM PLUGIN-FOLDER [ROUNDS]\n");
    return 2;
  }
  const std::string output = values[1], program = values[2];
  const char* const plugins = values[3];
  const int rounds = count > 4 ? std::atoi(values[4]) : 21;
  // The offscreen display tells of what it can't do at every window.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  int arguments = 1;
  QApplication application(arguments, values);
  Apply_Light_Palette(application);
  const Qt_Services services;
  Figures figures;
  for (int view = 0; view < kGraphViews; ++view) Measure_Opening(output, view, rounds, figures);
  for (const int view : {kContours, kDeposit}) Measure_Steps(output, view, rounds, figures);
  Take_Part_In_Starts(plugins);
  Measure_Start(output, program, rounds, figures);
  std::fflush(nullptr);
  std::_Exit(figures.Exit_Code());
}
