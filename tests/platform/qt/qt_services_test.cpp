#include "platform/qt/qt_services.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QPaintEvent>
#include <QProgressBar>
#include <QTimer>
#include <array>

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

/// A pipe that can be read.
struct Readable_Pipe {
  Readable_Pipe() {
    EXPECT_EQ(::pipe(ends.data()), 0);
    EXPECT_EQ(::write(ends[1], "x", 1), 1);
  }
  ~Readable_Pipe() {
    ::close(ends[0]);
    ::close(ends[1]);
  }
  Readable_Pipe(const Readable_Pipe&) = delete;
  Readable_Pipe& operator=(const Readable_Pipe&) = delete;
  std::array<int, 2> ends{-1, -1};
};

TEST(EventPump, Ends_Its_Sleep_When_The_Descriptor_Can_Be_Read) {
  const Qt_Services services;
  const Readable_Pipe pipe;
  // The far end of the hour would end the test's own time.
  Pump_Events(std::chrono::hours(1), pipe.ends[0]);
}

TEST(EventPump, Tells_A_Box_That_Is_Open_Inside_It_Of_The_Descriptor_No_More_Than_Once) {
  const Qt_Services services;
  QCoreApplication::processEvents();
  const Readable_Pipe pipe;
  int wakes = 0;
  const auto counted = QObject::connect(QAbstractEventDispatcher::instance(),
                                        &QAbstractEventDispatcher::awake, qApp, [&] { ++wakes; });
  bool box_was_open = false;
  QTimer::singleShot(0, [&] {
    QEventLoop box;
    QTimer::singleShot(200, &box, &QEventLoop::quit);
    box.exec();
    box_was_open = true;
  });
  while (!box_was_open) Pump_Events(std::chrono::hours(1), pipe.ends[0]);
  QObject::disconnect(counted);
  EXPECT_LT(wakes, 100);
}

TEST(ProgramWatcher, Asks_Only_When_The_Descriptor_Has_News) {
  const Qt_Services services;
  std::array<int, 2> ends{-1, -1};
  ASSERT_EQ(::pipe(ends.data()), 0);
  int asked = 0;
  Watch_Program(ends[0], [&asked] { return ++asked < 2; });
  bool over = false;
  QTimer::singleShot(3 * kWatchEvery, [&over] { over = true; });
  EXPECT_TRUE(testing::Wait_Until([&over] { return over; }));
  EXPECT_EQ(asked, 0);
  ASSERT_EQ(::write(ends[1], "x", 1), 1);
  EXPECT_TRUE(testing::Wait_Until([&asked] { return asked == 2; }));
  Pump_Events(std::chrono::milliseconds(0));
  Pump_Events(std::chrono::milliseconds(0));
  EXPECT_EQ(asked, 2);
  for (const int end : ends) ::close(end);
}

TEST(ProgramWatcher, Asks_By_The_Clock_Without_A_Descriptor) {
  const Qt_Services services;
  int asked = 0;
  Watch_Program(-1, [&asked] { return ++asked < 3; });
  EXPECT_TRUE(testing::Wait_Until([&asked] { return asked == 3; }));
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
