#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/project_record.h"

namespace barvon {

/// A text window as the commands know it.
class Text_Document {
 public:
  virtual ~Text_Document() = default;
  /// Its file, "Untitled" without one.
  virtual std::string Caption() const = 0;
  /// "" for a text that has no file yet.
  virtual std::string File() const = 0;
  virtual void Come_To_Front() = 0;
  /// Whether its file is there and is not the one that it was read from or saved in last.
  virtual bool Changed_On_Disk() const = 0;
  /// The bytes of a file for the text as it stands, nothing when a person called it off or has been
  /// told that it is not whole.
  virtual std::optional<std::string> Bytes() = 0;
  /// The text is in that file now.
  virtual void Saved_In(const std::string& file) = 0;
};

/// What is known of a document beside its window.
struct Text_State {
  Flag Deleted = kFalse;  // its window has closed
  Flag Dirty = kFalse;    // its text has changed since it was read or saved
};

/// The text documents of the program: two arrays side by side, used from 1. The index of a closed
/// document is not used again.
class Text_Documents {
 public:
  /// Takes the next index for a window, which is open from here on.
  int Open(Text_Document& window);
  /// Its window has closed.
  void Close(int index);
  /// Forgets all of them, as at start.
  void Reset();

  /// The window of a document, none once it has closed; and its state.
  Text_Document* Document(int index) const;
  const Text_State& FState(int index) const { return states_.at(Place(index)); }
  void Set_Dirty(int index, bool dirty);

  /// The open ones, by their indices.
  std::vector<int> Open_Ones() const;
  bool Any_Open() const { return !Open_Ones().empty(); }
  /// Those whose text has changed, the one last in front before the others.
  std::vector<int> Changed_Ones() const;
  /// The open document of that file, 0 when there is none.
  int Find(const std::string& file) const;

  /// The document that was last in front, 0 when none is open.
  int Last_In_Front() const { return last_in_front_; }
  /// The document that a person looks at: the one last in front until another screen or a board of
  /// the main window is worked at. 0: none.
  int Active() const { return looked_at_ ? last_in_front_ : 0; }
  void Set_Active(int index);
  void Leave();

  /// Called whenever one of these answers may have changed.
  void When_Changed(std::function<void()> tell) { tell_ = std::move(tell); }

 private:
  static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
  void Tell() const {
    if (tell_) tell_();
  }

  std::vector<Text_Document*> documents_ = std::vector<Text_Document*>(2);  // one element, from 1
  std::vector<Text_State> states_ = std::vector<Text_State>(2);
  int used_ = 0;
  int last_in_front_ = 0;
  bool looked_at_ = false;
  std::function<void()> tell_;
};

/// Those of the program.
Text_Documents& Documents();

}  // namespace barvon
