#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "material/material_support.h"
#include "platform/qt/fields/tick_list.h"
#include "platform/qt/input_screen.h"
#include "platform/qt/table/spreadsheet_view.h"
#include "support/record_differences.h"
#include "support/screen_support.h"

namespace barvon::testing {

using Fields = std::vector<std::string>;

/// A material screen over the main window, opened without blocking.
template <class Screen_Class>
class Material_Screen : public ::testing::Test {
 protected:
  explicit Material_Screen(const char* name) : row_(*Find_Screen(name)) {
    Register_Screen(row_, Fresh_Screens<Screen_Class>(&bench.main()));
    Port().board.set_status_line = [this](int line, const std::string& text, Status_Colour) {
      status.push_back(std::to_string(line) + " " + text);
    };
    Port().board.mark_edit_item = [this](int index) { marks.push_back(index); };
    record.ShowMode = 0;
    record.DataSaved = kTrue;
    record.SiteDensity = 1.02;
    record.SiteSalinity = 0;
    record.SiteTemperature = 0;
  }
  ~Material_Screen() override {
    if (Is_Open()) Screen()->Unload();
    Register_Screen(row_, {});
  }

  Screen_Class* Screen() {
    for (auto* screen : bench.main().findChildren<QWidget*>(QLatin1String(row_.name))) {
      if (screen->isVisible()) return static_cast<Screen_Class*>(screen);
    }
    return nullptr;
  }
  bool Is_Open() { return Screen() != nullptr; }
  void Open() {
    *before = record;
    ASSERT_TRUE(Open_Screen(row_, false));
    ASSERT_TRUE(Has_Keyboard(Screen()));
  }

  template <class T>
  T* Child(const char* name) {
    return Screen()->template findChild<T*>(QLatin1String(name));
  }
  QLineEdit* Line(const char* name) { return Child<QLineEdit>(name); }
  QCheckBox* Box(const char* name) { return Child<QCheckBox>(name); }
  F1Book* Book(const char* name) { return Child<F1Book>(name); }
  QTabWidget* Tabs() { return Screen()->template findChild<QTabWidget*>(); }
  Tick_List* List() { return Child<Tick_List>("List1"); }

  void Go_To(int page) { Tabs()->setCurrentIndex(page); }
  void Press(const char* button) { Child<QPushButton>(button)->click(); }
  void Accept() { Press("Command1(0)"); }
  void Enter(const char* field, const QString& text) { Line(field)->setText(text); }
  void Tick(int line, bool on = true) {
    List()->item(line)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
  }
  void Type_Row(const char* book, int row, const std::vector<const char*>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      Type_Into_Cell(*Book(book), row, static_cast<int>(i) + 1, QString::fromUtf8(cells[i]));
    }
  }
  void Library(const char* section, const std::string& lines) {
    Write_Text(bench.folder / "BARVON.INI", "[" + std::string(section) + "]\r\n" + lines);
  }
  Fields Changed() const { return Differing_Fields(*before, record); }

  Main_Bench bench;
  ProjectRecord& record = Project();
  std::unique_ptr<ProjectRecord> before = std::make_unique<ProjectRecord>();
  std::vector<std::string> status;
  std::vector<int> marks;

 private:
  const Screen_Row& row_;
};

}  // namespace barvon::testing
