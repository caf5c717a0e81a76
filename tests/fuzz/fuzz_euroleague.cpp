// Any bytes as the files of a EuroLeague game (an object of all three, or one document for each of them):
// what is read is built, compared and written without a crash or a hang, and what was written reads again to
// the same files.
#include "exchange/GameBuilder.h"
#include "exchange/Reconciliation.h"
#include "foreign/ExchangeNote.h"
#include "livedata/EuroLeagueReader.h"
#include "livedata/EuroLeagueWriter.h"

#include <array>
#include <cstdlib>
#include <string>

using namespace hooptab;

namespace {

void require(bool holds) {
  if (!holds)
    std::abort();
}

std::array<std::string, 3> filesOf(const ForeignGame& game) {
  return {writeEuroLeaguePlayByPlay(game), writeEuroLeagueBox(game), writeEuroLeaguePoints(game)};
}
ForeignGame gameOf(const std::array<std::string, 3>& files) {
  const Json box = parseJson(files[1]);
  const Json points = parseJson(files[2]);
  return readEuroLeague(parseJson(files[0]), &box, &points);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const Json document = parseJson(std::string(data, data + size));
    static_cast<void>(recogniseEuroLeague(document));
    const bool isOfAll = document.contains("playbyplay");
    const auto part = [&](const char* name) { return isOfAll ? &member(document, name) : &document; };
    const ForeignGame game = readEuroLeague(*part("playbyplay"), part("boxscore"), part("points"));
    static_cast<void>(reconcile(game, buildGame(game, std::string(32, 'f'))));
    const std::array<std::string, 3> files = filesOf(game);
    require(recogniseEuroLeague(parseJson(files[0])).has_value());
    if (const ForeignGame again = gameOf(files); !again.events.empty())
      require(filesOf(gameOf(filesOf(again))) == filesOf(again));
  } catch (const UnreadableGame&) {
    return 0;
  }
  return 0;
}
