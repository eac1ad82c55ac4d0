#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "figures.h"

namespace barvon::bench {

/// The program changes its current folder.
inline std::string Told() {
  static const std::string file = std::filesystem::absolute("first_paint.txt");
  return file;
}

/// From the start of a program to its first painting.
struct Start {
  Cost cost;
  int widgets = 0;
};

/// Programs that are started tell of their first painting, and end with it.
inline void Take_Part_In_Starts(const char* plugin_folder) {
  ::setenv("QT_PLUGIN_PATH", plugin_folder, 1);
  ::setenv("QT_QPA_GENERIC_PLUGINS", "first_paint", 1);
  ::setenv("BARVON_FIRST_PAINT", Told().c_str(), 1);
}

inline Start Started(const std::string& program, const std::string& argument = {}) {
  const double begun = Now(CLOCK_MONOTONIC);
  const pid_t child = ::fork();
  if (child == 0) {
    const char* const given = argument.empty() ? nullptr : argument.c_str();
    ::execl(program.c_str(), program.c_str(), given, nullptr);
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

}  // namespace barvon::bench
