// Attacks the saves of the program: failing file calls, kills, a full file system. Prints a row for
// each save and a line for each find. Exit code 1 when there is a find.

#include <sys/mount.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <random>

#include "attacks/attack.h"

namespace {

using namespace barvon::testing;

constexpr char kUsage[] =
    "usage: attack_saves [--save PART-OF-NAME | --row NAME] count\n"
    "       attack_saves [--save PART-OF-NAME] fail [EVERY [FIRST [CASE]]]\n"
    "           every so manieth case, all: 1, from FIRST on, 0; those alone whose words have CASE "
    "in\n"
    "           them\n"
    "       attack_saves [--save PART-OF-NAME] kill COUNT SEED\n"
    "       attack_saves [--save PART-OF-NAME] full [SIZES]     in a mount name space of its own\n";

constexpr int kMostFindsShown = 40;  // of a save

/// What is summed up over the cases of a save.
struct Tally {
  int cases = 0, met = 0, kept = 0, replaced = 0, told_though_new = 0, left = 0;
  int damaged = 0, silent = 0, unsynced = 0, litter = 0, refails = 0, bad_ends = 0;
  int Finds() const { return damaged + silent + unsynced + litter + refails + bad_ends; }
  void operator+=(const Tally& other) {
    cases += other.cases;
    met += other.met;
    kept += other.kept;
    replaced += other.replaced;
    told_though_new += other.told_though_new;
    left += other.left;
    damaged += other.damaged;
    silent += other.silent;
    unsynced += other.unsynced;
    litter += other.litter;
    refails += other.refails;
    bad_ends += other.bad_ends;
  }
};

void Print_Head(const char* what) {
  std::printf("%-32s %5s %6s %6s %6s %6s %6s %6s | %7s %6s %6s %6s %6s %6s\n", what, "calls",
              "cases", "met", "old", "new", "new+", "left", "damaged", "silent", "unsync", "litter",
              "again", "bad");
}

void Print_Row(const std::string& name, int calls, const Tally& tally) {
  std::printf("%-32s %5d %6d %6d %6d %6d %6d %6d | %7d %6d %6d %6d %6d %6d\n", name.c_str(), calls,
              tally.cases, tally.met, tally.kept, tally.replaced, tally.told_though_new, tally.left,
              tally.damaged, tally.silent, tally.unsynced, tally.litter, tally.refails,
              tally.bad_ends);
  std::fflush(stdout);
}

void Add(const Attack_Result& result, const std::string& what, Tally& tally) {
  ++tally.cases;
  if (result.failed > 0 || result.killed) ++tally.met;
  ++(result.All_New() ? tally.replaced : tally.kept);
  if (result.All_New() && result.told) ++tally.told_though_new;
  if (!result.left.empty()) ++tally.left;
  std::string find;
  const auto note = [&find](bool is_find, int& count, const char* name) {
    if (!is_find) return;
    ++count;
    find += std::string(" ") + name;
  };
  note(result.Damaged(), tally.damaged, "DAMAGED");
  note(result.Silent(), tally.silent, "SILENT");
  note(result.Untold_Sync(), tally.unsynced, "UNSYNCED");
  note(!result.left_after.empty(), tally.litter, "LITTER");
  note(result.refails, tally.refails, "AGAIN-FAILS");
  note(result.ended_badly, tally.bad_ends, "BAD-END");
  if (find.empty() || tally.Finds() > kMostFindsShown) return;
  std::printf("  %s:%s files=%s said=%s", what.c_str(), find.c_str(), result.files.c_str(),
              result.told_text.c_str());
  for (const std::string& name : result.left_after) std::printf(" left=%s", name.c_str());
  std::printf("\n");
}

struct Failing {
  const char* name;
  Fault fault;
  Span span;
  int error;
};

constexpr Failing kFailings[] = {
    {"once ENOSPC", Fault::Error, Span::Once, ENOSPC},
    {"once EIO", Fault::Error, Span::Once, EIO},
    {"once EACCES", Fault::Error, Span::Once, EACCES},
    {"once EINTR", Fault::Error, Span::Once, EINTR},
    {"once short", Fault::Short, Span::Once, 0},
    {"from then on ENOSPC", Fault::Error, Span::From_Then_On, ENOSPC},
    {"from then on EIO", Fault::Error, Span::From_Then_On, EIO},
    {"from then on EACCES", Fault::Error, Span::From_Then_On, EACCES},
    {"writes ENOSPC", Fault::Error, Span::Writes_Only, ENOSPC},
    {"writes EIO", Fault::Error, Span::Writes_Only, EIO},
    {"writes EACCES", Fault::Error, Span::Writes_Only, EACCES},
    {"writes short", Fault::Short, Span::Writes_Only, 0},
    {"writes half, then ENOSPC", Fault::Fill, Span::Writes_Only, ENOSPC},
};

/// Whether the failing means anything for a call of that name.
bool Is_About(const Failing& failing, const std::string& call) {
  const bool writes = call.find("write") != std::string::npos;
  if (failing.fault == Fault::Short || failing.fault == Fault::Fill) return writes;
  return failing.span != Span::Writes_Only || writes || call.find("sync") != std::string::npos;
}

Tally Fail(Attack& attack, const std::string& name, int every, int first, const std::string& wanted,
           int& number) {
  Tally tally;
  for (int call = 1; call <= attack.Learned().calls; ++call) {
    const std::string of = attack.Learned().call_names[static_cast<std::size_t>(call - 1)];
    for (const Failing& failing : kFailings) {
      if (!Is_About(failing, of) || number++ % every != first) continue;
      const std::string what =
          name + ", call " + std::to_string(call) + " " + of + ", " + failing.name;
      if (what.find(wanted) == std::string::npos) continue;
      Call_Plan plan;
      plan.first = call;
      plan.fault = failing.fault;
      plan.span = failing.span;
      plan.error = failing.error;
      Add(attack.Run(plan), what, tally);
    }
  }
  return tally;
}

Tally Kill(Attack& attack, const std::string& name, int count, std::mt19937& chance) {
  Tally tally;
  for (int i = 0; i < count; ++i) {
    if (i % 2 == 0) {
      // A kill that comes after the end is none: it is tried again.
      const double longest = std::max(1e-4, attack.Learned().seconds);
      Attack_Result result;
      double seconds = 0;
      for (int tries = 0; tries < 50 && !result.killed; ++tries) {
        seconds = std::max(1e-6, std::uniform_real_distribution(0.0, longest)(chance));
        result = attack.Kill_After(seconds);
      }
      Add(result, name + ", killed after " + std::to_string(seconds) + " s", tally);
      continue;
    }
    Call_Plan plan;
    plan.first = std::uniform_int_distribution(1, attack.Learned().calls)(chance);
    plan.fault = chance() % 2 == 0 ? Fault::Kill : Fault::Kill_After;
    Add(attack.Run(plan), name + ", killed at call " + std::to_string(plan.first), tally);
  }
  return tally;
}

Tally Fill(Attack& attack, const std::string& name, int sizes) {
  constexpr long kPage = 4096;
  Tally tally;
  const long pages = attack.New_Bytes() / kPage + 12;
  const long step = std::max(1L, (pages + sizes - 1) / sizes) * kPage;
  for (int i = 0; i < sizes; ++i) {
    Add(attack.Run_In_Room(i * step), name + ", room for " + std::to_string(i * step) + " bytes",
        tally);
  }
  return tally;
}

void Print_Calls(const Attack& attack) {
  std::map<std::string, int> counts;
  for (const std::string& name : attack.Learned().call_names) ++counts[name];
  std::printf("   ");
  for (const auto& [name, count] : counts) std::printf(" %s %d", name.c_str(), count);
  std::printf("\n");
}

int Number(const std::vector<std::string>& words, std::size_t at, int otherwise) {
  return at < words.size() ? std::max(1, std::atoi(words[at].c_str())) : otherwise;
}

std::string Row_Name(const Attack& attack) {
  return attack.save().name + (attack.fresh() ? " (first)" : "");
}

/// The saves that are wanted: all whose names have that in them, or the one of that very name.
std::vector<Attack> Wanted_Attacks(const std::string& root, const std::string& wanted, bool is_row,
                                   bool with_first) {
  std::vector<Attack> attacks;
  const auto add = [&](const Attacked_Save& save, bool fresh) {
    Attack attack(root, save, fresh);
    const bool counts =
        is_row ? Row_Name(attack) == wanted : save.name.find(wanted) != save.name.npos;
    if (counts) attacks.push_back(std::move(attack));
  };
  for (const std::vector<Attacked_Save>& saves :
       {Plain_Saves(), Kept_Saves(), Page_Saves(), Graph_Saves()}) {
    for (const Attacked_Save& save : saves) {
      add(save, false);
      if (save.makes_new && with_first) add(save, true);
    }
  }
  return attacks;
}

int Attack_All(std::vector<Attack> attacks, const std::vector<std::string>& words) {
  const std::string& command = words.front();
  const int every = Number(words, 1, 1);
  std::mt19937 chance(static_cast<unsigned>(Number(words, 2, 1)));
  Tally all;
  int all_calls = 0, number = 0, place = 0, unlearned = 0;
  Print_Head(command.c_str());
  for (Attack& attack : attacks) {
    const std::string name = Row_Name(attack);
    if (!attack.Learn()) {
      std::printf("%s: %s\n", name.c_str(), attack.Learned().told_text.c_str());
      ++unlearned;
      continue;
    }
    Tally tally;
    if (command == "fail")
      tally = Fail(attack, name, every, words.size() > 2 ? std::atoi(words[2].c_str()) : 0,
                   words.size() > 3 ? words[3] : "", number);
    if (command == "full") tally = Fill(attack, name, Number(words, 1, 60));
    if (command == "kill") {
      const auto count = static_cast<int>(attacks.size());
      tally = Kill(attack, name, every / count + (place++ < every % count ? 1 : 0), chance);
    }
    Print_Row(name, attack.Learned().calls, tally);
    if (command == "count") Print_Calls(attack);
    all += tally;
    all_calls += attack.Learned().calls;
  }
  Print_Row("all", all_calls, all);
  if (attacks.empty() || (all.cases == 0 && command != "count")) {
    std::fputs("nothing was attacked\n", stderr);
    return 1;
  }
  return all.Finds() + unlearned == 0 ? 0 : 1;
}

}  // namespace

