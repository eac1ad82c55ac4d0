#pragma once

#include <vector>

namespace barvon {

/// A place on the display in pixels, a window's frame included.
struct Window_Place {
  int left = 0, top = 0, width = 0, height = 0;
  bool operator==(const Window_Place&) const = default;
};

enum class Arrangement { Cascade, Tile_Horizontal, Tile_Vertical };

/// Places for that many windows in the room. Tiled horizontally they are strips above each other,
/// vertically beside each other, in further columns or rows where strips would become too thin; in
/// a cascade each is a step right of and below the one before, and starts anew at the room's corner
/// when it would leave the room.
std::vector<Window_Place> Places_For(Arrangement how, int count, const Window_Place& room);

/// The room for text windows on a display: beside the main window where that leaves enough,
/// otherwise all of it.
Window_Place Room_Beside(const Window_Place& main, const Window_Place& display);

}  // namespace barvon
