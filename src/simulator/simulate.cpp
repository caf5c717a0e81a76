// hooptab-simulate: writes games that the simulator played, as files of the program.
#include "simulator/SampleSeason.h"
#include "storage/ProfileStore.h"

#include <charconv>
#include <filesystem>
#include <iostream>
#include <optional>
#include <set>
#include <string>
#include <vector>

using namespace hooptab;

namespace {

constexpr const char* kUsage = "usage: hooptab-simulate season FOLDER [--games N] [--seed S]\n"
                               "       hooptab-simulate samples FOLDER\n";

struct Request {
  std::string what;
  std::filesystem::path folder;
  int games = 100;
  std::uint64_t seed = 1;
};

template <typename Number>
bool read(const std::string& text, Number& number) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end;
}

std::optional<Request> requestOf(const std::vector<std::string>& arguments) {
  Request request;
  if (arguments.size() < 2 || arguments.size() % 2 != 0)
    return std::nullopt;
  request.what = arguments[0];
  request.folder = arguments[1];
  if (request.what != "season" && !(request.what == "samples" && arguments.size() == 2))
    return std::nullopt;
  for (std::size_t i = 2; i < arguments.size(); i += 2) {
    const bool isRead = arguments[i] == "--games"  ? read(arguments[i + 1], request.games)
                        : arguments[i] == "--seed" ? read(arguments[i + 1], request.seed)
                                                   : false;
    if (!isRead || request.games < 1)
      return std::nullopt;
  }
  return request;
}

// A season can be played again, so its files need not outlast a power cut: waiting for the disk would take
// most of the time.
class UnsyncedFileSystem : public FileSystem {
 public:
  int sync(int) override { return 0; }
};

// Writes games into one folder, each under the name that the program would propose. A day on which the same
// teams met before gets a number behind the name.
class GameWriter {
 public:
  explicit GameWriter(std::filesystem::path folder) : m_folder(std::move(folder)) {
    std::filesystem::create_directories(m_folder);
  }
  bool write(const SimulatedGame& game) {
    const std::filesystem::path name = game.fileName();
    std::filesystem::path path = m_folder / name;
    for (int i = 2; !m_written.insert(path).second; ++i)
      path = m_folder / (name.stem().string() + std::to_string(i) + name.extension().string());
    std::filesystem::remove(path); // of an earlier run
    return m_store.write(path.string(), game.batch()).isOnDisk();
  }

 private:
  std::filesystem::path m_folder;
  UnsyncedFileSystem m_files;
  ProfileStore m_store{m_files};
  std::set<std::filesystem::path> m_written;
};

bool writeSeason(const Request& request) {
  const SampleSeason season(request.games, request.seed);
  GameWriter writer(request.folder);
  for (int i = 0; i < request.games; ++i) {
    if (!writer.write(season.game(i)))
      return false;
  }
  return true;
}

// What a first start has to look at: sixteen finished games, three of them with overtime, and one that
// stopped in its third period.
bool writeSamples(const Request& request) {
  constexpr int kFinished = 16;
  constexpr std::uint64_t kSeed = 2025;
  const SampleSeason season(kFinished + 1, kSeed);
  GameWriter writer(request.folder);
  for (int i = 0; i < kFinished; ++i) {
    if (!writer.write(season.game(i, {.overtime = i % 6 == 3, .interruption = std::nullopt})))
      return false;
  }
  constexpr GameSimulator::Interruption kInThirdPeriod{3, 277};
  return writer.write(season.game(kFinished, {.overtime = false, .interruption = kInThirdPeriod}));
}

} // namespace

int main(int count, char** arguments) {
  const std::optional<Request> request = requestOf({arguments + 1, arguments + count});
  if (!request) {
    std::cerr << kUsage;
    return 2;
  }
  try {
    if (request->what == "season" ? writeSeason(*request) : writeSamples(*request))
      return 0;
    std::cerr << "hooptab-simulate: a game could not be written to " << request->folder.string() << "\n";
  } catch (const std::filesystem::filesystem_error& error) {
    std::cerr << "hooptab-simulate: " << error.what() << "\n";
  }
  return 1;
}
