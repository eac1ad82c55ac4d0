#include <gtest/gtest.h>
#include <malloc.h>

#include <QAction>
#include <QEventLoop>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <iostream>

#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "support/process_state.h"
#include "support/proof_scale.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

constexpr char kSample[] = "/Barge_Four_Layers.DUI";
constexpr long kWarmUpLoads = 200, kWarmUpRuns = 20;
constexpr long kAllowedGrowth = 1024;  // KiB

/// What one process has after loads, saves and runs in its window.
struct Soaked {
  long memory = Memory_Of("RssAnon");
  int descriptors = Open_Descriptors();
  int children = Own_Children();
};

class Soak : public ::testing::Test {
 protected:
  Soak() {
    fs::copy_file(std::string(BARVON_SAMPLES) + kSample, project_);
    fs::copy_file(BARVON_TEST_CHILD, bench.folder / "merak32");
    Write_Text(bench.folder / "test_child.steps",
               "print:at work\nwrite:tmpfile.duo=x\nwrite:tmpfile.dup=x\nwrite:tmpfile.dut=x\n"
               "write:tmpfile.duc=x\n");
    former_dialogs_ = Set_File_Dialog_Presenter(
        {[this](const File_Request&) { return project_; }, nullptr, nullptr, nullptr});
  }
  ~Soak() override { Set_File_Dialog_Presenter(std::move(former_dialogs_)); }

  /// Does it where a person does: called by the event loop, which comes round once more behind it.
  static void From_The_Event_Loop(const std::function<void()>& command) {
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
      command();
      QTimer::singleShot(0, &loop, &QEventLoop::quit);
    });
    loop.exec();
  }
  void Load_And_Save(long times) {
    for (long i = 0; i < times; ++i) {
      From_The_Event_Loop([this] {
        bench.Action("mnuFileItem(1)")->trigger();
        bench.Action("mnuFileItem(4)")->trigger();
      });
    }
  }
  void Run(long times) {
    for (long i = 0; i < times; ++i) {
      From_The_Event_Loop([this] { bench.controls().SSPanel3(1)->click(); });
    }
  }
  static Soaked Now() {
    malloc_trim(0);
    return {};
  }

  Main_Bench bench;
  const std::string project_ = bench.folder / "site.DUI";

 private:
  File_Dialog_Presenter former_dialogs_;
};

TEST_F(Soak, Loads_Saves_And_Runs_Leave_Nothing_Behind_In_The_Process) {
  const long loads = Proof_Scale("BARVON_PROOF_LOADS", 30);
  const long runs = Proof_Scale("BARVON_PROOF_RUNS", 5);
  Modal_Replies no_boxes({});
  Load_And_Save(std::min(loads, kWarmUpLoads));
  Run(std::min(runs, kWarmUpRuns));
  const std::string saved = Read_Text(project_);
  const Soaked before = Now();
  Load_And_Save(loads);
  const Soaked between = Now();
  Run(runs);
  const Soaked after = Now();
  EXPECT_TRUE(Read_Text(project_) == saved);
  EXPECT_EQ(Read_Text(bench.folder / "site.duc"), "x");
  if (kMemoryTells) {
    EXPECT_LE(after.memory - before.memory, kAllowedGrowth);
  }
  EXPECT_EQ(after.descriptors, before.descriptors);
  EXPECT_EQ(after.children, 0);
  std::cout << loads << " loads and saves: memory " << between.memory - before.memory << " KiB; "
            << runs << " runs: memory " << after.memory - between.memory << " KiB, descriptors "
            << after.descriptors - before.descriptors << ", children " << after.children << "\n";
}

}  // namespace
}  // namespace barvon
