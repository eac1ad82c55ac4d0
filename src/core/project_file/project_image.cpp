#include "core/project_file/project_image.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <tuple>
#include <type_traits>
#include <utility>

#include "core/number_text.h"
#include "core/project_file/value_slots.h"

namespace barvon {
namespace {

using Part = Image_Number::Part;

/// The numbers of one part: one, a row of them by one subscript, or rows with columns by two.
struct Run {
  Part part;
  std::array<const char*, 2> names;  // the second where the second column has a name of its own
  int rows;                          // 0 for a single number
  int columns;                       // 0 for a run with one subscript
  bool narrow;                       // 32-bit in the record
  double& (*number)(Project_Image&, int, int);
};

template <auto Member>
double& Number_Of(Project_Image& image, [[maybe_unused]] int first, [[maybe_unused]] int second) {
  auto& field = image.*Member;
  using Field = std::remove_cvref_t<decltype(field)>;
  if constexpr (std::is_same_v<Field, double>) {
    return field;
  } else if constexpr (std::is_same_v<typename Field::value_type, double>) {
    return field.at(first);
  } else {
    return field.at(first).at(second);
  }
}

template <class Array>
constexpr int kLast = static_cast<int>(std::tuple_size_v<Array>) - 1;  // index 0 is unused
template <>
constexpr int kLast<double> = 0;

enum Width { kWide, kNarrow };

template <auto Member>
constexpr Run Run_Of(Part part, const char* name, Width width, const char* second_name = nullptr) {
  using Field = std::remove_cvref_t<decltype(std::declval<Project_Image&>().*Member)>;
  Run run{part, {name, second_name}, kLast<Field>, 0, width == kNarrow, &Number_Of<Member>};
  if constexpr (!std::is_same_v<Field, double>) run.columns = kLast<typename Field::value_type>;
  return run;
}

/// The numbers of a full file, in its order. What the member holds says how many they are.
constexpr auto kRuns = std::to_array<Run>({
    Run_Of<&Project_Image::IntSlots>(Part::IntSlots, "IntSlots", kWide),
    Run_Of<&Project_Image::RealSlots>(Part::RealSlots, "RealSlots", kWide),
    Run_Of<&Project_Image::SectionFlags>(Part::Flags, "SectionFlags", kWide),
    Run_Of<&Project_Image::VelocityFieldX>(Part::FieldX, "VelocityFieldX", kWide),
    Run_Of<&Project_Image::VelocityFieldZ>(Part::FieldZ, "VelocityFieldZ", kWide),
    Run_Of<&Project_Image::TidalStartTime>(Part::TidalStart, "TidalStartTime", kNarrow),
    Run_Of<&Project_Image::TidalDepth>(Part::TidalDepth, "TidalDepth", kNarrow),
    Run_Of<&Project_Image::TidalAvgVelX>(Part::TidalAverageX, "TidalAvgVelX", kNarrow),
    Run_Of<&Project_Image::TidalAvgVelZ>(Part::TidalAverageZ, "TidalAvgVelZ", kNarrow),
    Run_Of<&Project_Image::TidalTable>(Part::Tide, "TidalVelX", kNarrow, "TidalVelZ"),
    Run_Of<&Project_Image::KEY4>(Part::Key4, "KEY4", kWide),
});

constexpr std::size_t Place_Of(Part part) { return static_cast<std::size_t>(part); }

constexpr bool Follow_The_Parts() {
  for (std::size_t i = 0; i < kRuns.size(); ++i) {
    if (Place_Of(kRuns[i].part) != i) return false;
  }
  return kRuns.size() == Place_Of(Part::Key4) + 1;
}
static_assert(Follow_The_Parts(), "a run for every part, in the order of the parts");

/// Where each run starts in the file's order of numbers, and behind the last one their count.
constexpr auto kStarts = [] {
  std::array<std::size_t, kRuns.size() + 1> starts{};
  for (std::size_t i = 0; i < kRuns.size(); ++i) {
    starts[i + 1] = starts[i] + std::max(kRuns[i].rows, 1) * std::max(kRuns[i].columns, 1);
  }
  return starts;
}();

constexpr std::size_t kTailStart = kStarts[Place_Of(Part::TidalStart)];

const Run& Run_Of_Number(const Image_Number& number) { return kRuns[Place_Of(number.part)]; }

std::vector<Image_Number> All_Numbers() {
  std::vector<Image_Number> numbers;
  numbers.reserve(kStarts.back());
  for (const Run& run : kRuns) {
    for (int i = run.rows == 0 ? 0 : 1; i <= run.rows; ++i) {
      for (int j = run.columns == 0 ? 0 : 1; j <= run.columns; ++j) {
        numbers.push_back({run.part, i, j});
      }
    }
  }
  return numbers;
}

/// One row where the numbers have one subscript or none, otherwise one for every first subscript.
std::vector<Number_Row> All_Rows() {
  std::vector<Number_Row> rows;
  for (const Run& run : kRuns) {
    if (run.rows == 0) {
      rows.push_back({{run.part, 0, 0}, 1});
    } else if (run.columns == 0) {
      rows.push_back({{run.part, 1, 0}, static_cast<std::size_t>(run.rows)});
    } else {
      for (int i = 1; i <= run.rows; ++i) {
        rows.push_back({{run.part, i, 1}, static_cast<std::size_t>(run.columns)});
      }
    }
  }
  return rows;
}

/// A subscript at the start of the text, which loses it with the letter behind it; 0 when there is
/// none that counts.
int Take_Subscript(std::string_view& text) {
  int subscript = 0;
  const char* const end = text.data() + text.size();
  const char* const behind = std::from_chars(text.data(), end, subscript).ptr;
  text.remove_prefix(std::min(static_cast<std::size_t>(behind - text.data()) + 1, text.size()));
  return subscript;
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
  const Run& run = Run_Of_Number(number);
  const bool named_columns = run.names[1] != nullptr;
  std::string name = run.names[named_columns ? number.second - 1 : 0];
  if (run.rows == 0) return name;
  name += "(" + std::to_string(number.first);
  if (run.columns != 0 && !named_columns) name += "," + std::to_string(number.second);
  return name + ")";
}

std::optional<Image_Number> Number_Named(std::string_view name) {
  const std::size_t bracket = std::min(name.find('('), name.size());
  for (const Run& run : kRuns) {
    const bool second = run.names[1] != nullptr && name.substr(0, bracket) == run.names[1];
    if (!second && name.substr(0, bracket) != run.names[0]) continue;
    std::string_view subscripts = name.substr(std::min(bracket + 1, name.size()));
    Image_Number number{run.part, 0, 0};
    if (run.rows != 0) number.first = Take_Subscript(subscripts);
    if (run.columns != 0) number.second = Take_Subscript(subscripts);
    if (run.names[1] != nullptr) number.second = second ? 2 : 1;
    const auto fits = [](int subscript, int last) {
      return subscript >= std::min(last, 1) && subscript <= last;
    };
    // Only the one spelling counts: "RealSlots(07)" and "KEY4(1)" name nothing.
    if (fits(number.first, run.rows) && fits(number.second, run.columns) &&
        Name_Of_Number(number) == name) {
      return number;
    }
    return std::nullopt;
  }
  return std::nullopt;
}

const std::vector<Number_Row>& Image_Rows() {
  static const std::vector<Number_Row> rows = All_Rows();
  return rows;
}

std::span<const double> Row_In(const Project_Image& image, const Number_Row& row) {
  // A run only finds its number; nothing is written here.
  const double& first = Number_In(const_cast<Project_Image&>(image), row.first);
  return {&first, row.count};
}

double& Number_In(Project_Image& image, const Image_Number& number) {
  return Run_Of_Number(number).number(image, number.first, number.second);
}

double Number_In(const Project_Image& image, const Image_Number& number) {
  // A run only finds its number; nothing is written here.
  return Number_In(const_cast<Project_Image&>(image), number);
}

std::size_t Index_Of(const Image_Number& number) {
  const int row = std::max(number.first - 1, 0), column = std::max(number.second - 1, 0);
  const int columns = std::max(Run_Of_Number(number).columns, 1);
  return kStarts[Place_Of(number.part)] + row * columns + column;
}

bool Front_Is_Given(const Given_Marks& given) {
  const auto tail = given.begin() + kTailStart;
  return std::find(given.begin(), tail, 0) == tail;
}

bool Tail_Is_Given(const Given_Marks& given) {
  return std::find(given.begin() + kTailStart, given.end(), 0) == given.end();
}

bool Is_Narrow(const Image_Number& number) { return Run_Of_Number(number).narrow; }

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
  image.TidalStartTime = record.TidalStartTime;
  image.TidalDepth = record.TidalDepth;
  image.TidalAvgVelX = record.TidalAvgVelX;
  image.TidalAvgVelZ = record.TidalAvgVelZ;
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
    for (std::size_t i = 1; i < image.SectionFlags.size(); ++i) {
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
  tail.Set(record.TidalStartTime, {Part::TidalStart});
  tail.Set(record.TidalDepth, {Part::TidalDepth});
  tail.Set(record.TidalAvgVelX, {Part::TidalAverageX});
  tail.Set(record.TidalAvgVelZ, {Part::TidalAverageZ});
  for (int i = 1; i <= kTidalRows; ++i) {
    tail.Set(record.TidalVelX[i], {Part::Tide, i, 1});
    tail.Set(record.TidalVelZ[i], {Part::Tide, i, 2});
  }
  try {
    tail.Set(record.KEY4, {Part::Key4});
  } catch (const Run_Time_Failure&) {
    // Like every failure behind the velocity fields, this leaves the field as it was.
  }
  return Failure::None;
}

}  // namespace barvon
