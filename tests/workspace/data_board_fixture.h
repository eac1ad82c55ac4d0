#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <functional>
#include <string>
#include <vector>

#include "core/desk/screen_register.h"
#include "core/desk/workspace_port.h"
#include "core/project_record.h"
#include "platform/qt/fields/control_array.h"
#include "support/screen_support.h"

namespace barvon::testing {

inline QColor Text_Colour(const QWidget* control) {
  return control->palette().color(QPalette::Active, QPalette::WindowText);
}

template <class T>
void Expect_Blue(const ControlArray<T>& options, int chosen) {
  for (int i = options.first(); i <= options.last(); ++i) {
    EXPECT_EQ(options(i)->isChecked(), i == chosen) << i;
    EXPECT_EQ(Text_Colour(options(i)), QColor(i == chosen ? "#0000ff" : "#000000")) << i;
  }
}

/// The data board of a project of that type, with the screens that it opens written down.
class DataBoard : public ::testing::Test {
 protected:
  DataBoard() {
    for (const char* name :
         {"frmDescription", "frmVelocity", "frmMatHopper", "frmMatBarge", "frmOperation",
          "frmCoefficients", "frmDensity", "frmSimulation", "frmMdlkyn", "frmDilute2"}) {
      Register_Screen(*Find_Screen(name), [this, name](bool blocking, const std::string&) {
        opened.push_back(name + std::string(blocking ? " blocking" : ""));
        on_open();
      });
      registered.push_back(name);
    }
    Project().ConstantDepthFlag = 1;
  }
  ~DataBoard() override {
    for (const std::string& name : registered) Register_Screen(*Find_Screen(name), {});
  }

  void Show_Board_Of(int type) {
    c.SSOption1(type - 1)->click();
    QTest::mouseClick(c.SSPanel3(0), Qt::LeftButton);
  }

  using Names = std::vector<std::string>;
  Main_Bench bench;
  Main_Controls& c = bench.controls();
  ProjectRecord& record = Project();
  Names opened, registered;
  std::function<void()> on_open = [] {};
};

}  // namespace barvon::testing
