#include "workspace/tips_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "support/recorded_workspace.h"

namespace barvon {
namespace {

using namespace barvon::testing;

using Lines = std::vector<std::string>;

/// Chance gives these numbers, then the last one for ever.
class TipsFile : public Recorded_Workspace {
 protected:
  TipsFile() {
    former_ = Set_Tip_Chance([this] {
      const double number = numbers.front();
      if (numbers.size() > 1) numbers.erase(numbers.begin());
      return number;
    });
  }
  ~TipsFile() override { Set_Tip_Chance(former_); }

  Lines Read(const std::string& bytes) {
    Write_Text(path, bytes);
    Tip_Collection collection;
    EXPECT_TRUE(LoadTips(path, collection));
    return collection.tips;
  }

  std::vector<double> numbers = {0};
  std::string path = folder_ / "TIPOFDAY.TXT";

 private:
  Chance former_;
};

TEST_F(TipsFile, An_Empty_Name_And_A_Missing_File_Are_Not_Loaded) {
  Tip_Collection collection{{"kept"}, 1};
  EXPECT_FALSE(LoadTips("", collection));
  EXPECT_FALSE(LoadTips(path, collection));
  std::filesystem::create_directory(path);
  EXPECT_FALSE(LoadTips(path, collection));
  EXPECT_EQ(Current_Tip(collection), "kept");
}

TEST_F(TipsFile, An_Empty_File_Is_Loaded_And_Has_No_Tip) {
  Write_Text(path, "");
  Tip_Collection collection{{"former"}, 1};
  EXPECT_TRUE(LoadTips(path, collection));
  EXPECT_EQ(collection.tips, Lines{});
  EXPECT_EQ(Current_Tip(collection), "");
  Next_Tip(collection);
  EXPECT_EQ(Current_Tip(collection), "");
}

TEST_F(TipsFile, Every_Line_Is_A_Tip_Whatever_Ends_It) {
  EXPECT_EQ(Read("one\ntwo\n"), (Lines{"one", "two"}));
  EXPECT_EQ(Read("one\r\ntwo\r\n"), (Lines{"one", "two"}));
  EXPECT_EQ(Read("one\rtwo"), (Lines{"one", "two"}));
  EXPECT_EQ(Read("one\n\ntwo"), (Lines{"one", "", "two"}));
  EXPECT_EQ(Read("\r\n"), Lines{""});
}

TEST_F(TipsFile, Tips_May_Be_In_Either_Encoding) {
  EXPECT_EQ(Read("D\xC3\xA9p\xC3\xB4t"), Lines{"Dépôt"});
  EXPECT_EQ(Read("\xEF\xBB\xBF"
                 "D\xC3\xA9p\xC3\xB4t"),
            Lines{"Dépôt"});
  EXPECT_EQ(Read("D\xE9p\xF4t"), Lines{"Dépôt"});
}

TEST_F(TipsFile, The_File_Is_Found_In_Any_Case) {
  Write_Text(folder_ / "TipOfDay.txt", "one");
  Tip_Collection collection;
  EXPECT_TRUE(LoadTips(path, collection));
  EXPECT_EQ(Current_Tip(collection), "one");
}

// Four tips: the first quarter of the numbers is the first tip, and so on.
TEST_F(TipsFile, The_Next_Tip_Is_The_Whole_Part_Of_Chance_Times_Their_Number_Plus_One) {
  Write_Text(path, "a\nb\nc\nd\n");
  numbers = {0.5, 0, 0.2499, 0.25, 0.7499, 0.75, 0.9999, 1};
  Tip_Collection collection;
  ASSERT_TRUE(LoadTips(path, collection));
  std::string seen = Current_Tip(collection);
  EXPECT_EQ(collection.current, 3);
  for (int i = 0; i < 7; ++i) {
    Next_Tip(collection);
    seen += Current_Tip(collection);
  }
  EXPECT_EQ(seen, "caabcddd");
}

TEST_F(TipsFile, The_Same_Tip_May_Follow_Itself) {
  Write_Text(path, "a\nb\n");
  numbers = {0.6};
  Tip_Collection collection;
  LoadTips(path, collection);
  EXPECT_EQ(Current_Tip(collection), "b");
  Next_Tip(collection);
  EXPECT_EQ(Current_Tip(collection), "b");
}

TEST(TipChance, Of_The_Program_Reaches_Every_Tip_And_No_Other) {
  Tip_Collection collection{{"a", "b", "c"}, 0};
  std::set<int> seen;
  for (int i = 0; i < 500; ++i) {
    Next_Tip(collection);
    seen.insert(collection.current);
  }
  EXPECT_EQ(seen, (std::set<int>{1, 2, 3}));
}

TEST(TipTexts, A_Missing_File_Is_Told_Word_For_Word) {
  EXPECT_EQ(Missing_Tips_Text(),
            "That the TIPOFDAY.TXT file was not found? \n\nCreate a text file named TIPOFDAY.TXT "
            "using NotePad with 1 tip per line. Then place it in the same directory as the "
            "application. ");
}

TEST_F(TipsFile, Tips_Come_At_The_Start_Only_When_The_Settings_Say_So) {
  EXPECT_FALSE(Tips_At_Start_Wanted());
  for (const auto& [value, wanted] :
       {std::pair("1", true), std::pair("0", false), std::pair("", false), std::pair("yes", false),
        std::pair("-1", true)}) {
    Write_Text(folder_ / "BARVON.INI",
               "[Options]\r\nShow Tips at Startup=" + std::string(value) + "\r\n");
    EXPECT_EQ(Tips_At_Start_Wanted(), wanted) << value;
  }
}

TEST_F(TipsFile, The_Choice_Is_Kept_As_1_Or_0) {
  Choose_Tips_At_Start(true);
  EXPECT_EQ(Settings(), "[Options]\r\nShow Tips at Startup=1\r\n");
  Choose_Tips_At_Start(false);
  EXPECT_EQ(Settings(), "[Options]\r\nShow Tips at Startup=0\r\n");
}

TEST_F(TipsFile, The_Start_Opens_Them_Without_Blocking_If_They_Are_Wanted) {
  std::vector<bool> opened;
  Register_Screen(Row_Of_Screen("frmTip"),
                  [&opened](bool blocking, const std::string&) { opened.push_back(blocking); });
  Open_Tips_At_Start();
  EXPECT_EQ(opened, std::vector<bool>{});
  Choose_Tips_At_Start(true);
  Open_Tips_At_Start();
  EXPECT_EQ(opened, std::vector<bool>{false});
  Register_Screen(Row_Of_Screen("frmTip"), {});
}

class TipsOfTheProgram : public ::testing::Test {
 protected:
  TipsOfTheProgram() { EXPECT_TRUE(LoadTips(BARVON_SOURCE "/resources/TIPOFDAY.TXT", tips)); }
  Tip_Collection tips;
};

TEST_F(TipsOfTheProgram, Are_Many_And_Each_Stands_Once) {
  EXPECT_GE(tips.tips.size(), 25U);
  EXPECT_EQ(std::set<std::string>(tips.tips.begin(), tips.tips.end()).size(), tips.tips.size());
  for (const std::string& tip : tips.tips) {
    EXPECT_GE(tip.size(), 40U) << tip;
    EXPECT_LE(tip.size(), 200U) << tip;
    EXPECT_TRUE(tip.ends_with('.')) << tip;
    EXPECT_TRUE(std::all_of(tip.begin(), tip.end(), [](char c) { return c >= ' ' && c <= '~'; }))
        << tip;
  }
}

TEST_F(TipsOfTheProgram, Quote_Captions_Of_The_Program_Letter_By_Letter) {
  std::string literals;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(BARVON_SOURCE "/src")) {
    if (entry.is_regular_file()) literals += Read_Text(entry.path().string());
  }
  std::erase(literals, '&');
  // Numbers as they are typed, and commands of the console.
  const std::set<std::string> others = {"62,5", "1,200", "barvon-run check",
                                        "barvon-run run --jobs 4"};
  const std::regex quoted("\"([^\"]*)\"");
  int captions = 0;
  for (const std::string& tip : tips.tips) {
    for (std::sregex_iterator at(tip.begin(), tip.end(), quoted), end; at != end; ++at) {
      const std::string words = (*at)[1];
      if (others.count(words) != 0) continue;
      EXPECT_NE(literals.find('"' + words + '"'), std::string::npos) << words;
      ++captions;
    }
  }
  EXPECT_GE(captions, 15);
}

}  // namespace
}  // namespace barvon
