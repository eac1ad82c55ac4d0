#include "core/text_prompt.h"

namespace barvon {

bool Text_Changed_Prompt(ProjectRecord&) { return false; }

}  // namespace barvon
