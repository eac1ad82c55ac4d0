#include "graphs/graph_exports.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QSvgRenderer>

#include "graphs/export_bench.h"
#include "graphs/export_files.h"
#include "graphs/picture_page.h"
#include "pictures/depth_map.h"
#include "platform/qt/session_printer.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

void Expect_Vector_Pdf(const std::string& bytes) {
  EXPECT_TRUE(bytes.starts_with("%PDF-"));
  EXPECT_TRUE(bytes.ends_with("%%EOF\n"));
  EXPECT_NE(bytes.find("/FontFile"), std::string::npos) << "fonts are not embedded";
  EXPECT_EQ(bytes.find("/Subtype /Image"), std::string::npos) << "a bitmap";
  // US Letter, across.
  EXPECT_NE(bytes.find("/MediaBox [0 0 792.000000 612.000000]"), std::string::npos);
}

TEST(GraphExports, A_Picture_Is_Saved_By_The_Ending_Of_Its_Name) {
  const Scratch_Folder folder;
  Bar_Page page;
  page.show();
  const Results_Held results = Results_At(folder / "Site.DUI");
  Scripted_Files dialog({folder / "a", folder / "b.svg", folder / "c.PDF"});
  EXPECT_EQ(Save_Picture_As(page, results), "Saved as " + (folder / "a.png"));
  EXPECT_EQ(Save_Picture_As(page, results), "Saved as " + (folder / "b.svg"));
  EXPECT_EQ(Save_Picture_As(page, results), "Saved as " + (folder / "c.PDF"));
  EXPECT_EQ(Names_In(folder.path()), (std::vector<std::string>{"a.png", "b.svg", "c.PDF"}));

  const QImage png(QString::fromStdString(folder / "a.png"));
  EXPECT_GE(png.width(), 2 * page.Shown_Picture()->width());
  EXPECT_EQ(png.text("Title"), "Bars of a test");
  EXPECT_TRUE(QSvgRenderer(QString::fromStdString(folder / "b.svg")).isValid());
  EXPECT_EQ(Read_Text(folder / "b.svg"), page.Shown_Picture()->As_Svg().toStdString());
  Expect_Vector_Pdf(Read_Text(folder / "c.PDF"));
}

TEST(GraphExports, The_Dialog_Offers_Three_Kinds_And_A_Name_That_Any_System_Takes) {
  const Scratch_Folder folder;
  Bar_Page page;
  const Results_Held results = Results_At(folder / "Site.DUI");
  Scripted_Files dialog({folder / "x.png"});
  Save_Picture_As(page, results);
  EXPECT_EQ(Save_Picture_As(page, results), "");
  ASSERT_EQ(dialog.asked.size(), 2U);
  const File_Request& request = dialog.asked[1];
  ASSERT_EQ(request.filters.size(), 3U);
  EXPECT_EQ(request.ending, Ending::To_Others);
  // In the folder of the last one.
  EXPECT_EQ(request.name, folder / "Site, Sand-silt at 20 ft.png");
}

TEST(GraphExports, A_Name_Of_A_File_Holds_What_Every_System_Takes) {
  EXPECT_EQ(As_File_Name("a/b\\c:d*e?f\"g<h>i|j\nk"), "a-b-c-d-e-f-g-h-i-j-k");
  EXPECT_EQ(As_File_Name("  "), "picture");
  EXPECT_EQ(As_File_Name(QString(300, QChar(0x4e00))).size(), 180U);
}

TEST(GraphExports, Cancel_Saves_Nothing) {
  const Scratch_Folder folder;
  const Scripted_Messages messages;
  Bar_Page page;
  Scripted_Files dialog({});
  EXPECT_EQ(Save_Picture_As(page, Results_At(folder / "Site.DUI")), "");
  EXPECT_EQ(Save_Numbers_As(page, Results_At(folder / "Site.DUI")), "");
  EXPECT_EQ(Print_Picture(page, Results_At(folder / "Site.DUI")), "");
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{});
}

TEST(GraphExports, A_Failure_Is_Told_With_The_Files_Name) {
  const Scratch_Folder folder;
  const Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Bar_Page page;
  Scripted_Files dialog({folder / "none/a.pdf", folder / "none/a.csv"});
  EXPECT_EQ(Save_Picture_As(page, Results_At(folder / "Site.DUI")), "");
  EXPECT_EQ(Save_Numbers_As(page, Results_At(folder / "Site.DUI")), "");
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(messages.shown[0].text, "Nothing was saved as " + (folder / "none/a.pdf") +
                                        ": No such file or directory.\nA file that was there "
                                        "before is unchanged.");
  EXPECT_EQ(messages.shown[0].icon, Icon::Critical);
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{});
}

