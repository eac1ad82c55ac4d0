// What loads, saves and model inputs of the full project file cost beside the least that the same
// work can cost: the same numbers through std::from_chars and std::to_chars, to and from the same
// columns. Program and limit take turns in one process. Read the ratio of the medians; times are
// the machine's. Files are written into the current folder, so that says which disk is measured.
// Ends with 1 when a ratio is above its goal.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/model_input/model_input.h"
#include "core/project_defaults.h"
#include "core/project_file/column_layout.h"
#include "core/project_file/project_reader.h"
#include "core/project_file/project_writer.h"
#include "core/project_file/value_slots.h"
#include "platform/files/safe_file.h"

namespace {

using namespace barvon;

constexpr int kRounds = 101;
constexpr char kSample[] = BARVON_SAMPLES "/Variable_96_By_96.DUI";
constexpr double kMostOfLimit = 1.5;
constexpr int kPrecision = 15;
constexpr std::string_view kLineEnd = "\r\n";

void Demand(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  std::abort();
}

// ---- Turns

bool& Missed() {
  static bool missed = false;
  return missed;
}

double Microseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start)
      .count();
}

double Median(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

/// Which of the two goes first changes from round to round: neither always finds the caches warm.
void Take_Turns(benchmark::State& state, const std::function<void()>& program,
                const std::function<void()>& limit) {
  std::vector<double> program_times, limit_times;
  for (auto _ : state) {
    const bool program_first = program_times.size() % 2 == 0;
    if (program_first) program_times.push_back(Microseconds(program));
    limit_times.push_back(Microseconds(limit));
    if (!program_first) program_times.push_back(Microseconds(program));
  }
  state.counters["program_us"] = Median(program_times);
  state.counters["limit_us"] = Median(limit_times);
  const double ratio = Median(program_times) / Median(limit_times);
  state.counters["ratio"] = ratio;
  state.counters["goal"] = kMostOfLimit;
  Missed() = Missed() || ratio > kMostOfLimit;
}

// ---- The project

std::string Sample_Bytes() {
  std::string bytes;
  Demand(Read_Whole_File(kSample, bytes) == 0, "The sample can't be read.");
  return bytes;
}

void Load(const std::string& bytes, ProjectRecord& record) {
  Demand(Load_Project("site.DUI", bytes, record).failure == Failure::None, "The load failed.");
}

std::unique_ptr<ProjectRecord> Sample_Record() {
  auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  Load(Sample_Bytes(), *record);
  return record;
}

std::string Saved(ProjectRecord& record) {
  Pack_Slots(record);
  return Save_Project("site.DUI", record);
}

// ---- The limits

class Column_Limit {
 public:
  explicit Column_Limit(std::string_view bytes)
      : at_(bytes.data()), end_(bytes.data() + bytes.size()) {}

  /// The last of the file's numbers: right when none before it was missed.
  double Read() {
    Skip_Line();
    Skip_Line();
    for (const auto& [first, last] : kIntLines) Read_Line(last - first + 1, kIntWidth);
    constexpr std::size_t kReadWidth = 12;
    for (int left = kFullFileRealSlots; left > 0; left -= kRealsPerLine) {
      Read_Line(std::min(left, kRealsPerLine), kReadWidth);
    }
    for (int i = 0; i < 3; ++i) Skip_Line();
    constexpr int kFreeNumbers = 2 * kMaxGridPoints * kMaxGridPoints + 4 + 2 * kTidalRows + 1;
    for (int i = 0; i < kFreeNumbers; ++i) {
      while (at_ != end_ && (*at_ == ' ' || *at_ == '\r' || *at_ == '\n')) ++at_;
      at_ = Take(at_, end_);
    }
    return numbers_[count_ - 1];
  }

 private:
  void Skip_Line() { at_ = std::find(at_, end_, '\n') + 1; }
  void Read_Line(int count, std::size_t width) {
    const std::string_view rest(at_, static_cast<std::size_t>(end_ - at_));
    const std::string_view line = rest.substr(0, rest.find('\n'));
    for (int i = 0; i < count; ++i) {
      const std::string_view column = line.substr(static_cast<std::size_t>(i) * width, width);
      const auto first =
          std::find_if(column.begin(), column.end(), [](char c) { return c != ' '; });
      Take(column.data() + (first - column.begin()), column.data() + column.size());
    }
    at_ += line.size() + 1;
  }
  const char* Take(const char* first, const char* last) {
    const auto result = std::from_chars(first, last, numbers_[count_]);
    ++count_;
    return result.ptr;
  }

  const char* at_;
  const char* end_;
  std::vector<double> numbers_ = std::vector<double>(30000);
  std::size_t count_ = 0;
};

class Digits_Limit {
 public:
  void Number(double value, std::size_t width) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::general, kPrecision)
                         .ptr;
    const auto size = static_cast<std::size_t>(end - digits.data());
    text_.append(width > size ? width - size : 0, ' ').append(digits.data(), size);
  }
  void Numbers(const double* values, int count, std::size_t width, int per_line) {
    for (int i = 1; i <= count; ++i) {
      Number(values[i - 1], width);
      if (i % per_line == 0 || i == count) text_ += kLineEnd;
    }
  }
  void Field(const Grid& grid, std::size_t width) {
    for (int a = 1; a <= kMaxGridPoints; ++a) Numbers(&grid[a][1], kMaxGridPoints, width, 10);
  }
  std::string Text() && { return std::move(text_); }

 private:
  std::string text_;
};

