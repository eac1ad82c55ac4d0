#include "platform/qt/qt_document_opener.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/qt/qt_services.h"
#include "support/screen_support.h"

namespace barvon {
namespace {

using namespace barvon::testing;

/// A desktop of a test's own: only what stands in its folder is on the search path.
class DocumentOpener : public ::testing::Test {
 protected:
  DocumentOpener() : former_path_(qgetenv("PATH")) {
    qputenv("PATH", folder_.path().c_str());
    former_window_ = Set_Own_Text_Window([this](const std::string& path) {
      shown_.push_back(path);
      return Exists(path);
    });
    Write_Text(output_, "first line\r\ncaf\xE9 line\r\nlast line\r\n");
  }
  ~DocumentOpener() override {
    Set_Own_Text_Window(former_window_);
    qputenv("PATH", former_path_);
  }

  void Install(const char* name, const std::string& script) {
    Write_Text(folder_ / name, "#!/bin/sh\n" + script);
    std::filesystem::permissions(folder_ / name, std::filesystem::perms::owner_all);
  }

  Scratch_Folder folder_;
  const std::string output_ = folder_ / "site one.duo";
  std::vector<std::string> shown_;  // in the program's own window

 private:
  Own_Text_Window former_window_;
  QByteArray former_path_;
};

TEST_F(DocumentOpener, Goes_To_The_Desktops_Program_For_Text) {
  Install("xdg-mime", "echo editor.desktop\n");
  Install("xdg-open", "echo \"$1\" > '" + (folder_ / "opened") + "'\n");
  EXPECT_TRUE(Open_Qt_Document(output_));
  EXPECT_TRUE(Wait_Until([this] { return Read_Text(folder_ / "opened") == output_ + "\n"; }));
  EXPECT_TRUE(shown_.empty());
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
  EXPECT_TRUE(shown_.empty());
}

TEST_F(DocumentOpener, Without_A_Program_For_Text_The_File_Is_Shown_In_A_Window_Of_Our_Own) {
  Install("xdg-mime", "exit 0\n");
  Install("xdg-open", "touch '" + (folder_ / "opened") + "'\n");
  EXPECT_TRUE(Open_Qt_Document(output_));
  EXPECT_EQ(shown_, std::vector{output_});
  EXPECT_FALSE(Exists(folder_ / "opened"));
}

TEST_F(DocumentOpener, A_Desktop_Whose_Program_Is_Gone_Leaves_The_File_To_Our_Own_Window) {
  Install("xdg-mime", "echo gone.desktop\n");
  Install("xdg-open", "exit 3\n");
  EXPECT_TRUE(Open_Qt_Document(output_));
  ASSERT_TRUE(Wait_Until([this] { return !shown_.empty(); }));
  EXPECT_EQ(shown_, std::vector{output_});
}

TEST_F(DocumentOpener, A_Desktop_That_Can_Not_Start_Its_Opener_Leaves_The_File_To_Our_Own_Window) {
  Install("xdg-mime", "echo editor.desktop\n");
  Write_Text(folder_ / "xdg-open", "#!/no/such/shell\n");
  std::filesystem::permissions(folder_ / "xdg-open", std::filesystem::perms::owner_all);
  EXPECT_TRUE(Open_Qt_Document(output_));
  EXPECT_EQ(shown_, std::vector{output_});
}

TEST_F(DocumentOpener, A_File_That_Can_Not_Be_Read_Is_Not_Shown) {
  EXPECT_FALSE(Open_Qt_Document(folder_ / "none.duo"));
}

TEST_F(DocumentOpener, Without_Any_Window_Nothing_Is_Shown) {
  Set_Own_Text_Window({});
  EXPECT_FALSE(Open_Qt_Document(output_));
}

}  // namespace
}  // namespace barvon
