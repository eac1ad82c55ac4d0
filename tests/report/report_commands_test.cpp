#include "report/report_commands.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QLabel>
#include <filesystem>
#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/keys.h"
#include "platform/ask/file_dialog.h"
#include "platform/qt/session_printer.h"
#include "report/project_report.h"
#include "report/report_html.h"
#include "report/report_pages.h"
#include "report/report_printer.h"
#include "support/screen_support.h"
#include "workspace/file_menu.h"
#include "workspace/main_menus.h"

namespace barvon::testing {
namespace {

/// The pages of a PDF file.
int Pages_Of_Pdf(const std::string& bytes) {
  const std::regex page("/Type /Page[^s]");
  return static_cast<int>(
      std::distance(std::sregex_iterator(bytes.begin(), bytes.end(), page), {}));
}

class ReportCommands : public ::testing::Test {
 protected:
  ReportCommands() {
    Register_Project_Report();
    File_Dialog_Presenter dialogs;
    dialogs.save = [this](const File_Request& request) {
      asked_ = request;
      return chosen_;
    };
    dialogs.printer = [this](const std::string& title, int pages) {
      print_title_ = title;
      pages_ = pages;
      offered_ = Session_Printer().outputFileName().toStdString();
      if (!print_file_.empty()) {
        Session_Printer().setOutputFileName(QString::fromStdString(print_file_));
      }
      Session_Printer().setFromTo(first_, last_);
      if (last_page_first_) Session_Printer().setPageOrder(QPrinter::LastPageFirst);
      return prints_;
    };
    former_ = Set_File_Dialog_Presenter(dialogs);
  }
  ~ReportCommands() override {
    Set_File_Dialog_Presenter(former_);
    Register_Screen(Row_Of_Screen("Project_Report"), {});
    Port().report = {};
    Forget_Session_Printer();
  }

  void Open_Sample(const std::string& name = "Section_404_Zid.DUI") {
    std::filesystem::copy_file(std::string(BARVON_SAMPLES) + "/" + name, bench_.folder / name);
    ASSERT_TRUE(Open_From_Workspace(bench_.folder / name, Project()));
  }
  std::string Note() { return bench_.Child<QLabel>("StatusNote")->text().toStdString(); }
  QAction* Tool() { return bench_.Action("mnuToolItem(7)"); }

