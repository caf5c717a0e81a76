// Asks for an event of a live game: its time, and for what is counted the player, the kind, made or missed,
// and the place. Serves the change of an event as well as a new one; changes nothing itself.
#pragma once

#include "recording/LiveGame.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

namespace hooptab {

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
  void makeFields();
  QLayout* makeButtons();
  StatButton* makeButton(EventCode code, const char* name, Text toolTip);
  void makeLayout();
  void fill(const GameEvent& event);
  void pressCourt(QPointF place, bool isMade);
  void take(EventCode kind, bool isMade);
  void showShot();
  void showAccept();
  // What is counted, but for the player.
  struct Typed {
    int kind = 0;
    bool isMade = false;
    std::optional<std::pair<double, double>> place;
    friend bool operator==(const Typed&, const Typed&) = default;
  };
  Typed typed() const;
  bool fitsZone(EventCode kind) const;

  const Purpose m_purpose;
  const Game& m_game;
  const Settings& m_settings;
  const Texts& m_texts;
  bool m_isCounted = true;
  Typed m_before; // as the event stands
  std::optional<std::pair<double, double>> m_place;
  QLineEdit* m_time = nullptr;
  QComboBox* m_player = nullptr;
  QComboBox* m_kind = nullptr;
  QCheckBox* m_made = nullptr;
  MiniCourt* m_court = nullptr;
  QLabel* m_shot = nullptr;
  QLabel* m_xy = nullptr;
  QLabel* m_nameFirst = nullptr;
  std::vector<StatButton*> m_buttons;
  QPushButton* m_accept = nullptr;
};

} // namespace hooptab