TEST(GraphExports, Numbers_Are_Saved_As_They_Are) {
  const Scratch_Folder folder;
  Bar_Page page;
  Scripted_Files dialog({folder / "numbers"});
  EXPECT_EQ(Save_Numbers_As(page, Results_At(folder / "Site.DUI")),
            "Saved as " + (folder / "numbers.csv"));
  EXPECT_EQ(Read_Text(folder / "numbers.csv"), page.Numbers());
}

TEST(GraphExports, A_Copy_Has_The_Picture_In_Two_Forms_And_Its_Numbers_In_Cells) {
  Bar_Page page;
  page.show();
  EXPECT_EQ(Copy_Picture(page), "Picture and numbers copied");
  const QMimeData* content = QApplication::clipboard()->mimeData();
  ASSERT_NE(content, nullptr);
  ASSERT_TRUE(content->hasImage());
  EXPECT_GE(qvariant_cast<QImage>(content->imageData()).width(), 1000);
  EXPECT_TRUE(QSvgRenderer(content->data("image/svg+xml")).isValid());
  EXPECT_EQ(content->text(), "Time (s)\tSand, fine (mg/l)\n600\t1.5\n");
  EXPECT_EQ(Copy_Numbers(page), "Numbers copied");
  EXPECT_FALSE(QApplication::clipboard()->mimeData()->hasImage());
  EXPECT_EQ(QApplication::clipboard()->text(), "Time (s)\tSand, fine (mg/l)\n600\t1.5\n");
}

TEST(GraphExports, A_Print_To_A_File_Is_The_Page_In_Vectors) {
  const Scratch_Folder folder;
  Forget_Session_Printer();
  Session_Printer().setOutputFormat(QPrinter::PdfFormat);
  Bar_Page page;
  page.show();
  Scripted_Files dialog({}, true);
  EXPECT_EQ(Print_Picture(page, Results_At(folder / "Site.DUI")), "Picture printed");
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{"Site, Sand-silt at 20 ft.pdf"});
  Expect_Vector_Pdf(Read_Text(folder / "Site, Sand-silt at 20 ft.pdf"));
  Forget_Session_Printer();
}

TEST(GraphExports, A_Print_That_Fails_Is_Told) {
  const Scratch_Folder folder;
  const Scripted_Messages messages({Answer::Ok});
  Forget_Session_Printer();
  Session_Printer().setOutputFormat(QPrinter::PdfFormat);
  Bar_Page page;
  Scripted_Files dialog({}, true);
  EXPECT_EQ(Print_Picture(page, Results_At(folder / "none/Site.DUI")), "");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "The picture could not be printed.");
  Forget_Session_Printer();
}

TEST(GraphExports, A_Page_Tells_Project_Solver_And_Worth_Of_The_Picture) {
  const Results_Held results = Results_At("/a/Site.DUI");
  Bar_Page bars;
  const Picture_Page page = Page_Of(*bars.Shown_Picture(), "Sand at 20 ft", *results);
  EXPECT_EQ(page.title, "Sand at 20 ft");
  EXPECT_EQ(page.project, "Harbour study");
  EXPECT_EQ(page.label, "COMPANION SOLVER 1.0 - not a validated code for permits.");
  // 2023-11-14 22:13:20 UTC, told in the desktop's time.
  EXPECT_TRUE(page.footnote.startsWith("Site, outputs of 2023-11-1"))
      << page.footnote.toStdString();
  EXPECT_EQ(Page_Of(*bars.Shown_Picture(), "Sand (mg/l)", *results).title, "")
      << "the picture says it itself";
}

TEST(GraphExports, A_Page_Without_A_Picture_Is_None) {
  EXPECT_EQ(Picture_Pdf({}), QByteArray());
  Depth_Map cells;
  const Picture_Page page = Page_Of(cells, "Depths", *Results_At("/a/Site.DUI"));
  EXPECT_EQ(Picture_Pdf(page), QByteArray());
}

}  // namespace
}  // namespace barvon::testing
