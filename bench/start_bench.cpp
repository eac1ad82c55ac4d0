// What the start of the program costs up to its first painting, beside a bare main window with as
// many menus, tools and controls. The two programs take turns. Ends with 1 when the goal is missed.
//
//   QT_QPA_PLATFORM=offscreen start_bench PROGRAM BARE-PROGRAM PLUGIN-FOLDER [ROUNDS]
//
// The goal is held against the processor time, which is what a start takes on a machine that does
// nothing else and has read the files before; the time that passed is printed too.

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "figures.h"

namespace {

using namespace barvon::bench;

/// The program changes its current folder.
std::string Told() {
  static const std::string file = std::filesystem::absolute("first_paint.txt");
  return file;
}
constexpr double kMostOfBare = 1.5;

struct Start {
  Cost cost;
  int widgets = 0;
};

Start Started(const std::string& program) {
  const double begun = Now(CLOCK_MONOTONIC);
  const pid_t child = ::fork();
  if (child == 0) {
    ::execl(program.c_str(), program.c_str(), nullptr);
    ::_exit(127);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  Start start;
  std::FILE* file =
      WIFEXITED(status) && WEXITSTATUS(status) == 0 ? std::fopen(Told().c_str(), "r") : nullptr;
  double painted = 0;
  if (file == nullptr ||
      std::fscanf(file, "%lf %lf %d", &painted, &start.cost.processor, &start.widgets) != 3) {
    std::fprintf(stderr, "%s was not painted\n", program.c_str());
    std::exit(2);
  }
  std::fclose(file);
  ::unlink(Told().c_str());
  start.cost.elapsed = painted - begun;
  return start;
}

}  // namespace

int main(int count, char** values) {
  if (count < 4) {
    std::fprintf(stderr, "usage: start_bench PROGRAM BARE-PROGRAM PLUGIN-FOLDER [ROUNDS]\n");
    return 2;
  }
  const std::string program = values[1], bare = values[2];
  ::setenv("QT_PLUGIN_PATH", values[3], 1);
  ::setenv("QT_QPA_GENERIC_PLUGINS", "first_paint", 1);
  ::setenv("BARVON_FIRST_PAINT", Told().c_str(), 1);
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
