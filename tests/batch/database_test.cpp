#include <filesystem>

#include "batch/batch_fixture.h"

namespace barvon::testing {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// A copy of the sample database in the folder "db".
class BatchDatabase : public BatchProgram {
 protected:
  BatchDatabase() { fs::copy(std::string(BARVON_SAMPLES) + "/database", Path("db")); }

  const std::string kRemark =
      "vesdb.dat\t9\tremark\ta project finds the vessels behind the first one only while it has 1 "
      "opening itself";
};

TEST_F(BatchDatabase, A_Sound_Database_Has_A_Remark_Only) {
  const Program_Result result = Batch({"database", "check", "db"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(Printed_Lines(result.out), Lines{kRemark});
  EXPECT_EQ(result.err, "");
}

TEST_F(BatchDatabase, Each_Fault_Is_A_Line_Of_File_Line_And_Text) {
  const std::string sites = Read_Text(Path("db/matdb.dat"));
  Write_Text(Path("db/matdb.dat"), sites.substr(0, sites.size() - 2));
  const Program_Result result = Batch({"database", "check", "db"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(Printed_Lines(result.out),
            (Lines{"matdb.dat\t51\ta line is missing behind the last record, which the walk does "
                   "not find",
                   "sites.dat\t23\t\"Heron Forebay\", code 800: the material is not found in "
                   "matdb.dat",
                   kRemark}));
  EXPECT_EQ(Names_In(Path("db")).size(), 7U) << "nothing is written";
}

TEST_F(BatchDatabase, Mend_Writes_And_Keeps_Copies) {
  const std::string sites = Read_Text(Path("db/matdb.dat"));
  Write_Text(Path("db/matdb.dat"), sites.substr(0, sites.size() - 2));
  const Program_Result result = Batch({"database", "check", "db", "--mend"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(Printed_Lines(result.out), (Lines{"matdb.dat\tmended", kRemark}));
  EXPECT_EQ(Read_Text(Path("db/matdb.dat")), sites);
  EXPECT_EQ(Read_Text(Path("db/matdb.dat.bak")), sites.substr(0, sites.size() - 2));
}

TEST_F(BatchDatabase, A_File_That_Can_Not_Be_Mended_Is_Told_With_The_Reason) {
  const std::string sites = Read_Text(Path("db/matdb.dat"));
  const std::string damaged = sites.substr(0, sites.size() - 2);
  Write_Text(Path("db/matdb.dat"), damaged);
  fs::create_symlink("nowhere/copy", Path("db/matdb.dat.bak"));
  const Program_Result result = Batch({"database", "check", "db", "--mend"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "db/matdb.dat: can't be mended: No such file or directory\n");
  EXPECT_EQ(Read_Text(Path("db/matdb.dat")), damaged);
}

TEST_F(BatchDatabase, A_Folder_That_Is_None_Can_Not_Be_Checked) {
  const Program_Result result = Batch({"database", "check", "nowhere"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(Batch({"database"}).code, 2);
  EXPECT_EQ(Batch({"database", "check"}).code, 2);
}

}  // namespace
}  // namespace barvon::testing
