#include "platform/qt/ask/qt_file_dialog.h"

#include <gtest/gtest.h>

#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <algorithm>
#include <filesystem>

#include "run/child_support.h"
#include "support/disk_calls.h"
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

/// Names that a shell, an address or a list of names would read as something else.
const std::vector<std::string> kOddNames{R"(a'b"c.DUI)",
                                         R"(my "bay" site.DUI)",
                                         R"("bay.DUI")",
                                         R"("bay.DUI" "c.DUI")",
                                         R"(")",
                                         R"("")",
                                         R"(bay.DUI")",
                                         R"("c.DUI)",
                                         R"(back\slash.DUI)",
                                         R"(\\bay.DUI)",
                                         R"(bay\)",
                                         "  bay.DUI",
                                         "bay.DUI  ",
                                         " ",
                                         "~bay.DUI",
                                         "~root",
                                         "$HOME",
                                         "${HOME}.DUI",
                                         "%41.DUI",
                                         ":bay.DUI",
                                         "file:bay.DUI",
                                         "a#b?c=d&e;f.DUI",
                                         "a*b[1].DUI",
                                         "...",
                                         "-bay.DUI"};

constexpr char kAll[] = "*";

/// Types the name in the place of what the field holds, and ends with Return.
Reply Type_Name(const std::string& name) {
  return [name](QWidget* dialog) {
    QLineEdit* field = Name_Field(dialog);
    field->setFocus();
    field->selectAll();
    testing::Type(field, QString::fromStdString(name));
    QTest::keyClick(field, Qt::Key_Return);
  };
}

QAbstractButton* Accept_Button(QWidget* dialog) {
  const auto* box = dialog->findChild<QDialogButtonBox*>("buttonBox");
  const QList<QAbstractButton*> buttons = box->buttons();
  return *std::ranges::find_if(buttons, [&](QAbstractButton* button) {
    return box->buttonRole(button) == QDialogButtonBox::AcceptRole;
  });
}

Reply Click_In_List(const std::string& name) {
  return [name](QWidget* dialog) {
    auto* list = dialog->findChild<QListView*>("listView");
    auto* table = dialog->findChild<QAbstractItemView*>("treeView");
    QAbstractItemView* view = list->isVisible() ? list : table;
    const QString wanted = QString::fromStdString(name);
    ASSERT_TRUE(testing::Wait_Until([&] { return Listed_Files(dialog).contains(wanted); })) << name;
    for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
      const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
      if (index.data().toString() != wanted) continue;
      view->scrollTo(index);
      QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                        view->visualRect(index).center());
    }
    EXPECT_EQ(Name_Field(dialog)->text(), wanted);
    testing::Click(Accept_Button(dialog));
  };
}

TEST(SaveDialog, A_Typed_Name_Counts_Letter_For_Letter) {
  for (const std::string& name : kOddNames) {
    Scratch_Folder folder;
    // What such a name was read as before.
    for (const char* other : {"c.DUI", "bay.DUI", "bay", "A.DUI"}) Write_Text(folder / other, "x");
    Modal_Replies replies({Type_Name(name)});
    EXPECT_EQ(Ask_Qt_Save_File({"", {{"All", kAll}}, folder / "offered.DUI"}), folder / name);
    EXPECT_EQ(replies.windows, 1) << name;
  }
}

TEST(SaveDialog, An_Offered_Name_Counts_Letter_For_Letter) {
  for (const std::string& name : kOddNames) {
    Scratch_Folder folder;
    Write_Text(folder / "c.DUI", "x");
    Write_Text(folder / "bay.DUI", "x");
    Modal_Replies replies({[&](QWidget* dialog) {
      EXPECT_EQ(Name_Field(dialog)->text().toStdString(), name);
      QTest::keyClick(Name_Field(dialog), Qt::Key_Return);
    }});
    EXPECT_EQ(Ask_Qt_Save_File({"", {{"All", kAll}}, folder / name}), folder / name);
    EXPECT_EQ(replies.windows, 1) << name;
  }
}

