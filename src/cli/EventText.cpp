#include "cli/Reports.h"
#include "feed/TextTable.h"
#include "game/EventWords.h"
#include "storage/Utf8.h"

namespace hooptab {

std::string eventsText(const Game& game, const Texts& texts) {
  const auto word = [&](Text which) { return std::string(texts.text(which)); };

  TextTable table;
  table.addColumn("No", TextTable::Align::Right);
  table.addColumn(word(Text::Period), TextTable::Align::Right);
  table.addColumn(word(Text::Clock), TextTable::Align::Right);
  table.addColumn(word(Text::Event), TextTable::Align::Left);
  const EventWords words(game, texts);
  for (std::size_t i = 0; i < game.events.size(); ++i) {
    const GameEvent& event = game.events[i];
    std::string text;
    for (const Text mark : {event.isDeleted ? Text::Deleted : Text::None,
                            event.isUnderstood ? Text::None : Text::NotUnderstood}) {
      if (mark != Text::None)
        text += '[' + word(mark) + "] ";
    }
    table.addRow({printable(event.key), words.periodText(event.period), words.clock(i),
                  text + printable(words.words(i))});
  }
  return table.text();
}

} // namespace hooptab
