#include "core/record_fields.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

#include "core/number_text.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

template <class T>
struct Shape {
  using Element = T;
  static constexpr int kCount = 0;
  static constexpr int kAcross = 0;
};
template <class T, std::size_t N>
struct Shape<std::array<T, N>> {
  using Element = typename Shape<T>::Element;
  static constexpr int kCount = static_cast<int>(N) - 1;  // index 0 is unused
  static constexpr int kAcross = Shape<T>::kCount;
};

template <class Element>
constexpr Field_Type Type_Of() {
  if constexpr (std::is_same_v<Element, std::string>) return Field_Type::Text;
  if constexpr (std::is_same_v<Element, char>) return Field_Type::Character;
  if constexpr (std::is_floating_point_v<Element>) return Field_Type::Real;
  return Field_Type::Integer;
}

template <auto Member>
const auto& Element_Of(const ProjectRecord& record, [[maybe_unused]] int i,
                       [[maybe_unused]] int j) {
  const auto& field = record.*Member;
  using Field_Shape = Shape<std::remove_cvref_t<decltype(field)>>;
  if constexpr (Field_Shape::kAcross > 0) {
    return field[i][j];
  } else if constexpr (Field_Shape::kCount > 0) {
    return field[i];
  } else {
    return field;
  }
}

template <auto Member>
void Set_Element(ProjectRecord& record, int i, int j, double value) {
  using Element = typename Shape<
      std::remove_cvref_t<decltype(std::declval<const ProjectRecord&>().*Member)>>::Element;
  auto& element = const_cast<Element&>(Element_Of<Member>(record, i, j));
  if constexpr (std::is_same_v<Element, std::string>) {
    element = Plain_Number(value);
  } else {
    element = static_cast<Element>(value);
  }
}

template <auto Member>
void Set_Text_Element([[maybe_unused]] ProjectRecord& record, [[maybe_unused]] int i,
                      [[maybe_unused]] int j, [[maybe_unused]] const std::string& text) {
  using Element = typename Shape<
      std::remove_cvref_t<decltype(std::declval<const ProjectRecord&>().*Member)>>::Element;
  if constexpr (std::is_same_v<Element, std::string>) {
    const_cast<Element&>(Element_Of<Member>(record, i, j)) = text;
  } else if constexpr (std::is_same_v<Element, char>) {
    const std::string bytes = To_File_Bytes(text);
    const_cast<Element&>(Element_Of<Member>(record, i, j)) = bytes.empty() ? '\0' : bytes.front();
  }
}

double No_Number(const ProjectRecord&, int, int) { return 0; }
std::string No_Text(const ProjectRecord&, int, int) { return {}; }

template <auto Member>
constexpr Record_Field Field_Of(const char* name) {
  using Field_Shape =
      Shape<std::remove_cvref_t<decltype(std::declval<const ProjectRecord&>().*Member)>>;
  using Element = typename Field_Shape::Element;
  Record_Field field{
      name,       Type_Of<Element>(), Field_Shape::kCount,  Field_Shape::kAcross,
      &No_Number, &No_Text,           &Set_Element<Member>, &Set_Text_Element<Member>};
  if constexpr (std::is_same_v<Element, std::string>) {
    field.text = [](const ProjectRecord& r, int i, int j) { return Element_Of<Member>(r, i, j); };
  } else if constexpr (std::is_same_v<Element, char>) {
    field.text = [](const ProjectRecord& r, int i, int j) {
      return From_File_Bytes(std::string_view(&Element_Of<Member>(r, i, j), 1));
    };
  } else if constexpr (std::is_same_v<Element, float>) {
    field.number = [](const ProjectRecord& r, int i, int j) {
      return Widen(Element_Of<Member>(r, i, j));
    };
  } else {
    field.number = [](const ProjectRecord& r, int i, int j) {
      return static_cast<double>(Element_Of<Member>(r, i, j));
    };
  }
  return field;
}

