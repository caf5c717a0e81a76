// All that is given over the network: the program's pages with their words, the games that are followed, and
// a season where a folder is served. Decides what each address is; what it gives comes from others. Lives on
// the server's thread.
#pragma once

#include "publish/WebGame.h"
#include "publish/WebSource.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class WebSite : public WebSource {
 public:
  // Of the wall clock, in milliseconds since 1970.
  using Clock = std::function<std::int64_t()>;
  WebSite(Clock clock, const FeedOptions& options);

  // A game by its name in addresses (letters, digits, "-" and "_" alone). The first one stands at the root.
  void show(const std::string& name, const WebGame::Shown& game, bool isClockKnown,
            std::optional<std::int64_t> at = std::nullopt); // now
  void remove(const std::string& name);
  void setOptions(const FeedOptions& options);
  void setSeason(std::shared_ptr<const std::string> json);

  [[nodiscard]] WebAnswer answer(const WebRequest& request) override;
  [[nodiscard]] std::shared_ptr<WebStream> stream(const WebRequest& request) override;
  [[nodiscard]] bool isPrivate(const WebRequest& request) const override;
  void tick(std::int64_t now) override;

 private:
  struct Named {
    std::string name;
    std::unique_ptr<WebGame> game;
  };
  // A game and what is asked of it: "/box" of "/g/NAME/box".
  struct Place {
    WebGame* game = nullptr;
    std::string_view rest;
  };
  [[nodiscard]] Place placeOf(std::string_view path) const;
  [[nodiscard]] WebGame* gameNamed(std::string_view name) const;
  [[nodiscard]] WebAnswer answerOfGame(WebGame& game, std::string_view what, const WebRequest& request);
  [[nodiscard]] std::optional<WebAnswer> fixed(std::string_view path) const;
  [[nodiscard]] std::string gamesJson() const;

  Clock m_clock;
  FeedOptions m_options;
  Texts m_texts;
  std::vector<Named> m_games; // at least one, which shows no game at first
  std::map<std::string, WebAnswer, std::less<>> m_fixed;
  std::shared_ptr<const std::string> m_season;
};

// The name of a game in addresses, from that of its file: "2026-11-21-A-B". Empty where no letter is left.
[[nodiscard]] std::string webName(std::string_view fileName);

} // namespace hooptab
