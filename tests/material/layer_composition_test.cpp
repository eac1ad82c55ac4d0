#include "material/layer_composition.h"

#include <gtest/gtest.h>

#include "core/book_numbers.h"
#include "material/material_support.h"
#include "support/record_differences.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

using Fields = std::vector<std::string>;

class LayerComposition : public Recorded_Workspace {
 protected:
  LayerComposition() {
    Set_Solids(record_, 4);
    record_.LAYERS = 6;
    record_.SeparationFlag = 1;
    for (std::size_t i = 1; i <= 4; ++i) {
      for (std::size_t j = 1; j <= 6; ++j) {
        record_.LayerSolidFraction[i][j] = 0.1 / static_cast<double>(i * j);
      }
    }
    for (std::size_t j = 1; j <= 6; ++j) record_.LayerMoisture[j] = static_cast<double>(j) / 3;
  }
  void Open() {
    *before_ = record_;
    Open_Solids("Test", record_.SeparationFlag != 0 ? kSeparatedLoad : kWholeLoad, record_, state_,
                solids_);
    Open_Composition(record_, state_, moisture_);
  }
  void Define(int layers, bool with_moisture) {
    Define_Book_1(layers, with_moisture, state_, moisture_, solids_, table_);
  }
  void Store(bool moisture_shown = true) {
    Store_Composition(state_, moisture_, moisture_shown, record_);
  }

  std::unique_ptr<ProjectRecord> before_ = std::make_unique<ProjectRecord>();
  Solids_State state_;
  Layer_Moisture moisture_;
  Spreadsheet_Table solids_{kBookNumbers}, table_{kBookNumbers};
};

TEST_F(LayerComposition, Four_Fractions_And_The_Moisture_Are_Five_Rows) {
  Open();
  Define(6, true);
  EXPECT_EQ(table_.MaxRow(), 5);
  EXPECT_EQ(table_.MaxCol(), 6);
  EXPECT_EQ(table_.RowText(1), "Sand1");
  EXPECT_EQ(table_.RowText(5), "Moisture Content");
  EXPECT_EQ(table_.ColText(6), "Layer 6");
  EXPECT_EQ(table_.TextRC(2, 1), "0.05");
  EXPECT_EQ(table_.TextRC(5, 6), "2");
}

TEST_F(LayerComposition, Defined_Read_And_Stored_Untouched_Every_Value_Stays) {
  for (const bool separated : {true, false}) {
    record_.SeparationFlag = separated ? 1 : 0;
    record_.MoistureContent = record_.LayerMoisture[1];
    for (const bool with_moisture : {true, false}) {
      Open();
      Define(6, with_moisture);
      Read_Composition(table_, with_moisture, state_, moisture_);
      Store();
      EXPECT_EQ(Differing_Fields(*before_, record_), Fields{});
    }
  }
}

TEST_F(LayerComposition, The_Fifth_Row_Is_The_Moistures_And_Is_Kept) {
  Open();
  Define(6, true);
  table_.TextRC(5, 2, "2.5");
  table_.TextRC(4, 2, "0.4");
  Read_Composition(table_, true, state_, moisture_);
  Define(6, false);
  Define(6, true);
  EXPECT_EQ(table_.TextRC(5, 2), "2.5");
  Store();
  EXPECT_EQ(record_.LayerMoisture[2], 2.5);
  EXPECT_EQ(record_.LayerSolidFraction[4][2], 0.4);
}

TEST_F(LayerComposition, A_Fifth_Row_Of_Fractions_Has_No_Place) {
  Open();
  Define(6, false);
  table_.MaxRow(5);
  table_.TextRC(5, 1, "9");
  Read_Composition(table_, false, state_, moisture_);
  Store();
  EXPECT_EQ(Differing_Fields(*before_, record_), Fields{});
}