  Main_Bench bench_;
  std::optional<std::string> chosen_;
  File_Request asked_;
  bool prints_ = true;
  int pages_ = 0, first_ = 0, last_ = 0;
  bool last_page_first_ = false;
  std::string print_file_, offered_;
  std::string print_title_;
  File_Dialog_Presenter former_;
};

TEST_F(ReportCommands, The_Tools_Menu_Saves_A_Pdf_Under_The_Projects_Name) {
  Open_Sample();
  EXPECT_TRUE(Tool()->isVisible());
  chosen_ = bench_.folder / "zid.pdf";
  Tool()->trigger();
  EXPECT_EQ(asked_.title, "Save Project Report");
  EXPECT_EQ(asked_.name, bench_.folder / "Section_404_Zid.pdf");
  const std::string pdf = Read_Text(*chosen_);
  EXPECT_TRUE(pdf.starts_with("%PDF-"));
  EXPECT_EQ(Note(), "Project report written: " + *chosen_);
}

TEST_F(ReportCommands, A_Pdf_Has_The_Pages_That_It_Says) {
  for (const auto& sample : std::filesystem::directory_iterator(BARVON_SAMPLES)) {
    const std::string name = sample.path().filename();
    if (!name.ends_with(".DUI")) continue;
    Open_Sample(name);
    const Report_Document report = Project_Report(Project(), Facts_Of(Project()));
    const std::vector<Shape_List> pages = Pages_On(report, Default_Report_Layout());
    const std::string pdf = Report_Pdf(report, Default_Report_Layout()).toStdString();
    EXPECT_EQ(Pages_Of_Pdf(pdf), static_cast<int>(pages.size())) << name;
    EXPECT_EQ(pages.back().title,
              "Page " + std::to_string(pages.size()) + " of " + std::to_string(pages.size()));
  }
}

TEST_F(ReportCommands, A_Name_That_Ends_So_Gets_A_Page_And_Any_Other_A_Pdf) {
  Open_Sample();
  chosen_ = bench_.folder / "zid.HTML";
  Save_Project_Report(Project());
  EXPECT_TRUE(Read_Text(*chosen_).starts_with("<!DOCTYPE html>"));
  chosen_ = bench_.folder / "zid.DUI";
  EXPECT_EQ(asked_.complete(*chosen_), bench_.folder / "zid.DUI.pdf");
  Save_Project_Report(Project());
  EXPECT_TRUE(Read_Text(bench_.folder / "zid.DUI.pdf").starts_with("%PDF-"));
}

TEST_F(ReportCommands, Cancel_Writes_Nothing) {
  Open_Sample();
  const auto before = Names_In(bench_.folder.path());
  Save_Project_Report(Project());
  EXPECT_EQ(Names_In(bench_.folder.path()), before);
}

TEST_F(ReportCommands, A_Folder_That_Can_Not_Be_Written_To_Is_Told) {
  Open_Sample();
  chosen_ = bench_.folder / "none/zid.pdf";
  Scripted_Messages messages({Answer::Ok});
  Save_Project_Report(Project());
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text,
            "The report was not saved as " + *chosen_ +
                ": No such file or directory.\nA file that was there before is unchanged.");
}

TEST_F(ReportCommands, A_Print_To_A_File_That_Takes_Nothing_Is_Told) {
  Open_Sample();
  print_file_ = "/dev/full";
  Scripted_Messages messages({Answer::Ok});
  Print_Project_Report(Project());
  ASSERT_EQ(messages.shown.size(), 1u);
  EXPECT_EQ(messages.shown[0].text, "The Report Could Not Be Printed.");
}

TEST_F(ReportCommands, A_Project_Without_A_File_Is_Not_Saved) {
  bench_.controls().SSOption1(0)->click();
  chosen_ = bench_.folder / "new.html";
  Save_Project_Report(Project());
  EXPECT_EQ(asked_.name, "UNTITLED.pdf");
  EXPECT_NE(Read_Text(*chosen_).find("not saved"), std::string::npos);
}

TEST_F(ReportCommands, A_List_Of_Dilutions_Has_No_Project_Report) {
  Project().FileKind = kDilutionKind;
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Save_Project_Report(Project());
  Print_Project_Report(Project());
  ASSERT_EQ(messages.shown.size(), 2u);
  EXPECT_EQ(messages.shown[1].text,
            "There Is No Project to Report on.  Please Open a Project First.");
  EXPECT_EQ(pages_, 0);
  Project().FileKind = kProjectKind;
}

TEST_F(ReportCommands, Print_Prints_The_Report_On_The_Sessions_Printer) {
  Open_Sample();
  Session_Printer().setOutputFormat(QPrinter::PdfFormat);
  print_file_ = bench_.folder / "printed.pdf";
  bench_.Action("mnuFileItem(7)")->trigger();
  EXPECT_EQ(print_title_, "Print Project Report");
  EXPECT_EQ(Note(), "Project report printed.");
  EXPECT_GT(pages_, 3);
  EXPECT_EQ(Pages_Of_Pdf(Read_Text(bench_.folder / "printed.pdf")), pages_);
}

TEST_F(ReportCommands, A_Range_Of_Pages_Is_Printed_Alone) {
  Open_Sample();
  Session_Printer().setOutputFormat(QPrinter::PdfFormat);
  print_file_ = bench_.folder / "printed.pdf";
  first_ = 2;
  last_ = 3;
  Print_Project_Report(Project());
  EXPECT_EQ(Pages_Of_Pdf(Read_Text(bench_.folder / "printed.pdf")), 2);
}

TEST_F(ReportCommands, A_Print_That_Is_Cancelled_Writes_Nothing) {
  Open_Sample();
  prints_ = false;
  print_file_ = bench_.folder / "printed.pdf";
  bench_.Action("mnuFileItem(7)")->trigger();
  EXPECT_FALSE(Exists(bench_.folder / "printed.pdf"));
}

TEST_F(ReportCommands, The_Last_Page_Comes_First_Where_That_Is_Chosen) {
  Open_Sample();
  Session_Printer().setOutputFormat(QPrinter::PdfFormat);
  const auto printed = [&] {
    print_file_ = bench_.folder / (last_page_first_ ? "back.pdf" : "forth.pdf");
    Print_Project_Report(Project());
    return Read_Text(print_file_);
  };
  const std::string forth = printed();
  last_page_first_ = true;
  const std::string back = printed();
  EXPECT_EQ(Pages_Of_Pdf(back), Pages_Of_Pdf(forth));
  EXPECT_NE(back, forth);
}

TEST_F(ReportCommands, A_Print_To_A_File_Is_Offered_Beside_Its_Project) {
  Session_Printer().setOutputFormat(QPrinter::PdfFormat);
  Session_Printer().setOutputFileName("/elsewhere/former.pdf");
  Open_Sample();
  Print_Project_Report(Project());
  EXPECT_EQ(offered_, bench_.folder / "Section_404_Zid.pdf");
  EXPECT_TRUE(Exists(offered_));
}

TEST_F(ReportCommands, No_Report_Goes_Over_A_Project) {
  Open_Sample();
  const std::string project = Project().ProjectFileName, before = Read_Text(project);
  std::filesystem::create_symlink(project, bench_.folder / "link.pdf");
  Session_Printer().setOutputFormat(QPrinter::PdfFormat);
  Scripted_Messages messages({Answer::Ok, Answer::Ok, Answer::Ok});
  print_file_ = project;
  Print_Project_Report(Project());
  print_file_ = bench_.folder / "link.pdf";
  Print_Project_Report(Project());
  chosen_ = bench_.folder / "link.pdf";
  Save_Project_Report(Project());
  ASSERT_EQ(messages.shown.size(), 3u);
  EXPECT_EQ(messages.shown[0].text,
            "The report was not saved as " + project +
                ": it is a project file.\nA file that was there before is unchanged.");
  EXPECT_EQ(Write_Report_Pdf(project, bench_.folder / "link.pdf"), 2);
  EXPECT_TRUE(Read_Text(project) == before);
}

TEST_F(ReportCommands, The_Paper_Of_Print_Setup_Counts_For_A_Pdf) {
  Open_Sample();
  Session_Printer().setPageOrientation(QPageLayout::Landscape);
  chosen_ = bench_.folder / "wide.pdf";
  Save_Project_Report(Project());
  const std::string pdf = Read_Text(*chosen_);
  EXPECT_NE(pdf.find("/MediaBox [0 0 792"), std::string::npos);
}

TEST_F(ReportCommands, Print_Goes_To_A_Document_In_Front) {
  int printed = 0;
  Port().text.print = [&] {
    ++printed;
    return true;
  };
  Open_Sample();
  bench_.Action("mnuFileItem(7)")->trigger();
  EXPECT_EQ(printed, 1);
  EXPECT_EQ(pages_, 0);
  Port().text = {};
}

TEST_F(ReportCommands, Print_Is_There_With_A_Project_Or_A_Document) {
  QAction* print = bench_.Action("mnuFileItem(7)");
  EXPECT_FALSE(print->isEnabled());
  Port().text.has_document = [] { return true; };
  SetMenuAvailability(bench_.controls(), Menu_Mode::Closed);
  EXPECT_TRUE(print->isEnabled());
  Port().text = {};
  SetMenuAvailability(bench_.controls(), Menu_Mode::Closed);
  EXPECT_FALSE(print->isEnabled());
  Open_Sample();
  EXPECT_TRUE(print->isEnabled());
}

TEST_F(ReportCommands, A_File_Is_Reported_Without_A_Window) {
  const std::string sample = std::string(BARVON_SAMPLES) + "/Barge_Four_Layers.DUI";
  EXPECT_EQ(Write_Report_Pdf(sample, bench_.folder / "barge.pdf"), 0);
  EXPECT_GT(Pages_Of_Pdf(Read_Text(bench_.folder / "barge.pdf")), 3);
  EXPECT_EQ(Write_Report_Pdf(bench_.folder / "none.DUI", bench_.folder / "none.pdf"), 2);
  EXPECT_FALSE(Exists(bench_.folder / "none.pdf"));
  EXPECT_EQ(Write_Report_Pdf(sample, bench_.folder / "none/barge.pdf"), 2);
}

TEST_F(ReportCommands, The_Report_Leaves_The_Project_As_It_Is) {
  Open_Sample();
  const Flag saved = Project().DataSaved;
  const std::string file = Read_Text(Project().ProjectFileName);
  chosen_ = bench_.folder / "zid.pdf";
  Save_Project_Report(Project());
  EXPECT_EQ(Project().DataSaved, saved);
  EXPECT_TRUE(Read_Text(Project().ProjectFileName) == file);
}

}  // namespace
}  // namespace barvon::testing
