#include "checks/error_navigation.h"

#include <gtest/gtest.h>

#include "core/desk/screen_register.h"

namespace barvon {
namespace {

TEST(ErrorNavigation, Leads_To_Screen_And_Control) {
  for (const char* screen : {"frmDescription", "frmOperation", "frmSimulation"}) {
    const auto target = Error_Target_Of(std::string(screen) + "!Text1(2)");
    ASSERT_TRUE(target);
    EXPECT_STREQ(target->screen->name, screen);
    EXPECT_EQ(target->control, "Text1(2)");
  }
  EXPECT_EQ(Error_Target_Of("frmDescription!F1Book1")->control, "F1Book1");
}

TEST(ErrorNavigation, The_Evaluation_Screen_Is_Only_Shown) {
  const auto target = Error_Target_Of("frmMdlkyn!Text(0)");
  ASSERT_TRUE(target);
  EXPECT_EQ(target->screen, &Row_Of_Screen("frmMdlkyn"));
  EXPECT_EQ(target->control, "");
}

TEST(ErrorNavigation, A_Screen_Knows_Whether_A_Finding_Leads_To_It) {
  const Screen_Row& screen = Row_Of_Screen("frmMdlkyn");
  EXPECT_FALSE(Is_Led_To(screen));
  {
    const Lead_To_Screen lead(screen);
    EXPECT_TRUE(Is_Led_To(screen));
    EXPECT_FALSE(Is_Led_To(Row_Of_Screen("frmSimulation")));
    {
      const Lead_To_Screen other(Row_Of_Screen("frmSimulation"));
      EXPECT_FALSE(Is_Led_To(screen));
    }
    EXPECT_TRUE(Is_Led_To(screen));
  }
  EXPECT_FALSE(Is_Led_To(screen));
}

TEST(ErrorNavigation, Material_References_And_Screens_That_No_Longer_Stand_Lead_Nowhere) {
  for (const char* reference : {"frmMatHopper!F1Book1", "frmMatBarge!F1Book1", "frmChanDis3D2!x",
                                "frmPipeDis3D2!x", "frmDikeLeak3D2!x", "frmMixZone3D!x"}) {
    EXPECT_FALSE(Error_Target_Of(reference)) << reference;
  }
}

TEST(ErrorNavigation, A_Reference_Without_A_Mark_Does_Nothing) {
  EXPECT_FALSE(Error_Target_Of("frmOperation"));
  EXPECT_FALSE(Error_Target_Of(""));
}

}  // namespace
}  // namespace barvon
