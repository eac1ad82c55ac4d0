#include "platform/qt/ask/qt_file_dialog.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListView>

#include "support/screen_support.h"

namespace barvon {
namespace {

using testing::Close_Window;
using testing::Modal_Replies;
using testing::Press;
using testing::Reply;
using testing::Scratch_Folder;
using testing::Write_Text;

const File_Filter kProjects{"BARVON Data Files (*.DUI)", "*.DUI"};

QLineEdit* Name_Field(QWidget* dialog) { return dialog->findChild<QLineEdit*>("fileNameEdit"); }

Reply Choose(const std::string& name) {
  return [name](QWidget* dialog) {
    Name_Field(dialog)->setText(QString::fromStdString(name));
    QMetaObject::invokeMethod(dialog, "accept");
  };
}

QStringList Listed_Files(QWidget* dialog) {
  const auto* list = dialog->findChild<QListView*>("listView");
  QStringList names;
  for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
    names << list->model()->index(row, 0, list->rootIndex()).data().toString();
  }
  names.sort();
  return names;
}

TEST(OpenDialog, Lists_Files_Of_The_Pattern_In_Any_Case) {
  Scratch_Folder folder;
  for (const char* name : {"site.dui", "OTHER.DUI", "Mixed.Dui", "notes.txt"}) {
    Write_Text(folder / name, "x");
  }
  QStringList names;
  QString title;
  Modal_Replies replies({[&](QWidget* dialog) {
    title = dialog->windowTitle();
    testing::Wait_Until([&] { return Listed_Files(dialog).size() >= 3; });
    names = Listed_Files(dialog);
    dialog->close();
  }});
  EXPECT_FALSE(Ask_Qt_Open_File({"Open", {kProjects}, folder.path()}).has_value());
  EXPECT_EQ(names, QStringList({"Mixed.Dui", "OTHER.DUI", "site.dui"}));
  EXPECT_EQ(title, "Open");
}

TEST(OpenDialog, Shows_The_Filters_As_They_Are_Named) {
  Scratch_Folder folder;
  QStringList filters;
  Modal_Replies replies({[&](QWidget* dialog) {
    filters = qobject_cast<QFileDialog*>(dialog)->nameFilters();
    dialog->close();
  }});
  Ask_Qt_Open_File({"",
                    {kProjects, {"BARVON Output FIles (*.DUO)", "*.DUO"}, {"Lists", "*.dat"}},
                    folder.path()});
  EXPECT_EQ(filters, QStringList({"BARVON Data Files (*.DUI)", "BARVON Output FIles (*.DUO)",
                                  "Lists (*.dat)"}));
}

TEST(OpenDialog, Gives_The_Full_Path_Of_The_Chosen_File) {
  Scratch_Folder folder;
  Write_Text(folder / "Site & <1>.dui", "x");
  Modal_Replies replies({Choose("Site & <1>.dui")});
  EXPECT_EQ(Ask_Qt_Open_File({"", {kProjects}, folder.path()}), folder / "Site & <1>.dui");
}

TEST(SaveDialog, The_Name_Follows_The_Kind_That_Is_Chosen) {
  Scratch_Folder folder;
  QStringList names;
  Modal_Replies replies({[&](QWidget* dialog) {
    auto* files = qobject_cast<QFileDialog*>(dialog);
    const auto choose = [&](int kind) {
      emit files->filterSelected(files->nameFilters().at(kind));
      names << Name_Field(dialog)->text();
    };
    choose(1);
    Name_Field(dialog)->setText("my.site.PDF");
    choose(1);
    choose(0);
    Name_Field(dialog)->clear();
    choose(1);
    dialog->close();
  }});
  Ask_Qt_Save_File({"",
                    {{"PDF Documents (*.pdf)", "*.pdf"}, {"Web Pages (*.html)", "*.html"}},
                    folder / "bay.pdf"});
  EXPECT_EQ(names, QStringList({"bay.html", "my.site.html", "my.site.pdf", ""}));
}

TEST(SaveDialog, A_Bare_Name_Gets_The_Extension_Of_The_Kind_That_Is_Chosen) {
  Scratch_Folder folder;
  Write_Text(folder / "there.txt", "x");
  File_Request request{
      "", {{"Text Files (*.txt)", "*.txt"}, {"All Files (*)", "*"}}, folder.path()};
  const auto saved = [&](const char* name, int kind) {
    Modal_Replies replies({[&](QWidget* dialog) {
      auto* files = qobject_cast<QFileDialog*>(dialog);
      files->selectNameFilter(files->nameFilters().at(kind));
      emit files->filterSelected(files->nameFilters().at(kind));
      Choose(name)(dialog);
    }});
    return Ask_Qt_Save_File(request);
  };
  EXPECT_EQ(saved("notes", 0), folder / "notes") << "unless that is not asked for";
  request.ending = Ending::To_Bare_Names;
  {
    Modal_Replies replies({Choose("notes")});
    EXPECT_EQ(Ask_Qt_Save_File(request), folder / "notes.txt");
  }
  EXPECT_EQ(saved("notes", 0), folder / "notes.txt");
  EXPECT_EQ(saved("notes.lst", 0), folder / "notes.lst");
  EXPECT_EQ(saved("notes", 1), folder / "notes");
  Modal_Replies replies({Choose("there"), Press(QMessageBox::Yes)});
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "there.txt");
  EXPECT_EQ(replies.seen.at(0).text, "there.txt already exists.\nDo you want to replace it?");
}

