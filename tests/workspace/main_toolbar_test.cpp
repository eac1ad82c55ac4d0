#include <gtest/gtest.h>

#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <filesystem>

#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/ask/file_dialog.h"
#include "platform/ask/help_viewer.h"
#include "support/screen_support.h"
#include "workspace/main_menus.h"

namespace barvon {
namespace {

using namespace barvon::testing;

constexpr int kTools[] = {1, 2, 3, 5, 6, 8, 9, 11};

QAction* Tool(Main_Bench& bench, int index) {
  return bench.Action(qPrintable(QString("Toolbar1(%1)").arg(index)));
}

void Click_Tool(Main_Bench& bench, int index) {
  QTest::mouseClick(bench.controls().Toolbar1->widgetForAction(Tool(bench, index)), Qt::LeftButton);
}

TEST(MainToolbar, Buttons_Have_Their_Tips_And_Indices_That_Count_The_Separators) {
  Main_Bench bench;
  const std::pair<int, const char*> tips[] = {
      {1, "Create New Project"}, {2, "Open Existing Project"}, {3, "Save Current Project"},
      {5, "Print Results"},      {6, "Run Simulation"},        {8, "Generate Graphics"},
      {9, "Check for Errors"},   {11, "BARVON Help"}};
  for (const auto& [index, tip] : tips) {
    EXPECT_EQ(Tool(bench, index)->toolTip(), tip) << index;
    EXPECT_TRUE(Tool(bench, index)->isEnabled()) << index;
  }
  const QList<QAction*> bar = bench.controls().Toolbar1->actions();
  ASSERT_EQ(bar.size(), 11);
  for (int i = 0; i < 11; ++i) {
    const int index = i + 1;
    EXPECT_EQ(bar.at(i), Tool(bench, index)) << index;
    EXPECT_EQ(bar.at(i)->isSeparator(), index == 4 || index == 7 || index == 10) << index;
  }
}

TEST(MainToolbar, File_Buttons_Do_As_The_File_Menu_Does) {
  Main_Bench bench;
  int open_asked = 0, save_asked = 0;
  const auto former = Set_File_Dialog_Presenter({[&](const File_Request&) {
                                                   ++open_asked;
                                                   return std::optional<std::string>();
                                                 },
                                                 [&](const File_Request&) {
                                                   ++save_asked;
                                                   return std::optional<std::string>();
                                                 },
                                                 {}});
  Project().ProjectTitle = "before";
  Click_Tool(bench, 1);
  EXPECT_EQ(Project().ProjectTitle, "");
  Click_Tool(bench, 2);
  EXPECT_EQ(open_asked, 1);
  Click_Tool(bench, 3);
  EXPECT_EQ(save_asked, 1);
  int printed = 0;
  Port().report.print = [&] { ++printed; };
  Click_Tool(bench, 5);
  EXPECT_EQ(printed, 1);
  Port().report = {};
  Set_File_Dialog_Presenter(former);
}

/// The boxes that an action brings up.
template <class Act>
std::vector<QString> Boxes_Of(Act act) {
  Modal_Replies replies({Press(QMessageBox::Ok)});
  act();
  std::vector<QString> texts;
  for (const Seen_Box& box : replies.seen) texts.push_back(box.text);
  return texts;
}

TEST(MainToolbar, Run_And_Graphics_Do_As_Their_Commands_Do) {
  Main_Bench bench;
  const auto former =
      Set_File_Dialog_Presenter({{}, [](const File_Request&) { return std::nullopt; }, {}});
  EXPECT_EQ(Boxes_Of([&] { Click_Tool(bench, 6); }),
            Boxes_Of([&] { bench.controls().SSPanel3(1)->click(); }));
  EXPECT_EQ(Boxes_Of([&] { Click_Tool(bench, 8); }),
            Boxes_Of([&] { bench.Action("mnuGraph(0)")->trigger(); }));
  Set_File_Dialog_Presenter(former);
}

TEST(MainToolbar, Check_For_Errors_And_Error_Check_Only_Refresh) {
  Main_Bench bench;
  bench.controls().SSOption1(0)->click();
  Modal_Replies none({});
  Project().ProjectTitle = "by the toolbar";
  Click_Tool(bench, 9);
  EXPECT_EQ(bench.controls().Title_Box->text(), "by the toolbar");
  Project().ProjectTitle = "by the menu";
  bench.Action("mnuEditItem(8)")->trigger();
  EXPECT_EQ(bench.controls().Title_Box->text(), "by the menu");
  QTest::qWait(20);
}

TEST(MainToolbar, Print_Setup_Opens_The_Printer_Dialog) {
  Main_Bench bench;
  int setups = 0;
  const auto former = Set_File_Dialog_Presenter({{}, {}, [&] { ++setups; }});
  bench.Action("mnuFileItem(8)")->trigger();
  Set_File_Dialog_Presenter(former);
  EXPECT_EQ(setups, 1);
}

/// A desktop whose icon theme has these pictures, plain red but for the pale ones.
class Desktop_Icons {
 public:
  explicit Desktop_Icons(const std::vector<std::string>& names,
                         const std::vector<std::string>& pale = {}) {
    const std::string theme = folder_ / "red";
    std::filesystem::create_directories(theme + "/scalable");
    Write_Text(theme + "/index.theme",
               "[Icon Theme]\nName=red\nDirectories=scalable\n\n[scalable]\nSize=48\n"
               "MinSize=8\nMaxSize=512\nType=Scalable\n");
    for (const std::string& name : names) {
      const bool is_pale = std::find(pale.begin(), pale.end(), name) != pale.end();
      Write_Text(theme + "/scalable/" + name + ".svg",
                 "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"48\" height=\"48\">"
                 "<rect width=\"48\" height=\"48\" fill=\"" +
                     std::string(is_pale ? "#d0d4d0" : "#ff0000") + "\"/></svg>");
    }
    QIcon::setThemeSearchPaths({QString::fromStdString(folder_.path())});
    QIcon::setThemeName("red");
  }
  ~Desktop_Icons() {
    QIcon::setThemeSearchPaths(former_paths_);
    QIcon::setThemeName(former_name_);
  }

