#include "workspace/project_drops.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "core/desk/save_file.h"
#include "core/keys.h"
#include "core/project_record.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using testing::Main_Bench;
using testing::Wait_Until;

class ProjectDrops : public ::testing::Test {
 protected:
  /// Whether the window takes what is dragged; when it does, it is dropped.
  bool Drop(const QList<QUrl>& urls, QWidget* at = nullptr) {
    QMimeData data;
    data.setUrls(urls);
    QWidget* target = at == nullptr ? &bench.main() : at;
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return true;
  }
  QUrl File(const char* name) {
    return QUrl::fromLocalFile(QString::fromStdString(bench.folder / name));
  }

  Main_Bench bench;
  ProjectRecord& record = Project();
};

TEST_F(ProjectDrops, A_Project_Opens_As_By_File_Open) {
  record.DEPC0 = 44;
  ASSERT_TRUE(Save_File(bench.folder / "bay.dui", kProjectKind, record));
  record.DEPC0 = 1;
  ASSERT_TRUE(Drop({File("bay.dui")}));
  ASSERT_TRUE(Wait_Until([this] { return record.DEPC0 == 44; }));
  EXPECT_EQ(record.ProjectFileName, bench.folder / "bay.dui");
  EXPECT_EQ(bench.controls().Text2(1)->text(), "Data Supplied");
}

TEST_F(ProjectDrops, Nothing_Else_Is_Taken) {
  EXPECT_FALSE(Drop({File("bay.DUO")}));
  EXPECT_FALSE(Drop({File("a.DUI"), File("b.DUI")})) << "only one can be open";
  EXPECT_FALSE(Drop({QUrl("https://example.com/bay.DUI")}));
  EXPECT_FALSE(Drop({}));
}

TEST_F(ProjectDrops, The_Title_Takes_None_Of_It) {
  EXPECT_FALSE(bench.controls().Title_Box->acceptDrops());
}

}  // namespace
}  // namespace barvon
