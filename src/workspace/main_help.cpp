#include "workspace/main_help.h"

#include <utility>

#include "core/desk/help_topics.h"
#include "core/keys.h"

namespace barvon {
namespace {

constexpr char kTopic[] = "HelpContextID";

template <class T>
void Set_Topic(const ControlArray<T>& controls, int topic) {
  for (T* control : controls) control->setProperty(kTopic, topic);
}

}  // namespace

void Set_Help_Topics(Main_Controls& c) {
  Set_Topic(c.SSOption1, help_topic::kMainWindow);
  Set_Topic(c.SSOption2, help_topic::kMainWindow);
  Set_Topic(c.SSOption3, help_topic::kMainWindow);
  Set_Topic(c.SSOption4, help_topic::kEvaluation);
  Set_Topic(c.SSCheck2, help_topic::kSimulation);
  Set_Topic(c.Option3D1, help_topic::kVelocity);
  const std::pair<QWidget*, int> topics[] = {
      {c.SSCheck1, help_topic::kDataBase},           {c.SSRibbon2(3), help_topic::kDilution},
      {c.SSPanel5(0), help_topic::kCoefficients},    {c.SSPanel5(1), help_topic::kEvaluation},
      {c.SSPanel5(2), help_topic::kSimulation},      {c.Check3D1, help_topic::kVelocity},
      {c.SSCheck4, help_topic::kMaterialHopper},     {c.SSCheck3, help_topic::kOperation},
      {c.SSRibbon1(0), help_topic::kSite},           {c.SSRibbon1(1), help_topic::kVelocity},
      {c.SSRibbon1(2), help_topic::kMaterialHopper}, {c.SSRibbon1(3), help_topic::kOperation},
      {c.SSRibbon1(4), help_topic::kDataBase},       {c.SSRibbon1(5), help_topic::kWaterDensity},
  };
  for (const auto& [control, topic] : topics) control->setProperty(kTopic, topic);
}

int Active_Topic(const Main_Controls& controls, const ProjectRecord& record) {
  const QWidget* active = controls.window->focusWidget();
  const int topic = active ? active->property(kTopic).toInt() : help_topic::kContents;
  // Each vessel has a material screen of its own.
  const bool of_barge = topic == help_topic::kMaterialHopper && record.DisposalMethod == kBarge;
  return of_barge ? help_topic::kMaterialBarge : topic;
}

}  // namespace barvon
