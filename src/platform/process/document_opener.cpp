#include "platform/process/document_opener.h"

#include <utility>

namespace barvon {
namespace {

Document_Opener& Opener() {
  static Document_Opener opener;
  return opener;
}

}  // namespace

bool Open_Document(const std::string& path) { return Opener() && Opener()(path); }

Document_Opener Set_Document_Opener(Document_Opener opener) {
  return std::exchange(Opener(), std::move(opener));
}

}  // namespace barvon
