#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <limits>

#include "core/desk/save_file.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/qt/end_signals.h"
#include "run/create_process.h"
#include "support/screen_support.h"
#include "workspace/quit_rules.h"

namespace barvon {
namespace {

using testing::Main_Bench;
using testing::Modal_Replies;
using testing::Press;
using testing::Read_Text;
using testing::Reply;
using testing::Write_Text;

bool Is_Alive(int process) { return process > 0 && kill(process, 0) == 0; }

/// A saved project and a solver that starts a helper of its own and takes its time.
class MainRun : public ::testing::Test {
 protected:
  MainRun() {
    const std::string solver = bench.folder / "merak32";
    Write_Text(solver,
               "#!/bin/sh\nsleep 600 &\necho $! > helper.pid\necho $$ > solver.pid\n"
               "echo working\nwhile [ ! -e go ]; do sleep 0.05; done\n"
               "kill $(cat helper.pid)\necho result > tmpfile.duo\n");
    std::filesystem::permissions(solver, std::filesystem::perms::owner_all);
    bench.controls().SSOption1(0)->click();
    ProjectRecord& record = Project();
    record.BaseFileName = bench.folder / "bay";
    record.ProjectFileName = record.BaseFileName + ".DUI";
    Write_Text(record.ProjectFileName, "x");
    record.DataSaved = kTrue;
    record.MMAX0 = record.NMAX0 = 32;
    record.DX0 = record.DZ0 = 100;
    record.DEPC0 = 60;
    record.NBINS = 1;
    record.BINL = record.BINW = 20;
    record.DREL1 = 20;
    record.TDIS = 60;
  }

  int Process(const char* file) {
    const std::string path = bench.folder / file;
    return testing::Exists(path) ? std::atoi(Read_Text(path).c_str()) : 0;
  }

  /// Opens graphics that stay until they are told to close. Returns their process.
  int Open_Graphics() {
    const std::string viewer = bench.folder / "kv_graph";
    Write_Text(viewer,
               "#!/bin/sh\necho $$ > part\nmv part viewer.pid\n"
               "while [ ! -e close ]; do sleep 0.05; done\n");
    std::filesystem::permissions(viewer, std::filesystem::perms::owner_all);
    bench.Action("Toolbar1(8)")->trigger();
    EXPECT_TRUE(testing::Wait_Until([this] { return Process("viewer.pid") != 0; }));
    return Process("viewer.pid");
  }
  void Close_Graphics() {
    EXPECT_TRUE(Is_Alive(Process("viewer.pid")));
    Write_Text(bench.folder / "close", "");
    EXPECT_TRUE(testing::Wait_Until([this] { return !Is_Alive(Process("viewer.pid")); }));
  }

  /// Presses Run, and once the solver works does what the test is about.
  void Run_And(const std::function<void()>& meanwhile, std::vector<Reply> more = {}) {
    QTimer watch;
    bool done = false;
    watch.callOnTimeout([&] {
      if (done || Process("solver.pid") == 0 || !Run_Is_Under_Way()) return;
      done = true;
      meanwhile();
    });
    watch.start(10);
    // The record has findings; No runs it all the same.
    more.insert(more.begin(), Press(QMessageBox::No));
    Modal_Replies replies(std::move(more));
    QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
    EXPECT_TRUE(done);
  }