constexpr std::array kFields = {
    Field_Of<&ProjectRecord::ProjectFileName>("ProjectFileName"),
    Field_Of<&ProjectRecord::BaseFileName>("BaseFileName"),
    Field_Of<&ProjectRecord::FileKind>("FileKind"),
    Field_Of<&ProjectRecord::DataSaved>("DataSaved"),
    Field_Of<&ProjectRecord::SavedUnderScreens>("SavedUnderScreens"),
    Field_Of<&ProjectRecord::ShowMode>("ShowMode"),
    Field_Of<&ProjectRecord::ProjectTitle>("ProjectTitle"),
    Field_Of<&ProjectRecord::FileTypeTag>("FileTypeTag"),
    Field_Of<&ProjectRecord::AnalysisType>("AnalysisType"),
    Field_Of<&ProjectRecord::OldGridFile>("OldGridFile"),
    Field_Of<&ProjectRecord::OldGridRetry>("OldGridRetry"),
    Field_Of<&ProjectRecord::ScreenDataSupplied>("ScreenDataSupplied"),
    Field_Of<&ProjectRecord::SectionFlags>("SectionFlags"),
    Field_Of<&ProjectRecord::SectionStatus>("SectionStatus"),
    Field_Of<&ProjectRecord::WizardHelpOn>("WizardHelpOn"),
    Field_Of<&ProjectRecord::AlwaysSaveBeforeRun>("AlwaysSaveBeforeRun"),
    Field_Of<&ProjectRecord::WizardAtStart>("WizardAtStart"),
    Field_Of<&ProjectRecord::WizardActive>("WizardActive"),
    Field_Of<&ProjectRecord::LegacyKeyRebuild>("LegacyKeyRebuild"),
    Field_Of<&ProjectRecord::WizardAccepted>("WizardAccepted"),
    Field_Of<&ProjectRecord::OutputsCopied>("OutputsCopied"),
    Field_Of<&ProjectRecord::HelpContextToShow>("HelpContextToShow"),
    Field_Of<&ProjectRecord::GridPointRadius>("GridPointRadius"),
    Field_Of<&ProjectRecord::DisposalMethod>("DisposalMethod"),
    Field_Of<&ProjectRecord::PreviousDisposalMethod>("PreviousDisposalMethod"),
    Field_Of<&ProjectRecord::KEY1>("KEY1"),
    Field_Of<&ProjectRecord::KEY2>("KEY2"),
    Field_Of<&ProjectRecord::KEY3>("KEY3"),
    Field_Of<&ProjectRecord::KEY4>("KEY4"),
    Field_Of<&ProjectRecord::MMAX0>("MMAX0"),
    Field_Of<&ProjectRecord::NMAX0>("NMAX0"),
    Field_Of<&ProjectRecord::DX0>("DX0"),
    Field_Of<&ProjectRecord::DZ0>("DZ0"),
    Field_Of<&ProjectRecord::DistX>("DistX"),
    Field_Of<&ProjectRecord::DistZ>("DistZ"),
    Field_Of<&ProjectRecord::DEPC0>("DEPC0"),
    Field_Of<&ProjectRecord::ConstantDepthFlag>("ConstantDepthFlag"),
    Field_Of<&ProjectRecord::DepthGrid>("DepthGrid"),
    Field_Of<&ProjectRecord::DEPTHI>("DEPTHI"),
    Field_Of<&ProjectRecord::RHDA0>("RHDA0"),
    Field_Of<&ProjectRecord::SLOPEX0>("SLOPEX0"),
    Field_Of<&ProjectRecord::SLOPEZ0>("SLOPEZ0"),
    Field_Of<&ProjectRecord::NROA0>("NROA0"),
    Field_Of<&ProjectRecord::DensityDepths>("DensityDepths"),
    Field_Of<&ProjectRecord::Densities>("Densities"),
    Field_Of<&ProjectRecord::DensitySalinities>("DensitySalinities"),
    Field_Of<&ProjectRecord::DensityTemperatures>("DensityTemperatures"),
    Field_Of<&ProjectRecord::DensityComputeFlag>("DensityComputeFlag"),
    Field_Of<&ProjectRecord::VelocityProfileType>("VelocityProfileType"),
    Field_Of<&ProjectRecord::VelXDepth1>("VelXDepth1"),
    Field_Of<&ProjectRecord::VelXDepth2>("VelXDepth2"),
    Field_Of<&ProjectRecord::VelX1>("VelX1"),
    Field_Of<&ProjectRecord::VelX2>("VelX2"),
    Field_Of<&ProjectRecord::VelZDepth1>("VelZDepth1"),
    Field_Of<&ProjectRecord::VelZDepth2>("VelZDepth2"),
    Field_Of<&ProjectRecord::VelZ1>("VelZ1"),
    Field_Of<&ProjectRecord::VelZ2>("VelZ2"),
    Field_Of<&ProjectRecord::VelocityFieldX>("VelocityFieldX"),
    Field_Of<&ProjectRecord::VelocityFieldZ>("VelocityFieldZ"),
    Field_Of<&ProjectRecord::ConstVelocityX>("ConstVelocityX"),
    Field_Of<&ProjectRecord::ConstVelocityZ>("ConstVelocityZ"),
    Field_Of<&ProjectRecord::AvgVelocityDepth>("AvgVelocityDepth"),
    Field_Of<&ProjectRecord::AvgVelocityX>("AvgVelocityX"),
    Field_Of<&ProjectRecord::AvgVelocityZ>("AvgVelocityZ"),
    Field_Of<&ProjectRecord::TidalStartTime>("TidalStartTime"),
    Field_Of<&ProjectRecord::TidalDepth>("TidalDepth"),
    Field_Of<&ProjectRecord::TidalAvgVelX>("TidalAvgVelX"),
    Field_Of<&ProjectRecord::TidalAvgVelZ>("TidalAvgVelZ"),
    Field_Of<&ProjectRecord::TidalVelX>("TidalVelX"),
    Field_Of<&ProjectRecord::TidalVelZ>("TidalVelZ"),
    Field_Of<&ProjectRecord::SimulationDuration>("SimulationDuration"),
    Field_Of<&ProjectRecord::LongTermTimeStep>("LongTermTimeStep"),
    Field_Of<&ProjectRecord::PrintConvectiveDescent>("PrintConvectiveDescent"),
    Field_Of<&ProjectRecord::PrintCollapse>("PrintCollapse"),
    Field_Of<&ProjectRecord::NumPrintTimes>("NumPrintTimes"),
    Field_Of<&ProjectRecord::PrintTimes>("PrintTimes"),
    Field_Of<&ProjectRecord::TracerConcentration>("TracerConcentration"),
    Field_Of<&ProjectRecord::BackgroundConcentration>("BackgroundConcentration"),
    Field_Of<&ProjectRecord::CriterionConcentration>("CriterionConcentration"),
    Field_Of<&ProjectRecord::SedimentConcentration>("SedimentConcentration"),
    Field_Of<&ProjectRecord::ToxicityDilution>("ToxicityDilution"),
    Field_Of<&ProjectRecord::FluidComputedConcentration>("FluidComputedConcentration"),
    Field_Of<&ProjectRecord::SiteTop>("SiteTop"),
    Field_Of<&ProjectRecord::SiteLeft>("SiteLeft"),
    Field_Of<&ProjectRecord::SiteBottom>("SiteBottom"),
    Field_Of<&ProjectRecord::SiteRight>("SiteRight"),
    Field_Of<&ProjectRecord::ZidFlag>("ZidFlag"),
    Field_Of<&ProjectRecord::ZidTop>("ZidTop"),
    Field_Of<&ProjectRecord::ZidLeft>("ZidLeft"),
    Field_Of<&ProjectRecord::ZidBottom>("ZidBottom"),
    Field_Of<&ProjectRecord::ZidRight>("ZidRight"),
    Field_Of<&ProjectRecord::ZCRIT>("ZCRIT"),
    Field_Of<&ProjectRecord::ZidToxicityDilution>("ZidToxicityDilution"),
    Field_Of<&ProjectRecord::NumOutputDepths>("NumOutputDepths"),
    Field_Of<&ProjectRecord::OutputDepths>("OutputDepths"),
    Field_Of<&ProjectRecord::NumSolids>("NumSolids"),
    Field_Of<&ProjectRecord::SolidNames>("SolidNames"),
    Record_Field{
        "TracerName", Field_Type::Text, 0, 0, &No_Number,
        [](const ProjectRecord& r, int, int) { return r.TracerName(); },
        [](ProjectRecord& r, int, int, double value) { r.TracerName() = Plain_Number(value); },
        [](ProjectRecord& r, int, int, const std::string& text) { r.TracerName() = text; }},
    Field_Of<&ProjectRecord::SolidSG>("SolidSG"),
    Field_Of<&ProjectRecord::SolidVolFraction>("SolidVolFraction"),
    Field_Of<&ProjectRecord::SolidFallVelocity>("SolidFallVelocity"),
    Field_Of<&ProjectRecord::SolidVoidRatio>("SolidVoidRatio"),
    Field_Of<&ProjectRecord::SolidCriticalShear>("SolidCriticalShear"),
    Field_Of<&ProjectRecord::SolidCohesive>("SolidCohesive"),
    Field_Of<&ProjectRecord::SolidStripped>("SolidStripped"),
    Field_Of<&ProjectRecord::SolidTracerFlag>("SolidTracerFlag"),
    Field_Of<&ProjectRecord::SolidCohesiveText>("SolidCohesiveText"),
    Field_Of<&ProjectRecord::SolidStrippedText>("SolidStrippedText"),
    Field_Of<&ProjectRecord::TotalVolume>("TotalVolume"),
    Field_Of<&ProjectRecord::MoistureContent>("MoistureContent"),
    Field_Of<&ProjectRecord::JBFCFlag>("JBFCFlag"),
    Field_Of<&ProjectRecord::SiteSalinity>("SiteSalinity"),
    Field_Of<&ProjectRecord::SiteTemperature>("SiteTemperature"),
    Field_Of<&ProjectRecord::SiteDensity>("SiteDensity"),
    Field_Of<&ProjectRecord::BulkDensity>("BulkDensity"),
    Field_Of<&ProjectRecord::MaterialVolumeOption>("MaterialVolumeOption"),
    Field_Of<&ProjectRecord::LAYERS>("LAYERS"),
    Field_Of<&ProjectRecord::SeparationFlag>("SeparationFlag"),
    Field_Of<&ProjectRecord::LayerVelX>("LayerVelX"),
    Field_Of<&ProjectRecord::LayerVelZ>("LayerVelZ"),
    Field_Of<&ProjectRecord::LayerVolume>("LayerVolume"),
    Field_Of<&ProjectRecord::LayerMoisture>("LayerMoisture"),
    Field_Of<&ProjectRecord::LayerSolidFraction>("LayerSolidFraction"),
    Field_Of<&ProjectRecord::XBARGE>("XBARGE"),
    Field_Of<&ProjectRecord::ZBARGE>("ZBARGE"),
    Field_Of<&ProjectRecord::BINL>("BINL"),
    Field_Of<&ProjectRecord::BINW>("BINW"),
    Field_Of<&ProjectRecord::DBINS>("DBINS"),
    Field_Of<&ProjectRecord::DREL1>("DREL1"),
    Field_Of<&ProjectRecord::DREL2>("DREL2"),
    Field_Of<&ProjectRecord::TDIS>("TDIS"),
    Field_Of<&ProjectRecord::NBINS>("NBINS"),
    Field_Of<&ProjectRecord::NOPENS>("NOPENS"),
    Field_Of<&ProjectRecord::BargeLength>("BargeLength"),
    Field_Of<&ProjectRecord::BargeWidth>("BargeWidth"),
    Field_Of<&ProjectRecord::BargeEmptyTime>("BargeEmptyTime"),
    Field_Of<&ProjectRecord::XHOLE>("XHOLE"),
    Field_Of<&ProjectRecord::ZHOLE>("ZHOLE"),
    Field_Of<&ProjectRecord::DHOLE>("DHOLE"),
    Field_Of<&ProjectRecord::VesselSpeed>("VesselSpeed"),
    Field_Of<&ProjectRecord::VesselCourse>("VesselCourse"),
    Field_Of<&ProjectRecord::DischargeDuration>("DischargeDuration"),
    Field_Of<&ProjectRecord::DischargeRate>("DischargeRate"),
    Field_Of<&ProjectRecord::PipeRadius>("PipeRadius"),
    Field_Of<&ProjectRecord::DischargeDepth>("DischargeDepth"),
    Field_Of<&ProjectRecord::DischargeAngle>("DischargeAngle"),
    Field_Of<&ProjectRecord::ContinuousTimeStart>("ContinuousTimeStart"),
    Field_Of<&ProjectRecord::BETA>("BETA"),
    Field_Of<&ProjectRecord::CM>("CM"),
    Field_Of<&ProjectRecord::CD>("CD"),
    Field_Of<&ProjectRecord::CDRAG>("CDRAG"),
    Field_Of<&ProjectRecord::CFRIC>("CFRIC"),
    Field_Of<&ProjectRecord::CD3>("CD3"),
    Field_Of<&ProjectRecord::CD4>("CD4"),
    Field_Of<&ProjectRecord::FRICTN>("FRICTN"),
    Field_Of<&ProjectRecord::ALAMDA>("ALAMDA"),
    Field_Of<&ProjectRecord::AKY0>("AKY0"),
    Field_Of<&ProjectRecord::GAMA>("GAMA"),
    Field_Of<&ProjectRecord::ALPHA1>("ALPHA1"),
    Field_Of<&ProjectRecord::ALPHA2>("ALPHA2"),
    Field_Of<&ProjectRecord::ALPHA0>("ALPHA0"),
    Field_Of<&ProjectRecord::ALPHAC>("ALPHAC"),
    Field_Of<&ProjectRecord::ALPHA3>("ALPHA3"),
    Field_Of<&ProjectRecord::ALPHA4>("ALPHA4"),
    Field_Of<&ProjectRecord::CSTRIP>("CSTRIP"),
    Field_Of<&ProjectRecord::PritchardFlag>("PritchardFlag"),
    Field_Of<&ProjectRecord::SelectedSiteCode>("SelectedSiteCode"),
    Field_Of<&ProjectRecord::SelectedMonth>("SelectedMonth"),
    Field_Of<&ProjectRecord::SelectedMaterialCode>("SelectedMaterialCode"),
    Field_Of<&ProjectRecord::SelectedVesselCode>("SelectedVesselCode"),
    Field_Of<&ProjectRecord::SiteFound>("SiteFound"),
    Field_Of<&ProjectRecord::MaterialFound>("MaterialFound"),
    Field_Of<&ProjectRecord::VesselFound>("VesselFound"),
    Field_Of<&ProjectRecord::ActiveDatabaseList>("ActiveDatabaseList"),
    Field_Of<&ProjectRecord::SpareReal21>("SpareReal21"),
    Field_Of<&ProjectRecord::SpareReal61>("SpareReal61"),
    Field_Of<&ProjectRecord::SpareReal68>("SpareReal68"),
    Field_Of<&ProjectRecord::DiluteParameterNames>("DiluteParameterNames"),
    Field_Of<&ProjectRecord::DiluteBulk>("DiluteBulk"),
    Field_Of<&ProjectRecord::DiluteElutriate>("DiluteElutriate"),
    Field_Of<&ProjectRecord::DiluteCriteria>("DiluteCriteria"),
    Field_Of<&ProjectRecord::DiluteBackground>("DiluteBackground"),
    Field_Of<&ProjectRecord::DiluteBulkWaterConc>("DiluteBulkWaterConc"),
    Field_Of<&ProjectRecord::DiluteBulkDilution>("DiluteBulkDilution"),
    Field_Of<&ProjectRecord::DiluteElutDilution>("DiluteElutDilution"),
    Field_Of<&ProjectRecord::DiluteBulkRemark>("DiluteBulkRemark"),
    Field_Of<&ProjectRecord::DiluteElutRemark>("DiluteElutRemark"),
    Field_Of<&ProjectRecord::DiluteSolidsConc>("DiluteSolidsConc"),
    Field_Of<&ProjectRecord::DiluteRowCount>("DiluteRowCount"),
    Field_Of<&ProjectRecord::SolidsVolumeSum>("SolidsVolumeSum"),
    Field_Of<&ProjectRecord::SolidsMassSum>("SolidsMassSum"),
    Field_Of<&ProjectRecord::SiteGridTop>("SiteGridTop"),
    Field_Of<&ProjectRecord::SiteGridBottom>("SiteGridBottom"),
    Field_Of<&ProjectRecord::SiteGridLeft>("SiteGridLeft"),
    Field_Of<&ProjectRecord::SiteGridRight>("SiteGridRight"),
    Field_Of<&ProjectRecord::ZidGridTop>("ZidGridTop"),
    Field_Of<&ProjectRecord::ZidGridBottom>("ZidGridBottom"),
    Field_Of<&ProjectRecord::ZidGridLeft>("ZidGridLeft"),
    Field_Of<&ProjectRecord::ZidGridRight>("ZidGridRight"),
    Field_Of<&ProjectRecord::CohesiveCount>("CohesiveCount"),
    Field_Of<&ProjectRecord::StrippedCount>("StrippedCount"),
    Field_Of<&ProjectRecord::TracerSolidCount>("TracerSolidCount"),
    Field_Of<&ProjectRecord::DepthGridFlagOut>("DepthGridFlagOut"),
    Field_Of<&ProjectRecord::IntSlots>("IntSlots"),
    Field_Of<&ProjectRecord::RealSlots>("RealSlots"),
};

}  // namespace

std::span<const Record_Field> Record_Fields() { return kFields; }

}  // namespace barvon
