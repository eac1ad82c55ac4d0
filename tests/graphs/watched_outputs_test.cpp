#include "graphs/watched_outputs.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "results/small_outputs.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

class WatchedOutputs : public ::testing::Test {
 protected:
  WatchedOutputs() { Write_All(); }
  void Write_All() const {
    Write_Text(folder / "bay.dut", kSmallSeries);
    Write_Text(folder / "bay.duc", kSmallMaps);
    Write_Text(folder / "bay.dup", kSmallPhases);
  }
  /// As a run leaves them whose tracer has another name.
  void Write_Another_Run() const {
    Write_Text(folder / "bay.dut", With(kSmallSeries, "Copper    ", "Silver    "));
  }
  static bool Is_Whole(const std::optional<Results_Or_Problem>& read) {
    return read && std::holds_alternative<Results>(*read);
  }

  Scratch_Folder folder;
  Watched_Outputs outputs{folder / "bay.DUI"};
};

TEST_F(WatchedOutputs, Nothing_Is_News_While_Nothing_Is_Written) {
  ASSERT_TRUE(std::holds_alternative<Results>(outputs.Read()));
  for (int look = 0; look < 3; ++look) EXPECT_FALSE(outputs.Look());
}

TEST_F(WatchedOutputs, Fresh_Outputs_Are_Read_Once_They_Rest) {
  outputs.Read();
  Write_Another_Run();
  EXPECT_FALSE(outputs.Look());
  const auto read = outputs.Look();
  ASSERT_TRUE(Is_Whole(read));
  EXPECT_EQ(std::get<Results>(*read).species.at(1).name, "Silver");
  EXPECT_FALSE(outputs.Look());
}

TEST_F(WatchedOutputs, What_Is_Written_Between_Two_Looks_Is_Waited_For) {
  outputs.Read();
  Write_Text(folder / "bay.dut", kSmallSeries.substr(0, 300));
  EXPECT_FALSE(outputs.Look());
  Write_Text(folder / "bay.dut", kSmallSeries.substr(0, 600));
  EXPECT_FALSE(outputs.Look());
  Write_Another_Run();
  EXPECT_FALSE(outputs.Look());
  EXPECT_TRUE(Is_Whole(outputs.Look()));
}

TEST_F(WatchedOutputs, Damage_Is_Told_Once_And_So_Is_Its_End) {
  outputs.Read();
  Write_Text(folder / "bay.duc", kSmallMaps.substr(0, 700));
  EXPECT_FALSE(outputs.Look());
  const auto read = outputs.Look();
  ASSERT_TRUE(read);
  EXPECT_TRUE(std::holds_alternative<Result_Problem>(*read));
  EXPECT_FALSE(outputs.Look());
  Write_All();
  EXPECT_FALSE(outputs.Look());
  EXPECT_TRUE(Is_Whole(outputs.Look()));
}

TEST_F(WatchedOutputs, Outputs_That_Go_And_Come_Are_Told) {
  outputs.Read();
  for (const char* name : {"bay.dut", "bay.duc", "bay.dup"}) {
    std::filesystem::remove(folder / name);
  }
  EXPECT_FALSE(outputs.Look());
  auto read = outputs.Look();
  ASSERT_TRUE(read);
  EXPECT_EQ(std::get<Result_Problem>(*read).file, folder / "bay.dut");
  Write_All();
  EXPECT_FALSE(outputs.Look());
  EXPECT_TRUE(Is_Whole(outputs.Look()));
}

TEST_F(WatchedOutputs, A_File_Written_In_Place_With_The_Same_Size_Is_News) {
  outputs.Read();
  Write_Text(folder / "bay.dup", kSmallPhases);
  EXPECT_FALSE(outputs.Look());
  EXPECT_TRUE(Is_Whole(outputs.Look()));
}

}  // namespace
}  // namespace barvon::testing
