// Asks for an event of a live game: its time, and for what is counted the player or team, the kind, made or
// missed, the place, and the details that the game has or its level asks for. Serves the change of an event
// as well as a new one; changes nothing itself.
#pragma once

#include "game/Side.h"
#include "recording/LiveGame.h"

#include <QDialog>
#include <QVariant>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace hooptab {

class DetailBoxes;
class MiniCourt;
class Settings;
class StatButton;
class Texts;

class frmEDIT : public QDialog {
  Q_OBJECT
 public:
  // All must outlive it. With the event as it stands; a new one begins with the clock of `event` alone.
  enum class Purpose { Change, Insert };
  frmEDIT(const LiveGame& game, const EventPlace& event, Purpose purpose, const Settings& settings,
          const Texts& texts, QWidget* parent = nullptr);

  int clockSeconds() const;
  // Nothing where the time alone is changed: for the clock's own events, and for one whose player has no row
  // of his own and was not exchanged for one who has.
  std::optional<LiveGame::Counted> counted() const;

 signals:
  void clockAsked(); // by its key: the game goes on meanwhile

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Who { Player, Team, TeamOrNobody, Jumpers };

  void makeFields();
  QLayout* makeButtons();
  StatButton* makeButton(EventCode code, const char* name, Text toolTip);
  void makeLayout();
  void fillKinds();
  void fillWho();
  void showWho();
  void showDetails();
  void fill();
  void pressCourt(QPointF place, bool isMade);
  void take(EventCode kind, bool isMade);
  void showShot();
  void showAccept();
  // What is counted.
  struct Typed {
    QVariant player;
    int kind = 0;
    bool isMade = false;
    std::optional<std::pair<double, double>> place;
    std::vector<std::pair<std::string, std::string>> details;
    friend bool operator==(const Typed&, const Typed&) = default;
  };
  Typed typed() const;
  bool fitsZone(EventCode kind) const;
  [[nodiscard]] EventCode kind() const;
  [[nodiscard]] Who whoDoes(EventCode kind) const;
  [[nodiscard]] std::optional<Side> team() const; // as chosen, else the event's
  [[nodiscard]] std::string lineAsChosen(Side team) const;

  const Purpose m_purpose;
  const Game& m_game;
  const Settings& m_settings;
  const Texts& m_texts;
  // As it stands when the window opens, from a copy of its line; of a new one none.
  std::string m_key;
  std::string m_line;
  GameEvent m_event;
  bool m_isCounted = true;
  Typed m_before; // as the event stands
  std::optional<std::pair<double, double>> m_place;
  QLineEdit* m_time = nullptr;
  QComboBox* m_player = nullptr; // or the team
  QLabel* m_whoCaption = nullptr;
  Who m_who = Who::Player; // in the box
  QVariant m_lastPlayer;   // chosen before the kind became a team's
  QComboBox* m_kind = nullptr;
  QCheckBox* m_made = nullptr;
  MiniCourt* m_court = nullptr;
  DetailBoxes* m_details = nullptr;
  std::pair<EventCode, std::optional<Side>> m_detailsOf; // kind and team
  QLabel* m_shot = nullptr;
  QLabel* m_xy = nullptr;
  QLabel* m_nameFirst = nullptr;
  std::vector<StatButton*> m_buttons;
  QPushButton* m_accept = nullptr;
};

} // namespace hooptab
