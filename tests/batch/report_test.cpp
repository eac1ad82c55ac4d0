#include <sys/stat.h>

#include <filesystem>

#include "batch/batch_fixture.h"

namespace barvon::testing {
namespace {

using BatchReport = BatchProgram;
using Lines = std::vector<std::string>;

TEST_F(BatchReport, Writes_A_Page_Beside_The_Project) {
  Put_Sample(kHopper, "sub/site.DUI");
  const Program_Result result = Batch({"report", "sub/site.DUI"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out, "sub/site.DUI\twritten\t" + Path("sub/site.html") + "\n");
  const std::string page = Read_Text(Path("sub/site.html"));
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
  EXPECT_TRUE(page.ends_with("</html>\n"));
  EXPECT_NE(page.find("TERN SHOAL CHANNEL"), std::string::npos);
  EXPECT_NE(page.find("<td colspan=\"2\">site.DUI</td>"), std::string::npos);
  EXPECT_EQ(page.find("not saved"), std::string::npos);
}

TEST_F(BatchReport, Goes_Where_It_Is_Told) {
  Put_Sample(kHopper, "hopper.DUI");
  Put_Sample(kBarge, "barge.DUI");
  EXPECT_EQ(Batch({"report", "hopper.DUI", "-o", "one.htm"}).code, 0);
  EXPECT_TRUE(Exists(Path("one.htm")));
  std::filesystem::create_directory(Path("out"));
  EXPECT_EQ(Batch({"report", "hopper.DUI", "barge.DUI", "-o", "out"}).code, 0);
  EXPECT_EQ(Names_In(Path("out")), (Lines{"barge.html", "hopper.html"}));
}

TEST_F(BatchReport, A_Project_That_Can_Not_Be_Read_Leaves_No_File) {
  Write_Text(Path("torn.DUI"), "   DUMP");
  const Program_Result torn = Batch({"report", "torn.DUI"});
  EXPECT_EQ(torn.code, 2);
  EXPECT_EQ(Printed_Lines(torn.err).size(), 1u);
  EXPECT_EQ(Batch({"report", "missing.DUI"}).code, 2);
  EXPECT_EQ(Batch({"report", "--pdf", "torn.DUI"}).code, 2);
  EXPECT_EQ(Names_In(folder_.path()), (Lines{"tmp", "torn.DUI"}));
}

TEST_F(BatchReport, Findings_Are_In_It_And_Are_No_Failure) {
  Put_Faulty("site.DUI");
  EXPECT_EQ(Batch({"report", "site.DUI"}).code, 0);
  EXPECT_NE(Read_Text(Path("site.html")).find("The check of the data finds 1 error"),
            std::string::npos);
}

TEST_F(BatchReport, Is_Never_Written_Over_A_Project) {
  Put_Sample(kHopper, "site.DUI");
  const std::string before = Read_Text(Path("site.DUI"));
  const Program_Result result = Batch({"report", "site.DUI", "-o", "SITE.dui"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err,
            "site.DUI: a report is not written over a project: " + Path("site.DUI") + "\n");
  EXPECT_TRUE(Read_Text(Path("site.DUI")) == before);
}

TEST_F(BatchReport, Is_Never_Written_Over_A_Project_Through_A_Link) {
  Put_Sample(kHopper, "site.DUI");
  const std::string before = Read_Text(Path("site.DUI"));
  std::filesystem::create_symlink("site.DUI", Path("link.html"));
  std::filesystem::create_hard_link(Path("site.DUI"), Path("hard.html"));
  for (const std::string link : {"link.html", "hard.html"}) {
    for (const std::string command : {"report", "export"}) {
      const Program_Result result = Batch({command, "site.DUI", "-o", link});
      EXPECT_EQ(result.code, 2);
      EXPECT_NE(result.err.find("is not written over a project: " + Path(link)), std::string::npos)
          << result.err;
    }
  }
  EXPECT_TRUE(Read_Text(Path("site.DUI")) == before);
}

TEST_F(BatchReport, Several_Projects_Do_Not_Go_Into_One_File) {
  Put_Sample(kHopper, "hopper.DUI");
  Put_Sample(kBarge, "barge.DUI");
  const Program_Result result = Batch({"report", "hopper.DUI", "barge.DUI", "-o", "one.html"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "one.html: several reports can only be written into an existing folder\n");
}

TEST_F(BatchReport, Without_The_Window_Program_No_Pdf_Is_Written_And_The_Reason_Told) {
  Put_Sample(kHopper, "site.DUI");
  std::filesystem::create_directory(Path("bin"));
  std::filesystem::copy_file(BARVON_RUN_PROGRAM, Path("bin/barvon-run"));
  Program_Start start = Start_Of({"report", "--pdf", "site.DUI"});
  start.command[0] = Path("bin/barvon-run");
  const Program_Result result = Run_Program(start);
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err,
            "site.DUI: no PDF is written: the window program, barvon, is not installed "
            "in " +
                Path("bin") + " (without --pdf there is a report for a browser)\n");
  EXPECT_FALSE(Exists(Path("site.pdf")));
}

// The window program's part is tested with it; here a script stands in for it.
TEST_F(BatchReport, The_Window_Program_Is_Asked_For_The_Pdf) {
  Put_Sample(kHopper, "site.DUI");
  std::filesystem::create_directory(Path("bin"));
  std::filesystem::copy_file(BARVON_RUN_PROGRAM, Path("bin/barvon-run"));
  Write_Text(Path("bin/barvon"), "#!/bin/sh\necho \"$1 $2 $QT_QPA_PLATFORM\" > \"$3\"\n");
  chmod(Path("bin/barvon").c_str(), 0755);
  Program_Start start = Start_Of({"report", "--pdf", "site.DUI"});
  start.command[0] = Path("bin/barvon-run");
  const Program_Result result = Run_Program(start);
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out, "site.DUI\twritten\t" + Path("site.pdf") + "\n");
  EXPECT_EQ(Read_Text(Path("site.pdf")), "--report-pdf " + Path("site.DUI") + " offscreen\n");
  Write_Text(Path("bin/barvon"), "#!/bin/sh\nexit 2\n");
  EXPECT_EQ(Run_Program(start).code, 2);
  start.command.insert(start.command.end(), {"-o", "nodir/x.pdf"});
  EXPECT_EQ(Run_Program(start).err,
            "site.DUI: " + Path("nodir/x.pdf") + " can't be written: No such file or directory\n");
}

}  // namespace
}  // namespace barvon::testing
