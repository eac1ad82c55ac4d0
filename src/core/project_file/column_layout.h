#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace barvon {

/// The fixed columns of a project file that its writer and its reader share.
inline constexpr std::size_t kIntWidth = 5;
inline constexpr std::size_t kNameWidth = 8;
inline constexpr int kRealsPerLine = 6;
/// The progress display is drawn once a frame; asking the clock for every line of reals would cost
/// a tenth of a load.
inline constexpr int kLinesAMove = 16;
inline constexpr std::size_t kStatusLength = 6;
inline constexpr std::size_t kFlagCount = 18;
inline constexpr std::string_view kFileTag = "DUMP";

/// Slots 1 to 16 are on the third line, 17 to 32 on the fourth, 33 to 41 on the fifth.
inline constexpr std::array<std::array<int, 2>, 3> kIntLines = {{{1, 16}, {17, 32}, {33, 41}}};

}  // namespace barvon
