#include "platform/process/viewer_program.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <utility>

#include "run/child_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

struct ViewerProgram : ::testing::Test {
  int Start(std::vector<std::string> steps) {
    steps.insert(steps.begin(), BARVON_TEST_CHILD);
    return Start_Viewer(steps, folder.path(), [this](const Process_End& its, const std::string& p) {
      ++ended;
      end = its;
      printed = p;
    });
  }

  Scratch_Folder folder;
  int ended = 0;
  Process_End end;
  std::string printed;
};

TEST_F(ViewerProgram, Its_End_Is_Told_Once_With_What_It_Printed) {
  Watched_Programs watched;
  ASSERT_EQ(Start({"print:one", "error:two", "await:close", "exit:4"}), 0);
  EXPECT_EQ(watched.Open(), 1u);
  EXPECT_EQ(ended, 0);
  Write_Text(folder / "close", "");
  EXPECT_TRUE(Comes_True([&] { return watched.Open() == 0; }));
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(end.exit_code, 4);
  EXPECT_EQ(printed, "one\ntwo\n");
}

TEST_F(ViewerProgram, Nobody_Asks_About_It_Before_Its_End) {
  int watched = -1;
  std::function<bool()> is_open;
  const Program_Watcher former =
      Set_Program_Watcher([&](int descriptor, std::function<bool()> ask) {
        watched = descriptor;
        is_open = std::move(ask);
      });
  ASSERT_EQ(Start({"await:close"}), 0);
  Set_Program_Watcher(former);
  pollfd readable{watched, POLLIN, 0};
  EXPECT_EQ(::poll(&readable, 1, 0), 0);
  Write_Text(folder / "close", "");
  while (::poll(&readable, 1, 60'000) < 0) {
  }
  EXPECT_FALSE(is_open());
  EXPECT_EQ(ended, 1);
}

TEST_F(ViewerProgram, A_Death_By_Signal_Is_Told_Apart_From_A_Code) {
  ASSERT_EQ(Start({"signal:11"}), 0);
  EXPECT_EQ(end.signal, SIGSEGV);
}

TEST_F(ViewerProgram, A_Start_That_Fails_Says_Why_And_Calls_Nothing) {
  Watched_Programs watched;
  EXPECT_EQ(Start_Viewer({folder / "none"}, {},
                         [](const Process_End&, const std::string&) { ADD_FAILURE(); }),
            ENOENT);
  EXPECT_EQ(watched.Open(), 0u);
}

TEST_F(ViewerProgram, Has_A_Session_Of_Its_Own_No_Input_And_No_Open_Files) {
  ASSERT_EQ(Start({"note:note"}), 0);
  EXPECT_EQ(Read_Text(folder / "note"), "argument note:note\nfolder " + folder.path() +
                                            "\nown group yes\ninput empty\nopen files 0 1 2 "
                                            "\nsignals \n");
}

TEST_F(ViewerProgram, Prints_As_Much_As_It_Likes_And_Only_The_Start_Is_Kept) {
  ASSERT_EQ(Start({"print:first", "flood:3000000", "write:done=x", "exit:0"}), 0);
  EXPECT_TRUE(Exists(folder / "done"));
  EXPECT_EQ(end.exit_code, 0);
  EXPECT_LE(printed.size(), 4096u);
  EXPECT_GT(printed.size(), 0u);
}

}  // namespace
}  // namespace barvon
