#include "platform/qt/end_signals.h"

#include <gtest/gtest.h>

#include <csignal>

#include "support/screen_support.h"

namespace barvon {
namespace {

using Handler = void (*)(int);

Handler Handler_Of(int signal) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  return action.sa_handler;
}

TEST(EndSignals, Each_Signal_Calls_For_The_End_From_The_Event_Loop) {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    int ends = 0;
    const End_Signals end_signals([&ends] { ++ends; });
    raise(signal);
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(testing::Wait_Until([&ends] { return ends == 1; })) << signal;
  }
}

TEST(EndSignals, What_Was_There_Before_Is_Put_Back) {
  const Handler former = Handler_Of(SIGTERM);
  {
    const End_Signals end_signals([] {});
    EXPECT_NE(Handler_Of(SIGTERM), former);
  }
  EXPECT_EQ(Handler_Of(SIGTERM), former);
}

TEST(EndSignals, A_Signal_That_Is_Switched_Off_Stays_Off) {
  const Handler former = std::signal(SIGHUP, SIG_IGN);
  {
    const End_Signals end_signals([] {});
    EXPECT_EQ(Handler_Of(SIGHUP), SIG_IGN);
  }
  std::signal(SIGHUP, former);
}

}  // namespace
}  // namespace barvon
