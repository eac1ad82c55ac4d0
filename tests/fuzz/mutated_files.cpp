// Reads good files that were changed at random as the program does, and holds what must hold of
// any file. A crash, a fault that a sanitizer tells, and an input that takes more than 100 ms of
// processor time are finds; each is named with the command that reads it alone.
//
//   mutated_files [--count N] [--seed S] [--reader NAME] [--limit MS]
//   mutated_files --only NUMBER --seed S --reader NAME     reads one, and leaves it as "mutated"
//   mutated_files --samples FOLDER                         the good files, a folder for each reader
//   mutated_files --names                                  the readers

#include <sys/mman.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/mutations.h"
#include "fuzz/readers.h"

namespace {

using namespace barvon::fuzz;

constexpr std::uint64_t kFixedSeed = 20'260'101;
constexpr int kHoldEvery = 8;        // what must hold takes several loads
constexpr int kLongestSeconds = 10;  // of processor time; then the input is stopped

struct Settings {
  std::uint64_t count = 2000, seed = kFixedSeed, only = 0;
  double limit_ms = kLimitMs;
  bool one = false;
  std::string reader, samples;
};

/// What the parent knows of the child that reads, also behind the child's end.
struct Progress {
  std::uint64_t next = 0;  // the input that is read, or is the next one
  std::uint64_t slow = 0, bytes = 0;
  double slowest_ms = 0;
  std::uint64_t slowest = 0;  // its number
};

/// A number of its own for each input, whatever the order of the readers.
std::uint64_t Seed_Of(const Settings& settings, const Reader& reader, std::uint64_t number) {
  std::uint64_t seed = settings.seed;
  for (const char c : std::string_view(reader.name)) {
    seed = (seed ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  }
  return seed + number * 0x9E3779B97F4A7C15U;
}

/// The readers print nothing; an input that never ends is stopped by its own clock.
void Set_Clock(int seconds) {
  const itimerval clock{{0, 0}, {seconds, 0}};
  ::setitimer(ITIMER_PROF, &clock, nullptr);
}

double Read_One(const Reader& reader, const std::string& file, bool hold) {
  Set_Clock(kLongestSeconds);
  const double start = Processor_Ms();
  reader.read(file);
  const double took = Processor_Ms() - start;
  if (hold && reader.hold != nullptr) reader.hold(file);
  Set_Clock(0);
  return took;
}

void Read_Rest(const Settings& settings, const Reader& reader, std::uint64_t count,
               Progress& progress) {
  const std::vector<std::string> samples = reader.samples();
  // What is made once for all is no part of the first input.
  for (const std::string& sample : samples) Read_One(reader, sample, true);
  for (; progress.next < count; ++progress.next) {
    const std::string file = Mutated(samples, Seed_Of(settings, reader, progress.next));
    progress.bytes += file.size();
    const double took = Read_One(reader, file, progress.next % kHoldEvery == 0);
    if (took > settings.limit_ms) {
      ++progress.slow;
      std::fprintf(stderr, "%s %llu: %.0f ms for %zu bytes\n", reader.name,
                   static_cast<unsigned long long>(progress.next), took, file.size());
    }
    if (took > progress.slowest_ms) {
      progress.slowest_ms = took;
      progress.slowest = progress.next;
    }
  }
}

/// Reads so many files in a child, and in another one behind each crash. The number of crashes.
int Read_All(const Settings& settings, const Reader& reader, std::uint64_t count,
             Progress& progress) {
  int crashes = 0;
  while (progress.next < count) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child < 0) std::abort();
    if (child == 0) {
      Read_Rest(settings, reader, count, progress);
      std::_Exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) continue;
    ++crashes;
    std::fprintf(stderr, "CRASH: mutated_files --reader %s --seed %llu --only %llu\n", reader.name,
                 static_cast<unsigned long long>(settings.seed),
                 static_cast<unsigned long long>(progress.next));
    ++progress.next;
  }
  return crashes;
}

