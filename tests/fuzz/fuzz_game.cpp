// Any bytes as a game file: they are parsed, read as events, checked and counted without a crash or a hang;
// what is written back unchanged is equal byte for byte, and a value that is set reads back and leaves the
// other sections' keys as they were.
#include "checks/FindingWords.h"
#include "checks/GameCheck.h"
#include "game/GameFile.h"
#include "game/Tally.h"
#include "storage/ProfileText.h"
#include "storage/codepage.h"

#include <cstdlib>
#include <string>

using namespace hooptab;

namespace {

void require(bool holds) {
  if (!holds)
    std::abort();
}

int totalOf(const GameState& state, bool byLine) {
  int total = 0;
  for (const Side team : kSides) {
    const auto add = [&](const Counters& counters) {
      for (const std::int16_t count : counters.counts)
        total += count;
    };
    if (byLine) {
      for (const LineEntry& line : state.lines[team])
        add(line.counters);
    } else {
      for (const PlayerEntry& player : state.players[team])
        add(player.counters);
    }
  }
  return total;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const ProfileText text(bytes);
  require(text.bytes() == bytes);

  Game game;
  readGame(text, game);
  GameState state;
  static_cast<void>(Tally::run(state, game.events, game.roster[Side::Visitor], game.roster[Side::Home]));
  require(totalOf(state, false) == totalOf(state, true));
  const Texts texts;
  for (const Finding& finding : checkGame(game, text, {}))
    require(!wordsOf(finding, game, texts).empty());

  // Replaying one event at a time finds the same counts.
  GameState replayed;
  Tally tally(replayed, game.roster[Side::Visitor], game.roster[Side::Home]);
  std::size_t index = 0;
  for (const GameEvent& event : game.events)
    tally.apply(event, index++);
  require(totalOf(replayed, false) == totalOf(state, false) && replayed.lead.seconds == state.lead.seconds);

  // Writing what is there already changes nothing; a new value reads back, and every other key keeps its own.
  for (const std::string_view section : text.sectionNames()) {
    for (const ProfileText::Line& line : text.section(section)) {
      if (line.kind != ProfileText::Line::Kind::KeyValue || line.name.empty())
        continue;
      if (const auto value = text.value(section, line.name))
        require(text.withValue(section, line.name, *value).bytes() == bytes);
      break;
    }
  }
  const ProfileText changed = text.withValue("fuzz section", "fuzz key", "7");
  require(changed.value("fuzz section", "fuzz key") == "7");
  require(ProfileText(changed.bytes()).value("fuzz section", "fuzz key") == "7");
  require(codepage::fromUtf8(codepage::toUtf8(bytes)) == bytes);
  return 0;
}
