#include "workspace/text_documents.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace barvon {

int Text_Documents::Open(Text_Document& window) {
  const int index = ++used_;
  if (documents_.size() <= Place(index)) {
    documents_.resize(Place(index) + 1);
    states_.resize(Place(index) + 1);
  }
  documents_[Place(index)] = &window;
  states_[Place(index)] = {};
  Set_Active(index);
  return index;
}

void Text_Documents::Close(int index) {
  if (Document(index) == nullptr) return;
  documents_[Place(index)] = nullptr;
  states_[Place(index)] = {kTrue, kFalse};
  if (index == last_in_front_) {
    const std::vector<int> open = Open_Ones();
    last_in_front_ = open.empty() ? 0 : open.back();
    looked_at_ = false;  // until its window comes to the front
  }
  Tell();
}

void Text_Documents::Reset() { *this = Text_Documents(); }

Text_Document* Text_Documents::Document(int index) const {
  return index > 0 && Place(index) < documents_.size() ? documents_[Place(index)] : nullptr;
}

void Text_Documents::Set_Dirty(int index, bool dirty) {
  if (Document(index) == nullptr) return;
  states_[Place(index)].Dirty = dirty ? kTrue : kFalse;
}

std::vector<int> Text_Documents::Open_Ones() const {
  std::vector<int> open;
  for (int i = 1; i <= used_; ++i) {
    if (documents_[Place(i)] != nullptr) open.push_back(i);
  }
  return open;
}

std::vector<int> Text_Documents::Changed_Ones() const {
  std::vector<int> changed = Open_Ones();
  std::erase_if(changed, [this](int i) { return FState(i).Dirty == kFalse; });
  std::stable_partition(changed.begin(), changed.end(),
                        [this](int i) { return i == last_in_front_; });
  return changed;
}

int Text_Documents::Find(const std::string& file) const {
  for (const int i : Open_Ones()) {
    const std::string own = Document(i)->File();
    std::error_code error;
    if (own.empty()) continue;
    if (own == file || std::filesystem::equivalent(own, file, error)) return i;
  }
  return 0;
}

void Text_Documents::Set_Active(int index) {
  if (Document(index) == nullptr) return;
  last_in_front_ = index;
  looked_at_ = true;
  Tell();
}

void Text_Documents::Leave() {
  if (!looked_at_) return;
  looked_at_ = false;
  Tell();
}

Text_Documents& Documents() {
  static Text_Documents documents;
  return documents;
}

}  // namespace barvon
