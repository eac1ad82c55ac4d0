#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>

#include "core/project_record.h"
#include "run/create_process.h"
#include "support/process_state.h"
#include "support/proof_scale.h"
#include "support/record_differences.h"
#include "support/screen_support.h"
#include "workspace/file_menu.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

constexpr char kSample[] = "/Barge_Four_Layers.DUI";
constexpr char kAll[] =
    "write:tmpfile.duo=x\nwrite:tmpfile.dup=x\nwrite:tmpfile.dut=x\nwrite:tmpfile.duc=x\n";
constexpr long kMebibyte = 1L << 20;

/// Nanoseconds for which this thread has waited for a processor that others had.
qint64 Waited_For_A_Processor() {
  qint64 ran = 0, waited = 0;
  std::ifstream("/proc/thread-self/schedstat") >> ran >> waited;
  return waited;
}

/// The longest time for which the window's event loop did not come back: in all, and without what
/// it waited for a processor meanwhile.
class Stall_Watch {
 public:
  Stall_Watch() : waited_(Waited_For_A_Processor()) {
    clock_.start();
    timer_.callOnTimeout([this] { Look(); });
    timer_.start(1);
  }
  void Look() {
    const qint64 gap = clock_.nsecsElapsed(), waited = Waited_For_A_Processor();
    in_all = std::max(in_all, static_cast<double>(gap) / 1e6);
    own = std::max(own, static_cast<double>(gap - (waited - waited_)) / 1e6);
    waited_ = waited;
    clock_.start();
  }
  double in_all = 0, own = 0;  // milliseconds

 private:
  QElapsedTimer clock_;
  QTimer timer_{};
  qint64 waited_;
};

/// A project in the window, and solvers of every temper.
class BadSolvers : public ::testing::Test {
 protected:
  BadSolvers() {
    fs::create_directory(bench.folder / "bay");
    fs::copy_file(std::string(BARVON_SAMPLES) + kSample, project_);
    EXPECT_TRUE(Open_From_Workspace(project_, Project()));
    bytes_ = Read_Text(project_);
    former_path_ = qgetenv("PATH");
    qputenv("PATH", "/usr/bin:/bin");
    Put_Child("");
    Press_Run();  // what is made once is made
    fs::remove(bench.folder / "merak32");
    *before_ = Project();
  }
  ~BadSolvers() override { qputenv("PATH", former_path_); }

  void Put_Child(const std::string& steps) {
    fs::remove(bench.folder / "merak32");
    fs::copy_file(BARVON_TEST_CHILD, bench.folder / "merak32");
    Write_Text(bench.folder / "test_child.steps", steps);
  }
  void Press_Run() {
    QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
    note_ = bench.Child<QLabel>("StatusNote")->text().toStdString();
  }
  void Press_Stop() { QTest::mouseClick(bench.Child<QPushButton>("StopRun"), Qt::LeftButton); }

  /// Presses Run; once the file is there, or the run is under way when none is named, does the
  /// rest.
  void Run_And(const std::string& file, const std::function<void()>& meanwhile) {
    QTimer watch;
    bool done = false;
    watch.callOnTimeout([&] {
      if (done || !Run_Is_Under_Way()) return;
      if (!file.empty() && !Exists(bench.folder / file)) return;
      done = true;
      meanwhile();
    });
    watch.start(5);
    Press_Run();
    EXPECT_TRUE(done);
  }

  /// Runs it all and holds what must be so however the solver behaves: the end is told with these
  /// words, the project is untouched, nothing stays behind.
  void Hold(const std::string& words, const std::function<void()>& run) {
    Modal_Replies no_boxes({});
    const int descriptors = Open_Descriptors();
    Forget_Peak_Memory();
    const long memory = Memory_Of("VmHWM");
    Stall_Watch watch;
    run();
    watch.Look();
    const long grown = Memory_Of("VmHWM") - memory;
    EXPECT_FALSE(Run_Is_Under_Way());
    EXPECT_NE(note_.find(words), std::string::npos) << note_;
    EXPECT_EQ(Read_Text(project_), bytes_);
    EXPECT_EQ(Differing_Fields(*before_, Project()), std::vector<std::string>());
    EXPECT_EQ(Own_Children(), 0);
    EXPECT_TRUE(Wait_Until([this] { return Processes_In(bench.folder.path()) == 0; }));
    EXPECT_EQ(Open_Descriptors(), descriptors);
    if (kMemoryTells) {
      EXPECT_LE(grown, 16 * 1024);
    }
    const long allowed = Proof_Scale("BARVON_PROOF_STALL", 0);
    if (allowed > 0) {
      EXPECT_LE(watch.own, static_cast<double>(allowed));
    }
    std::cout << "stall " << watch.own << " ms, with waits for a processor " << watch.in_all
              << " ms, memory +" << grown << " KiB: " << note_ << "\n";
  }

