// What the start of the program costs up to its first painting, beside a bare main window with as
// many menus, tools and controls. The two programs take turns. Ends with 1 when the goal is missed.
//
//   QT_QPA_PLATFORM=offscreen start_bench PROGRAM BARE-PROGRAM PLUGIN-FOLDER [ROUNDS]
//
// The goal is held against the processor time, which is what a start takes on a machine that does
// nothing else and has read the files before; the time that passed is printed too.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "figures.h"
#include "started.h"

namespace {

using namespace barvon::bench;

constexpr double kMostOfBare = 1.5;

}  // namespace

int main(int count, char** values) {
  if (count < 4) {
    std::fprintf(stderr, "usage: start_bench PROGRAM BARE-PROGRAM PLUGIN-FOLDER [ROUNDS]\n");
    return 2;
  }
  const std::string program = values[1], bare = values[2];
  Take_Part_In_Starts(values[3]);
  const int rounds = count > 4 ? std::atoi(values[4]) : 21;
  const int widgets = Started(program).widgets, bare_widgets = Started(bare).widgets;
  std::vector<Cost> programs, bares;
  for (int round = 0; round < rounds; ++round) {
    programs.push_back(Started(program).cost);
    bares.push_back(Started(bare).cost);
  }
  const Cost seen = Median(programs), limit = Median(bares);
  Figures figures;
  figures.Note("widgets of the program", widgets, "");
  figures.Note("widgets of the bare window", bare_widgets, "");
  figures.Note("start to first painting, elapsed", seen.elapsed, "ms");
  figures.Note("of the bare window", limit.elapsed, "ms");
  figures.Note("ratio, elapsed", seen.elapsed / limit.elapsed, "");
  figures.Note("start to first painting, processor", seen.processor, "ms");
  figures.Note("of the bare window", limit.processor, "ms");
  figures.Judge("start beside a bare window", seen.processor / limit.processor, "", kMostOfBare);
  return figures.Exit_Code();
}
