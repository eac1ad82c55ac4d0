#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextDocumentFragment>
#include <set>

#include "checks/check_data.h"
#include "checks/frm_error_list.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/qt/help/qt_help_viewer.h"
#include "support/screen_support.h"
#include "workspace/frm_about.h"
#include "workspace/frm_open.h"
#include "workspace/frm_tip.h"
#include "workspace/main_menus.h"

namespace barvon {
namespace {

using namespace barvon::testing;

/// As a reader sees it: without the mark of its letter, with single blanks.
QString Read(QString text) {
  const QString ampersand(QChar(1));
  return text.replace("&&", ampersand).remove('&').replace(ampersand, "&").simplified();
}

QString Page(const char* name) {
  return QString::fromStdString(Read_Text(BARVON_SOURCE "/help/" + std::string(name)));
}

QStringList Matches(const QString& text, const char* pattern) {
  QStringList found;
  const QRegularExpression wanted(pattern, QRegularExpression::DotMatchesEverythingOption);
  for (auto at = wanted.globalMatch(text); at.hasNext();) {
    found << QTextDocumentFragment::fromHtml(at.next().captured(1)).toPlainText().simplified();
  }
  return found;
}

void Add_Captions_Of(const QWidget& window, std::set<QString>& captions) {
  captions.insert(Read(window.windowTitle()));
  for (const auto* label : window.findChildren<QLabel*>()) captions.insert(Read(label->text()));
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    captions.insert(Read(button->text()));
  }
  for (const auto* frame : window.findChildren<QGroupBox*>()) captions.insert(Read(frame->title()));
  for (const auto* action : window.findChildren<QAction*>()) captions.insert(Read(action->text()));
  for (const auto* tabs : window.findChildren<QTabWidget*>()) {
    for (int i = 0; i < tabs->count(); ++i) captions.insert(Read(tabs->tabText(i)));
  }
}

/// The texts that the main window, its menus, the start dialog, About, the tips, the error list and
/// the help window show, in whatever state the project is.
std::set<QString> All_Captions() {
  std::set<QString> captions;
  Main_Bench bench;
  new frmErrorList(&bench.main());
  new frmOpen(&bench.main());
  new frmAbout(&bench.main());
  new frmTip(&bench.main());
  for (int type = 0; type < 3; ++type) {
    bench.controls().SSOption1(type)->click();
    bench.controls().SSPanel3(0)->click();
    Add_Captions_Of(bench.main(), captions);
  }
  Port().board.set_status_line(0, kDataSupplied, Status_Colour::Blue);
  Project().DX0 = Project().DZ0 = 100;
  Port().board.display_data();
  Add_Captions_Of(bench.main(), captions);
  Set_Help_File(BARVON_HELP_FILE);
  Show_Help({Help_Command::Index, 0, ""});
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "Help") Add_Captions_Of(*window, captions);
  }
  Show_Help({Help_Command::Quit, 0, ""});
  captions.erase("");
  return captions;
}

/// Whether a text of the windows holds the words; a caption may stand for part of a line.
bool Is_Shown(const std::set<QString>& captions, const QString& words) {
  for (const QString& caption : captions) {
    if (caption.contains(words)) return true;
  }
  return false;
}

TEST(HelpCaptions, Every_Field_Of_A_Page_Bears_A_Caption_Of_The_Program) {
  const std::set<QString> captions = All_Captions();
  int fields = 0;
  for (const char* page :
       {"about-and-tips.html", "main-window.html", "menus.html", "error-list.html"}) {
    for (const QString& field : Matches(Page(page), "<p class=\"field\">(.*?)</p>")) {
      EXPECT_EQ(captions.count(field), 1U) << page << ": " << field.toStdString();
      ++fields;
    }
  }
  EXPECT_GE(fields, 20);
}

TEST(HelpCaptions, Every_Button_And_Menu_In_A_Table_Bears_A_Caption_Of_The_Program) {
  const std::set<QString> captions = All_Captions();
  for (const auto& [page, heading] :
       {std::pair("main-window.html", "Button"), std::pair("menus.html", "Menu")}) {
    const QString table =
        Page(page).section(QString("<th>%1</th>").arg(heading), 1).section("</table>", 0, 0);
    const QStringList cells = Matches(table, "<tr><td>(.*?)</td>");
    EXPECT_GE(cells.size(), 8) << page;
    for (const QString& cell : cells) {
      for (const QString& caption : cell.split(", ")) {
        EXPECT_EQ(captions.count(caption), 1U) << page << ": " << caption.toStdString();
      }
    }
  }
  const QString file_menu = Matches(Page("menus.html"), "<td>File</td><td>(.*?), the recent").at(0);
  for (const QString& item : file_menu.split(", ")) {
    EXPECT_EQ(captions.count(item), 1U) << item.toStdString();
  }
}

TEST(HelpCaptions, Every_Quoted_Text_Is_Shown_By_The_Program) {
  const std::set<QString> captions = All_Captions();
  // Texts of boxes, findings and of screens with pages of their own.
  const std::set<QString> others = {
      "This Feature is Unavailable at This Time.", "Specify Variable Depth Grid?",
      "Depth of Receiving Water Not Supplied", "Receiving Water Densities Unacceptable.",
      Read(kErrorsDetected)};
  for (const char* page :
       {"about-and-tips.html", "main-window.html", "menus.html", "error-list.html"}) {
    const QString text = QTextDocumentFragment::fromHtml(Page(page)).toPlainText().simplified();
    const QStringList quoted = Matches(text, "\"([^\"]*)\"");
    EXPECT_GE(quoted.size(), 4) << page;
    for (const QString& words : quoted) {
      EXPECT_TRUE(Is_Shown(captions, words) || others.count(words) == 1)
          << page << ": " << words.toStdString();
    }
  }
}

TEST(HelpCaptions, Every_Menu_And_Command_Is_Explained) {
  const QString window = QTextDocumentFragment::fromHtml(Page("main-window.html")).toPlainText();
  const QString menus = QTextDocumentFragment::fromHtml(Page("menus.html")).toPlainText();
  for (const Menu& menu : Menu_Tree()) {
    if (!menu.visible && menu.name != std::string("mnuTools")) continue;
    EXPECT_TRUE(menus.contains(Read(menu.caption))) << menu.caption;
  }
  Main_Bench bench;
  for (const auto& button : bench.controls().SSPanel3) {
    EXPECT_TRUE(window.contains(Read(button->text()))) << button->text().toStdString();
  }
  for (const auto& button : bench.controls().SSPanel5) {
    EXPECT_TRUE(window.contains(Read(button->text()))) << button->text().toStdString();
  }
}

}  // namespace
}  // namespace barvon
