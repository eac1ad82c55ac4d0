#include "dilution/dilution_report.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "dilution/dilution_rules.h"
#include "support/project_text.h"
#include "support/recorded_workspace.h"

namespace barvon::testing {
namespace {

class DilutionReport : public Recorded_Workspace {
 protected:
  DilutionReport() { std::filesystem::current_path(folder_.path()); }

  void Put(std::size_t i, const std::string& name, double bulk, double elutriate, double criterion,
           double background) {
    record_.DiluteRowCount = static_cast<std::int16_t>(i);
    record_.DiluteParameterNames[i] = name;
    record_.DiluteBulk[i] = bulk;
    record_.DiluteElutriate[i] = elutriate;
    record_.DiluteCriteria[i] = criterion;
    record_.DiluteBackground[i] = background;
    record_.DiluteSolidsConc = 50;
  }
  std::string Line(std::size_t i) { return Lines_Of(Dilution_Report(record_)).at(3 + i); }

  const std::string path_ = folder_ / "DILUTE.OUT";
};

TEST_F(DilutionReport, Is_Laid_Out_Byte_By_Byte) {
  Put(1, "Copper", 1000, 26, 10, 2);
  Put(2, "Lead", 1000, 5, 2, 2.5);
  Put(3, "Tin", 0.5, 1, 0, 0);
  ASSERT_TRUE(Compute_Dilutions(50, record_));
  const std::string expected =
      "\f                    Dilutions Required for Bulk Sediment and Elutriate\r\n"
      "\r\n"
      " Parameter      Bulk Sediment Elutriate     Criteria      Background    "
      "Dilution (Bulk) Remarks (Bulk)  Dilution (Elut) Remarks (Elut)\r\n"
      " Copper          1000          26            10            2            "
      " 5                               2                     \r\n"
      " Lead            1000          5             2             2.5          "
      " 9999999        C < B            9999999        C < B\r\n"
      " Tin             0.5           1             0             0            "
      " 9999999        C = 0.0          9999999        C = 0.0\r\n";
  EXPECT_EQ(Dilution_Report(record_), expected);
}

TEST_F(DilutionReport, A_Dilution_That_No_Number_Holds_Is_Told_In_Words) {
  Put(1, "Copper", 1e308, 26, 10, 2);
  ASSERT_TRUE(Compute_Dilutions(50000, record_));
  EXPECT_EQ(Line(1),
            " Copper          1E+308        26            10            2            "
            " too large                       2                     ");
}

TEST_F(DilutionReport, Fields_Begin_At_Their_Columns) {
  Put(1, "Copper", 1, 2, 3, 4);
  record_.DiluteBulkDilution[1] = 5;
  record_.DiluteBulkRemark[1] = "C < B";
  record_.DiluteElutDilution[1] = 6;
  record_.DiluteElutRemark[1] = "C = 0.0";
  const std::string line = Line(1);
  EXPECT_EQ(line.substr(1, 6), "Copper");
  EXPECT_EQ(line.substr(16, 3), " 1 ");
  EXPECT_EQ(line.substr(30, 3), " 2 ");
  EXPECT_EQ(line.substr(44, 3), " 3 ");
  EXPECT_EQ(line.substr(58, 3), " 4 ");
  EXPECT_EQ(line.substr(72, 3), " 5 ");
  EXPECT_EQ(line.substr(88, 5), "C < B");
  EXPECT_EQ(line.substr(104, 3), " 6 ");
  EXPECT_EQ(line.substr(120), "C = 0.0");
}

TEST_F(DilutionReport, What_Overruns_Its_Column_Pushes_The_Rest_On) {
  Put(1, "abcdefghijklmno", -5, 1.23456789012345e-5, 1, 1);
  Put(2, "abcdefghijklmnopqrstuvwxy", 7, 1, 1, 1);
  Put(3, "Lead", -123456789.123456, -1, 1, 1);
  EXPECT_EQ(Line(1).substr(0, 20), " abcdefghijklmno -5 ");
  EXPECT_EQ(Line(1).substr(30, 22), " 1.23456789012345E-05 ");
  EXPECT_EQ(Line(1).substr(52, 9), " 1     1 ");
  EXPECT_EQ(Line(2).substr(0, 31), " abcdefghijklmnopqrstuvwxy 7   ");
  EXPECT_EQ(Line(3).substr(16, 20), "-123456789.123456 -1");
  EXPECT_EQ(Lines_Of(Dilution_Report(record_)).size(), 7U);  // 1 to 6
}

TEST_F(DilutionReport, Goes_To_The_Current_Folder_And_Says_Where) {
  Scripted_Messages messages;
  Put(1, "Copper", 1000, 26, 10, 2);
  Write_Dilute_Report(record_);
  EXPECT_EQ(Read_Text(path_), Dilution_Report(record_));
  EXPECT_EQ(notes_, std::vector<std::string>{"The dilution report is " + path_ + "."});
}

TEST_F(DilutionReport, Computes_First_What_Is_Not_Computed) {
  Scripted_Messages messages;
  Put(1, "Copper", 1000, 26, 10, 2);
  Write_Dilute_Report(record_);
  EXPECT_EQ(record_.DiluteBulkDilution[1], 5);
  EXPECT_EQ(record_.DiluteElutDilution[1], 2);
}

TEST_F(DilutionReport, Says_Why_It_Cannot_Compute_And_Writes_Nothing) {
  Scripted_Messages messages({Answer::Ok});
  Put(1, "Copper", 1000, 26, 10, 2);
  record_.DiluteSolidsConc = 0;
  Write_Dilute_Report(record_);
  EXPECT_EQ(messages.shown.at(0).text,
            "Provide a Solids Concentration Greater Than Zero for the Dredged Material Being "
            "Disposed.");
  EXPECT_FALSE(Exists(path_));
}

TEST_F(DilutionReport, Without_Parameters_There_Is_None) {
  Scripted_Messages messages({Answer::Ok});
  Write_Dilute_Report(record_);
  EXPECT_EQ(messages.shown.at(0).text,
            "There Are No Parameters to Report.  Enter or Read Them in the Calculator First.");
  EXPECT_FALSE(Exists(path_));
}

TEST_F(DilutionReport, An_Existing_One_Is_Replaced_Only_After_A_Question) {
  Put(1, "Copper", 1000, 26, 10, 2);
  Write_Text(path_, "former");
  {
    Scripted_Messages messages({Answer::No});
    Write_Dilute_Report(record_);
    EXPECT_EQ(messages.shown.at(0).text, "Replace the Report That Is There?\n\n" + path_);
    EXPECT_EQ(messages.shown.at(0).buttons, Buttons::YesNo);
    EXPECT_EQ(Read_Text(path_), "former");
  }
  Scripted_Messages messages({Answer::Yes});
  Write_Dilute_Report(record_);
  EXPECT_EQ(Read_Text(path_), Dilution_Report(record_));
}

TEST_F(DilutionReport, That_Cannot_Be_Written_Is_Told) {
  Put(1, "Copper", 1000, 26, 10, 2);
  std::filesystem::create_directory(path_);
  Scripted_Messages messages({Answer::Yes, Answer::Ok});
  Write_Dilute_Report(record_);
  EXPECT_EQ(messages.shown.at(1).text,
            "The report was not written as " + path_ + ": Is a directory.");
  EXPECT_EQ(messages.shown.at(1).icon, Icon::Critical);
  EXPECT_TRUE(notes_.empty());
}

}  // namespace
}  // namespace barvon::testing
