// The settings of CONFIG.INI, section CONFIGURATION, read once at start-up and kept in memory; and the
// content that a first start writes (settings, six teams, 51 made-up players). Teams are edited elsewhere.
// The file is described in docs/formats/config.md.
#pragma once

#include "settings/Texts.h"
#include "storage/FileGuard.h"
#include "storage/PendingWrites.h"
#include "storage/ProfileStore.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

// The program's 16 custom colours of the colour chooser, decimal: red + 256 * green + 65536 * blue.
[[nodiscard]] const std::vector<std::uint32_t>& customColours();

// The colours that the user chooses, in the same form.
struct ChosenColours {
  std::uint32_t twoPoints = 0;
  std::uint32_t box = 0;
  std::uint32_t threePoints = 0;
  std::uint32_t buttons = 0; // of the live window
  friend bool operator==(const ChosenColours&, const ChosenColours&) = default;
};
inline constexpr ChosenColours kFirstColours = {9092558, 10132122, 8454143, 8421504}; // of a first start

// The external keypad's keys of CONFIGURATION, in the order in which the window that binds them shows them,
// and their values as stored: number of the key, "-", a label.
inline constexpr std::array<const char*, 17> kKeypadKeys = {"CLOCK", "OK0", "OK1", "CLR", "PF", "TF",
                                                            "BS",    "ST",  "DR",  "OR",  "TO", "A",
                                                            "IN",    "OUT", "All", "U1",  "U2"};
using KeypadKeyTexts = std::array<std::string, kKeypadKeys.size()>;
[[nodiscard]] const KeypadKeyTexts& firstKeypadKeyTexts(); // of a first start

// A rating that the user thought up; read by game/OwnRating.h and whoever reads formulas.
struct OwnRatingChoice {
  std::string formula; // RATING; empty: the program's rating alone
  std::string name;    // RATINGNAME: the head of its column
  friend bool operator==(const OwnRatingChoice&, const OwnRatingChoice&) = default;
};

class Settings {
 public:
  // `folder` is the program folder; CONFIG.INI stands in it.
  Settings(ProfileStore& store, std::string folder);
  Settings(const Settings&) = delete; // what waits to be written refers to this object
  Settings& operator=(const Settings&) = delete;

  // What prepare() found.
  enum class Preparation { AlreadyThere, FirstRun, FirstRunKeptOld, WriteFailed, CannotBeRead };
  // Writes the first-run content when the key list of CONFIGURATION is shorter than 10 characters, then reads
  // the settings. A file that held something else is kept first as CONFIG.INI.1, .2, ...; keptAs() names it.
  // When the content cannot be written, or the file not be read, the program goes on with it in memory.
  [[nodiscard]] Preparation prepare(const Texts& texts);
  const std::string& keptAs() const { return m_keptAs; }
  void read();

  const std::string& folder() const { return m_folder; }
  std::string path() const;

  // In memory, as read. Colours as above.
  std::uint32_t twoPointColour = 0;
  std::uint32_t boxColour = 0;
  std::uint32_t threePointColour = 0;
  std::uint32_t buttonColour = 0;
  std::string statisticLabel[2]; // STATU1, STATU2, with their prefix
  OwnRatingChoice ownRating;
  Language language = Language::English;
  bool asksRebounds = false;     // SAVEREBOUND
  bool keypadIsActive = false;   // KEYPAD
  KeypadKeyTexts keypadKeyTexts; // as stored
  std::string lastGameFolder;    // LASTPATHGAME, in the form of PathText; the program folder when it is none
  std::string lastScanFolder;    // LASTPATHBMP
  std::array<std::optional<std::string>, kLanguages.size()> webPage; // SITEEN, SITEFR, when there

  // The label of a user-defined statistic without its prefix; the open game's own label first, these
  // settings' where it is empty.
  [[nodiscard]] static std::string shownLabel(std::string_view label);
  // The diagnostic display is asked for by the first label.
  [[nodiscard]] bool asksForTextNumbers() const;

  // Each writes its keys at once and returns whether they are on disk; the value in memory is changed in any
  // case. What the disk did not take waits, and goes there in order with the next save or retry().
  bool saveLanguage(Language language);
  bool saveAsksRebounds(bool on);
  bool saveKeypadIsActive(bool on);
  bool saveKeypadKeyTexts(const KeypadKeyTexts& texts); // those that differ, in one write
  bool saveLastFolders();
  // Colours and the labels of the user's statistics, with their prefix: all in one write.
  bool saveAppearance(const ChosenColours& colours, const std::string (&labels)[2]);
  bool saveOwnRating(const OwnRatingChoice& choice);
  // What others keep in the same file (teams), behind what waits: on disk now, or kept like a setting. False
  // where the file is there and cannot be read: nobody knows what the change would meet.
  [[nodiscard]] bool saveOfOthers(const ProfileBatch& batch);
  // The file with all that waits to go there.
  [[nodiscard]] ProfileText content();
  bool retry();
  // Looks at the file: one that is gone, damaged or of another kind is written again as it was left, and so
  // is one that went back to an older version. To be called before what others keep there is read.
  void settle();
  // What was done about a file that others had replaced since this was last asked for; the path where theirs
  // is kept, empty where nothing of it is missing.
  struct Restored {
    std::string keptAs;
  };
  [[nodiscard]] std::optional<Restored> takeRestored() { return std::exchange(m_restored, std::nullopt); }
  bool isOnDisk() const { return m_pending.isEmpty(); }
  const PendingWrites& pending() const { return m_pending; }

 private:
  bool canBeRead();
  bool isComplete();
  WriteResult complete(const ProfileBatch& content);
  WriteResult keep(const std::string& bytes);
  void take(const std::function<std::string(std::string_view key)>& value);
  bool save(const char* key, std::string value);
  bool save(const ProfileBatch& batch);
  WriteResult write(const ProfileBatch& batch);
  [[nodiscard]] std::int64_t now() const { return m_store.files().nowNanoseconds(); }

  ProfileStore& m_store;
  std::string m_folder;
  std::string m_keptAs;
  PendingWrites m_pending;
  FileGuard m_guard;
  std::set<std::size_t> m_older; // of what was left there before, by its bytes
  std::optional<Restored> m_restored;
};

// The whole first-run content, in the order in which it is written.
[[nodiscard]] ProfileBatch firstRunContent(const Texts& texts, const std::string& folder);

} // namespace hooptab
