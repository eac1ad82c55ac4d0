#include "core/project_file/column_writer.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "core/format_pattern.h"
#include "core/number_text.h"
#include "core/project_file/column_layout.h"
#include "platform/files/text_encoding.h"

namespace barvon {
namespace {

constexpr std::size_t kRealWidth = 11;
constexpr std::size_t kVelocityWidth = 8;
constexpr int kVelocitiesPerLine = 10;
constexpr std::size_t kUsualSize = 1u << 18;
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kFiveBlanks = "     ";
constexpr std::string_view kKey4Comment = "Used To Determine Type of Simulation";

/// One byte a column; what would break the line becomes a blank.
std::string Line_Bytes(std::string_view text) {
  std::string bytes = To_File_Bytes(text);
  for (char& c : bytes) {
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = ' ';
  }
  return bytes;
}

std::string Fixed_Bytes(std::string_view text, std::size_t width) {
  std::string bytes = Line_Bytes(text);
  bytes.resize(width, ' ');
  return bytes;
}

void Put_Number(std::string& text, double value, std::size_t width) {
  const Plain_Letters number(value);
  const std::size_t size = number.text().size();
  text.append(width > size ? width - size : 0, ' ').append(number.text());
}

char Flag_Letter(double flag) {
  if (flag == 0) return 'F';
  return flag == kTrue ? 'T' : 'G';
}

std::string Pattern_Of_Narrow(double value, std::string_view pattern) {
  return Format_Number(Widen(static_cast<float>(value)), pattern);
}

void Write_Velocity_Field(const Grid& field, std::string& text) {
  for (int a = 1; a <= kMaxGridPoints; ++a) {
    for (int b = 1; b <= kMaxGridPoints; ++b) {
      Put_Number(text, field[a][b], kVelocityWidth);
      if (b % kVelocitiesPerLine == 0 || b == kMaxGridPoints) text += kLineEnd;
    }
  }
}

void Write_Tail(const Project_Image& image, std::string& text) {
  text += Pattern_Of_Narrow(image.TidalStartTime, "####.00");
  for (const double value : {image.TidalDepth, image.TidalAvgVelX, image.TidalAvgVelZ}) {
    text += kFiveBlanks;
    text += Pattern_Of_Narrow(value, "####.00");
  }
  text += kLineEnd;
  for (int i = 1; i <= kTidalRows; ++i) {
    text += Pattern_Of_Narrow(image.TidalTable[i][1], "###.00");
    text += kFiveBlanks;
    text += Pattern_Of_Narrow(image.TidalTable[i][2], "###.00");
    text += kLineEnd;
  }
  text.append(Plain_Number(image.KEY4)).append(" ").append(kKey4Comment).append(kLineEnd);
}

}  // namespace

std::string Write_Columns(const Project_Image& image, Progress_Display& progress) {
  std::string text;
  text.reserve(kUsualSize);
  text.append("   ").append(kFileTag);
  Put_Number(text, image.DisposalMethod, kIntWidth);
  text += kLineEnd;
  text.append(Fixed_Bytes(image.ProjectTitle, kTitleLength)).append(kLineEnd);
  for (const auto& [first, last] : kIntLines) {
    for (int slot = first; slot <= last; ++slot) {
      Put_Number(text, image.IntSlots[slot], kIntWidth);
    }
    text += kLineEnd;
  }
  constexpr int kLines = kFullFileRealSlots / kRealsPerLine + 1;
  for (int slot = 1; slot <= kFullFileRealSlots; ++slot) {
    Put_Number(text, image.RealSlots[slot], kRealWidth);
    if (slot % kRealsPerLine == 0 || slot == kFullFileRealSlots) {
      text += kLineEnd;
      const int line = slot / kRealsPerLine;
      if (line % kLinesAMove == 0) progress.Move(static_cast<double>(line) / kLines);
    }
  }
  for (std::size_t i = 1; i <= kSolidEntries; ++i) {
    text += Fixed_Bytes(image.SolidNames[i], kNameWidth);
  }
  text += kLineEnd;
  for (std::size_t i = 1; i <= kStatusLength; ++i) {
    const char c = image.SectionStatus[i];
    text += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? ' ' : c;
  }
  text += kLineEnd;
  for (std::size_t i = 1; i <= kFlagCount; ++i) text += Flag_Letter(image.SectionFlags[i]);
  text += kLineEnd;
  Write_Velocity_Field(image.VelocityFieldX, text);
  Write_Velocity_Field(image.VelocityFieldZ, text);
  Write_Tail(image, text);
  return text;
}

}  // namespace barvon
