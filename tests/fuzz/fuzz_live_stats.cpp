// Any bytes as a game of FIBA LiveStats: what is read can be built, counted and held against its own numbers,
// and what is written of it reads as the same game once more.
#include "exchange/GameBuilder.h"
#include "exchange/Reconciliation.h"
#include "livedata/LiveStatsReader.h"
#include "livedata/LiveStatsWriter.h"

#include <cstdlib>
#include <string>

using namespace hooptab;

namespace {

void require(bool holds) {
  if (!holds)
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ForeignGame game;
  try {
    const Json file = parseJson({reinterpret_cast<const char*>(data), size});
    static_cast<void>(recogniseLiveStats(file));
    game = readLiveStats(file);
  } catch (const UnreadableGame& unreadable) {
    require(static_cast<bool>(unreadable.why()));
    return 0;
  }
  static_cast<void>(reconcile(game, buildGame(game, std::string(32, 'a'))));

  // One way loses what the format does not hold, a second one nothing more.
  const std::string written = writeLiveStats(game);
  const ForeignGame again = readLiveStats(parseJson(written));
  require(again.unknown.empty());
  require(again.isFinished == game.isFinished || game.events.empty());
  require(again.events.size() == game.events.size());
  require(writeLiveStats(again) == written);
  return 0;
}