TEST(SaveDialog, Asks_About_The_Very_File_That_Is_Written) {
  for (const std::string& name : kOddNames) {
    Scratch_Folder folder;
    for (const char* other : {"c.DUI", "bay.DUI"}) Write_Text(folder / other, "x");
    Write_Text(folder / name, "x");
    Modal_Replies replies({Type_Name(name), Press(QMessageBox::Yes)});
    EXPECT_EQ(Ask_Qt_Save_File({"", {{"All", kAll}}, folder.path()}), folder / name);
    ASSERT_EQ(replies.seen.size(), 1U) << name;
    EXPECT_EQ(replies.seen[0].text.toStdString(),
              name + " already exists.\nDo you want to replace it?");
    EXPECT_EQ(replies.seen[0].format, Qt::PlainText);
  }
}

TEST(SaveDialog, The_Ending_Goes_Behind_The_Letters_Of_The_Name) {
  Scratch_Folder folder;
  Write_Text(folder / "bay.pdf", "x");
  File_Request request{
      "", {{"PDF Documents (*.pdf)", "*.pdf"}, {"Web Pages (*.html)", "*.html"}}, folder.path()};
  request.ending = Ending::To_Others;
  Modal_Replies replies({Type_Name(R"("bay")"), Type_Name(R"(my "bay" site)")});
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / R"("bay".pdf)");
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / R"(my "bay" site.pdf)");
}

TEST(OpenDialog, A_Typed_Name_Counts_Letter_For_Letter) {
  for (const std::string& name : kOddNames) {
    Scratch_Folder folder;
    for (const char* other : {"c.DUI", "bay.DUI", "bay"}) Write_Text(folder / other, "x");
    Write_Text(folder / name, "x");
    Modal_Replies replies({Type_Name(name), Type_Name(folder / name)});
    EXPECT_EQ(Ask_Qt_Open_File({"", {{"All", kAll}}, folder.path()}), folder / name);
    EXPECT_EQ(Ask_Qt_Open_File({"", {{"All", kAll}}, folder.path()}), folder / name);
    EXPECT_EQ(replies.windows, 2) << name;
  }
}

TEST(OpenDialog, A_Name_That_Is_Clicked_Counts_Letter_For_Letter) {
  for (const std::string& name : kOddNames) {
    if (name == "...") continue;  // hidden from the list
    Scratch_Folder folder;
    for (const char* other : {"c.DUI", "bay.DUI", "bay"}) Write_Text(folder / other, "x");
    Write_Text(folder / name, "x");
    Modal_Replies replies({Click_In_List(name)});
    EXPECT_EQ(Ask_Qt_Open_File({"", {{"All", kAll}}, folder.path()}), folder / name);
  }
}

