#include "core/project_file/project_image.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/project_file/value_slots.h"

namespace barvon {
namespace {

using Part = Image_Number::Part;

constexpr std::size_t kFlags = 18;
constexpr std::size_t kGridNumbers = std::size_t{kMaxGridPoints} * kMaxGridPoints;
constexpr std::size_t kTidalHeaderNumbers = 4;

// Where each part starts in the file's order of numbers.
constexpr std::size_t kIntStart = 0;
constexpr std::size_t kRealStart = kIntStart + kIntSlots;
constexpr std::size_t kFlagStart = kRealStart + kFullFileRealSlots;
constexpr std::size_t kFieldXStart = kFlagStart + kFlags;
constexpr std::size_t kFieldZStart = kFieldXStart + kGridNumbers;
constexpr std::size_t kTidalHeaderStart = kFieldZStart + kGridNumbers;
constexpr std::size_t kTidalStart = kTidalHeaderStart + kTidalHeaderNumbers;
constexpr std::size_t kKey4Start = kTidalStart + 2 * std::size_t{kTidalRows};

const OneBased<const char*, 4> kTidalHeaderNames = {"", "TidalStartTime", "TidalDepth",
                                                    "TidalAvgVelX", "TidalAvgVelZ"};

std::vector<Image_Number> All_Numbers() {
  std::vector<Image_Number> numbers;
  for (int i = 1; i <= kIntSlots; ++i) numbers.push_back({Part::IntSlots, i, 0});
  for (int i = 1; i <= kFullFileRealSlots; ++i) numbers.push_back({Part::RealSlots, i, 0});
  for (int i = 1; i <= static_cast<int>(kFlags); ++i) numbers.push_back({Part::Flags, i, 0});
  for (const Part field : {Part::FieldX, Part::FieldZ}) {
    for (int a = 1; a <= kMaxGridPoints; ++a) {
      for (int b = 1; b <= kMaxGridPoints; ++b) numbers.push_back({field, a, b});
    }
  }
  for (int i = 1; i <= static_cast<int>(kTidalHeaderNumbers); ++i) {
    numbers.push_back({Part::TidalHeader, i, 0});
  }
  for (int i = 1; i <= kTidalRows; ++i) {
    numbers.push_back({Part::TidalX, i, 0});
    numbers.push_back({Part::TidalZ, i, 0});
  }
  numbers.push_back({Part::Key4, 0, 0});
  return numbers;
}

template <class Image>
auto& Find_Number(Image& image, const Image_Number& number) {
  const auto first = static_cast<std::size_t>(number.first);
  const auto second = static_cast<std::size_t>(number.second);
  switch (number.part) {
    case Part::IntSlots:
      return image.IntSlots.at(first);
    case Part::RealSlots:
      return image.RealSlots.at(first);
    case Part::Flags:
      return image.SectionFlags.at(first);
    case Part::FieldX:
      return image.VelocityFieldX.at(first).at(second);
    case Part::FieldZ:
      return image.VelocityFieldZ.at(first).at(second);
    case Part::TidalHeader:
      return image.TidalHeader.at(first);
    case Part::TidalX:
      return image.TidalTable.at(first)[1];
    case Part::TidalZ:
      return image.TidalTable.at(first)[2];
    case Part::Key4:
      break;
  }
  return image.KEY4;
}

/// Sets a field that keeps what it had when the file gave nothing for it.
class Tail_Values {
 public:
  Tail_Values(const Project_Image& image, const Given_Marks& given)
      : image_(image), given_(given) {}

  void Set(float& field, const Image_Number& number) const {
    if (given_[Index_Of(number)]) field = static_cast<float>(Number_In(image_, number));
  }
  void Set(std::int16_t& field, const Image_Number& number) const {
    if (given_[Index_Of(number)]) field = To_Int16(Number_In(image_, number));
  }

