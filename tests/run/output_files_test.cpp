#include "run/output_files.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "platform/files/local_files.h"
#include "support/disk_calls.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;
namespace fs = std::filesystem;

struct OutputFiles : ::testing::Test {
  OutputFiles() {
    fs::create_directory(app);
    fs::create_directory(folder / "bay");
  }
  /// A file that was there long before.
  void Old(const std::string& name, const std::string& text) {
    Write_Text(app + "/" + name, text);
    fs::last_write_time(app + "/" + name, fs::file_time_type::clock::now() - std::chrono::hours(1));
  }
  void New(const std::string& name, const std::string& text) { Write_Text(app + "/" + name, text); }
  std::string Kept(const std::string& extension) { return Read_Text(base + extension); }

  Scratch_Folder folder;
  Known_Folders folders;
  const std::string app = folder / "app";
  const std::string base = folder / "bay/site";
};

TEST_F(OutputFiles, Four_Outputs_Are_Copied_To_The_Base_Name) {
  const Output_Files outputs(app);
  New("tmpfile.duo", "o");
  New("TMPFILE.DUP", "p");
  New("TmpFile.Dut", "t");
  New("tmpfile.DUC", "c");
  for (const Kept_Output& output : outputs.Keep(base, folders)) {
    EXPECT_TRUE(output.written);
    EXPECT_EQ(output.path, base + output.extension);
    EXPECT_EQ(output.error, 0);
  }
  EXPECT_EQ(Names_In(folder / "bay"),
            (std::vector<std::string>{"site.duc", "site.duo", "site.dup", "site.dut"}));
  EXPECT_EQ(Kept(".duo") + Kept(".dup") + Kept(".dut") + Kept(".duc"), "optc");
  EXPECT_TRUE(Exists(app + "/TMPFILE.DUP"));
}

TEST_F(OutputFiles, A_Missing_Output_Is_Passed_Over_And_The_Older_Copy_Stays) {
  const Output_Files outputs(app);
  Write_Text(base + ".duo", "older");
  New("tmpfile.duc", "c");
  const auto kept = outputs.Keep(base, folders);
  EXPECT_FALSE(kept[0].written);
  EXPECT_EQ(kept[0].path, "");
  EXPECT_EQ(kept[0].error, 0);
  EXPECT_EQ(Kept(".duo"), "older");
  EXPECT_EQ(Kept(".duc"), "c");
}

TEST_F(OutputFiles, An_Output_Of_An_Earlier_Run_Is_Copied_And_Known_As_Such) {
  Old("tmpfile.duo", "of old");
  Old("tmpfile.dup", "of old");
  const Output_Files outputs(app);
  New("tmpfile.dup", "of now");  // as long as before
  const auto kept = outputs.Keep(base, folders);
  EXPECT_FALSE(kept[0].written);
  EXPECT_EQ(kept[0].path, base + ".duo");
  EXPECT_TRUE(kept[1].written);
  EXPECT_EQ(Kept(".dup"), "of now");
}

TEST_F(OutputFiles, Of_Two_Names_That_Differ_In_Case_The_One_Of_This_Run_Is_Taken) {
  Old("tmpfile.duo", "of old");
  const Output_Files outputs(app);
  New("TMPFILE.DUO", "of now");
  EXPECT_TRUE(outputs.Keep(base, folders)[0].written);
  EXPECT_EQ(Kept(".duo"), "of now");
}

TEST_F(OutputFiles, Of_Two_That_Are_New_The_Newest_Is_Taken) {
  const Output_Files outputs(app);
  New("tmpfile.duo", "newest");
  Old("TMPFILE.DUO", "first");
  outputs.Keep(base, folders);
  EXPECT_EQ(Kept(".duo"), "newest");
}

TEST_F(OutputFiles, An_Older_Copy_Of_Another_Case_Is_Replaced) {
  Write_Text(folder / "bay/SITE.DUO", "older");
  const Output_Files outputs(app);
  New("tmpfile.duo", "new");
  EXPECT_EQ(outputs.Keep(base, folders)[0].path, folder / "bay/SITE.DUO");
  EXPECT_EQ(Names_In(folder / "bay"), std::vector<std::string>{"SITE.DUO"});
  EXPECT_EQ(Read_Text(folder / "bay/SITE.DUO"), "new");
}

TEST_F(OutputFiles, A_Copy_That_Fails_Leaves_The_Others_And_No_Litter) {
  fs::create_directory(base + ".duo");
  const Output_Files outputs(app);
  New("tmpfile.duo", "o");
  New("tmpfile.dup", "p");
  const auto kept = outputs.Keep(base, folders);
  EXPECT_EQ(kept[0].error, EISDIR);
  EXPECT_EQ(kept[0].path, "");
  EXPECT_EQ(kept[1].path, base + ".dup");
  EXPECT_EQ(Names_In(folder / "bay"), (std::vector<std::string>{"site.duo", "site.dup"}));
}

TEST_F(OutputFiles, A_Project_Of_The_Scratch_Name_Keeps_Its_Output_In_Place) {
  const Output_Files outputs(app);
  New("tmpfile.duo", "o");
  const auto kept = outputs.Keep(app + "/tmpfile", folders);
  EXPECT_EQ(kept[0].path, app + "/tmpfile.duo");
  EXPECT_EQ(Read_Text(app + "/tmpfile.duo"), "o");
}

TEST_F(OutputFiles, Of_Many_Runs_In_A_Folder_Not_Each_Reads_Its_Names) {
  if (!Is_On_Local_Files(folder.path())) GTEST_SKIP() << "the system does not tell of all changes";
  const Output_Files outputs(app);
  for (const char* extension : kOutputExtensions) New(std::string("tmpfile") + extension, "new");
  const auto calls_of_a_run = [&](int run) {
    const Disk_Calls calls;
    outputs.Keep(base + std::to_string(run), folders);
    return std::pair(calls.Readings(), calls.Questions());
  };
  // Four looks beside the project, and four for the solver's names in its own folder.
  EXPECT_EQ(calls_of_a_run(0).first, 8);
  for (int run = 1; run < 20; ++run) calls_of_a_run(run);
  const auto [readings, questions] = calls_of_a_run(20);
  EXPECT_EQ(readings, 4);
  for (int run = 21; run < 60; ++run) {
    EXPECT_EQ(calls_of_a_run(run), std::pair(readings, questions)) << run;
  }
  Write_Text(folder / "bay/SITE60.DUO", "older, put there meanwhile");
  EXPECT_EQ(outputs.Keep(base + "60", folders)[0].path, folder / "bay/SITE60.DUO");
}

TEST_F(OutputFiles, A_Large_Output_Is_Copied_Byte_For_Byte) {
  std::string bytes;
  for (int i = 0; i < 300000; ++i) bytes += static_cast<char>(i * 7 + i / 256);
  const Output_Files outputs(app);
  New("tmpfile.dup", bytes);
  outputs.Keep(base, folders);
  EXPECT_TRUE(Kept(".dup") == bytes);
}

}  // namespace
}  // namespace barvon
