#include "workspace/edit_menu.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/desk/screen_register.h"
#include "core/desk/screen_table.h"
#include "core/desk/workspace_port.h"
#include "support/plain_support.h"

namespace barvon {
namespace {

class EditMenu : public ::testing::Test {
 protected:
  EditMenu() {
    for (const char* name : {"frmDescription", "frmVelocity", "frmMatHopper", "frmMatBarge",
                             "frmOperation", "frmCoefficients", "frmDensity"}) {
      Register_Screen(*Find_Screen(name), [this, name](bool blocking, const std::string&) {
        opened.push_back(name);
        blocked = blocking;
      });
    }
    record->ShowMode = 1;
    record->AnalysisType = 1;
    record->DisposalMethod = 1;
  }
  ~EditMenu() override {
    for (const Screen_Row& row : kScreens) Register_Screen(row, {});
    Reset_Port();
  }

  std::vector<std::string> Opened_By(int index) {
    opened.clear();
    Open_Edit_Screen(index, *record);
    return opened;
  }

  using Names = std::vector<std::string>;
  std::unique_ptr<ProjectRecord> record = std::make_unique<ProjectRecord>();
  Names opened;
  bool blocked = false;
};

TEST_F(EditMenu, Opens_The_Screen_Of_Its_Entry) {
  EXPECT_EQ(Opened_By(1), Names{"frmDescription"});
  EXPECT_EQ(Opened_By(2), Names{"frmVelocity"});
  EXPECT_EQ(Opened_By(5), Names{"frmOperation"});
  EXPECT_EQ(Opened_By(6), Names{"frmCoefficients"});
  EXPECT_EQ(Opened_By(9), Names{"frmDensity"});
}

TEST_F(EditMenu, Material_Goes_By_The_Method_Of_Disposal) {
  const Names screens[] = {{}, {"frmMatHopper"}, {"frmMatHopper"}, {"frmMatBarge"}, {}};
  for (std::int16_t method = 0; method <= 4; ++method) {
    record->DisposalMethod = method;
    EXPECT_EQ(Opened_By(4), screens[method]) << method;
  }
}

TEST_F(EditMenu, Error_Check_And_Evaluation_Selection_Open_None) {
  for (const int index : {0, 7, 8, 10, 11, -1, 99}) EXPECT_EQ(Opened_By(index), Names{}) << index;
}

TEST_F(EditMenu, Screens_Open_As_ShowMode_Says) {
  Opened_By(1);
  EXPECT_TRUE(blocked);
  record->ShowMode = 0;
  Opened_By(1);
  EXPECT_FALSE(blocked);
}

TEST_F(EditMenu, A_Negative_Analysis_Type_Opens_Only_Coefficients_And_Density) {
  record->AnalysisType = -1;
  testing::Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok, Answer::Ok});
  for (const int index : {1, 2, 4, 5}) EXPECT_EQ(Opened_By(index), Names{}) << index;
  EXPECT_EQ(messages.shown.size(), 4u);
  EXPECT_EQ(Opened_By(6), Names{"frmCoefficients"});
  EXPECT_EQ(Opened_By(9), Names{"frmDensity"});
}

TEST_F(EditMenu, No_Screen_Comes_Up_Blocking_While_One_Stands_Open_Without) {
  Port().board.screen_is_open = [](const std::string& name) { return name == "frmVelocity"; };
  testing::Scripted_Messages messages({Answer::Ok, Answer::Ok});
  for (const int index : {2, 1}) EXPECT_EQ(Opened_By(index), Names{}) << index;
  ASSERT_EQ(messages.shown.size(), 2u);
  for (const Message& message : messages.shown) {
    EXPECT_EQ(message.text,
              "Cannot Display Multiple Forms.  Select 'Multiple Input Windows' From View Menu");
    EXPECT_EQ(message.title, "BARVON");
    EXPECT_EQ(message.icon, Icon::Critical);
    EXPECT_EQ(message.buttons, Buttons::Ok);
  }
  record->ShowMode = 0;
  EXPECT_EQ(Opened_By(2), Names{"frmVelocity"});
  EXPECT_EQ(Opened_By(1), Names{"frmDescription"});
}

TEST_F(EditMenu, The_Evaluation_Is_Asked_For_Once_Whatever_The_Vessel) {
  record->AnalysisType = -1;
  constexpr std::int16_t kMethods[] = {0, 1, 3};
  for (const std::int16_t method : kMethods) {
    record->DisposalMethod = method;
    testing::Scripted_Messages messages({Answer::Ok});
    EXPECT_EQ(Opened_By(4), Names{});
    EXPECT_EQ(messages.shown.size(), 1u) << method;
  }
}

TEST_F(EditMenu, Only_Input_Screens_Keep_A_Screen_From_Blocking) {
  for (const Screen_Row& row : kScreens) {
    const bool input = row.kind == Screen_Kind::Input;
    Port().board.screen_is_open = [&row](const std::string& name) { return name == row.name; };
    testing::Scripted_Messages messages({Answer::Ok});
    EXPECT_EQ(Opened_By(6), input ? Names{} : Names{"frmCoefficients"}) << row.name;
    EXPECT_EQ(messages.shown.size(), input ? 1u : 0u) << row.name;
  }
}

TEST_F(EditMenu, A_Screen_That_Is_Not_There_Is_Named_In_The_Status_Area) {
  std::string noted;
  Port().board.show_note = [&noted](const Status_Note& note) { noted = note.text; };
  Register_Screen(Row_Of_Screen("frmDensity"), {});
  EXPECT_EQ(Opened_By(9), Names{});
  EXPECT_EQ(noted, "The screen frmDensity is not part of this version.");
}

}  // namespace
}  // namespace barvon
