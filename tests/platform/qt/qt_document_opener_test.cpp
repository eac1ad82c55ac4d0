#include "platform/qt/qt_document_opener.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/qt/qt_services.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

QDialog* Text_Window_In_Front() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == "Text_Window" && widget->isVisible()) {
      return qobject_cast<QDialog*>(widget);
    }
  }
  return nullptr;
}

/// A desktop of a test's own: only what stands in its folder is on the search path.
class DocumentOpener : public ::testing::Test {
 protected:
  DocumentOpener() : former_path_(qgetenv("PATH")) {
    qputenv("PATH", folder_.path().c_str());
    Write_Text(output_, "first line\r\ncaf\xE9 line\r\nlast line\r\n");
  }
  ~DocumentOpener() override {
    if (QDialog* window = Text_Window_In_Front()) delete window;
    qputenv("PATH", former_path_);
  }

  void Install(const char* name, const std::string& script) {
    Write_Text(folder_ / name, "#!/bin/sh\n" + script);
    std::filesystem::permissions(folder_ / name, std::filesystem::perms::owner_all);
  }

  Scratch_Folder folder_;
  const std::string output_ = folder_ / "site one.duo";

 private:
  QByteArray former_path_;
};

TEST_F(DocumentOpener, Goes_To_The_Desktops_Program_For_Text) {
  Install("xdg-mime", "echo editor.desktop\n");
  Install("xdg-open", "echo \"$1\" > '" + (folder_ / "opened") + "'\n");
  EXPECT_TRUE(Open_Qt_Document(output_));
  EXPECT_TRUE(Wait_Until([this] { return Read_Text(folder_ / "opened") == output_ + "\n"; }));
  EXPECT_EQ(Text_Window_In_Front(), nullptr);
}

TEST_F(DocumentOpener, An_Editor_That_Stays_Open_Is_Not_Waited_For_And_May_Be_Open_Twice) {
  const Qt_Services services;
  Install("xdg-mime", "echo editor.desktop\n");
  Install("xdg-open", ": > '" + (folder_ / "open-") + "'$$\nwhile [ ! -e '" + (folder_ / "close") +
                          "' ]; do /bin/sleep 0.02; done\n: > '" + (folder_ / "closed-") + "'$$\n");
  const auto count = [this](const char* start) {
    const std::vector<std::string> names = Names_In(folder_.path());
    return std::count_if(names.begin(), names.end(),
                         [start](const std::string& name) { return name.starts_with(start); });
  };
  EXPECT_TRUE(Open_Qt_Document(output_));
  EXPECT_TRUE(Open_Qt_Document(output_));
  EXPECT_TRUE(Wait_Until([&] { return count("open-") == 2; }));
  Write_Text(folder_ / "close", "");
  EXPECT_TRUE(Wait_Until([&] { return count("closed-") == 2; }));
  EXPECT_EQ(Text_Window_In_Front(), nullptr);
}

TEST_F(DocumentOpener, Without_A_Program_For_Text_The_File_Is_Shown_In_A_Window_Of_Our_Own) {
  Install("xdg-mime", "exit 0\n");
  Install("xdg-open", "touch '" + (folder_ / "opened") + "'\n");
  EXPECT_TRUE(Open_Qt_Document(output_));
  QDialog* window = Text_Window_In_Front();
  ASSERT_NE(window, nullptr);
  auto* text = window->findChild<QPlainTextEdit*>("Text1");
  EXPECT_EQ(text->toPlainText().toStdString(), "first line\ncaf\xC3\xA9 line\nlast line\n");
  EXPECT_TRUE(text->isReadOnly());
  EXPECT_EQ(window->windowTitle().toStdString(), output_);
  EXPECT_FALSE(Exists(folder_ / "opened"));
}

TEST_F(DocumentOpener, A_Desktop_Whose_Program_Is_Gone_Leaves_The_File_To_Our_Own_Window) {
  Install("xdg-mime", "echo gone.desktop\n");
  Install("xdg-open", "exit 3\n");
  EXPECT_TRUE(Open_Qt_Document(output_));
  ASSERT_TRUE(Wait_Until([] { return Text_Window_In_Front() != nullptr; }));
  EXPECT_EQ(Text_Window_In_Front()->windowTitle().toStdString(), output_);
}

TEST_F(DocumentOpener, A_Desktop_That_Can_Not_Start_Its_Opener_Leaves_The_File_To_Our_Own_Window) {
  Install("xdg-mime", "echo editor.desktop\n");
  Write_Text(folder_ / "xdg-open", "#!/no/such/shell\n");
  std::filesystem::permissions(folder_ / "xdg-open", std::filesystem::perms::owner_all);
  EXPECT_TRUE(Open_Qt_Document(output_));
  ASSERT_NE(Text_Window_In_Front(), nullptr);
  EXPECT_EQ(Text_Window_In_Front()->windowTitle().toStdString(), output_);
}

TEST_F(DocumentOpener, The_Window_Finds_Text_And_Starts_Again_At_The_Top) {
  ASSERT_TRUE(Open_Qt_Document(output_));
  QDialog* window = Text_Window_In_Front();
  ASSERT_NE(window, nullptr);
  auto* text = window->findChild<QPlainTextEdit*>("Text1");
  auto* find = window->findChild<QLineEdit*>("FindText");
  QTest::keyClicks(find, "line");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(text->textCursor().blockNumber(), 0);
  QTest::keyClick(find, Qt::Key_Return);
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(text->textCursor().blockNumber(), 2);
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(text->textCursor().blockNumber(), 0);
  EXPECT_EQ(text->textCursor().selectedText(), "line");
}

TEST_F(DocumentOpener, The_Window_Finds_Backward_And_Says_When_There_Is_Nothing) {
  ASSERT_TRUE(Open_Qt_Document(output_));
  QDialog* window = Text_Window_In_Front();
  ASSERT_NE(window, nullptr);
  ASSERT_TRUE(Has_Keyboard(window));
  auto* text = window->findChild<QPlainTextEdit*>("Text1");
  auto* find = window->findChild<QLineEdit*>("FindText");
  auto* outcome = window->findChild<QLabel*>("FindOutcome");
  QTest::keyClicks(find, "line");
  QTest::keyClick(window, Qt::Key_V, Qt::AltModifier);
  ASSERT_TRUE(Wait_Until([text] { return text->textCursor().blockNumber() == 2; }));
  QTest::keyClicks(find, "s");
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(outcome->text(), "Not in this text.");
  EXPECT_EQ(text->textCursor().selectedText(), "line") << "the mark stays";
  QTest::keyClick(find, Qt::Key_Backspace);
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(outcome->text(), "");
}

TEST_F(DocumentOpener, A_File_That_Can_Not_Be_Read_Is_Not_Shown) {
  EXPECT_FALSE(Open_Qt_Document(folder_ / "none.duo"));
  EXPECT_EQ(Text_Window_In_Front(), nullptr);
}

}  // namespace
}  // namespace barvon
