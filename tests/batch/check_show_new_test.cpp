#include <sys/stat.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "batch/batch_fixture.h"
#include "core/record_fields.h"
#include "platform/files/lock_file.h"

namespace barvon::testing {
namespace {

using BatchCheck = BatchProgram;
using BatchShow = BatchProgram;
using BatchNew = BatchProgram;
using Lines = std::vector<std::string>;

TEST_F(BatchCheck, A_Sound_Project_Has_No_Lines) {
  Put_Sample(kHopper, "site.DUI");
  const Program_Result result = Batch({"check", "site.DUI"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "");
}

TEST_F(BatchCheck, Each_Finding_Is_A_Line_Of_File_Message_And_Reference) {
  ASSERT_EQ(Batch({"new", "fresh.DUI"}).code, 0);
  const Program_Result result = Batch({"check", "fresh.DUI"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(
      Printed_Lines(result.out),
      (Lines{"fresh.DUI\tRoughness Height Outside Bounds\tfrmDescription!Text1(5)",
             "fresh.DUI\tDepth of Receiving Water Not Supplied\tfrmDescription!F1Book1",
             "fresh.DUI\tDensity Value Not Supplied at Depth = \tfrmDescription!F1Book1",
             "fresh.DUI\tDensity Value Not Supplied at Depth = \tfrmDescription!F1Book1",
             "fresh.DUI\tVolumetric Fraction for  is Zero\tfrmMatHopper!F1Book1",
             "fresh.DUI\tInapproprite Length of Vessel Bin\tfrmOperation!Text1(2)",
             "fresh.DUI\tInapproprite Width of Vessel Bin\tfrmOperation!Text1(3)",
             "fresh.DUI\tPlease Specify the Duration of the Simulation.\tfrmSimulation!Text1(0)",
             "fresh.DUI\tPlease Specify Long Term Time Step for Diffusion.\tfrmSimulation!Text1(1)",
             "fresh.DUI\tSimulation Time Step Is Too Large.  Please "
             "Reduce.\tfrmSimulation!Text1(1)"}));
  EXPECT_EQ(result.err, "");
}

TEST_F(BatchCheck, Nothing_Is_Written) {
  Put_Sample(kHopper, "site.DUI");
  const std::string before = Read_Text(Path("site.DUI"));
  Batch({"check", "site.DUI"});
  EXPECT_EQ(Names_In(folder_.path()), (Lines{"site.DUI", "tmp"}));
  EXPECT_TRUE(Read_Text(Path("site.DUI")) == before);
}

TEST_F(BatchCheck, A_Damaged_Exact_Value_Is_Refused_With_Its_Line) {
  Put_Sample(kHopper, "site.DUI");
  std::string bytes = Read_Text(Path("site.DUI"));
  const std::string damaged = "RealSlots(88) = abc; the columns give 100";
  bytes += "Exact values of this project that the columns above this line can not hold: 1\r\n" +
           damaged + "\r\nEnd of the exact values\r\n";
  Write_Text(Path("site.DUI"), bytes);
  const Program_Result result = Batch({"check", "site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err,
            "site.DUI: Error Reading File:  13. What is damaged is line 3523: " + damaged + "\n");
}

TEST_F(BatchCheck, A_File_Is_Found_Without_Regard_To_Case) {
  Put_Sample(kHopper, "SITE.DUI");
  EXPECT_EQ(Batch({"check", "site.dui"}).code, 0);
}

TEST_F(BatchCheck, Files_That_Can_Not_Be_Read_Are_Told_In_One_Line_Each) {
  std::filesystem::create_directory(Path("folder.DUI"));
  std::filesystem::create_symlink(Path("ring.DUI"), Path("ring.DUI"));
  ASSERT_EQ(mkfifo(Path("pipe.DUI").c_str(), 0600), 0);
  Write_Text(Path("text.txt"), "no project");
  const Program_Result result =
      Batch({"check", "nowhere.DUI", "folder.DUI", "ring.DUI", "pipe.DUI", "text.txt", ""});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(Printed_Lines(result.err),
            (Lines{"nowhere.DUI: can't be read: No such file or directory",
                   "folder.DUI: can't be read: Is a directory",
                   "ring.DUI: can't be read: Too many levels of symbolic links",
                   "pipe.DUI: can't be read: Operation not supported",
                   "text.txt: not a project file: its name does not end in .DUI",
                   "barvon-run: not a project file: its name does not end in .DUI"}));
}

TEST_F(BatchCheck, A_File_That_Is_Cut_Off_Is_Told) {
  Put_Sample(kHopper, "site.DUI");
  Write_Text(Path("cut.DUI"), Read_Text(Path("site.DUI")).substr(0, 100000));
  Write_Text(Path("empty.DUI"), "");
  const Program_Result result = Batch({"check", "cut.DUI", "empty.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(Printed_Lines(result.err),
            (Lines{"cut.DUI: the file is cut off, or it is no project file",
                   "empty.DUI: the file is cut off, or it is no project file"}));
}

TEST_F(BatchCheck, A_Failure_That_The_Window_Shows_In_A_Box_Is_One_Line_With_The_File) {
  Put_Sample(kHopper, "site.DUI");
  std::string bytes = Read_Text(Path("site.DUI"));
  // The third line holds the first integers; 99999 is more than 16 bits hold.
  const auto third = bytes.find('\n', bytes.find('\n') + 1) + 1;
  bytes.replace(third, 5, "99999");
  Write_Text(Path("site.DUI"), bytes);
  const Program_Result result = Batch({"check", "site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "site.DUI: Error Reading File:  6\n");
}

TEST_F(BatchCheck, What_Can_Be_Done_Is_Done_And_The_Code_Is_The_Worst) {
  Put_Sample(kHopper, "good.DUI");
  Put_Faulty("faulty.DUI");
  EXPECT_EQ(Batch({"check", "good.DUI", "faulty.DUI"}).code, 1);
  const Program_Result result = Batch({"check", "missing.DUI", "faulty.DUI", "good.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(Printed_Lines(result.out).size(), 1u);
  EXPECT_EQ(Printed_Lines(result.err).size(), 1u);
}

TEST_F(BatchShow, Json_Is_One_Object_With_Every_Field_Under_Its_Name) {
  Put_Sample("Variable_96_By_96.DUI", "site.DUI");
  const Program_Result result = Batch({"show", "site.DUI", "--json"});
  ASSERT_EQ(result.code, 0) << result.err;
  const auto shown = nlohmann::json::parse(result.out);
  EXPECT_EQ(shown.size(), Record_Fields().size());
  for (const Record_Field& field : Record_Fields()) {
    EXPECT_TRUE(shown.contains(field.name)) << field.name;
  }
  EXPECT_EQ(shown["ProjectFileName"], Path("site.DUI"));
  EXPECT_EQ(shown["BaseFileName"], Path("site"));
  EXPECT_EQ(shown["MMAX0"], 96);
  EXPECT_EQ(shown["DataSaved"], -1);
  EXPECT_EQ(shown["AnalysisType"], 1);
  EXPECT_EQ(shown["RHDA0"], 0.005);
  EXPECT_EQ(shown["SolidNames"], (nlohmann::json{"Sand", "Silt", "", "", ""}));
  // The mound: 42 ft, 0.3 ft a row, 0.1 ft every four columns, less 8 ft at its top.
  EXPECT_EQ(shown["DepthGrid"].size(), 96u);
  EXPECT_EQ(shown["DepthGrid"][59][39], 53.0);
  EXPECT_EQ(shown["DepthGrid"][0][0], 42.3);
}

TEST_F(BatchShow, Without_Json_It_Lists_A_Field_To_A_Line) {
  Put_Sample(kHopper, "site.DUI");
  const Program_Result result = Batch({"show", "site.DUI"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(Printed_Lines(result.out).size(), Record_Fields().size());
  EXPECT_NE(result.out.find("\nDensities                    1.0212 1.022 1.0234 0 0\n"),
            std::string::npos);
  EXPECT_NE(result.out.find("\nDepthGrid                    96 x 96 values, 0 to 0\n"),
            std::string::npos);
}

TEST_F(BatchShow, What_Is_Odd_About_A_File_That_Loads_Is_A_Warning) {
  Put_Sample(kHopper, "site.DUI");
  std::string bytes = Read_Text(Path("site.DUI"));
  bytes.resize(bytes.find(" Used To Determine"));
  Write_Text(Path("site.DUI"), bytes);
  const Program_Result result = Batch({"show", "--json", "site.DUI"});
  EXPECT_EQ(result.code, 0);
  ASSERT_EQ(Printed_Lines(result.err).size(), 1u);
  EXPECT_TRUE(result.err.starts_with("site.DUI: warning: ")) << result.err;
  EXPECT_EQ(nlohmann::json::parse(result.out)["KEY4"], 1);
}

TEST_F(BatchNew, Writes_A_Reset_Project) {
  const Program_Result result = Batch({"new", "fresh.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out, "fresh.DUI\twritten\t" + Path("fresh.DUI") + "\n");
  const auto shown = nlohmann::json::parse(Batch({"show", "fresh.DUI", "--json"}).out);
  EXPECT_EQ(shown["MMAX0"], 32);
  EXPECT_EQ(shown["NROA0"], 2);
  EXPECT_EQ(shown["SiteDensity"], 1.0);
  EXPECT_EQ(shown["CSTRIP"], 0.003);
  EXPECT_EQ(Names_In(folder_.path()), (Lines{"fresh.DUI", "tmp"}));
}

TEST_F(BatchNew, Leaves_A_File_That_Exists_As_It_Is) {
  Write_Text(Path("SITE.DUI"), "mine");
  const Program_Result result = Batch({"new", "site.dui"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "site.dui: exists already (--force replaces it)\n");
  EXPECT_EQ(Read_Text(Path("SITE.DUI")), "mine");
}

TEST_F(BatchNew, Replaces_A_File_On_Request) {
  Write_Text(Path("SITE.DUI"), "mine");
  EXPECT_EQ(Batch({"new", "--force", "site.dui"}).code, 0);
  EXPECT_TRUE(Read_Text(Path("SITE.DUI")).starts_with("   DUMP    1\r\n"));
  EXPECT_FALSE(Exists(Path("site.dui")));
}

TEST_F(BatchNew, Leaves_A_Project_That_A_Window_Has_As_It_Is) {
  Write_Text(Path("site.DUI"), "mine");
  Lock_File lock;
  ASSERT_EQ(lock.Take(Path(".site.DUI.barvon-lock")), Lock_File::Outcome::Taken);
  const Program_Result result = Batch({"new", "--force", "site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_TRUE(result.err.starts_with("site.DUI: is open in a window: ")) << result.err;
  EXPECT_EQ(Read_Text(Path("site.DUI")), "mine");
}

TEST_F(BatchNew, Refuses_A_Name_That_Is_No_Projects) {
  for (const char* name : {"site.txt", "DUI"}) {
    const Program_Result result = Batch({"new", name});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.err, std::string(name) + ": a project's name ends in .DUI\n");
    EXPECT_FALSE(Exists(Path(name)));
  }
}

TEST_F(BatchNew, Says_Why_A_File_Could_Not_Be_Written) {
  const Program_Result result = Batch({"new", "no/such/folder/site.DUI"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "no/such/folder/site.DUI: can't be written: No such file or directory\n");
}

}  // namespace
}  // namespace barvon::testing
