// A menu of games, read anew each time it opens, so that a start costs nothing: the recent files, or the
// sample games. Says which game was chosen; opening it is the main window's.
#pragma once

#include <QMenu>
#include <functional>
#include <vector>

namespace hooptab {

class ProfileStore;
class SharedFiles;
class Texts;
class WindowMemory;

struct GameEntry {
  QString label;
  QString path;
};

[[nodiscard]] std::vector<GameEntry> recentGames(WindowMemory& memory);
// Named by teams and date, oldest first; what is no game is left out.
[[nodiscard]] std::vector<GameEntry> sampleGames(const SharedFiles& files, ProfileStore& store);

class GameMenu : public QMenu {
  Q_OBJECT

 public:
  using List = std::function<std::vector<GameEntry>()>;
  GameMenu(List list, const Texts& texts, QWidget* parent);

 signals:
  void chosen(const QString& path);

 private:
  void fill();

  List m_list;
  const Texts& m_texts;
};

} // namespace hooptab