int Read_Only(const Settings& settings, const Reader& reader, const std::string& folder) {
  const std::vector<std::string> samples = reader.samples();
  const std::string file = Mutated(samples, Seed_Of(settings, reader, settings.only));
  std::ofstream(folder + "/mutated", std::ios::binary) << file;
  for (const std::string& sample : samples) Read_One(reader, sample, false);
  std::printf("%s: %zu bytes, %.1f ms\n", reader.name, file.size(),
              Read_One(reader, file, settings.only % kHoldEvery == 0));
  return 0;
}

int Leave_Samples(const std::string& folder) {
  for (const Reader& reader : Readers()) {
    const auto place = std::filesystem::path(folder) / reader.name;
    std::filesystem::create_directories(place);
    int number = 0;
    for (const std::string& sample : reader.samples()) {
      std::ofstream(place / ("sample" + std::to_string(++number)), std::ios::binary) << sample;
    }
  }
  return 0;
}

Settings Read_Arguments(int count, char** arguments) {
  Settings settings;
  for (int i = 1; i < count; ++i) {
    const std::string_view name = arguments[i];
    if (name == "--names") {
      for (const Reader& reader : Readers()) std::printf("%s\n", reader.name);
      std::exit(0);
    }
    const char* value = i + 1 < count ? arguments[++i] : "";
    if (name == "--count") settings.count = std::strtoull(value, nullptr, 10);
    if (name == "--seed") settings.seed = std::strtoull(value, nullptr, 10);
    if (name == "--limit") settings.limit_ms = std::strtod(value, nullptr);
    if (name == "--reader") settings.reader = value;
    if (name == "--samples") settings.samples = std::filesystem::absolute(value);
    if (name == "--only") settings.one = true, settings.only = std::strtoull(value, nullptr, 10);
  }
  return settings;
}

}  // namespace

int main(int argument_count, char** arguments) {
  const Settings settings = Read_Arguments(argument_count, arguments);
  const std::string started_in = std::filesystem::current_path();
  Work_Folder();
  if (!settings.samples.empty()) return Leave_Samples(settings.samples);

  void* const shared =
      ::mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED) return 2;
  int shares = 0;
  std::vector<Reader> readers;
  for (const Reader& reader : Readers()) {
    const bool chosen = settings.reader.empty() ? reader.share > 0 : reader.name == settings.reader;
    if (!chosen) continue;
    readers.push_back(reader);
    shares += std::max(reader.share, 1);
  }
  std::printf("seed %llu\n", static_cast<unsigned long long>(settings.seed));
  std::printf("%-14s %8s %8s %8s %10s %12s\n", "reader", "files", "crashes", "slow", "MB",
              "slowest/ms");
  std::uint64_t files = 0, slow = 0;
  int crashes = 0;
  for (const Reader& reader : readers) {
    if (settings.one) return Read_Only(settings, reader, started_in);
    const auto share = static_cast<std::uint64_t>(std::max(reader.share, 1));
    const std::uint64_t count = (settings.count * share + static_cast<std::uint64_t>(shares) - 1) /
                                static_cast<std::uint64_t>(shares);
    Progress& progress = *new (shared) Progress;
    const int crashed = Read_All(settings, reader, count, progress);
    std::printf("%-14s %8llu %8d %8llu %10.1f %12.1f\n", reader.name,
                static_cast<unsigned long long>(count), crashed,
                static_cast<unsigned long long>(progress.slow),
                static_cast<double>(progress.bytes) / 1e6, progress.slowest_ms);
    std::fflush(stdout);
    files += count;
    crashes += crashed;
    slow += progress.slow;
  }
  std::printf("%llu files, %d crashes, %llu beyond %.0f ms\n",
              static_cast<unsigned long long>(files), crashes,
              static_cast<unsigned long long>(slow), settings.limit_ms);
  return files > 0 && crashes == 0 && slow == 0 ? 0 : 1;
}
