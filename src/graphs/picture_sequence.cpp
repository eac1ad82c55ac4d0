#include "graphs/picture_sequence.h"

#include <QProgressDialog>
#include <algorithm>
#include <memory>
#include <system_error>
#include <vector>

#include "graphs/export_files.h"
#include "pictures/picture.h"
#include "platform/ask/message_box.h"
#include "platform/files/path_lookup.h"
#include "platform/files/paths.h"
#include "platform/files/safe_file.h"
#include "platform/text/counted.h"

namespace barvon {
namespace {

constexpr char kPng[] = ".png";
constexpr int kUnnoticed = 400;  // ms that pass before the display comes up

/// The page as it was, when this goes.
class Place_Kept {
 public:
  explicit Place_Kept(Graph_Page& page) : page_(page), place_(page.Sequence_Place()) {}
  ~Place_Kept() { page_.Show_In_Sequence(place_); }
  Place_Kept(const Place_Kept&) = delete;
  Place_Kept& operator=(const Place_Kept&) = delete;

 private:
  Graph_Page& page_;
  int place_;
};

/// One name for each picture, with as many digits as the last one's number has.
std::vector<std::string> Names_For(const std::string& path, int count) {
  const std::string base = path.substr(0, path.size() - std::string(kPng).size());
  const std::size_t digits = std::to_string(count).size();
  std::vector<std::string> names;
  for (int i = 1; i <= count; ++i) {
    std::string number = std::to_string(i);
    number.insert(0, digits - number.size(), '0');
    names.push_back(Path_To_Write(std::string(base).append(" ").append(number).append(kPng)));
  }
  return names;
}

bool May_Replace(const std::vector<std::string>& names) {
  const auto there = std::ranges::count_if(
      names, [](const std::string& name) { return Find_Path(name).has_value(); });
  if (there == 0) return true;
  return Show_Message({.text = Counted(static_cast<std::size_t>(there), "picture") +
                               " of these names exist already, from " + Name_Of(names.front()) +
                               " to " + Name_Of(names.back()) + ".\nDo you want to replace them?",
                       .buttons = Buttons::YesNo,
                       .icon = Icon::Warning,
                       .on_return = Answer::No}) == Answer::Yes;
}

/// Draws one picture into a file of its own. 0 or an errno value.
int Fill(Safe_File& file, const std::string& name, Picture& picture) {
  const std::string bytes = picture.As_Png().toStdString();
  return bytes.empty() ? ENOMEM : Make_Ready(file, name, bytes);
}

}  // namespace

std::string Save_Sequence(Graph_Page& page, const Results_Held& results) {
  const int count = page.Sequence_Length();
  if (count < 1) {
    Show_Warning("This page has no pictures over time.");
    return {};
  }
  const auto all_of = [count](const std::string& path) {
    const std::vector<std::string> names = Names_For(path, count);
    return Base_Name(names.front()) + " to " + Name_Of(names.back());
  };
  const auto chosen = Ask_Export_File("Save All Times As", {{"PNG Pictures (*.png)", "*.png"}},
                                      QStringLiteral("all times"), *results, all_of);
  if (!chosen) return {};
  const std::vector<std::string> names = Names_For(*chosen, count);
  if (!May_Replace(names)) return {};

  const Place_Kept kept(page);
  QProgressDialog progress(QStringLiteral("Saving %1 pictures").arg(count),
                           QStringLiteral("Cancel"), 0, count, &page);
  progress.setWindowTitle(QLatin1String(kMessageTitle));
  progress.setObjectName(QStringLiteral("dlgSequence"));
  progress.setMinimumDuration(kUnnoticed);
  progress.setWindowModality(Qt::ApplicationModal);  // the page must stay as it is
  std::vector<std::unique_ptr<Safe_File>> files;
  for (const std::string& name : names) {
    progress.setValue(static_cast<int>(files.size()));
    if (progress.wasCanceled()) return "Cancelled: none of the pictures was saved";
    if (page.Sequence_Length() != count) {
      Tell_Not_Saved(name, "the outputs have changed meanwhile");
      return {};
    }
    page.Show_In_Sequence(static_cast<int>(files.size()));
    files.push_back(std::make_unique<Safe_File>());
    if (const int error = Fill(*files.back(), name, *page.Shown_Picture()); error != 0) {
      Tell_Not_Saved(name, std::generic_category().message(error));
      return {};
    }
  }
  Unsynced_Folders folders;
  std::size_t saved = 0;
  int error = 0;
  while (saved < files.size() && error == 0) {
    error = files[saved]->Commit(&folders);
    if (error == 0) ++saved;
  }
  if (saved > 0) Wait_For_Names(folders, names[saved - 1]);
  if (error == 0) return Counted(saved, "picture") + " saved, from " + names.front();
  Tell_Not_Saved(names[saved], std::generic_category().message(error));
  return Counted(saved, "picture") + " saved";
}

}  // namespace barvon
