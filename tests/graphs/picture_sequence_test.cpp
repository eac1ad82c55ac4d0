#include "graphs/picture_sequence.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProgressDialog>

#include "graphs/export_bench.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

class Sequences : public ::testing::Test {
 protected:
  void SetUp() override {
    page.length = 12;
    page.show();
    page.Show_In_Sequence(4);
    page.shown.clear();
  }

  std::string Save(const std::string& name) {
    Scripted_Files dialog({folder / name});
    const std::string said = Save_Sequence(page, Results_At(folder / "Site.DUI"));
    asked = dialog.asked;
    return said;
  }

  Scratch_Folder folder;
  Bar_Page page;
  std::vector<File_Request> asked;
};

TEST_F(Sequences, Every_Time_Is_A_Picture_With_A_Number_That_Sorts) {
  EXPECT_EQ(Save("sand.png"), "12 pictures saved, from " + (folder / "sand 01.png"));
  std::vector<std::string> expected;
  for (const char* number :
       {"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"}) {
    expected.push_back("sand " + std::string(number) + ".png");
  }
  EXPECT_EQ(Names_In(folder.path()), expected);
  EXPECT_NE(Read_Text(folder / "sand 01.png"), Read_Text(folder / "sand 12.png"));
  EXPECT_FALSE(QImage(QString::fromStdString(folder / "sand 07.png")).isNull());
  EXPECT_EQ(page.Sequence_Place(), 4) << "the page shows what it showed";
  // The dialog must not ask about a file that is not written.
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0].complete(folder / "sand"), folder / "sand 01 to sand 12.png");
}

TEST_F(Sequences, Names_That_Exist_Are_Asked_About_Once) {
  Write_Text(folder / "sand 03.png", "old");
  Write_Text(folder / "sand 11.png", "old");
  {
    const Scripted_Messages messages({Answer::No});
    EXPECT_EQ(Save("sand"), "");
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text,
              "2 pictures of these names exist already, from sand 01.png to sand 12.png.\nDo you "
              "want to replace them?");
  }
  EXPECT_EQ(Names_In(folder.path()), (std::vector<std::string>{"sand 03.png", "sand 11.png"}));
  const Scripted_Messages messages({Answer::Yes});
  EXPECT_NE(Save("sand"), "");
  EXPECT_EQ(Names_In(folder.path()).size(), 12U);
  EXPECT_NE(Read_Text(folder / "sand 03.png"), "old");
}

TEST_F(Sequences, Cancel_On_The_Way_Leaves_None_And_Changes_None) {
  Write_Text(folder / "sand 01.png", "old");
  const Scripted_Messages messages({Answer::Yes});
  page.on_show = [this] {
    if (page.Sequence_Place() != 5) return;
    page.findChild<QProgressDialog*>(QStringLiteral("dlgSequence"))->cancel();
  };
  EXPECT_EQ(Save("sand"), "Cancelled: none of the pictures was saved");
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{"sand 01.png"});
  EXPECT_EQ(Read_Text(folder / "sand 01.png"), "old");
  EXPECT_EQ(page.Sequence_Place(), 4);
}

TEST_F(Sequences, A_Failure_On_The_Way_Is_Told_And_Leaves_None) {
  const Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Save("none/sand"), "");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_NE(messages.shown[0].text.find(folder / "none/sand 01.png"), std::string::npos);
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{});
}

TEST_F(Sequences, Other_Outputs_On_The_Way_End_It) {
  const Scripted_Messages messages({Answer::Ok});
  page.on_show = [this] { page.length = page.Sequence_Place() == 3 ? 7 : page.length; };
  EXPECT_EQ(Save("sand"), "");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_NE(messages.shown[0].text.find("the outputs have changed meanwhile"), std::string::npos);
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{});
}

TEST_F(Sequences, A_Page_Without_Times_Says_So) {
  page.length = 0;
  const Scripted_Messages messages({Answer::Ok});
  EXPECT_EQ(Save("sand"), "");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "This page has no pictures over time.");
  EXPECT_TRUE(asked.empty());
}

}  // namespace
}  // namespace barvon::testing
