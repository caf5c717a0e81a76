// Any bytes as NBA live data, a play-by-play or an object of one and its box score: they are refused, or
// become a game that is built, held against its box and written without a crash or a hang; what was written
// reads as the same number of events.
#include "exchange/GameBuilder.h"
#include "exchange/Reconciliation.h"
#include "livedata/NbaLiveReader.h"
#include "livedata/NbaLiveWriter.h"

#include <cstdlib>
#include <string>

using namespace hooptab;

namespace {

std::optional<ForeignGame> gameIn(std::string_view bytes) {
  try {
    const Json file = parseJson(bytes);
    static_cast<void>(recogniseNbaLive(file));
    const Json& plays = member(file, "playByPlay");
    const Json& box = member(file, "box");
    return readNbaLive(plays.is_null() ? file : plays, box.is_null() ? nullptr : &box);
  } catch (const UnreadableGame&) {
    return std::nullopt;
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto game = gameIn({reinterpret_cast<const char*>(data), size});
  if (!game)
    return 0;
  static_cast<void>(reconcile(*game, buildGame(*game, std::string(32, 'a'))));
  const Json box = parseJson(writeNbaLiveBox(*game));
  const Json plays = parseJson(writeNbaLivePlays(*game));
  if (game->events.empty()) // a play-by-play without rows is none
    return 0;
  if (readNbaLive(plays, &box).events.size() != game->events.size())
    std::abort();
  return 0;
}
