// All that is given over the network: the program's pages with their words, the games that are followed, and
// a season where a folder is served. Decides what each address is; what it gives comes from others. Lives on
// the server's thread.
#pragma once

#include "publish/WebGame.h"
#include "publish/WebShelf.h"
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
  void show(const std::string& name, const WebGame::Moment& moment);
  // More of them, each read when somebody asks for it. With more than one, the root is their list, and none
  // stands there.
  void setShelf(std::unique_ptr<WebShelf> shelf) { m_shelf = std::move(shelf); }
  [[nodiscard]] WebShelf* shelf() const { return m_shelf.get(); }
  // Reads the game anew where somebody has asked for it; one that is gone goes.
  void refresh(const std::string& name);
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
  // What is asked of which game: "/box" of "/g/NAME/box".
  struct Place {
    WebGame* game = nullptr;
    std::string_view rest;
  };
  [[nodiscard]] Place placeOf(std::string_view path);
  [[nodiscard]] WebGame* atRoot();
  [[nodiscard]] WebGame* known(std::string_view name) const;
  [[nodiscard]] WebGame* gameNamed(std::string_view name);
  WebGame& add(const std::string& name);
  [[nodiscard]] WebAnswer answerOfGame(WebGame& game, std::string_view what, const WebRequest& request);
  [[nodiscard]] std::string gamesJson() const;

  using Fixed = std::map<std::string, WebAnswer, std::less<>>;
  Clock m_clock;
  FeedOptions m_options;
  Texts m_texts;
  std::vector<Named> m_games;
  std::unique_ptr<WebShelf> m_shelf;
  Fixed m_pages; // of a game
  Fixed m_files; // of none
  std::shared_ptr<const std::string> m_season;
};

// The name of a game in addresses, from that of its file: "2026-11-21-A-B". Empty where no letter is left.
[[nodiscard]] std::string webName(std::string_view fileName);

} // namespace hooptab
