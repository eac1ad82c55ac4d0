#include "pictures/picture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSvgRenderer>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "pictures/depth_map.h"
#include "pictures/picture_bench.h"
#include "platform/ask/file_dialog.h"
#include "support/plain_support.h"

namespace barvon::testing {
namespace {

const Depth_Grid kGrid = {2, 2, {10, 20, 30, 40}};

/// Answers the save dialog with one path, or as Cancel, and keeps what was asked.
class Scripted_Save {
 public:
  explicit Scripted_Save(std::optional<std::string> path) {
    former_ = Set_File_Dialog_Presenter({{},
                                         [this, path](const File_Request& request) {
                                           asked.push_back(request);
                                           return path;
                                         },
                                         {}});
  }
  ~Scripted_Save() { Set_File_Dialog_Presenter(std::move(former_)); }

  std::vector<File_Request> asked;

 private:
  File_Dialog_Presenter former_;
};

void Choose(Picture& picture, const QString& text) {
  for (QAction* action : picture.actions()) {
    if (action->text() == text) return action->trigger();
  }
  ADD_FAILURE() << "no " << text.toStdString();
}

TEST(Picture, A_Note_Takes_No_Height_From_The_Plot) {
  QWidget screen;
  auto* row = new QHBoxLayout(&screen);
  auto* label = new QLabel(QStringLiteral("A label that wraps makes the row ask for heights."));
  label->setWordWrap(true);
  row->addWidget(label);
  auto* map = new Depth_Map;
  row->addWidget(map);
  map->Show({2, 2, {30, 30, 30, 30}});
  EXPECT_EQ(map->Drawn().note, "30.00 ft everywhere.");
  ASSERT_TRUE(row->hasHeightForWidth());
  EXPECT_GE(row->totalHeightForWidth(700), map->sizeHint().height());
}

TEST(Picture, Is_Saved_As_Png_With_The_Same_Colours_And_More_Pixels) {
  const Scratch_Folder folder;
  Depth_Map map;
  map.Show(kGrid);
  const QImage seen = Seen(map);
  Scripted_Save dialog(folder / "depths");
  Choose(map, "Save picture as PNG...");
  ASSERT_EQ(dialog.asked.size(), 1u);
  EXPECT_EQ(dialog.asked[0].name, "depth grid.png");
  EXPECT_EQ(dialog.asked[0].filters[0].pattern, "*.png");
  EXPECT_EQ(dialog.asked[0].complete("a/b"), "a/b.png");
  EXPECT_EQ(dialog.asked[0].complete("a/b.PNG"), "a/b.PNG");
  EXPECT_EQ(Names_In(folder.path()), std::vector<std::string>{"depths.png"});
  const QImage saved(QString::fromStdString(folder / "depths.png"));
  ASSERT_GE(saved.width(), 2 * seen.width());
  EXPECT_EQ(saved.text("Description"), map.accessibleDescription());
  const int enlarged = saved.width() / seen.width();
  for (const auto& [row, column] : {std::pair(1, 1), {1, 2}, {2, 1}, {2, 2}}) {
    const QPoint place = map.Place_Of(row, column).toPoint();
    EXPECT_LT(Difference(saved.pixelColor(place * enlarged), seen.pixelColor(place)), 6);
  }
}

TEST(Picture, Is_Saved_As_Svg_With_Its_Text_Alternative) {
  const Scratch_Folder folder;
  Depth_Map map;
  map.Show(kGrid);
  map.Set_Caption("Counted from the top left.");
  Seen(map);
  const Scripted_Save dialog(folder / "depths.svg");
  Choose(map, "Save picture as SVG...");
  const QString path = QString::fromStdString(folder / "depths.svg");
  EXPECT_TRUE(QSvgRenderer(path).isValid());
  const std::string text = Read_Text(folder / "depths.svg");
  for (const std::string& part :
       {map.accessibleName().toStdString(), map.accessibleDescription().toStdString(),
        std::string("Counted from the top left."), std::string("Col 2"),
        std::string("Depth (ft)")}) {
    EXPECT_NE(text.find(part), std::string::npos) << part;
  }
}

TEST(Picture, Cancel_Writes_Nothing) {
  const Scratch_Folder folder;
  const Scripted_Messages messages;
  Depth_Map map;
  const Scripted_Save dialog(std::nullopt);
  Choose(map, "Save picture as PNG...");
  EXPECT_TRUE(Names_In(folder.path()).empty());
}

TEST(Picture, A_Write_That_Fails_Is_Told_And_Leaves_Nothing_Behind) {
  const Scratch_Folder folder;
  Scripted_Messages messages({Answer::Ok, Answer::Ok});
  Depth_Map map;
  map.Show(kGrid);
  for (const char* kind : {"PNG", "SVG"}) {
    const Scripted_Save dialog(folder / "no such folder/depths");
    Choose(map, QStringLiteral("Save picture as %1...").arg(QLatin1String(kind)));
  }
  ASSERT_EQ(messages.shown.size(), 2u);
  EXPECT_EQ(messages.shown[0].icon, Icon::Critical);
  EXPECT_NE(messages.shown[0].text.find(folder / "no such folder/depths.png"), std::string::npos);
  EXPECT_NE(messages.shown[0].text.find("No such file or directory"), std::string::npos);
  EXPECT_TRUE(Names_In(folder.path()).empty());
}

TEST(Picture, Its_Description_Follows_The_Data) {
  Depth_Map map;
  EXPECT_EQ(map.accessibleName(), "Map of the water depths");
  map.Show(kGrid);
  QApplication::processEvents();
  EXPECT_TRUE(map.accessibleDescription().contains("from 10.00 ft (Row 1, Col 1) to 40.00 ft"));
  map.Show({1, 1, {7}});
  QApplication::processEvents();
  EXPECT_TRUE(map.accessibleDescription().contains("7.00 ft everywhere"));
}

TEST(Picture, Tab_Reaches_And_Leaves_It) {
  QWidget window;
  QVBoxLayout column(&window);
  QLineEdit before, after;
  Depth_Map map;
  for (QWidget* widget : std::initializer_list<QWidget*>{&before, &map, &after}) {
    column.addWidget(widget);
  }
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  before.setFocus();
  QTest::keyClick(&before, Qt::Key_Tab);
  EXPECT_TRUE(map.hasFocus());
  QTest::keyClick(&map, Qt::Key_Tab);
  EXPECT_TRUE(after.hasFocus());
  QTest::keyClick(&after, Qt::Key_Backtab);
  EXPECT_TRUE(map.hasFocus());
}

TEST(Picture, The_Wheel_Goes_To_What_Is_Around_It) {
  Depth_Map map;
  map.Show(kGrid);
  Seen(map);
  const QPoint middle = map.rect().center();
  EXPECT_EQ(map.childAt(middle), nullptr);
  QWheelEvent wheel(middle, map.mapToGlobal(middle), {0, 120}, {0, 120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&map, &wheel);
  EXPECT_FALSE(wheel.isAccepted());
}

TEST(Picture, The_Tool_Tip_Reads_The_Cell_Below_The_Pointer) {
  Depth_Map map;
  map.Show(kGrid);
  Seen(map);
  const QPoint place = map.Place_Of(2, 1).toPoint();
  QHelpEvent help(QEvent::ToolTip, place, map.mapToGlobal(place));
  QApplication::sendEvent(&map, &help);
  EXPECT_TRUE(QToolTip::text().startsWith("Row 2, Col 1: 30.00 ft"))
      << QToolTip::text().toStdString();
  QToolTip::hideText();
}

TEST(Picture, A_Larger_Font_Gets_More_Room) {
  Depth_Map map;
  map.Show(kGrid);
  Seen(map);
  const double before = map.Place_Of(1, 1).y();
  QFont larger = map.font();
  larger.setPointSizeF(larger.pointSizeF() * 2);
  map.setFont(larger);
  Seen(map);
  EXPECT_GT(map.Place_Of(1, 1).y(), before + 5);
}

TEST(Picture, Is_Drawn_At_Any_Size) {
  Depth_Map map;
  map.Show(kGrid);
  map.Set_Caption("A caption of many words that takes more than one line in a narrow picture.");
  for (const QSize size : {QSize(1, 1), QSize(60, 40), QSize(2000, 30), QSize(30, 1200)}) {
    Seen(map, size);
    EXPECT_FALSE(map.As_Png().isEmpty()) << size.width();
    EXPECT_FALSE(map.As_Svg().isEmpty()) << size.width();
  }
}

}  // namespace
}  // namespace barvon::testing
