// Any bytes as a <bbgame>: what is read is built, held against its box and written without a crash or a hang;
// and what was written reads again, to as many events that count.
#include "bbgame/BbGameReader.h"
#include "bbgame/BbGameWriter.h"
#include "exchange/GameBuilder.h"
#include "exchange/Reconciliation.h"

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
    const XmlDocument document(std::string_view(reinterpret_cast<const char*>(data), size));
    static_cast<void>(recogniseBbGame(document));
    game = readBbGame(document);
  } catch (const UnreadableGame& unreadable) {
    require(static_cast<bool>(unreadable.why()));
    return 0;
  }
  const BuiltGame built = buildGame(game, std::string(32, 'a'));
  static_cast<void>(reconcile(game, built));
  require(readBbGame(XmlDocument(writeBbGame(game))).isFinished == game.isFinished);
  return 0;
}
