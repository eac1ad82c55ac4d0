#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <cmath>
#include <functional>

#include "graphs/frm_graphs.h"
#include "graphs/frm_place.h"
#include "graphs/graph_menus.h"
#include "results/small_outputs.h"
#include "support/screen_support.h"
#include "support/window_walk.h"

namespace barvon::testing {
namespace {

using Look = std::function<void(QWidget& window, const std::string& state)>;

constexpr QSize kSmallDisplay{1024, 720};  // less what a desktop takes for itself

/// Letters of another size for a while.
class Letters_Of {
 public:
  explicit Letters_Of(double times) : former_(QApplication::font()) {
    QFont font = former_;
    font.setPointSizeF(former_.pointSizeF() * times);
    QApplication::setFont(font);
  }
  ~Letters_Of() { QApplication::setFont(former_); }
  Letters_Of(const Letters_Of&) = delete;
  Letters_Of& operator=(const Letters_Of&) = delete;

 private:
  QFont former_;
};

/// The graphics program's windows in every state that looks its own.
class GraphWindows : public ::testing::TestWithParam<double> {
 protected:
  GraphWindows() {
    for (const char* name : {"bay", "cove"}) {
      const std::string base = folder / name;
      Write_Text(base + ".dut", kSmallSeries);
      Write_Text(base + ".duc", kSmallMaps);
    }
    Write_Text(folder / "bare.duo", "a listing of another solver\r\n");
  }

  void Walk(const Look& look) {
    const Letters_Of letters(GetParam());
    const Qt_Services services;
    frmGraphs window;
    Build_Graph_Menus(window);
    window.resize(kSmallDisplay);
    window.show();
    const auto settled = [&](QWidget& shown, const std::string& state) {
      if (!QTest::qWaitForWindowExposed(&shown)) ADD_FAILURE() << state << " stays hidden";
      QCoreApplication::processEvents();
      look(shown, state);
    };
    settled(window, "empty");
    window.Show_Results_Of(folder / "bare.DUI", kOverview);
    settled(window, "another solver's");
    window.notice().Show_Listing();
    window.notice().Open_Find();
    settled(window, "with the listing");
    window.Show_Results_Of(folder / "bay.DUI", kOverview);
    Look_At_Views(window, settled, "");
    window.Compare_With(folder / "cove.DUI");
    Look_At_Views(window, settled, ", compared");
    frmPlace place(&window, window.shown().own->grid, std::nullopt);
    place.Open(false);
    settled(place, "place");
  }

  static void Look_At_Views(frmGraphs& window, const Look& look, const std::string& how) {
    for (int view = 0; view < kGraphViews; ++view) {
      window.Show_View(view);
      look(window, kGraphNames[static_cast<std::size_t>(view)] + how);
    }
  }

  /// Holds every window to one kind of look.
  void Expect_No(const std::function<Complaints(QWidget&)>& complain) {
    Walk([&](QWidget& window, const std::string& state) {
      // The toolkit fits a box of choices to them a moment after they have come.
      Wait_Until([&] { return complain(window).empty(); });
      const Complaints complaints = complain(window);
      EXPECT_TRUE(complaints.empty()) << state << ": " << Listed(complaints);
    });
  }

  Scratch_Folder folder;
};

TEST_P(GraphWindows, No_Text_Is_Cut_Off_And_Nothing_Lies_On_Another) { Expect_No(Cut_Off_Texts); }

INSTANTIATE_TEST_SUITE_P(Letters, GraphWindows, ::testing::Values(1.0, 1.5, 2.0),
                         [](const auto& size) {
                           return std::to_string(std::lround(size.param * 100)) + "_Percent";
                         });

using GraphWindowsAsTheyOpen = GraphWindows;

TEST_P(GraphWindowsAsTheyOpen, No_Letter_Or_Key_Has_Two_Meanings) { Expect_No(Clashing_Keys); }

TEST_P(GraphWindowsAsTheyOpen, Tab_Reaches_Every_Control) { Expect_No(Unreached_Controls); }

TEST_P(GraphWindowsAsTheyOpen, Every_Control_Has_A_Name_To_Be_Read_Out) {
  Expect_No(Unnamed_Controls);
}

TEST_P(GraphWindowsAsTheyOpen, Every_Control_Is_Told_As_It_Is_Seen) { Expect_No(Misread_Controls); }

INSTANTIATE_TEST_SUITE_P(Letters, GraphWindowsAsTheyOpen, ::testing::Values(1.0),
                         [](const auto&) { return "Usual"; });

}  // namespace
}  // namespace barvon::testing
