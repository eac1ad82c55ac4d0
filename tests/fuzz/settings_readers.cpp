#include <algorithm>
#include <optional>

#include "core/desk/recent_files.h"
#include "core/desk/settings_keys.h"
#include "core/text_tools.h"
#include "fuzz/readers.h"
#include "material/material_library.h"
#include "platform/files/profile_settings.h"
#include "platform/files/text_encoding.h"
#include "platform/text/letter_case.h"
#include "workspace/tips_file.h"

namespace barvon::fuzz {
namespace {

// ---- BARVON.INI

std::vector<std::string> Settings() {
  return {
      "; kept by hand\r\n[Recent Files]\r\nRecentFile1=/data/site.dui\r\nRecentFile2=\"a "
      "b.DUI\"\r\n"
      "RecentFile3=Not Used\r\nRecentFile4=M\xFCnde.dui\r\n[Help Status]\r\nHelpOn = 1\r\n"
      "[Options]\r\nShow Tips at Startup=0\r\n\r\n[Graph File]\r\nGraphFile=/data/site\r\n"
      "[Simulation Type]\r\nSimType=2\r\n",
      "\xEF\xBB\xBF[graph file]\n graphfile = 'x' \n[Graph File]\nGraphFile=second\n\x1A",
      "[Recent Files]\r\nRecentFile2=/data/new.dui\r\n"};
}

std::optional<std::string> Value(const char* section, const std::string& key) {
  constexpr char kNone[] = "\n";  // no value has a line break
  const std::string value = Read_Profile_String(Settings_Path(), section, key, kNone);
  return value == kNone ? std::nullopt : std::optional(value);
}

struct Key {
  const char* section;
  const char* key;
};
constexpr Key kKeys[] = {{kRecentFilesSection, "RecentFile1"},
                         {kRecentFilesSection, "RecentFile4"},
                         {kHelpStatusSection, kHelpOnKey},
                         {kOptionsSection, kTipsAtStartKey},
                         {kSimulationTypeSection, kSimTypeKey}};

void Read_Settings(std::string_view bytes) {
  Put(kSettingsFile, bytes);
  GetRecentFiles();
  for (const Key& key : kKeys) Value(key.section, key.key);
  Tips_At_Start_Wanted();
}

void Hold_Settings(std::string_view bytes) {
  Put(kSettingsFile, bytes);
  std::vector<std::optional<std::string>> before;
  for (const Key& key : kKeys) before.push_back(Value(key.section, key.key));
  const std::string path = "/data/\xE4\xB8\xAD.dui";
  Demand(Write_Profile_Strings(Settings_Path(), {{kGraphFileSection, kGraphFileKey, path}}) == 0,
         "a setting is written");
  Demand(Value(kGraphFileSection, kGraphFileKey) == path, "a setting is read as it was written");
  for (std::size_t i = 0; i < before.size(); ++i) {
    Demand(Value(kKeys[i].section, kKeys[i].key) == before[i], "other settings stay");
  }
  const std::string once = Content(Settings_Path());
  Write_Profile_Strings(Settings_Path(), {{kGraphFileSection, kGraphFileKey, path}});
  Demand(Content(Settings_Path()) == once, "a setting that is there changes nothing");
  const std::string recent = "/data/new.dui";
  const bool is_shown = std::ranges::any_of(Recent_Menu(), [&](const std::string& shown) {
    return Upper_Case(Trimmed(shown)) == Upper_Case(recent);
  });
  WriteRecentFiles(recent);
  // What the menu shows keeps its place, whichever it is.
  Demand(is_shown || Value(kRecentFilesSection, "RecentFile1") == recent,
         "a recent file is written first");
}

// ---- The library of materials

std::vector<std::string> Libraries() {
  return {
      "[Material Properties Hopper]\r\nListsize=3\r\n"
      "Fraction1=Sand 2.70 .100 .020 .7000 .0150 N Y \r\nFraction2=Clay \r\n"
      "Fraction3=Coarse sand 2.60 .200 .010 4.0000 .0020 Y N \r\n"
      "[Material Properties Barge]\r\nListsize=31\r\nFraction31=Clumps 1 2 3 4 5\r\n"};
}

/// A screen reads the library of its vessel.
void Read_Library(std::string_view bytes) {
  Put(kSettingsFile, bytes);
  Material_Library library =
      Read_Material_List(bytes.size() % 2 == 0 ? kHopperLibrary : kBargeLibrary);
  Demand(library.entries.size() <= kMaxLibraryEntries, "a library has an end");
  constexpr const char* kSeeds[] = {"SAND", "SILT"};
  Show_Material_List(library, kSeeds);
  for (const std::string& entry : library.entries) Parse_Material(entry);
}

// ---- Tips

std::vector<std::string> Tips() { return {Content(BARVON_SOURCE "/resources/TIPOFDAY.TXT")}; }

void Read_Tips(std::string_view bytes) {
  Put(kTipsFile, bytes);
  Tip_Collection tips;
  Demand(LoadTips(Work_Folder() + "/" + kTipsFile, tips), "tips are loaded");
  Demand(tips.tips.empty() == (tips.current == 0), "a tip is in view where there is one");
  for (int i = 0; i < 3; ++i) {
    Next_Tip(tips);
    Demand(Is_UTF8(Current_Tip(tips)), "a tip is a text");
  }
}

constexpr Reader kReaders[] = {
    {"settings", 14, Settings, Read_Settings, Hold_Settings, nullptr},
    {"materials", 10, Libraries, Read_Library, nullptr, nullptr},
    {"tips", 5, Tips, Read_Tips, nullptr, nullptr},
};

}  // namespace

std::span<const Reader> Settings_Readers() { return kReaders; }

}  // namespace barvon::fuzz