TEST(SaveDialog, A_Name_That_Is_Clicked_Counts_Letter_For_Letter) {
  Scratch_Folder folder;
  for (const char* name : {"c.DUI", R"(a'b"c.DUI)"}) Write_Text(folder / name, "x");
  Modal_Replies replies({Click_In_List(R"(a'b"c.DUI)"), Press(QMessageBox::Yes)});
  EXPECT_EQ(Ask_Qt_Save_File({"", {kProjects}, folder / "new.DUI"}), folder / R"(a'b"c.DUI)");
  EXPECT_EQ(replies.seen.at(0).text.toStdString(),
            "a'b\"c.DUI already exists.\nDo you want to replace it?");
}

TEST(OpenDialog, A_Name_With_A_Line_Break_Is_Opened_By_The_List) {
  Scratch_Folder folder;
  Write_Text(folder / "a\nb.DUI", "x");
  Modal_Replies replies({Click_In_List("a\nb.DUI")});
  EXPECT_EQ(Ask_Qt_Open_File({"", {kProjects}, folder.path()}), folder / "a\nb.DUI");
}

TEST(OpenDialog, A_Name_That_Is_Not_There_Is_Told) {
  Scratch_Folder folder;
  Write_Text(folder / "bay.DUI", "x");
  Modal_Replies replies({[&](QWidget* dialog) {
                           Type_Name(R"(my "bay" site.DUI)")(dialog);
                           EXPECT_TRUE(dialog->isVisible());
                           EXPECT_EQ(Name_Field(dialog)->text(), R"(my "bay" site.DUI)");
                           dialog->close();
                         },
                         Press(QMessageBox::Ok),
                         [&](QWidget* dialog) {
                           Type_Name("none/")(dialog);
                           dialog->close();
                         },
                         Press(QMessageBox::Ok)});
  const File_Request request{"", {kProjects}, folder.path()};
  EXPECT_FALSE(Ask_Qt_Open_File(request).has_value());
  EXPECT_FALSE(Ask_Qt_Save_File(request).has_value());
  ASSERT_EQ(replies.seen.size(), 2U);
  EXPECT_EQ(replies.seen[0].text,
            "my \"bay\" site.DUI\nFile not found.\nPlease verify the correct file name was given.");
  EXPECT_EQ(replies.seen[1].text.toStdString(),
            (folder / "none/") +
                "\nDirectory not found.\nPlease verify the correct directory name was given.");
}

TEST(FileDialogs, A_Typed_Folder_Is_Gone_Into) {
  Scratch_Folder folder;
  std::filesystem::create_directories(folder / R"(the "c.DUI" folder/deep)");
  const testing::Changed_Variable home("HOME", folder.path());
  const QString base = QString::fromStdString(folder.path());
  const QString quoted = base + R"(/the "c.DUI" folder)";
  for (const auto& ask : {Ask_Qt_Open_File, Ask_Qt_Save_File}) {
    Modal_Replies replies({[&](QWidget* dialog) {
      const auto goes_to = [&](const std::string& typed, const QString& expected) {
        Type_Name(typed)(dialog);
        EXPECT_EQ(qobject_cast<QFileDialog*>(dialog)->directory().absolutePath(), expected)
            << typed;
        EXPECT_TRUE(Name_Field(dialog)->text().isEmpty()) << typed;
        EXPECT_TRUE(dialog->isVisible()) << typed;
      };
      goes_to(R"(the "c.DUI" folder)", quoted);
      goes_to("deep", quoted + "/deep");
      goes_to("..", quoted);
      goes_to("../", base);
      goes_to(quoted.toStdString() + "/deep/", quoted + "/deep");
      goes_to("~", base);
      goes_to(R"(~/the "c.DUI" folder)", quoted);
      goes_to("/", "/");
      goes_to(base.toStdString(), base);
      dialog->close();
    }});
    EXPECT_FALSE(ask({"", {kProjects}, folder.path()}).has_value());
  }
}

TEST(FileDialogs, The_First_One_Begins_Where_It_Is_Told_If_That_Is_There) {
  Scratch_Folder folder;
  std::filesystem::create_directories(folder / "studies");
  const auto begins_in = [] {
    std::string shown;
    Modal_Replies replies({[&](QWidget* dialog) {
      shown = qobject_cast<QFileDialog*>(dialog)->directory().absolutePath().toStdString();
      dialog->close();
    }});
    EXPECT_FALSE(Ask_Qt_Open_File({"", {kProjects}, ""}).has_value());
    return shown;
  };
  Begin_Dialogs_In(folder / "studies");
  EXPECT_EQ(begins_in(), folder / "studies");
  Begin_Dialogs_In(folder / "gone");
  EXPECT_TRUE(std::filesystem::is_directory(begins_in()));
  Begin_Dialogs_In("");
}

TEST(FileDialogs, A_Relative_Path_Begins_In_The_Folder_That_Shows) {
  Scratch_Folder folder;
  std::filesystem::create_directories(folder / "sub");
  std::filesystem::create_directories(folder / "other");
  const testing::Changed_Variable home("HOME", folder / "other");
  Write_Text(folder / R"(sub/a"b.DUI)", "x");
  Write_Text(folder / R"(other/a"b.DUI)", "x");
  for (const auto& ask : {Ask_Qt_Open_File, Ask_Qt_Save_File}) {
    const bool saves = ask == Ask_Qt_Save_File;
    const auto given = [&](const std::string& typed) {
      std::vector<Reply> answers{Type_Name(typed)};
      if (saves) answers.push_back(Press(QMessageBox::Yes));
      Modal_Replies replies(answers);
      const auto path = ask({"", {kProjects}, folder.path()});
      return path ? std::filesystem::weakly_canonical(*path).string() : std::string();
    };
    EXPECT_EQ(given(R"(sub/a"b.DUI)"), folder / R"(sub/a"b.DUI)");
    EXPECT_EQ(given(R"(./sub/a"b.DUI)"), folder / R"(sub/a"b.DUI)");
    EXPECT_EQ(given(R"(sub/../other/a"b.DUI)"), folder / R"(other/a"b.DUI)");
    EXPECT_EQ(given(R"(~/a"b.DUI)"), folder / R"(other/a"b.DUI)");
  }
}

TEST(OpenDialog, A_Typed_Name_Is_Found_In_Any_Case) {
  Scratch_Folder folder;
  std::filesystem::create_directory(folder / "Sub");
  Write_Text(folder / "R.DUI", "x");
  Write_Text(folder / "Sub/Deep.dui", "x");
  Modal_Replies replies({Type_Name("r.dui"), Type_Name("SUB/deep.DUI"), [&](QWidget* dialog) {
                           Type_Name("sub")(dialog);
                           EXPECT_TRUE(dialog->isVisible());
                           Type_Name("DEEP.dui")(dialog);
                         }});
  const File_Request request{"", {kProjects}, folder.path()};
  EXPECT_EQ(Ask_Qt_Open_File(request), folder / "R.DUI");
  EXPECT_EQ(Ask_Qt_Open_File(request), folder / "Sub/Deep.dui");
  EXPECT_EQ(Ask_Qt_Open_File(request), folder / "Sub/Deep.dui");
}

TEST(SaveDialog, A_Missing_Folder_Is_Told_While_The_Dialog_Stands) {
  Scratch_Folder folder;
  std::filesystem::create_directory(folder / "Sub");
  Write_Text(folder / "bay.DUI", "x");
  const auto is_told = [](const char* name) -> Reply {
    return [name](QWidget* dialog) {
      Type_Name(name)(dialog);
      EXPECT_TRUE(dialog->isVisible());
      EXPECT_EQ(Name_Field(dialog)->text(), name);
      dialog->close();
    };
  };
  Modal_Replies replies({is_told("none/x.DUI"), Press(QMessageBox::Ok), is_told("bay.DUI/x.DUI"),
                         Press(QMessageBox::Ok), Type_Name("sub/x.DUI")});
  const File_Request request{"", {kProjects}, folder.path()};
  EXPECT_FALSE(Ask_Qt_Save_File(request).has_value());
  EXPECT_FALSE(Ask_Qt_Save_File(request).has_value());
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "Sub/x.DUI");
  const std::string told =
      "\nDirectory not found.\nPlease verify the correct directory name was given.";
  ASSERT_EQ(replies.seen.size(), 2U);
  EXPECT_EQ(replies.seen[0].text.toStdString(), (folder / "none") + told);
  EXPECT_EQ(replies.seen[1].text.toStdString(), (folder / "bay.DUI") + told);
}

TEST(FileDialogs, A_Typed_Folder_Leaves_No_List_Of_Names_Open) {
  Scratch_Folder folder;
  std::filesystem::create_directory(folder / "sub");
  Write_Text(folder / "sub/bay.DUI", "x");
  for (const auto& ask : {Ask_Qt_Open_File, Ask_Qt_Save_File}) {
    Modal_Replies replies({[&](QWidget* dialog) {
      ASSERT_TRUE(testing::Wait_Until([&] { return Listed_Files(dialog).contains("sub"); }));
      Type_Name("sub")(dialog);
      ASSERT_TRUE(testing::Wait_Until([&] { return Listed_Files(dialog).contains("bay.DUI"); }));
      QTest::qWait(300);
      EXPECT_FALSE(Name_Field(dialog)->completer()->popup()->isVisible());
      dialog->close();
    }});
    EXPECT_FALSE(ask({"", {kProjects}, folder.path()}).has_value());
  }
}

TEST(FileDialogs, What_Is_Given_Back_Has_No_Dots_In_Its_Path) {
  Scratch_Folder folder;
  std::filesystem::create_directories(folder / "sub/deep");
  std::filesystem::create_directory_symlink(folder / "sub/deep", folder / "link");
  for (const char* name : {"top.DUI", "sub/in.DUI"}) Write_Text(folder / name, "x");
  const File_Request request{"", {kProjects}, folder.path()};
  Modal_Replies replies({Type_Name("./sub/../top.DUI"), Type_Name("link/../in.DUI"),
                         Type_Name(folder / "sub/.././new.DUI")});
  EXPECT_EQ(Ask_Qt_Open_File(request), folder / "top.DUI");
  EXPECT_EQ(Ask_Qt_Open_File(request),
            std::filesystem::canonical(folder / "sub").string() + "/in.DUI");
  EXPECT_EQ(Ask_Qt_Save_File(request), folder / "new.DUI");
}

TEST(FileDialogs, Return_In_The_List_Is_For_The_Row_That_Has_The_Frame) {
  Scratch_Folder folder;
  Write_Text(folder / "bay.DUI", "x");
  for (const char* view : {"listView", "treeView"}) {
    const auto by_return = [&](QWidget* dialog) {
      auto* rows = dialog->findChild<QAbstractItemView*>(view);
      const bool is_list = rows == dialog->findChild<QListView*>("listView");
      qobject_cast<QFileDialog*>(dialog)->setViewMode(is_list ? QFileDialog::List
                                                              : QFileDialog::Detail);
      ASSERT_TRUE(testing::Wait_Until([&] { return Listed_Files(dialog).contains("bay.DUI"); }));
      rows->setCurrentIndex(rows->model()->index(0, 0, rows->rootIndex()));
      Name_Field(dialog)->setText("zzz");
      EXPECT_FALSE(rows->selectionModel()->hasSelection());
      rows->setFocus();
      QTest::keyClick(rows, Qt::Key_Return);
    };
    Modal_Replies replies({by_return});
    EXPECT_EQ(Ask_Qt_Open_File({"", {kProjects}, folder.path()}), folder / "bay.DUI") << view;
  }
}

TEST(FileDialogs, Return_In_A_List_Without_Rows_Presses_The_Button) {
  Scratch_Folder folder;
  std::filesystem::create_directory(folder / "sub");
  Modal_Replies replies({[](QWidget* dialog) {
    auto* rows = dialog->findChild<QListView*>("listView");
    rows->setFocus();
    QTest::keyClick(rows, Qt::Key_Return);
  }});
  EXPECT_EQ(Ask_Qt_Save_File({"", {kProjects}, folder / "sub/bay.DUI"}), folder / "sub/bay.DUI");
}

/// Of a name without an ending only the bytes tell what it is.
TEST(FileDialogs, No_File_Is_Looked_Into_For_Its_Picture) {
  Scratch_Folder folder;
  Write_Text(folder / "bay", "%PDF-1.4");
  QString kind;
  Modal_Replies replies({[&](QWidget* dialog) {
    ASSERT_TRUE(testing::Wait_Until([&] { return Listed_Files(dialog).contains("bay"); }));
    auto* files = dialog->findChild<QListView*>("listView");
    auto* model = qobject_cast<QFileSystemModel*>(files->model());
    kind = model->type(model->index(QString::fromStdString(folder / "bay")));
    dialog->close();
  }});
  EXPECT_FALSE(Ask_Qt_Open_File({"", {{"All", kAll}}, folder.path()}).has_value());
  EXPECT_EQ(kind, "File");
}

TEST(FileDialogs, A_File_Called_Tilde_Comes_Before_The_Home_Folder) {
  Scratch_Folder folder;
  Write_Text(folder / "~", "x");
  Modal_Replies replies({Type_Name("~")});
  EXPECT_EQ(Ask_Qt_Open_File({"", {{"All", kAll}}, folder.path()}), folder / "~");
}

TEST(SaveDialog, A_Folder_Chosen_In_The_List_Leaves_The_Name) {
  Scratch_Folder folder;
  std::filesystem::create_directories(folder / "sub");
  Modal_Replies replies({[&](QWidget* dialog) {
    auto* list = dialog->findChild<QListView*>("listView");
    auto* model = qobject_cast<QFileSystemModel*>(list->model());
    ASSERT_TRUE(testing::Wait_Until([&] { return Listed_Files(dialog).contains("sub"); }));
    list->selectionModel()->select(model->index(QString::fromStdString(folder / "sub")),
                                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    QMetaObject::invokeMethod(dialog, "accept");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Name_Field(dialog)->text(), "bay.DUI");
    QMetaObject::invokeMethod(dialog, "accept");
  }});
  EXPECT_EQ(Ask_Qt_Save_File({"", {kProjects}, folder / "bay.DUI"}), folder / "sub/bay.DUI");
}

TEST(FileDialogs, The_Button_Can_Be_Pressed_As_Soon_As_There_Is_A_Name) {
  Scratch_Folder folder;
  Modal_Replies replies({[&](QWidget* dialog) {
    QAbstractButton* button = Accept_Button(dialog);
    EXPECT_FALSE(button->isEnabled());
    testing::Type(Name_Field(dialog), R"(a'b"c.DUI)");
    EXPECT_TRUE(button->isEnabled());
    Name_Field(dialog)->clear();
    EXPECT_FALSE(button->isEnabled());
    QTest::keyClick(Name_Field(dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    dialog->close();
  }});
  EXPECT_FALSE(Ask_Qt_Open_File({"", {kProjects}, folder.path()}).has_value());
}

TEST(FileDialogs, Begin_In_The_Home_Folder_Where_There_Are_No_Documents) {
  Scratch_Folder folder;
  const testing::Changed_Variable home("HOME", folder.path());
  const testing::Changed_Variable settings("XDG_CONFIG_HOME", folder.path());
  EXPECT_EQ(Documents_Folder().toStdString(), folder.path());
  std::filesystem::create_directory(folder / "Documents");
  EXPECT_EQ(Documents_Folder().toStdString(), folder / "Documents");
}

TEST(FileDialogs, Come_Up_As_They_Were_Left_And_Keep_That_In_No_File) {
  Scratch_Folder folder;
  constexpr QSize kLeft(600, 400);
  QSize before;
  const auto look = [](QWidget* dialog) { return qobject_cast<QFileDialog*>(dialog)->viewMode(); };
  const auto leave = [](QWidget* dialog, QFileDialog::ViewMode mode, QSize size) {
    qobject_cast<QFileDialog*>(dialog)->setViewMode(mode);
    dialog->resize(size);
    dialog->close();
  };
  const testing::Disk_Calls calls;
  Modal_Replies replies({[&](QWidget* dialog) {
                           before = dialog->size();
                           leave(dialog, QFileDialog::List, kLeft);
                         },
                         [&](QWidget* dialog) {
                           EXPECT_EQ(look(dialog), QFileDialog::List);
                           EXPECT_EQ(dialog->size(), kLeft);
                           leave(dialog, QFileDialog::Detail, before);
                         }});
  for (int time = 0; time < 2; ++time) {
    EXPECT_FALSE(Ask_Qt_Open_File({"", {kProjects}, folder.path()}).has_value());
  }
  EXPECT_EQ(replies.windows, 2);
  EXPECT_EQ(calls.Waits(), 0);
}

TEST(PrinterSetup, Comes_Up_And_Can_Be_Left) {
  Modal_Replies replies({Close_Window()});
  Show_Qt_Printer_Setup();
  EXPECT_EQ(replies.windows, 1);
}

}  // namespace
}  // namespace barvon
