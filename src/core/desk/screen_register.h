#pragma once

#include <functional>
#include <string>

#include "core/desk/screen_table.h"
#include "core/project_record.h"

namespace barvon {

/// How a screen is opened: blocking or not, with the focus on the control of that name when one is
/// given ("Text1(0)").
using Screen_Opener = std::function<void(bool blocking, const std::string& control)>;

/// Makes a screen known; its former opener is replaced, an empty one takes the screen out again.
/// The workspace hears of it.
void Register_Screen(const Screen_Row& screen, Screen_Opener opener);

/// Whether the screen is registered.
bool Screen_Stands(const Screen_Row& screen);

/// Whether input screens open blocking, as the View menu says.
inline bool Opens_Blocking(const ProjectRecord& record) { return record.ShowMode == 1; }

/// Opens the screen. False when it is not registered.
bool Open_Screen(const Screen_Row& screen, bool blocking, const std::string& control = {});

/// Opens the screen; one that this version does not have is named in the status area.
void Open_Screen_Or_Tell(const Screen_Row& screen, bool blocking, const std::string& control = {});

/// While it is there the error list leads to that screen: one that shows more to who comes from a
/// finding than to who comes from a board asks for it when it opens.
class Lead_To_Screen {
 public:
  explicit Lead_To_Screen(const Screen_Row& screen);
  ~Lead_To_Screen();
  Lead_To_Screen(const Lead_To_Screen&) = delete;
  Lead_To_Screen& operator=(const Lead_To_Screen&) = delete;

 private:
  const Screen_Row* former_;
};
bool Is_Led_To(const Screen_Row& screen);

}  // namespace barvon