TEST_F(LayerComposition, Rows_Are_Those_Ticked_Or_Those_Filled) {
  record_.NumSolids = 1;
  record_.SolidNames[1] = "";
  Open();
  EXPECT_EQ(Composition_Rows(state_, solids_), 1);
  Define(2, false);
  EXPECT_EQ(table_.RowText(1), "Param 1");
  solids_.TextRC(9, 1, "a");
  solids_.TextRC(10, 1, "b");
  EXPECT_EQ(Composition_Rows(state_, solids_), 2);
  state_.SelectedCount = 3;
  EXPECT_EQ(Composition_Rows(state_, solids_), 3);
  state_.SelectedCount = 30;
  EXPECT_EQ(Composition_Rows(state_, solids_), 4);
}

TEST_F(LayerComposition, An_Untick_Takes_The_Fractions_Own_Row_And_A_Tick_Adds_An_Empty_One) {
  Write_Text(folder_ / "BARVON.INI", "[Test]\r\nListsize=1\r\nFraction1=Sand2\r\n");
  Open();
  Define(2, false);
  table_.SetActiveCell(1, 1);
  Untick_Material(0, state_, solids_);
  Define(2, false);
  EXPECT_EQ(table_.RowText(2), "Sand3");
  EXPECT_EQ(table_.TextRC(1, 1), "0.1");
  EXPECT_EQ(table_.TextRC(2, 2), "0.0166666666666667");
  Tick_Material(0, state_, solids_);
  Define(2, false);
  EXPECT_EQ(table_.RowText(4), "Sand2");
  EXPECT_EQ(table_.TextRC(4, 1), "");
  Store_Solids(state_, solids_, record_);
  Store();
  EXPECT_EQ(record_.LayerSolidFraction[2], before_->LayerSolidFraction[3]);
  EXPECT_EQ(record_.LayerSolidFraction[4][1], 0);
}

TEST_F(LayerComposition, Without_Separation_Layer_1_Is_Offered_The_Loads_Moisture) {
  record_.SeparationFlag = 0;
  record_.MoistureContent = 2.5;
  Open();
  EXPECT_EQ(moisture_.texts[1], "2.5");
  Store(false);
  EXPECT_EQ(Differing_Fields(*before_, record_), Fields{}) << "nobody has seen it";
  Store(true);
  EXPECT_EQ(record_.LayerMoisture[1], 2.5);
  record_.LayerMoisture[1] = 1;
  Open();
  moisture_.texts[1] = "3";
  Store(false);
  EXPECT_EQ(record_.LayerMoisture[1], 3) << "typed before the table was hidden";
}

TEST_F(LayerComposition, Text_In_A_Composition_That_Is_Not_Shown_Is_Doubtful_All_The_Same) {
  Open();
  EXPECT_EQ(Composition_Doubts(6, state_, moisture_, solids_), "");
  state_.Row(10).layers[3] = "0,5";
  moisture_.texts[2] = "1,5";
  EXPECT_EQ(Composition_Doubts(6, state_, moisture_, solids_),
            "Sand2, Layer 3: \"0,5\" reads as 0.\nMoisture Content, Layer 2: \"1,5\" reads as "
            "1.\n");
  EXPECT_EQ(Composition_Doubts(1, state_, moisture_, solids_), "")
      << "layers that OK does not store";
}

TEST_F(LayerComposition, Fewer_Layers_Keep_What_The_Others_Held_For_The_Time_They_Are_Back) {
  record_.LAYERS = 2;
  record_.LayerSolidFraction[3][6] = record_.LayerMoisture[6] = 0;
  Open();
  Define(6, true);
  EXPECT_EQ(table_.TextRC(1, 5), "0.02");
  EXPECT_EQ(table_.TextRC(5, 3), "1");
  EXPECT_EQ(table_.TextRC(3, 6), "") << "never held anything";
  Read_Composition(table_, true, state_, moisture_);
  record_.LAYERS = 6;
  Store();
  record_.LAYERS = 2;
  EXPECT_EQ(Differing_Fields(*before_, record_), Fields{});
}

}  // namespace
}  // namespace barvon::testing