int main(int count, char** given) {
  std::vector<std::string> words(given + 1, given + count);
  std::string wanted;
  bool is_row = false;
  if (words.size() > 2 && (words[0] == "--save" || words[0] == "--row")) {
    wanted = words[1];
    is_row = words[0] == "--row";
    words.erase(words.begin(), words.begin() + 2);
  }
  const std::vector<std::string> commands = {"count", "fail", "kill", "full"};
  if (words.empty() || std::ranges::find(commands, words[0]) == commands.end()) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  int none = 1;
  QApplication application(none, given);
  std::setlocale(LC_NUMERIC, "C");
  std::string root = (std::filesystem::temp_directory_path() / "attacked-saves-XXXXXX").string();
  if (::mkdtemp(root.data()) == nullptr) {
    std::perror(root.c_str());
    return 2;
  }
  root = std::filesystem::canonical(root).string();
  if (words[0] == "full" && ::mount("tmpfs", root.c_str(), "tmpfs", 0, "size=64m") != 0) {
    std::perror("mount");
    return 2;
  }
  ::setenv("XDG_DATA_HOME", (root + "/data").c_str(), 1);
  const int code = Attack_All(Wanted_Attacks(root, wanted, is_row, words[0] != "kill"), words);
  std::filesystem::current_path("/");
  if (words[0] == "full") ::umount(root.c_str());
  std::filesystem::remove_all(root);
  return code;
}
