// The game files that a server gives, and those of a folder: each is read when it is asked for, and again
// when it has changed. Whether the clock of a game runs, and how far, follows from its events and from when
// they happened. Lives on one thread.
#pragma once

#include "publish/WebShelf.h"
#include "recording/TimeSource.h"
#include "storage/FileSystem.h"
#include "storage/ProfileStore.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace hooptab {

class GameFiles : public WebShelf {
 public:
  // Files, and folders without their sub-folders. `now`: the wall clock, in milliseconds since 1970.
  GameFiles(std::vector<std::string> paths, std::function<std::int64_t()> now);

  // Reads the games at these paths that are served or stand in a folder that is, and no others: the names of
  // those that have changed, came or went.
  std::vector<std::string> look(const std::vector<std::string>& changed);
  // Those that could not be read, with their reason; the others are given all the same.
  struct Fault {
    std::string path;
    GameFileProblem problem = GameFileProblem::None;
  };
  [[nodiscard]] const std::vector<Fault>& faults() const { return m_faults; }
  [[nodiscard]] bool isEmpty() const { return m_listings.empty(); }

  [[nodiscard]] std::span<const WebListing> games() const override { return m_listings; }
  [[nodiscard]] std::optional<WebGame::Moment> load(std::string_view name) override;

 private:
  struct File {
    std::string path;
    std::string name;
  };
  void take(const std::string& path);
  void drop(const std::string& path);
  [[nodiscard]] bool isServed(const std::string& path) const;
  void sortListings();
  [[nodiscard]] std::optional<WebGame::Moment> read(const std::string& path, GameFileProblem& problem);
  [[nodiscard]] std::string freeName(const std::string& path) const;

  std::vector<std::string> m_paths;
  std::function<std::int64_t()> m_now;
  FileSystem m_system;
  ProfileStore m_store{m_system};
  SystemTime m_time;
  std::vector<File> m_files;
  std::vector<WebListing> m_listings;
  std::vector<Fault> m_faults;
};

} // namespace hooptab
