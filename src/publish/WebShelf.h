// Games that are given over the network as they are asked for: those of files, of which there may be
// thousands.
#pragma once

#include "game/Side.h"
#include "publish/WebGame.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace hooptab {

// A game in the list of games.
struct WebListing {
  std::string name; // in addresses
  std::string date;
  std::string state; // as the feed has it
  int period = 0;
  PerSide<std::string> abbreviation;
  PerSide<std::string> team;
  PerSide<int> points = {};
};
[[nodiscard]] WebListing webListing(const std::string& name, const RunningGame& game);

class WebShelf {
 public:
  WebShelf() = default;
  WebShelf(const WebShelf&) = delete;
  WebShelf& operator=(const WebShelf&) = delete;
  virtual ~WebShelf() = default;

  // The last one first.
  [[nodiscard]] virtual std::span<const WebListing> games() const = 0;
  // Nothing where there is none of that name, or it cannot be read.
  [[nodiscard]] virtual std::optional<WebGame::Moment> load(std::string_view name) = 0;
};

} // namespace hooptab
