#pragma once

namespace barvon {

/// When the text viewer's content has changed, names it and asks whether to save it, and saves
/// it as a text on Yes. True when the user cancelled or it was not saved, so that the caller stops.
bool Text_Changed_Prompt();

}  // namespace barvon