/// Every number of the project file but the tide's.
std::string Save_Limit(const ProjectRecord& record) {
  Digits_Limit limit;
  limit.Numbers(&record.IntSlots[1], kIntSlots, kIntWidth, 16);
  limit.Numbers(&record.RealSlots[1], kFullFileRealSlots, 11, kRealsPerLine);
  limit.Field(record.VelocityFieldX, 8);
  limit.Field(record.VelocityFieldZ, 8);
  return std::move(limit).Text();
}

std::string Model_Limit(const ProjectRecord& record) {
  Digits_Limit limit;
  limit.Field(record.DepthGrid, 7);
  limit.Field(record.VelocityFieldX, 8);
  limit.Field(record.VelocityFieldZ, 8);
  return std::move(limit).Text();
}

enum class Folder_Sync { Without, With };

/// A new file beside the old one, on disk before it takes the old one's name.
void Replace_File(const std::string& path, const std::string& bytes, Folder_Sync sync) {
  const std::string working = path + ".new";
  const int file = ::open(working.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  Demand(file >= 0, "The current folder can't be written.");
  Demand(::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), "write");
  Demand(::fsync(file) == 0 && ::close(file) == 0, "sync");
  Demand(::rename(working.c_str(), path.c_str()) == 0, "rename");
  if (sync == Folder_Sync::Without) return;
  const int folder = ::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Demand(::fsync(folder) == 0 && ::close(folder) == 0, "sync of the folder");
}

// ---- The figures

void Load_Beside_Limit(benchmark::State& state, const std::string& bytes) {
  auto record = std::make_unique<ProjectRecord>();
  Set_Project_Defaults(*record);
  Load(bytes, *record);
  Demand(Column_Limit(bytes).Read() == record->KEY4, "The limit reads another file.");
  Take_Turns(
      state, [&] { Load(bytes, *record); },
      [&] { benchmark::DoNotOptimize(Column_Limit(bytes).Read()); });
}

void Load_Full_File(benchmark::State& state) { Load_Beside_Limit(state, Sample_Bytes()); }

void Load_With_One_Exact_Value(benchmark::State& state) {
  const auto record = Sample_Record();
  record->VelocityFieldZ[kMaxGridPoints][kMaxGridPoints] = 1.0 / 3;
  Load_Beside_Limit(state, Saved(*record));
}

void Save_In_Memory(benchmark::State& state) {
  const auto record = Sample_Record();
  Take_Turns(
      state, [&] { benchmark::DoNotOptimize(Saved(*record)); },
      [&] { benchmark::DoNotOptimize(Save_Limit(*record)); });
}

void Save_Beside_Limit(benchmark::State& state, Folder_Sync sync) {
  const auto record = Sample_Record();
  const std::string path = "project_file_bench.DUI", limit_path = "project_file_bench.limit";
  Take_Turns(
      state, [&] { Demand(Write_Whole_File(path, Saved(*record)) == 0, "The save failed."); },
      [&] { Replace_File(limit_path, Save_Limit(*record), sync); });
  ::unlink(path.c_str());
  ::unlink(limit_path.c_str());
}

void Save_On_Disk(benchmark::State& state) { Save_Beside_Limit(state, Folder_Sync::Without); }

/// The program's save also waits until the new name is on disk; here the limit does too.
void Save_On_Disk_Limit_Syncs_Folder(benchmark::State& state) {
  Save_Beside_Limit(state, Folder_Sync::With);
}

void Make_Model_Input_Text(benchmark::State& state) {
  const auto record = Sample_Record();
  std::string text;
  Take_Turns(
      state, [&] { Demand(Make_Model_Input(*record, text) == Failure::None, "No model input."); },
      [&] { benchmark::DoNotOptimize(Model_Limit(*record)); });
}

BENCHMARK(Load_Full_File)->Iterations(kRounds);
BENCHMARK(Load_With_One_Exact_Value)->Iterations(kRounds);
BENCHMARK(Save_In_Memory)->Iterations(kRounds);
BENCHMARK(Save_On_Disk)->Iterations(kRounds);
BENCHMARK(Save_On_Disk_Limit_Syncs_Folder)->Iterations(kRounds);
BENCHMARK(Make_Model_Input_Text)->Iterations(kRounds);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return Missed() ? 1 : 0;
}
