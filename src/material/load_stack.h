#pragma once

#include "material/solids_table.h"
#include "pictures/shapes/bars.h"
#include "platform/table/spreadsheet_table.h"

namespace barvon {

/// The load as a picture: a bar for each layer, as high as the layer's part of the volume while
/// every layer has one, with what each fraction takes of it and the water between the grains. A
/// layer whose fractions are more than the whole is warned of. The fractions are those of the
/// composition while every layer has its own, else those of the solids table.
Bar_Chart Load_Stack(int layers, const Spreadsheet_Table& volumes, const Solids_State& state,
                     const Spreadsheet_Table& solids);

}  // namespace barvon
