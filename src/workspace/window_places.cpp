#include "workspace/window_places.h"

#include <algorithm>
#include <utility>

namespace barvon {
namespace {

constexpr int kStep = 32;          // about a title bar
constexpr int kLeastBeside = 480;  // fewer columns of a listing are no use
constexpr int kMostStrips = 4;

/// Strips along one side of the room, in as many groups as keep them from becoming too thin.
std::vector<Window_Place> Tiles(int count, const Window_Place& room, bool horizontal) {
  std::vector<Window_Place> places;
  const int groups = (count + kMostStrips - 1) / kMostStrips;
  for (int group = 0, done = 0; group < groups; ++group) {
    const int strips = (count - done + groups - group - 1) / (groups - group);
    for (int strip = 0; strip < strips; ++strip, ++done) {
      const auto part = [](int start, int size, int i, int of) {
        return std::pair(start + size * i / of, size * (i + 1) / of - size * i / of);
      };
      const auto across = horizontal ? part(room.left, room.width, group, groups)
                                     : part(room.left, room.width, strip, strips);
      const auto down = horizontal ? part(room.top, room.height, strip, strips)
                                   : part(room.top, room.height, group, groups);
      places.push_back({across.first, down.first, across.second, down.second});
    }
  }
  return places;
}

std::vector<Window_Place> Cascade(int count, const Window_Place& room) {
  const int width = room.width * 3 / 4;
  const int height = room.height * 3 / 4;
  const int steps = std::max(1, std::min(room.width - width, room.height - height) / kStep + 1);
  std::vector<Window_Place> places;
  for (int i = 0; i < count; ++i) {
    const int by = kStep * (i % steps);
    places.push_back({room.left + by, room.top + by, width, height});
  }
  return places;
}

}  // namespace

std::vector<Window_Place> Places_For(Arrangement how, int count, const Window_Place& room) {
  if (how == Arrangement::Cascade) return Cascade(count, room);
  return Tiles(count, room, how == Arrangement::Tile_Horizontal);
}

Window_Place Room_Beside(const Window_Place& main, const Window_Place& display) {
  const int left = std::max(main.left + main.width, display.left);
  const int width = display.left + display.width - left;
  if (width < kLeastBeside) return display;
  return {left, display.top, width, display.height};
}

}  // namespace barvon
