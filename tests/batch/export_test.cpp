#include <filesystem>

#include "batch/batch_fixture.h"

namespace barvon::testing {
namespace {

using BatchExport = BatchProgram;
using Lines = std::vector<std::string>;

TEST_F(BatchExport, Writes_The_Model_Input_Beside_The_Project) {
  Put_Sample(kHopper, "sub/site.DUI");
  const Program_Result result = Batch({"export", "sub/site.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out, "sub/site.DUI\twritten\t" + Path("sub/site.DUE") + "\n");
  EXPECT_TRUE(Read_Text(Path("sub/site.DUE")).starts_with("    DUE       1\r\n"));
}

TEST_F(BatchExport, Writes_Over_An_Older_Export_Whatever_The_Case_Of_Its_Name) {
  Put_Sample(kHopper, "site.DUI");
  Write_Text(Path("SITE.due"), "older");
  EXPECT_EQ(Batch({"export", "site.DUI"}).code, 0);
  EXPECT_EQ(Names_In(folder_.path()), (Lines{"SITE.due", "site.DUI", "tmp"}));
  EXPECT_NE(Read_Text(Path("SITE.due")), "older");
}

TEST_F(BatchExport, Writes_A_Single_Project_Under_The_Given_Name) {
  Put_Sample(kHopper, "site.DUI");
  EXPECT_EQ(Batch({"export", "site.DUI", "-o", "input.txt"}).code, 0);
  EXPECT_TRUE(Read_Text(Path("input.txt")).starts_with("    DUE"));
  EXPECT_FALSE(Exists(Path("site.DUE")));
}

TEST_F(BatchExport, Writes_Into_The_Given_Folder) {
  Put_Sample(kHopper, "hopper.DUI");
  Put_Sample(kBarge, "barge.DUI");
  std::filesystem::create_directory(Path("out"));
  EXPECT_EQ(Batch({"export", "hopper.DUI", "barge.DUI", "-o", "out"}).code, 0);
  EXPECT_EQ(Names_In(Path("out")), (Lines{"barge.DUE", "hopper.DUE"}));
}

TEST_F(BatchExport, Several_Projects_Do_Not_Go_Into_One_File) {
  Put_Sample(kHopper, "hopper.DUI");
  Put_Sample(kBarge, "barge.DUI");
  const Program_Result result = Batch({"export", "hopper.DUI", "barge.DUI", "-o", "one.DUE"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "one.DUE: several projects can only be exported into an existing folder\n");
  EXPECT_FALSE(Exists(Path("one.DUE")));
}

TEST_F(BatchExport, Two_Projects_Never_Write_The_Same_File) {
  Put_Sample(kHopper, "a/site.DUI");
  Put_Sample(kBarge, "b/SITE.DUI");
  std::filesystem::create_directory(Path("out"));
  const Program_Result result = Batch({"export", "a/site.DUI", "b/SITE.DUI", "-o", "out"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "b/SITE.DUI: its model input would overwrite that of a/site.DUI\n");
  EXPECT_EQ(Names_In(Path("out")), Lines{"site.DUE"});
  EXPECT_TRUE(Read_Text(Path("out/site.DUE")).starts_with("    DUE       1"));
}

TEST_F(BatchExport, The_Same_Project_Twice_Is_Written_Once) {
  Put_Sample(kHopper, "site.DUI");
  const Program_Result result = Batch({"export", "site.DUI", "./site.DUI"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(Printed_Lines(result.out).size(), 1u);
}

TEST_F(BatchExport, Is_Never_Written_Over_A_Project) {
  Put_Sample(kHopper, "site.DUI");
  const std::string before = Read_Text(Path("site.DUI"));
  EXPECT_EQ(Batch({"export", "site.DUI", "-o", "SITE.dui"}).code, 2);
  EXPECT_TRUE(Read_Text(Path("site.DUI")) == before);
}

TEST_F(BatchExport, A_Model_Input_That_Can_Not_Be_Written_Leaves_No_File) {
  ASSERT_EQ(Batch({"new", "fresh.DUI"}).code, 0);  // its spacings are 0
  const Program_Result result = Batch({"export", "fresh.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(Printed_Lines(result.err).size(), 1u);
  EXPECT_TRUE(result.err.starts_with("fresh.DUI: the model input can't be written: "))
      << result.err;
  EXPECT_FALSE(Exists(Path("fresh.DUE")));
}

TEST_F(BatchExport, Says_Why_A_File_Could_Not_Be_Written) {
  Put_Sample(kHopper, "site.DUI");
  const Program_Result result = Batch({"export", "site.DUI", "-o", "none/site.DUE"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "site.DUI: " + Path("none/site.DUE") +
                            " can't be written: No such file or directory\n");
}

TEST_F(BatchExport, What_Can_Be_Done_Is_Done) {
  Put_Sample(kHopper, "site.DUI");
  EXPECT_EQ(Batch({"export", "missing.DUI", "site.DUI"}).code, 2);
  EXPECT_TRUE(Exists(Path("site.DUE")));
}

TEST_F(BatchExport, A_Continuous_Project_Has_A_Model_Input_Too) {
  Put_Sample("Pipeline_Continuous.DUI", "pipe.DUI");
  EXPECT_EQ(Batch({"export", "pipe.DUI"}).code, 0);
  EXPECT_TRUE(Read_Text(Path("pipe.DUE")).starts_with("    DUE       2\r\n"));
}

}  // namespace
}  // namespace barvon::testing
