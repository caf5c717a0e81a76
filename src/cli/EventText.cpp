#include "cli/Reports.h"
#include "cli/TextTable.h"
#include "game/EventWords.h"
#include "storage/Utf8.h"

namespace hooptab {

std::string eventsText(const Game& game, const Texts& texts) {
  constexpr int kPeriod = 1087;
  constexpr int kEvent = 1501;
  constexpr int kDeleted = 1505;
  constexpr int kNotUnderstood = 1518;
  constexpr int kClock = 1589;
  const auto word = [&](int number) { return std::string(texts.text(number)); };

  TextTable table;
  table.addColumn("No", TextTable::Align::Right);
  table.addColumn(word(kPeriod), TextTable::Align::Right);
  table.addColumn(word(kClock), TextTable::Align::Right);
  table.addColumn(word(kEvent), TextTable::Align::Left);
  const EventWords words(game, texts);
  for (std::size_t i = 0; i < game.events.size(); ++i) {
    const GameEvent& event = game.events[i];
    std::string text;
    for (const int mark : {event.isDeleted ? kDeleted : 0, event.isUnderstood ? 0 : kNotUnderstood}) {
      if (mark > 0)
        text += '[' + word(mark) + "] ";
    }
    table.addRow({printable(event.key), words.periodText(event.period), words.clock(i),
                  text + printable(words.words(i))});
  }
  return table.text();
}

} // namespace hooptab