TEST(SaveDialog, A_Name_Without_Ending_Is_Of_The_Kind_That_Is_Chosen) {
  Scratch_Folder folder;
  File_Request request{
      "", {{"PDF Documents (*.pdf)", "*.pdf"}, {"Web Pages (*.html)", "*.html"}}, folder.path()};
  const auto choose = [](const char* name, int kind) {
    return [=](QWidget* dialog) {
      auto* files = qobject_cast<QFileDialog*>(dialog);
      files->selectNameFilter(files->nameFilters().at(kind));
      Choose(name)(dialog);
    };
  };
  Modal_Replies replies(
      {choose("bay", 1), choose("my.bay", 0), choose("bay.PDF", 1), choose("plain", 1)});
  request.ending = Ending::To_Others;
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "bay.html");
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "my.bay.pdf");
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "bay.PDF");
  request.ending = Ending::As_Typed;
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "plain");
}

TEST(SaveDialog, Offers_The_Name_It_Was_Given) {
  Scratch_Folder folder;
  QString offered;
  Modal_Replies replies({[&](QWidget* dialog) {
    offered = Name_Field(dialog)->text();
    dialog->close();
  }});
  EXPECT_FALSE(Ask_Qt_Save_File({"", {kProjects}, folder / "bay.DUI"}).has_value());
  EXPECT_EQ(offered, "bay.DUI");
}

TEST(SaveDialog, A_New_Name_Is_Not_Asked_About) {
  Scratch_Folder folder;
  Modal_Replies replies({Choose("new.DUI")});
  EXPECT_EQ(Ask_Qt_Save_File({"", {kProjects}, folder.path()}), folder / "new.DUI");
}

TEST(SaveDialog, Asks_Before_A_File_Is_Replaced) {
  Scratch_Folder folder;
  Write_Text(folder / "bay.DUI", "x");
  Modal_Replies replies({Choose("bay.DUI"), Press(QMessageBox::Yes)});
  EXPECT_EQ(Ask_Qt_Save_File({"", {kProjects}, folder.path()}), folder / "bay.DUI");
  EXPECT_EQ(replies.seen.at(0).text, "bay.DUI already exists.\nDo you want to replace it?");
  EXPECT_EQ(replies.seen.at(0).default_button, QMessageBox::No);
}

TEST(SaveDialog, No_Goes_Back_To_The_Dialog) {
  Scratch_Folder folder;
  Write_Text(folder / "bay.DUI", "x");
  QFileDialog* dialog = nullptr;
  Modal_Replies replies({[&](QWidget* window) {
                           dialog = qobject_cast<QFileDialog*>(window);
                           Choose("bay.DUI")(window);
                           // Back from the question, the dialog still stands.
                           EXPECT_TRUE(dialog->isVisible());
                           dialog->reject();
                         },
                         Press(QMessageBox::No)});
  EXPECT_FALSE(Ask_Qt_Save_File({"", {kProjects}, folder.path()}).has_value());
}

TEST(SaveDialog, Asks_About_A_File_Whose_Name_Differs_Only_In_Case) {
  Scratch_Folder folder;
  Write_Text(folder / "BAY.DUI", "x");
  Modal_Replies replies({Choose("bay.dui"), Press(QMessageBox::Yes)});
  EXPECT_EQ(Ask_Qt_Save_File({"", {kProjects}, folder.path()}), folder / "bay.dui");
  EXPECT_EQ(replies.seen.at(0).text, "BAY.DUI already exists.\nDo you want to replace it?");
}

TEST(SaveDialog, Asks_About_The_File_That_The_Name_Stands_For) {
  Scratch_Folder folder;
  Write_Text(folder / "bay.DUI", "x");
  File_Request request{"", {kProjects}, folder.path()};
  request.complete = [](const std::string& path) { return path + ".DUI"; };
  Modal_Replies replies({Choose("bay"), Press(QMessageBox::Yes)});
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "bay");
  EXPECT_EQ(replies.seen.size(), 1u);
}

TEST(PrinterSetup, Comes_Up_And_Can_Be_Left) {
  Modal_Replies replies({Close_Window()});
  Show_Qt_Printer_Setup();
  EXPECT_EQ(replies.windows, 1);
}

}  // namespace
}  // namespace barvon
