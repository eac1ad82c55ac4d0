#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/failure.h"
#include "core/project_record.h"

namespace barvon {

/// Everything that a project file stores, as numbers and texts: the step between the record and
/// the file's lines. Texts are UTF-8.
struct Project_Image {
  std::string FileTypeTag;
  double DisposalMethod = 0;  // of the first line; slot 11 holds it too and counts
  std::string ProjectTitle;
  OneBased<double, kIntSlots> IntSlots{};
  OneBased<double, kFullFileRealSlots> RealSlots{};
  OneBased<std::string, kSolidEntries> SolidNames{};
  OneBased<char, 6> SectionStatus{};
  OneBased<double, 18> SectionFlags{};
  Grid VelocityFieldX{};
  Grid VelocityFieldZ{};
  double TidalStartTime = 0, TidalDepth = 0, TidalAvgVelX = 0, TidalAvgVelZ = 0;  // 32-bit values
  OneBased<OneBased<double, 2>, kTidalRows> TidalTable{};  // X and Z; 32-bit values
  double KEY4 = 0;
};

/// One number of the image and the name that the exact values know it by.
struct Image_Number {
  // The file's order: what the tide has comes row by row, Z behind X.
  enum class Part {
    IntSlots,
    RealSlots,
    Flags,
    FieldX,
    FieldZ,
    TidalStart,
    TidalDepth,
    TidalAverageX,
    TidalAverageZ,
    Tide,
    Key4
  };
  Part part = Part::IntSlots;
  int first = 0;   // subscript, 0 when there is none
  int second = 0;  // second subscript of a grid; 1 X and 2 Z of the tide; otherwise 0
};

/// Every number of a full file, in its order, with its name: "RealSlots(88)",
/// "VelocityFieldX(3,7)", "TidalDepth".
const std::vector<Image_Number>& Image_Numbers();
std::string Name_Of_Number(const Image_Number& number);
/// The number of that name, nothing when the name is not one that Name_Of_Number gives.
std::optional<Image_Number> Number_Named(std::string_view name);
double& Number_In(Project_Image& image, const Image_Number& number);
double Number_In(const Project_Image& image, const Image_Number& number);
/// The number's place in Image_Numbers, and so in the marks of what the columns gave.
std::size_t Index_Of(const Image_Number& number);
/// 32-bit in the record: its text is the shortest that gives those 32 bits back.
bool Is_Narrow(const Image_Number& number);

/// Numbers that follow each other in the image as they do in Image_Numbers: the first of them and
/// how many they are. Together all rows are all numbers.
struct Number_Row {
  Image_Number first;
  std::size_t count = 1;
};
const std::vector<Number_Row>& Image_Rows();
std::span<const double> Row_In(const Project_Image& image, const Number_Row& row);

/// What the columns gave: a mark for every entry of Image_Numbers, 0 where nothing was read.
using Given_Marks = std::vector<char>;
/// Whether every number up to the velocity fields was given, and every one behind them.
bool Front_Is_Given(const Given_Marks& given);
bool Tail_Is_Given(const Given_Marks& given);

/// The image of a record whose slots are packed.
Project_Image Image_Of(const ProjectRecord& record);

/// Puts the image into the record: slots, fields, names, velocity fields. A tail value that was
/// not given leaves its field as it was. OldGridFile tells the size of the depth grid. Overflow
/// when an integer field can't hold its value; the record is then partly filled.
Failure Store_Image(const Project_Image& image, const Given_Marks& given, ProjectRecord& record);

}  // namespace barvon
