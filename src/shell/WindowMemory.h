// What the program remembers for comfort, in WINDOWS.INI of the program folder: places and columns of
// windows, recent files, the last choices. Losing it costs nothing, so it is read leniently and a failed
// write is no event. The file is described in docs/formats/config.md.
#pragma once

#include "appearance/ColourScheme.h"
#include "setup/NewGame.h"
#include "storage/ProfileStore.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class WindowMemory {
 public:
  static constexpr std::size_t kMostRecentFiles = 10;

  WindowMemory(ProfileStore& store, const std::string& programFolder);

  // How a window or a table was left, as a text without line breaks that only its owner understands; empty
  // when never.
  [[nodiscard]] std::string layout(std::string_view name);
  void rememberLayout(std::string_view name, std::string_view text);

  // Newest first, without those that are gone.
  [[nodiscard]] std::vector<std::string> recentFiles();
  // The same without a look at the disk, which may be slow: those that are gone are among them.
  [[nodiscard]] std::vector<std::string> rememberedFiles();
  void rememberFile(const std::string& path);

  [[nodiscard]] std::optional<ColourScheme> colourScheme();
  void rememberColourScheme(ColourScheme scheme);
  [[nodiscard]] int zoom(); // percent; 100 where none was chosen
  void rememberZoom(int percent);
  // Whether the court is painted calmer than its colours were set; at first it is.
  [[nodiscard]] bool courtIsCalm();
  void rememberCourtIsCalm(bool isCalm);
  // Where a report or a game for another system was saved last; empty when never.
  [[nodiscard]] std::string exportFolder();
  void rememberExportFolder(std::string_view folder);
  // As what a game was exported last; empty when never.
  [[nodiscard]] std::string exportKind();
  void rememberExportKind(std::string_view key);
  // Seconds between automatic refreshes of a scorecard: 10, 30, 60, or 0 for none.
  [[nodiscard]] int refreshSeconds();
  void rememberRefreshSeconds(int seconds);
  // The letters of the live window and how it tells what was recorded; empty when never chosen.
  [[nodiscard]] std::string keyChoices();
  void rememberKeyChoices(std::string_view choices);
  // What the next new game begins with.
  [[nodiscard]] LastChoices lastGame();
  void rememberLastGame(const LastChoices& choices);

 private:
  [[nodiscard]] std::map<int, TeamHabit> habits();
  std::string value(std::string_view section, std::string_view key);
  void write(std::string section, std::string_view key, std::string_view value);

  ProfileStore& m_store;
  std::string m_path;
};

} // namespace hooptab
