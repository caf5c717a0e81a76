#include "shell/GameMenu.h"

#include "appearance/PlainText.h"
#include "appearance/relabel.h"
#include "game/GameFile.h"
#include "settings/Texts.h"
#include "shell/SharedFiles.h"
#include "shell/WindowMemory.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace hooptab {

std::vector<GameEntry> recentGames(WindowMemory& memory) {
  std::vector<GameEntry> games;
  for (const std::string& path : memory.recentFiles()) {
    const QFileInfo file(toQt(path));
    games.push_back({file.fileName(), file.filePath()});
  }
  return games;
}

std::vector<GameEntry> sampleGames(const SharedFiles& files, ProfileStore& store) {
  std::vector<std::pair<std::string, GameEntry>> dated;
  if (const std::optional<std::string> folder = files.find("samples")) {
    // Name filters of a folder pay no regard to letter case.
    for (const QFileInfo& file : QDir(toQt(*folder)).entryInfoList({QStringLiteral("*.GAM")}, QDir::Files)) {
      GameDetails details;
      if (GameFile(store, fromQt(file.filePath())).readDetails(details) != GameFileProblem::None)
        continue;
      const QString label = QStringLiteral("%1   %2 - %3")
                                .arg(toQt(details.date), toQt(details.abbreviation[Side::Visitor]),
                                     toQt(details.abbreviation[Side::Home]));
      dated.push_back({details.date, {label, file.filePath()}});
    }
  }
  std::ranges::stable_sort(dated, {}, [](const auto& game) { return game.first; });
  std::vector<GameEntry> games;
  for (auto& game : dated)
    games.push_back(std::move(game.second));
  return games;
}

GameMenu::GameMenu(List list, const Texts& texts, QWidget* parent)
    : QMenu(parent), m_list(std::move(list)), m_texts(texts) {
  setToolTipsVisible(true);
  connect(this, &QMenu::aboutToShow, this, &GameMenu::fill);
}

void GameMenu::fill() {
  clear();
  for (const GameEntry& game : m_list()) {
    QAction* entry = addAction(withoutMnemonic(game.label));
    entry->setToolTip(QDir::toNativeSeparators(game.path));
    connect(entry, &QAction::triggered, this, [this, path = game.path] { emit chosen(path); });
  }
  if (isEmpty())
    addAction(caption(m_texts, Text::NoGamesYet))->setEnabled(false);
}

} // namespace hooptab