  Main_Bench bench;
};

TEST_F(MainRun, The_Window_Stays_Alive_While_The_Solver_Works) {
  Run_And([this] {
    auto* stop = bench.Child<QPushButton>("StopRun");
    EXPECT_TRUE(stop->isVisible());
    EXPECT_EQ(bench.Child<QLabel>("StatusProgram")->text(), "Running merak32");
    QTest::keyClicks(bench.controls().Title_Box, "typed meanwhile");
    EXPECT_EQ(Project().ProjectTitle, "typed meanwhile");
    QTest::mouseClick(bench.controls().SSPanel3(0), Qt::LeftButton);
    EXPECT_TRUE(bench.controls().Frame3D2->isVisible());
    Write_Text(bench.folder / "go", "");
  });
  EXPECT_FALSE(bench.Child<QPushButton>("StopRun")->isVisible());
  EXPECT_FALSE(bench.Child<QLabel>("StatusProgram")->isVisible());
  EXPECT_EQ(Read_Text(bench.folder / "bay.duo"), "result\n");
}

TEST_F(MainRun, The_Companion_Is_Named_While_It_Works_And_At_Its_End) {
  std::filesystem::rename(bench.folder / "merak32", bench.folder / "barvon-solver");
  Run_And([this] {
    EXPECT_EQ(bench.Child<QLabel>("StatusProgram")->text(), "Running companion solver 1.0");
    Write_Text(bench.folder / "go", "");
  });
  EXPECT_EQ(Read_Text(bench.folder / "bay.duo"), "result\n");
  const QString note = bench.Child<QLabel>("StatusNote")->text();
  EXPECT_TRUE(note.contains("companion solver 1.0 ended with code 0 after")) << note.toStdString();
}

TEST_F(MainRun, A_Text_That_Is_Saved_Before_The_Run_Names_None_Of_Its_Outputs) {
  Write_Text(bench.folder / "other.duo", "of another project");
  Port().text.active = [] { return std::string("notes"); };
  ASSERT_TRUE(Save_File(bench.folder / "other.txt", kTextKind, Project()));
  Run_And([this] { Write_Text(bench.folder / "go", ""); });
  EXPECT_EQ(Read_Text(bench.folder / "bay.duo"), "result\n");
  EXPECT_EQ(Read_Text(bench.folder / "other.duo"), "of another project");
}

TEST_F(MainRun, Graphics_That_Stay_Open_Are_No_Run_And_Keep_None_From_Starting) {
  Open_Graphics();
  EXPECT_FALSE(bench.Child<QPushButton>("StopRun")->isVisible());
  EXPECT_FALSE(bench.Child<QLabel>("StatusProgram")->isVisible());
  Run_And([this] {
    EXPECT_EQ(bench.Child<QLabel>("StatusProgram")->text(), "Running merak32");
    Write_Text(bench.folder / "go", "");
  });
  EXPECT_EQ(Read_Text(bench.folder / "bay.duo"), "result\n");
  Close_Graphics();
}

TEST_F(MainRun, Graphics_Opened_During_A_Run_Neither_Hold_Up_Its_End_Nor_Are_Stopped_With_It) {
  Run_And([this] {
    Open_Graphics();
    QTest::mouseClick(bench.Child<QPushButton>("StopRun"), Qt::LeftButton);
  });
  EXPECT_FALSE(Run_Is_Under_Way());
  Close_Graphics();
}

TEST_F(MainRun, Quitting_Leaves_Graphics_Open) {
  Open_Graphics();
  Modal_Replies replies({Press(QMessageBox::Yes)});
  bench.main().close();
  EXPECT_EQ(bench.ended, 1);
  Close_Graphics();
}

TEST_F(MainRun, Graphics_That_Fail_Later_Are_Told_In_The_Status_Area) {
  Open_Graphics();
  kill(Process("viewer.pid"), SIGSEGV);
  auto* note = bench.Child<QLabel>("StatusNote");
  EXPECT_TRUE(testing::Wait_Until(
      [note] { return note->text().endsWith("kv_graph was ended by signal 11."); }));
}

TEST_F(MainRun, A_Type_Chosen_Since_Is_Run_With_Its_Own_Evaluation) {
  Main_Controls& c = bench.controls();
  c.SSOption1(2)->click();
  QTest::mouseClick(c.SSPanel3(0), Qt::LeftButton);
  c.SSOption4(1)->click();
  QTest::mouseClick(c.SSPanel3(4), Qt::LeftButton);
  c.SSOption1(1)->click();
  EXPECT_EQ(Project().KEY3, 5);  // it rests until it is asked for
  Project().AlwaysSaveBeforeRun = kFalse;
  Run_And([this] {
    EXPECT_EQ(Project().KEY3, 2);
    Write_Text(bench.folder / "go", "");
  });
}

TEST_F(MainRun, A_New_Project_Is_Not_Run_Under_The_Former_Ones_Name) {
  Write_Text(bench.folder / "bay.duo", "former result");
  Write_Text(bench.folder / "go", "");  // a solver that is started all the same ends at once
  bench.Action("mnuFileItem(0)")->trigger();
  EXPECT_EQ(Project().BaseFileName, "");
  bench.controls().SSOption1(0)->click();
  Modal_Replies replies({Press(QMessageBox::Ok), testing::Close_Window()});
  QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
  ASSERT_FALSE(replies.seen.empty());
  EXPECT_EQ(replies.seen[0].text, "Please Specify a File Before Running Model");
  EXPECT_FALSE(testing::Exists(bench.folder / "solver.pid"));
  EXPECT_EQ(Read_Text(bench.folder / "bay.duo"), "former result");
}

TEST_F(MainRun, Run_While_A_Run_Is_Under_Way_Starts_Nothing) {
  Run_And([this] {
    const int first = Process("solver.pid");
    QTest::mouseClick(bench.controls().SSPanel3(1), Qt::LeftButton);
    EXPECT_EQ(Process("solver.pid"), first);
    EXPECT_NE(bench.Child<QLabel>("StatusNote")->text(), "");
    Write_Text(bench.folder / "go", "");
  });
}

TEST_F(MainRun, Remarks_On_The_Project_Are_To_Be_Had_Behind_The_Runs_End) {
  Project().SLOPEX0 = std::numeric_limits<double>::infinity();
  Run_And([this] { Write_Text(bench.folder / "go", ""); });
  EXPECT_TRUE(bench.Child<QLabel>("StatusNote")->text().startsWith("1 remark. "));
  auto* details = bench.Child<QPushButton>("StatusDetails");
  ASSERT_TRUE(details->isVisible());
  details->click();
  auto* dialog = bench.Child<QDialog>("StatusDetailsDialog");
  EXPECT_TRUE(dialog->findChild<QPlainTextEdit*>("Text1")->toPlainText().contains(
      "SLOPEX0 is infinite (inf)\n"));
  dialog->close();
}

TEST_F(MainRun, Stop_Ends_The_Solver_And_Everything_It_Started) {
  Run_And([this] { QTest::mouseClick(bench.Child<QPushButton>("StopRun"), Qt::LeftButton); });
  EXPECT_FALSE(Run_Is_Under_Way());
  EXPECT_TRUE(testing::Wait_Until([this] { return !Is_Alive(Process("helper.pid")); }));
  EXPECT_FALSE(Is_Alive(Process("solver.pid")));
  EXPECT_FALSE(testing::Exists(bench.folder / "bay.duo"));
  EXPECT_NE(bench.Child<QLabel>("StatusNote")->text(), "");
}

TEST_F(MainRun, A_Key_After_Stop_Does_Not_Replace_The_Title) {
  QTest::keyClicks(bench.controls().Title_Box, "BAY");
  Project().DataSaved = kTrue;
  Run_And([this] {
    auto* stop = bench.Child<QPushButton>("StopRun");
    stop->setFocus();
    QTest::keyClick(stop, Qt::Key_Space);
    EXPECT_NE(bench.main().focusWidget(), bench.controls().Title_Box);
  });
  EXPECT_NE(bench.main().focusWidget(), bench.controls().Title_Box);
  auto* details = bench.Child<QPushButton>("StatusDetails");
  Port().board.show_note({"a remark", "with details"});
  details->setFocus();
  Port().board.show_note({"another", ""});
  EXPECT_NE(bench.main().focusWidget(), bench.controls().Title_Box);
}

TEST_F(MainRun, Closing_The_Window_Meanwhile_Leaves_No_Process) {
  int ended_with = -1;
  Run_And(
      [&] {
        bench.main().close();
        ended_with = bench.ended;
        EXPECT_FALSE(Is_Alive(Process("solver.pid")));
        EXPECT_TRUE(testing::Wait_Until([this] { return !Is_Alive(Process("helper.pid")); }));
      },
      {Press(QMessageBox::Yes)});
  EXPECT_EQ(ended_with, 1);
}

TEST_F(MainRun, A_Signal_To_End_The_Program_Meanwhile_Leaves_No_Process) {
  const End_Signals end_signals(End_Program);
  Run_And([] { raise(SIGTERM); });
  EXPECT_EQ(bench.ended, 1);
  EXPECT_FALSE(Is_Alive(Process("solver.pid")));
  EXPECT_TRUE(testing::Wait_Until([this] { return !Is_Alive(Process("helper.pid")); }));
}

}  // namespace
}  // namespace barvon
