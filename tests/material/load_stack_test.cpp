#include "material/load_stack.h"

#include <gtest/gtest.h>

#include "core/book_numbers.h"
#include "material/layer_composition.h"
#include "material/material_support.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

class LoadStack : public Recorded_Workspace {
 protected:
  LoadStack() {
    Set_Solids(record_, 2);
    record_.LAYERS = 2;
    record_.LayerSolidFraction[1] = {0, 0.25, 0.75};
    record_.LayerSolidFraction[2] = {0, 0.125, 0.5};
    for (std::size_t i = 1; i <= 2; ++i) record_.SolidVolFraction[i] = 0.25;
  }
  Bar_Chart Stack(bool separated) {
    record_.SeparationFlag = separated ? 1 : 0;
    Open_Solids("Test", separated ? kSeparatedLoad : kWholeLoad, record_, state_, solids_);
    Layer_Moisture moisture;
    Open_Composition(record_, state_, moisture);
    return Load_Stack(2, volumes_, state_, solids_);
  }

  Solids_State state_;
  Spreadsheet_Table solids_{kBookNumbers}, volumes_{kBookNumbers};
};

TEST_F(LoadStack, A_Layer_Shows_Its_Fractions_And_The_Water_Between) {
  const Bar_Chart chart = Stack(true);
  ASSERT_EQ(chart.bars.size(), 2U);
  EXPECT_EQ(Bar_Words(chart.bars[0]), "Layer 1: Sand1 0.25, Sand2 0.25 to 0.375, water 0.375 to 1");
  EXPECT_FALSE(chart.bars[0].warned);
  EXPECT_EQ(chart.legend.size(), 3U);
}

TEST_F(LoadStack, More_Than_The_Whole_Is_Warned_Of_And_Has_No_Water) {
  const Bar_Chart chart = Stack(true);
  EXPECT_TRUE(chart.bars[1].warned);
  EXPECT_EQ(Bar_Words(chart.bars[1]),
            "Layer 2: Sand1 0.75, Sand2 0.75 to 1.25, more than the whole");
}

TEST_F(LoadStack, Without_Separation_All_Layers_Are_The_Load) {
  const Bar_Chart chart = Stack(false);
  EXPECT_EQ(Bar_Words(chart.bars[1]), "Layer 2: Sand1 0.25, Sand2 0.25 to 0.5, water 0.5 to 1");
}

TEST_F(LoadStack, Layers_Are_As_High_As_Their_Volumes_While_Each_Has_One) {
  EXPECT_EQ(Stack(true).bars[1].weight, 1);
  volumes_.NumberRC(1, 1, 100);
  EXPECT_EQ(Stack(true).bars[0].weight, 1);
  volumes_.NumberRC(2, 1, 300);
  EXPECT_EQ(Stack(true).bars[1].weight, 300);
}

TEST_F(LoadStack, A_Thin_Layer_Is_High_Enough_To_Be_Read) {
  volumes_.NumberRC(1, 1, 10);
  volumes_.NumberRC(2, 1, 990);
  const Bar_Chart chart = Stack(true);
  EXPECT_DOUBLE_EQ(chart.bars.at(0).weight, 100);
  EXPECT_DOUBLE_EQ(chart.bars.at(1).weight, 990);
}

TEST_F(LoadStack, Fractions_That_Make_Up_The_Whole_Are_No_Warning) {
  for (std::size_t i = 1; i <= 2; ++i) record_.LayerSolidFraction[i][1] = 0.5;
  record_.LayerSolidFraction[1][1] = 0.1 + 0.2 + 0.2;
  EXPECT_FALSE(Stack(true).bars[0].warned);
}

TEST_F(LoadStack, Without_Fractions_There_Is_Water) {
  record_.SolidNames.fill("");
  EXPECT_EQ(Bar_Words(Stack(true).bars[0]), "Layer 1: water 1");
}

}  // namespace
}  // namespace barvon::testing
