#include "exchange/GameImport.h"

#include "exchange/GameBuilder.h"
#include "game/GameFile.h"
#include "game/Tally.h"
#include "game/WallClock.h"
#include "settings/StorageWords.h"
#include "storage/GameLock.h"
#include "storage/Module1.h"
#include "storage/codepage.h"

#include <algorithm>
#include <filesystem>

namespace hooptab {

namespace {

namespace fs = std::filesystem;

// "2026-03-01 LYNX-PUMA.GAM"; without a date the first file's own name.
std::string nameOf(const ForeignGame& game, const SourceGroup& group) {
  if (game.date.empty())
    return Module1::asFileName(fs::path(group.files.front()).stem().string()) + ".GAM";
  return Module1::asFileName(game.date + ' ' + shortNameOf(game.teams[Side::Visitor]) + '-' +
                             shortNameOf(game.teams[Side::Home])) +
         ".GAM";
}

// Whether two files are one game, whenever each was taken in: all but the id that was drawn for it.
bool areOneGame(const ProfileText& existing, const ProfileText& built) {
  const auto withoutId = [](const ProfileText& text) {
    const std::string none;
    return text.withoutSection(kWallClockSection).withValue(kDetailsSection, "IDPARTIE", none).bytes();
  };
  return withoutId(existing) == withoutId(built);
}

class Import {
 public:
  Import(ProfileStore& store, const SourceGroup& group, const ImportRequest& request)
      : m_store(store), m_request(request) {
    m_game.group = group;
  }

  ImportedGame run(bool writes) {
    try {
      ForeignGame game = readGroup(m_store.files(), m_game.group);
      if (m_request.names != nullptr)
        m_request.names->add(game);
      if (m_request.joins != nullptr)
        m_request.joins->applyTo(game);
      if (game.date.empty())
        game.date = m_request.date;
      m_game.path = (fs::path(m_request.folder) / nameOf(game, m_game.group)).string();
      const ProfileReading there = m_store.read(m_game.path);
      const BuiltGame built = buildGame(game, idFor(there, game));
      m_game.differences = reconcile(game, built, &m_game.compared);
      describe(game, built);
      m_game.problem = obstacle(there, built);
      if (writes && !m_game.problem)
        write(built);
    } catch (const UnreadableGame& unreadable) {
      m_game.problem = unreadable.why();
    }
    return std::move(m_game);
  }

 private:
  // A game that is taken in again stays the game that it was.
  static std::string idFor(const ProfileReading& there, const ForeignGame& game) {
    GameDetails details;
    readDetails(there.text, details);
    const bool isSame = details.date == game.date && std::ranges::all_of(kSides, [&](Side team) {
                          return details.name[team] == codepage::storedForm(game.teams[team].name);
                        });
    return isSame && !details.id.empty() ? details.id : newGameId();
  }
  void describe(const ForeignGame& game, const BuiltGame& built) {
    Game own;
    readGame(built.text, own);
    GameState state;
    static_cast<void>(Tally::run(state, own.events, own.roster[Side::Visitor], own.roster[Side::Home]));
    for (const Side team : kSides) {
      m_game.names[team] = game.teams[team].name;
      m_game.abbreviations[team] = game.teams[team].abbreviation;
      m_game.points[team] = state.points(team);
    }
    m_game.date = game.date;
    m_game.isFinished = game.isFinished;
    m_game.unknown = game.unknown;
    m_game.notes = built.notes;
  }
  [[nodiscard]] ExchangeNote obstacle(const ProfileReading& there, const BuiltGame& built) {
    const bool isOfThisRun = m_request.written != nullptr && m_request.written->contains(m_game.path);
    if (there.outcome == ReadOutcome::Failed) {
      m_game.error = there.error;
      return {Text::GameNotWritten, m_game.path};
    }
    if (there.outcome == ReadOutcome::Absent || (m_request.replacesExisting && !isOfThisRun))
      return {};
    if (there.outcome == ReadOutcome::Read && areOneGame(there.text, built.text))
      return {Text::GameIsThereAlready, m_game.path};
    return {Text::OtherFileThere, m_game.path};
  }
  // What stands there is looked at once more under the lock: somebody may have made it meanwhile.
  void write(const BuiltGame& built) {
    GameLock lock;
    if (lock.acquire(m_store.files(), m_game.path) == GameLock::Outcome::HeldElsewhere) {
      m_game.problem = {Text::GameToReplaceIsOpen, m_game.path};
      return;
    }
    m_game.problem = obstacle(m_store.read(m_game.path), built);
    if (m_game.problem)
      return;
    const ProfileWrite written = m_store.replace(m_game.path, built.text, {});
    m_game.isWritten = written.isOnDisk();
    if (!m_game.isWritten) {
      m_game.problem = {Text::GameNotWritten, m_game.path};
      m_game.error = written.error();
    }
  }

  ProfileStore& m_store;
  const ImportRequest& m_request;
  ImportedGame m_game;
};

} // namespace

std::string problemWords(const ImportedGame& game, const Texts& texts) {
  const std::string reason = storageWords(game.error, texts);
  return reason.empty() ? inWords(game.problem, texts) : reason;
}

ImportedGame lookAtGame(ProfileStore& store, const SourceGroup& group, const ImportRequest& request) {
  return Import(store, group, request).run(false);
}

ImportedGame importGame(ProfileStore& store, const SourceGroup& group, const ImportRequest& request) {
  return Import(store, group, request).run(true);
}

} // namespace hooptab
