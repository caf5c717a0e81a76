// replay PROGRAM GAME.GAM [--keys] [--french] [--pictures FOLDER] [--share PORT [--halts N]]: records a game
// once more in the program's own window, by mouse or by keys alone, on the display of the environment, and
// reports what it took and whether the same came out. Exit status 0 when it did, 1 when not, 77 when the game
// is missing.
#include "support/OfficialBox.h"
#include "support/TemporaryFolder.h"
#include "tools/replay/Comparison.h"
#include "tools/replay/KeypadHand.h"
#include "tools/replay/LeagueHand.h"
#include "tools/replay/MouseHand.h"
#include "tools/replay/Replay.h"
#include "tools/replay/Sharing.h"

#include <algorithm>
#include <chrono>
#include <iomanip>
#include <iostream>
#include <memory>
#include <numeric>

using namespace hooptab;

namespace {

constexpr int kSkipped = 77;

struct Options {
  std::string program;
  std::filesystem::path game;
  std::string pictures;
  bool isFrench = false;
  bool isByKeys = false;
  SharingChoice sharing;
};

Options parse(const std::vector<std::string>& words) {
  Options options;
  std::vector<std::string> names;
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (*word == "--french")
      options.isFrench = true;
    else if (*word == "--keys")
      options.isByKeys = true;
    else if (*word == "--pictures" && std::next(word) != words.end())
      options.pictures = *++word;
    else if (*word == "--share" && std::next(word) != words.end())
      options.sharing.port = *++word;
    else if (*word == "--halts" && std::next(word) != words.end())
      options.sharing.halts = std::stoi(*++word);
    else
      names.push_back(*word);
  }
  if (names.size() != 2)
    throw ReplayFailure(
        "usage: replay PROGRAM GAME.GAM [--keys] [--french] [--pictures FOLDER] [--share PORT "
        "[--halts N]]");
  options.program = names[0];
  options.game = names[1];
  return options;
}

