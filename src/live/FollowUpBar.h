// Who assisted, who took the rebound: asked beside the shooter's panel right after the shot, and never in the
// way. Answered by a click or the jersey's number; whatever is done elsewhere closes it as "Nobody" and is
// then carried out as what it was. Says who was chosen; records nothing.
#pragma once

#include "live/JerseyMatch.h"
#include "live/LiveGame.h"

#include <QWidget>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QKeyEvent;
class QLabel;

namespace hooptab {

class JerseyButton;
class Texts;

// What a key that is bound elsewhere means to the question.
struct FollowUpKey {
  enum class Kind { Digit, Take, Clear, GoOn };
  Kind kind = Kind::GoOn;
  int digit = 0;
  std::optional<int> team = std::nullopt; // of two equal numbers Take takes the one of this team
  bool isWholeNumber = false; // the number will be typed to its end, though its beginning may fit one alone
};

class FollowUpBar : public QWidget {
  Q_OBJECT
 public:
  // Lies over `parent`, the live window. `texts` must outlive it.
  FollowUpBar(const Texts& texts, QWidget* parent);
  ~FollowUpBar() override;

  // Opens in the middle of what it may hide: the shooter's panel, in global coordinates; or as near as it
  // fits into the parent. One that was open closes as "Nobody". With nobody to choose, nothing opens.
  void ask(const LiveGame& game, const LiveGame::FollowUps& followUps, int shooterTeam,
           const QRect& shooterPanel);
  // Asked first for every key; nothing for one that means here what it always does.
  using KeyReader = std::function<std::optional<FollowUpKey>(const QKeyEvent& event)>;
  void setKeyReader(KeyReader reader) { m_readKey = std::move(reader); }
  bool isOpen() const { return m_isOpen; }
  void dismiss(); // as "Nobody"

 signals:
  // After closed(), so that a further question can be asked.
  void assistChosen(int slot);
  void reboundChosen(int slot, bool isOffensive);
  void closed();                   // in any case
  void numberTyped(bool onKeypad); // its last digit has chosen a player

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  static constexpr int kMates = 4;
  static constexpr int kGroup = LiveGame::kSlotsOfTeam;
  struct Choice {
    JerseyButton* button = nullptr;
    int slot = 0;
    std::string jersey = {};
  };

  QWidget* makeAssist();
  QWidget* makeRebound();
  QLabel* makeTitle(QWidget* form);
  QLabel* makeBand(QWidget* form, const QString& name);
  QWidget* makeEnd(QWidget* form, const char* nobodyName);
  JerseyButton* makeButton(QWidget* form, int index);
  void offer(const LiveGame& game, JerseyButton& button, int slot);
  void nameTeam(const LiveGame& game, QLabel& band, int text, int team);
  [[nodiscard]] FollowUpKey meaningOf(const QKeyEvent& event) const;
  bool ownsKey(const QKeyEvent& event) const;
  void takeKey(const QKeyEvent& event);
  void takeDigit(const FollowUpKey& key);
  [[nodiscard]] bool isTypedToItsEnd(const FittingJersey& fitting) const;
  void take(std::optional<int> team);
  void narrow();
  void moveMark(int step);
  void choose(std::size_t choice);

  const Texts& m_texts;
  KeyReader m_readKey;
  QWidget* m_assist = nullptr;
  QWidget* m_rebound = nullptr;
  std::array<JerseyButton*, kMates> m_mates = {};
  std::array<JerseyButton*, 2 * kGroup> m_rebounders = {}; // offensive first
  QLabel* m_shooters = nullptr;
  std::array<QLabel*, 2> m_groups = {};
  std::array<QLabel*, 2> m_titles = {};

  bool m_isOpen = false;
  int m_shooterTeam = 0;
  std::vector<Choice> m_choices; // of the question that is open
  std::string m_typed;
  std::vector<FittingJersey> m_fitting; // places in m_choices
  std::optional<std::size_t> m_marked;  // in m_fitting: what Enter takes
};

} // namespace hooptab