  Main_Bench bench;
  const std::string project_ = bench.folder / "bay/site.DUI";
  std::string bytes_, note_;
  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  QByteArray former_path_;
};

TEST_F(BadSolvers, Missing) {
  Hold("Not run: DOS4GW was found neither in", [this] { Press_Run(); });
}

TEST_F(BadSolvers, Not_Executable) {
  Put_Child("");
  fs::permissions(bench.folder / "merak32", fs::perms::owner_read);
  Hold("merak32 is not executable.", [this] { Press_Run(); });
}

TEST_F(BadSolvers, Ends_At_Once_Without_Outputs) {
  Put_Child("");
  Hold("0 of 4 outputs kept; not written by this run: .duo, .dup, .dut, .duc; merak32 ended",
       [this] { Press_Run(); });
}

TEST_F(BadSolvers, Ends_With_An_Error) {
  Put_Child(std::string(kAll) + "error:bad layer\nexit:3\n");
  Hold("ended with code 3 after", [this] { Press_Run(); });
  EXPECT_TRUE(bench.Child<QPushButton>("StatusDetails")->isVisible());
}

TEST_F(BadSolvers, Writes_Some_Outputs_Only) {
  Put_Child("write:tmpfile.duo=x\n");
  Hold("1 of 4 outputs kept; not written by this run: .dup, .dut, .duc; merak32 ended with code 0",
       [this] { Press_Run(); });
}

TEST_F(BadSolvers, Never_Ends) {
  Put_Child("write:up=x\nawait:never\n");
  Hold("was stopped after", [this] { Run_And("up", [this] { Press_Stop(); }); });
}

TEST_F(BadSolvers, Passes_Over_The_Polite_End) {
  Put_Child("ignore-term\nsession:up\nawait:never\n");
  Hold("was stopped after", [this] { Run_And("up", [this] { Press_Stop(); }); });
}

TEST_F(BadSolvers, Floods_What_It_Prints) {
  const long bytes = Proof_Scale("BARVON_PROOF_FLOOD", 32 * kMebibyte);
  Put_Child("flood:" + std::to_string(bytes) + "\n" + kAll);
  Hold("ended with code 0 after", [this] { Press_Run(); });
  EXPECT_LE(fs::file_size(bench.folder / "Tmpfile.log"), static_cast<std::uintmax_t>(kMebibyte));
}

TEST_F(BadSolvers, Writes_A_Huge_Output) {
  const long bytes = Proof_Scale("BARVON_PROOF_FLOOD", 32 * kMebibyte);
  Put_Child("big:tmpfile.duo=" + std::to_string(bytes) + "\n");
  Hold("kept site.duo in", [this] { Press_Run(); });
  EXPECT_EQ(fs::file_size(bench.folder / "bay/site.duo"), static_cast<std::uintmax_t>(bytes));
}

TEST_F(BadSolvers, Dies_By_A_Signal) {
  Put_Child("signal:11\n");
  Hold("was ended by signal 11 (SEGV) after", [this] { Press_Run(); });
}

TEST_F(BadSolvers, Leaves_Children) {
  Put_Child(std::string("ignore-term\nchild:one\nsession:two\norphan:three\nawait:one\nawait:two\n"
                        "await:three\n") +
            kAll);
  Hold("ended with code 0 after", [this] { Press_Run(); });
}

TEST_F(BadSolvers, Run_Is_Pressed_Twice) {
  Put_Child(std::string("write:up=x\nawait:go\n") + kAll);
  Hold("ended with code 0 after", [this] {
    Run_And("up", [this] {
      Press_Run();
      EXPECT_EQ(note_, "Not run: another run is under way.");
      Write_Text(bench.folder / "go", "");
    });
  });
}

TEST_F(BadSolvers, Is_Swapped_For_Something_Else_Between_Two_Runs) {
  Write_Text(bench.folder / "merak32", "#!/no/such/interpreter\n");
  fs::permissions(bench.folder / "merak32", fs::perms::owner_all);
  Hold("merak32: No such file or directory.", [this] { Press_Run(); });
}

}  // namespace
}  // namespace barvon