double share(std::vector<double> values, double part) {
  if (values.empty())
    return 0;
  std::ranges::sort(values);
  return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

// Nothing of a game without places, as the keypad records it.
void print(const std::vector<double>& displacements, int inWrongZone) {
  if (displacements.empty())
    return;
  const double sum = std::accumulate(displacements.begin(), displacements.end(), 0.0);
  std::cout << std::setprecision(2) << "Shots with a place: " << displacements.size()
            << ", of them on a line or in the other zone " << inWrongZone << "; stored "
            << sum / static_cast<double>(displacements.size()) << " units from the original on average, "
            << share(displacements, 1) << " at most.\n"
            << std::setprecision(0);
}

void print(const ReplayReport& report, const Hand& hand, std::size_t events) {
  std::cout << std::left << std::setw(34) << "entered as" << std::right;
  for (const char* column : {"number", "clicks", "keys", "each", "pixels"})
    std::cout << std::setw(8) << column;
  std::cout << std::fixed << '\n';
  ReplayReport::Entry all;
  const auto row = [](const std::string& name, const ReplayReport::Entry& entry) {
    const double number = entry.number;
    std::cout << std::left << std::setw(34) << name << std::right << std::setw(8) << entry.number
              << std::setw(8) << entry.effort.clicks << std::setw(8) << entry.effort.keys
              << std::setprecision(2) << std::setw(8) << (entry.effort.clicks + entry.effort.keys) / number
              << std::setprecision(0) << std::setw(8) << entry.effort.travel / number << '\n';
  };
  for (const auto& [how, entry] : report.entered) {
    row(how, entry);
    all.number += entry.number;
    all.effort.clicks += entry.effort.clicks;
    all.effort.keys += entry.effort.keys;
    all.effort.travel += entry.effort.travel;
  }
  row("all", all);
  std::cout << std::setprecision(2) << "Clicks and keys for each of the " << events
            << " events of the game: " << (all.effort.clicks + all.effort.keys) / static_cast<double>(events)
            << ".\n"
            << std::setprecision(0);
  print(report.displacements, report.shotsInWrongZone);
  if (!report.millisecondsToDisk.empty())
    std::cout << "From one click to its event on disk: " << share(report.millisecondsToDisk, 0.5)
              << " ms median, " << share(report.millisecondsToDisk, 0.99) << " ms for 99 of 100, "
              << share(report.millisecondsToDisk, 1) << " ms at most.\n";
  std::cout << "Questions that had to be closed first: " << hand.questionsInTheWay()
            << "; returns to an ended period: " << report.returns
            << "; clock set by hand: " << report.clockCorrections << ".\n";
}

void openForInput(const Table& table) {
  table.program.waitUntilActive("MDI");
  table.person.press("ctrl+shift+o");
  table.program.waitUntilActive("fileNameEdit");
  table.person.type(table.recorded.path());
  table.person.press("Return");
  // A game that has not begun asks for both fives: here they come as the events tell them.
  table.program.waitUntilActive("frmSUBST/cmdCANCEL");
  table.person.press("Escape");
  table.program.waitUntilActive("frmLIVE");
}

// The report of it; shared meanwhile, where that was asked for.
ReplayReport play(const Game& original, const Table& table, Hand& hand, const SharingChoice& choice) {
  if (choice.port.empty()) {
    Replay replay(original, table, hand);
    replay.play();
    replay.declareOver();
    return replay.report();
  }
  Sharing sharing(table, choice);
  SharedReplay replay(original, table, hand, sharing);
  sharing.begin();
  replay.play();
  sharing.end();
  replay.declareOver();
  return replay.report();
}

int run(const Options& options) {
  FileSystem files;
  ProfileStore store(files);
  Game original;
  if (GameFile(store, options.game.string()).read(original) != GameFileProblem::None) {
    std::cout << "skipped: there is no game " << options.game << '\n';
    return kSkipped;
  }
  const TemporaryFolder folder;
  const std::string path = folder.path("replay.GAM");
  GameDetails details = original.details;
  details.isFinished = false;
  if (GameFile(store, path)
          .create(details, original.roster[Side::Visitor].players(), original.roster[Side::Home].players()) !=
      GameFileProblem::None)
    throw ReplayFailure("the game cannot be made: " + path);

  const auto start = std::chrono::steady_clock::now();
  Program program({options.program, "--rehearsal", "--folder", folder.path()});
  Person person;
  Recorded recorded(path);
  Camera camera(options.pictures);
  const Table table{program, person, recorded, camera};
  openForInput(table);
  if (options.isFrench)
    person.press("F12");
  std::unique_ptr<Hand> hand;
  if (options.isByKeys)
    hand = std::make_unique<KeypadHand>(table);
  else if (original.details.recordingLevel() != RecordingLevel::Basic)
    hand = std::make_unique<LeagueHand>(table);
  else
    hand = std::make_unique<MouseHand>(table);
  const ReplayReport report = play(original, table, *hand, options.sharing);
  person.press("ctrl+q");
  const int status = program.waitForEnd();
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;

  recorded.read();
  GameState state;
  (void)Tally::run(state, recorded.game().events, recorded.game().roster[Side::Visitor],
                   recorded.game().roster[Side::Home]);
  std::vector<std::string> wrong = differences(recorded.game(), original);
  const bool hasBox = exists(std::filesystem::path(options.game).replace_extension(".json")); // real ones do
  if (hasBox) {
    for (const std::string& line : OfficialBox(options.game).differences(recorded.game(), state))
      wrong.push_back("official box: " + line);
  }
  if (options.isByKeys && person.effort().clicks > 0)
    wrong.push_back("not by keys alone: " + std::to_string(person.effort().clicks) + " clicks");
  if (status != 0)
    wrong.push_back("the program ended with status " + std::to_string(status));

  std::cout << options.game.stem().string() << (options.isFrench ? ", in French" : "") << ": "
            << original.events.size() << " events in " << std::fixed << std::setprecision(1) << took.count()
            << " s\n";
  print(report, *hand, original.events.size());
  for (const std::string& line : wrong)
    std::cout << line << '\n';
  std::cout << (!wrong.empty() ? "NOT the same game.\n"
                : hasBox       ? "The same game, to the second, and the official box score.\n"
                               : "The same game, to the second.\n");
  return wrong.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
  try {
    return run(parse({argv + 1, argv + argc}));
  } catch (const std::exception& failure) {
    std::cout << "FAILED: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