 private:
  const Project_Image& image_;
  const Given_Marks& given_;
};

}  // namespace

const std::vector<Image_Number>& Image_Numbers() {
  static const std::vector<Image_Number> numbers = All_Numbers();
  return numbers;
}

std::string Name_Of_Number(const Image_Number& number) {
  const std::string subscript = "(" + std::to_string(number.first) + ")";
  const std::string subscripts =
      "(" + std::to_string(number.first) + "," + std::to_string(number.second) + ")";
  switch (number.part) {
    case Part::IntSlots:
      return "IntSlots" + subscript;
    case Part::RealSlots:
      return "RealSlots" + subscript;
    case Part::Flags:
      return "SectionFlags" + subscript;
    case Part::FieldX:
      return "VelocityFieldX" + subscripts;
    case Part::FieldZ:
      return "VelocityFieldZ" + subscripts;
    case Part::TidalHeader:
      return kTidalHeaderNames.at(static_cast<std::size_t>(number.first));
    case Part::TidalX:
      return "TidalVelX" + subscript;
    case Part::TidalZ:
      return "TidalVelZ" + subscript;
    case Part::Key4:
      break;
  }
  return "KEY4";
}

double& Number_In(Project_Image& image, const Image_Number& number) {
  return Find_Number(image, number);
}

double Number_In(const Project_Image& image, const Image_Number& number) {
  return Find_Number(image, number);
}

std::size_t Index_Of(const Image_Number& number) {
  const auto first = static_cast<std::size_t>(number.first);
  const auto second = static_cast<std::size_t>(number.second);
  switch (number.part) {
    case Part::IntSlots:
      return kIntStart + first - 1;
    case Part::RealSlots:
      return kRealStart + first - 1;
    case Part::Flags:
      return kFlagStart + first - 1;
    case Part::FieldX:
      return kFieldXStart + (first - 1) * kMaxGridPoints + second - 1;
    case Part::FieldZ:
      return kFieldZStart + (first - 1) * kMaxGridPoints + second - 1;
    case Part::TidalHeader:
      return kTidalHeaderStart + first - 1;
    case Part::TidalX:
      return kTidalStart + 2 * (first - 1);
    case Part::TidalZ:
      return kTidalStart + 2 * (first - 1) + 1;
    case Part::Key4:
      break;
  }
  return kKey4Start;
}

bool Front_Is_Given(const Given_Marks& given) {
  return std::find(given.begin(), given.begin() + kTidalHeaderStart, false) ==
         given.begin() + kTidalHeaderStart;
}

bool Tail_Is_Given(const Given_Marks& given) {
  return std::find(given.begin() + kTidalHeaderStart, given.end(), false) == given.end();
}

bool Is_Narrow(const Image_Number& number) {
  return number.part == Part::TidalHeader || number.part == Part::TidalX ||
         number.part == Part::TidalZ;
}

Project_Image Image_Of(const ProjectRecord& record) {
  Project_Image image;
  image.FileTypeTag = record.FileTypeTag;
  image.DisposalMethod = record.DisposalMethod;
  image.ProjectTitle = record.ProjectTitle;
  image.IntSlots = record.IntSlots;
  std::copy_n(record.RealSlots.begin(), image.RealSlots.size(), image.RealSlots.begin());
  image.SolidNames = record.SolidNames;
  image.SectionStatus = record.SectionStatus;
  std::copy(record.SectionFlags.begin(), record.SectionFlags.end(), image.SectionFlags.begin());
  image.VelocityFieldX = record.VelocityFieldX;
  image.VelocityFieldZ = record.VelocityFieldZ;
  image.TidalHeader = {0, record.TidalStartTime, record.TidalDepth, record.TidalAvgVelX,
                       record.TidalAvgVelZ};
  for (std::size_t i = 1; i <= kTidalRows; ++i) {
    image.TidalTable[i] = {0, record.TidalVelX[i], record.TidalVelZ[i]};
  }
  image.KEY4 = record.KEY4;
  return image;
}

Failure Store_Image(const Project_Image& image, const Given_Marks& given, ProjectRecord& record) {
  const int n = record.OldGridFile == 1 ? kShortLayoutPoints : kMaxGridPoints;
  try {
    record.FileTypeTag = image.FileTypeTag;
    record.DisposalMethod = To_Int16(image.DisposalMethod);
    record.ProjectTitle = image.ProjectTitle;
    record.IntSlots = image.IntSlots;
    // The short layout fills only a corner of the grids; nothing of an earlier project stays
    // beside it.
    record.DepthGrid = {};
    // The file holds neither the one depth of the grid nor the water behind computed densities:
    // those of an earlier project would replace the depths and densities that were read.
    record.DEPTHI = 0;
    record.DensityComputeFlag = 0;
    record.DensitySalinities = {};
    record.DensityTemperatures = {};
    record.VelocityFieldX = {};
    record.VelocityFieldZ = {};
    // A constant of the project before must not stand in for the fields that are read now.
    record.ConstVelocityX = record.ConstVelocityZ = 0;
    std::copy(image.RealSlots.begin(), image.RealSlots.end(), record.RealSlots.begin());
    if (const Failure failure = Unpack_Slots(record); failure != Failure::None) return failure;
    record.SolidNames = image.SolidNames;
    record.SectionStatus = image.SectionStatus;
    for (std::size_t i = 1; i <= kFlags; ++i) {
      record.SectionFlags[i] = To_Int16(image.SectionFlags[i]);
    }
    for (int a = 1; a <= n; ++a) {
      std::copy_n(image.VelocityFieldX[a].begin() + 1, n, record.VelocityFieldX[a].begin() + 1);
      std::copy_n(image.VelocityFieldZ[a].begin() + 1, n, record.VelocityFieldZ[a].begin() + 1);
    }
  } catch (const Run_Time_Failure& stopped) {
    return stopped.failure;
  }
  const Tail_Values tail(image, given);
  tail.Set(record.TidalStartTime, {Part::TidalHeader, 1, 0});
  tail.Set(record.TidalDepth, {Part::TidalHeader, 2, 0});
  tail.Set(record.TidalAvgVelX, {Part::TidalHeader, 3, 0});
  tail.Set(record.TidalAvgVelZ, {Part::TidalHeader, 4, 0});
  for (int i = 1; i <= kTidalRows; ++i) {
    tail.Set(record.TidalVelX[i], {Part::TidalX, i, 0});
    tail.Set(record.TidalVelZ[i], {Part::TidalZ, i, 0});
  }
  try {
    tail.Set(record.KEY4, {Part::Key4, 0, 0});
  } catch (const Run_Time_Failure&) {
    // Like every failure behind the velocity fields, this leaves the field as it was.
  }
  return Failure::None;
}

}  // namespace barvon
