#include "workspace/main_help.h"

#include "core/desk/help_topics.h"
#include "core/desk/screen_table.h"
#include "core/keys.h"

namespace barvon {
namespace {

constexpr char kTopic[] = "HelpContextID";

}  // namespace

void Set_Help_Topics(Main_Controls& c) {
  const auto set_topic = [](QWidget* control, const Screen_Row& screen) {
    control->setProperty(kTopic, screen.topic);
  };
  const auto set_topics = [&set_topic](const auto& controls, const Screen_Row& screen) {
    for (QWidget* control : controls) set_topic(control, screen);
  };
  set_topics(c.SSOption1, Row_Of_Screen("Main"));
  set_topics(c.SSOption2, Row_Of_Screen("Main"));
  set_topics(c.SSOption3, Row_Of_Screen("Main"));
  set_topics(c.SSOption4, Row_Of_Screen("frmMdlkyn"));
  set_topics(c.SSCheck2, Row_Of_Screen("frmSimulation"));
  set_topics(c.Option3D1, Row_Of_Screen("frmVelocity"));
  set_topics(c.SSRibbon2, Row_Of_Screen("frmDilute2"));
  set_topic(c.Check3D1, Row_Of_Screen("frmVelocity"));
  set_topic(c.SSCheck1, Row_Of_Screen("DataBase"));
  set_topic(c.SSCheck3, Row_Of_Screen("frmOperation"));
  set_topic(c.SSCheck4, Row_Of_Screen("frmMatHopper"));
  for (int i = 0; i < kRibbons; ++i) set_topic(c.SSRibbon1(i), *kRibbonScreens[i]);
  for (int i = 0; i < kOptionButtons; ++i) set_topic(c.SSPanel5(i), *kOptionScreens[i]);
}

int Active_Topic(const Main_Controls& controls, const ProjectRecord& record) {
  const QWidget* active = controls.window->focusWidget();
  const int topic = active ? active->property(kTopic).toInt() : help_topic::kContents;
  // Each vessel has a material screen of its own.
  const bool of_barge =
      topic == Row_Of_Screen("frmMatHopper").topic && record.DisposalMethod == kBarge;
  return of_barge ? Row_Of_Screen("frmMatBarge").topic : topic;
}

}  // namespace barvon
