#include "site/grid_csv_file.h"

#include <gtest/gtest.h>

#include "platform/ask/file_dialog.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

/// A folder, and file dialogs that choose what the test says and keep what they were asked.
class GridCsvFile : public ::testing::Test {
 protected:
  GridCsvFile() {
    const auto choose = [this](const File_Request& request) {
      asked.push_back(request);
      return chosen;
    };
    former = Set_File_Dialog_Presenter({choose, choose, [] {}});
  }
  ~GridCsvFile() override { Set_File_Dialog_Presenter(former); }

  Scratch_Folder folder;
  std::optional<std::string> chosen;
  std::vector<File_Request> asked;

 private:
  File_Dialog_Presenter former;
};

const Grid_Rows kCounted = {{1, 2, 3}, {4, 5, 6.25}};

TEST_F(GridCsvFile, What_Was_Exported_Is_Imported) {
  const Scripted_Messages messages;
  chosen = folder / "depths.csv";
  ASSERT_TRUE(Export_Grid_Csv("Export Depths", "depths.csv", kCounted));
  EXPECT_EQ(Read_Text(*chosen), "1,2,3\r\n4,5,6.25\r\n");
  EXPECT_EQ(Import_Grid_Csv("Import Depths", 2, 3), kCounted);
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[0].title, "Export Depths");
  EXPECT_EQ(asked[0].name, "depths.csv");
  EXPECT_EQ(asked[1].title, "Import Depths");
  EXPECT_EQ(asked[1].filters.front().pattern, "*.csv");
}

TEST_F(GridCsvFile, A_Name_Without_An_Extension_Gets_Csv) {
  const Scripted_Messages messages;
  chosen = folder / "depths";
  ASSERT_TRUE(Export_Grid_Csv("Export", "", kCounted));
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{"depths.csv"});
  EXPECT_EQ(asked[0].complete("/a.b/depths"), "/a.b/depths.csv") << "asked about before replacing";
  EXPECT_EQ(asked[0].complete("/a.b/depths.txt"), "/a.b/depths.txt");
}

TEST_F(GridCsvFile, Cancel_Does_Nothing) {
  const Scripted_Messages messages;
  EXPECT_FALSE(Import_Grid_Csv("Import", 2, 3));
  EXPECT_FALSE(Export_Grid_Csv("Export", "depths.csv", kCounted));
  EXPECT_TRUE(Names_In(folder.path()).empty());
}

TEST_F(GridCsvFile, A_Fault_Is_Told_With_The_Files_Name) {
  const Scripted_Messages messages({Answer::Ok});
  chosen = folder / "depths.csv";
  Write_Text(*chosen, "1,2,3\n4,five,6\n");
  EXPECT_FALSE(Import_Grid_Csv("Import", 2, 3));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "Nothing is imported from depths.csv.  Row 2, column 2: \"five\" is not a number.");
  EXPECT_EQ(messages.shown[0].title, "BARVON");
  EXPECT_EQ(messages.shown[0].icon, Icon::Warning);
  EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
}

TEST_F(GridCsvFile, A_File_That_Cannot_Be_Read_Or_Written_Is_Told) {
  const Scripted_Messages messages({Answer::Ok, Answer::Ok});
  chosen = folder / "none/depths.csv";
  EXPECT_FALSE(Import_Grid_Csv("Import", 2, 3));
  EXPECT_FALSE(Export_Grid_Csv("Export", "", kCounted));
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_TRUE(messages.shown[0].text.starts_with("Can't read depths.csv: "));
  EXPECT_TRUE(messages.shown[1].text.starts_with("Can't write depths.csv: "));
}

TEST_F(GridCsvFile, A_File_Much_Larger_Than_Any_Table_Is_Not_Taken_Apart) {
  const Scripted_Messages messages({Answer::Ok});
  chosen = folder / "large.csv";
  Write_Text(*chosen, std::string(5'000'000, ','));
  EXPECT_FALSE(Import_Grid_Csv("Import", 2, 3));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text,
            "Nothing is imported from large.csv.  The file is too large for a table.");
}

}  // namespace
}  // namespace barvon::testing
