#include "recording/ForeignWords.h"

#include <cstddef>

namespace hooptab {

namespace {

constexpr int kTouched = 2388;
constexpr int kAdded = 2389;
constexpr int kRestored = 2390;
constexpr int kGaveWay = 2391;
constexpr int kRewritten = 2392;
constexpr int kKeptAs = 2393;
constexpr std::size_t kMostNamed = 5;

std::string keysOf(const std::vector<GameMerge::GivenWay>& lines) {
  std::string keys;
  for (std::size_t index = 0; index < lines.size() && index < kMostNamed; ++index)
    keys += (keys.empty() ? "" : ", ") + lines[index].key;
  return lines.size() > kMostNamed ? keys + ", …" : keys;
}

} // namespace

std::string foreignWords(const ForeignHands& hands, const Texts& texts) {
  std::string words;
  const auto add = [&](int text, const std::string& value) {
    words += (words.empty() ? "" : " ") + texts.withPlaceholder(text, value);
  };
  if (hands.isRewritten)
    add(kRewritten, {});
  else if (hands.added > 0 || hands.restored > 0 || !hands.gaveWay.empty())
    add(kTouched, {});
  if (hands.restored > 0)
    add(kRestored, std::to_string(hands.restored));
  if (hands.added > 0)
    add(kAdded, std::to_string(hands.added));
  if (!hands.gaveWay.empty())
    add(kGaveWay, keysOf(hands.gaveWay));
  if (!hands.keptAs.empty())
    add(kKeptAs, hands.keptAs.substr(hands.keptAs.rfind('/') + 1)); // beside the game
  return words;
}

} // namespace hooptab