 private:
  QStringList former_paths_ = QIcon::themeSearchPaths();
  QString former_name_ = QIcon::themeName();
  Scratch_Folder folder_;
};

const std::vector<std::string> kThemed = {
    "document-new",         "document-open",    "document-save",        "document-print",
    "media-playback-start", "x-office-drawing", "tools-check-spelling", "help-contents"};

QImage Picture(const QIcon& icon, int size, qreal ratio = 1) {
  return icon.pixmap(QSize(size, size), ratio).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool Is_Red(const QIcon& icon) {
  return QColor(Picture(icon, 22).pixel(11, 11)) == QColor(Qt::red);
}

TEST(MainToolbar, Pictures_Are_The_Desktops_When_It_Has_All_Of_Them) {
  const Desktop_Icons icons(kThemed);
  Main_Bench bench;
  for (const int index : kTools) EXPECT_TRUE(Is_Red(Tool(bench, index)->icon())) << index;
}

TEST(MainToolbar, Pictures_Are_Our_Own_As_Soon_As_The_Desktop_Lacks_One) {
  for (std::size_t lacking = 0; lacking < kThemed.size(); ++lacking) {
    std::vector<std::string> names = kThemed;
    names.erase(names.begin() + static_cast<std::ptrdiff_t>(lacking));
    const Desktop_Icons icons(names);
    Main_Bench bench;
    for (const int index : kTools) {
      EXPECT_FALSE(Is_Red(Tool(bench, index)->icon())) << index << kThemed[lacking];
      EXPECT_FALSE(Tool(bench, index)->icon().isNull()) << index;
    }
  }
}

TEST(MainToolbar, Pictures_Are_Our_Own_When_One_Of_The_Desktops_Can_Hardly_Be_Seen) {
  for (const std::string& pale : kThemed) {
    const Desktop_Icons icons(kThemed, {pale});
    Main_Bench bench;
    for (const int index : kTools) EXPECT_FALSE(Is_Red(Tool(bench, index)->icon())) << pale;
  }
}

int Painted(const QImage& image) {
  int painted = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) painted += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
  }
  return painted;
}

TEST(MainToolbar, Our_Pictures_Differ_And_Are_Drawn_At_Either_Scaling) {
  const Desktop_Icons none({});
  Main_Bench bench;
  std::vector<QIcon> icons;
  for (const int index : kTools) icons.push_back(Tool(bench, index)->icon());
  for (const auto& button : bench.controls().SSRibbon1) icons.push_back(button->icon());
  icons.push_back(bench.controls().SSRibbon2(3)->icon());
  for (std::size_t i = 0; i < icons.size(); ++i) {
    const QImage once = Picture(icons[i], 22), twice = Picture(icons[i], 22, 2);
    EXPECT_EQ(once.size(), QSize(22, 22)) << i;
    EXPECT_EQ(twice.size(), QSize(44, 44)) << i;
    EXPECT_GT(Painted(once), 22 * 22 / 10) << i;
    // Drawn anew, not blown up: fine lines fill about as much of it.
    EXPECT_NE(twice, once.scaled(44, 44)) << i;
    EXPECT_NEAR(Painted(twice) / 4.0, Painted(once), 22 * 22 / 8.0) << i;
    for (std::size_t k = 0; k < i; ++k) EXPECT_NE(once, Picture(icons[k], 22)) << i << ", " << k;
  }
}

}  // namespace
}  // namespace barvon
