#pragma once

#include <array>

namespace barvon {

/// Topics of the help file by the window whose Help button opens them. Some screens share a topic;
/// its page then leads on to the other's.
namespace help_topic {

inline constexpr int kContents = 0;  // the contents, with the list of rules
inline constexpr int kMainWindow = 2450;
inline constexpr int kSite = 2460;
inline constexpr int kVelocity = 2470;
inline constexpr int kMaterialHopper = 2490;
inline constexpr int kOperation = 2500;
inline constexpr int kCoefficients = 2510;
inline constexpr int kDepthGrid = 2530;
inline constexpr int kEvaluation = 2540;
inline constexpr int kMaterialBarge = 2550;
inline constexpr int kDataBase = 2590;
inline constexpr int kDilution = 2590;
inline constexpr int kErrorList = 2650;
inline constexpr int kTextViewer = 2720;
inline constexpr int kRecovery = 2730;
inline constexpr int kSimulation = 3000;
inline constexpr int kWaterDensity = 3030;
inline constexpr int kWizardOptions = 2660;
inline constexpr int kWizardVessel = 800;
inline constexpr int kWizardTimes = 420;

}  // namespace help_topic

inline constexpr int kWizardPages = 8;

/// What the wizard shows at its steps, the first step's topic first. Behind those of its pages
/// are three that no page shows.
inline constexpr std::array<int, 11> kWizardTopics = {help_topic::kErrorList,
                                                      help_topic::kWizardOptions,
                                                      help_topic::kVelocity,
                                                      help_topic::kSite,
                                                      help_topic::kSite,
                                                      help_topic::kSimulation,
                                                      help_topic::kWizardVessel,
                                                      help_topic::kWizardTimes,
                                                      300,
                                                      440,
                                                      810};

}  // namespace barvon
