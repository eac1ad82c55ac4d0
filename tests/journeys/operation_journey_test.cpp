#include <filesystem>
#include <optional>

#include "params/operation_screen.h"
#include "platform/ask/file_dialog.h"

namespace barvon::testing {
namespace {

/// The operation screen with files to save to and to load from.
class OperationJourney : public OperationScreen {
 protected:
  OperationJourney() {
    const auto choose = [this](const File_Request&) { return chosen_; };
    dialogs_ = Set_File_Dialog_Presenter({choose, choose, [] {}});
    std::filesystem::copy_file(std::string(BARVON_SAMPLES) + "/Hopper_Six_Openings.DUI",
                               bench.folder / "site.DUI");
    chosen_ = bench.folder / "site.DUI";
    Load();
  }
  ~OperationJourney() override { Set_File_Dialog_Presenter(dialogs_); }

  void Save_Begin_Anew_And_Load() {
    const Modal_Replies no_boxes({});
    chosen_ = bench.folder / "kept.DUI";
    *before = record;
    bench.Action("mnuFileItem(5)")->trigger();
    bench.Action("mnuFileItem(0)")->trigger();
    ASSERT_EQ(record.NOPENS, 1);
    Load();
  }
  void Load() {
    bench.Action("mnuFileItem(1)")->trigger();
    ASSERT_EQ(record.ProjectFileName, *chosen_);
    record.ShowMode = 0;
  }
  /// The fields of the disposal operation that have come back as others.
  Fields Lost() const {
    Fields lost;
    for (const std::string& field : Changed()) {
      for (const char* own :
           {"XBARGE", "ZBARGE", "BINL", "BINW", "DBINS", "DREL1", "DREL2", "TDIS", "NBINS",
            "NOPENS", "LayerVelX", "LayerVelZ", "XHOLE", "ZHOLE", "DHOLE", "DisposalMethod"}) {
        if (field == own) lost.push_back(field);
      }
    }
    return lost;
  }

  std::optional<std::string> chosen_;
  File_Dialog_Presenter dialogs_;
};

TEST_F(OperationJourney, A_Hopper_With_Six_Openings_Is_Entered_Saved_And_Loaded) {
  record.NOPENS = 0;
  record.LayerVelX = record.LayerVelZ = {};
  Open();
  const char* const typed[] = {"1234.56", "789.012", "30.5", "20.25", "5",
                               "24",      "13.5",    "180",  "2"};
  for (int i = 0; i < kOperationFields; ++i) Enter(Text1(i), typed[i]);
  Enter(Text2(), "6");
  for (int row = 1; row <= 6; ++row) {
    Type_Into_Cell(Book(), row, 1, QString::number(row * 0.25));
    Type_Into_Cell(Book(), row, 2, QString::number(-row * 1.5));
  }
  Command(0);
  ASSERT_FALSE(Is_Open());
  EXPECT_EQ(record.XBARGE, 1234.56);
  EXPECT_EQ(record.ZBARGE, 789.012);
  EXPECT_EQ(record.NBINS, 2);
  EXPECT_EQ(record.NOPENS, 6);
  EXPECT_EQ(record.LayerVelX[6], 1.5);
  EXPECT_EQ(record.LayerVelZ[6], -9);

  Save_Begin_Anew_And_Load();
  EXPECT_EQ(Lost(), Fields{});
  EXPECT_EQ(record.LayerVelZ[6], -9);
  Open();
  EXPECT_EQ(Text1(0)->text(), "1234.56");
  EXPECT_EQ(Text2()->text(), "6");
  EXPECT_EQ(Book().table().NumberRC(6, 1), 1.5);
  Command(0);
  EXPECT_EQ(record.ZBARGE, 789.012);  // not as the field shows it
}

TEST_F(OperationJourney, A_Depression_Is_Entered_Saved_And_Loaded) {
  Open();
  Click(Check3D1());
  Enter(Text3(0), "500.5");
  Enter(Text3(1), "400");
  Enter(Text3(2), "12.25");
  {
    Modal_Replies replies({Press(QMessageBox::Yes)});
    Command(0);
  }
  Save_Begin_Anew_And_Load();
  EXPECT_EQ(Lost(), Fields{});
  EXPECT_EQ(record.XHOLE, 500.5);
  EXPECT_TRUE(Board_Box());
  Open();
  EXPECT_TRUE(Check3D1()->isChecked());
}

}  // namespace
}  // namespace barvon::testing
