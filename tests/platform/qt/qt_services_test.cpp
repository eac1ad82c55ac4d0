#include "platform/qt/qt_services.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QProgressBar>
#include <QTimer>

#include "support/screen_support.h"

namespace barvon {
namespace {

QWidget* Progress_Window() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "frmProgress_Bar") return window;
  }
  return nullptr;
}

TEST(EventPump, Ends_Its_Sleep_When_An_Event_Comes) {
  const Qt_Services services;
  bool came = false;
  QTimer::singleShot(20, [&] { came = true; });
  // An hour each, if events did not end it.
  for (int i = 0; i < 1000 && !came; ++i) Pump_Events(std::chrono::hours(1));
  EXPECT_TRUE(came);
}

TEST(EventPump, Ends_Its_Sleep_When_The_Time_Is_Up) {
  const Qt_Services services;
  QCoreApplication::processEvents();
  bool far_event = false;
  QTimer far;
  far.callOnTimeout([&] { far_event = true; });
  far.start(std::chrono::minutes(5));
  Pump_Events(std::chrono::milliseconds(20));
  Pump_Events(std::chrono::milliseconds(0));
  EXPECT_FALSE(far_event);
}

TEST(EventPump, Sleeps_Instead_Of_Polling) {
  const Qt_Services services;
  QCoreApplication::processEvents();
  bool over = false;
  QTimer::singleShot(300, [&] { over = true; });
  int turns = 0;
  for (; !over; ++turns) Pump_Events(std::chrono::milliseconds(50));
  EXPECT_LT(turns, 200);
}

TEST(BusyCursor, Nests_And_Comes_Down_With_The_Last) {
  const Qt_Services services;
  {
    const Busy_Cursor outer;
    { const Busy_Cursor inner; }
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(ProgressBar, Stands_While_The_Work_Lasts_And_Bears_The_Caption) {
  const Qt_Services services;
  {
    const Progress_Display display("Loading /data/<b>site</b>.DUI");
    QWidget* window = Progress_Window();
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), "Loading /data/<b>site</b>.DUI");
    EXPECT_EQ(window->windowModality(), Qt::NonModal);
    EXPECT_EQ(window->findChild<QProgressBar*>("ProgressBar1")->value(), 0);
  }
  EXPECT_EQ(Progress_Window(), nullptr);
}

TEST(ProgressBar, Shows_The_Share_That_Is_Done) {
  frmProgress_Bar window;
  window.Open("Saving x.DUI");
  const auto* bar = window.findChild<QProgressBar*>("ProgressBar1");
  window.Move(0.25);
  EXPECT_EQ(bar->value() * 4, bar->maximum());
  window.Move(1);
  EXPECT_EQ(bar->value(), bar->maximum());
}

struct Paint_Counter : QObject {
  int paints = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

TEST(ProgressBar, Is_Repainted_By_The_Frame_And_Not_By_The_Line) {
  const Qt_Services services;
  Progress_Display display("Loading x.DUI");
  Paint_Counter counter;
  Progress_Window()->findChild<QProgressBar*>("ProgressBar1")->installEventFilter(&counter);
  constexpr int kLines = 200000;
  for (int line = 0; line < kLines; ++line) display.Move(double(line) / kLines);
  EXPECT_LT(counter.paints, kLines / 20);
}

TEST(ProgressBar, Survives_The_Window_That_It_Stands_On) {
  const Qt_Services services;
  auto window = std::make_unique<QWidget>();
  window->show();
  Progress_Display display("Loading x.DUI");
  window.reset();
  display.Move(0.5);
  EXPECT_EQ(Progress_Window(), nullptr);
}

TEST(QtServices, Put_Back_What_Was_Bound_Before) {
  testing::Scripted_Messages script({Answer::Yes});
  { const Qt_Services services; }
  EXPECT_EQ(Show_Message({"?", "BARVON", Buttons::YesNo, Icon::None}), Answer::Yes);
}

}  // namespace
}  // namespace barvon
