// The panel of one of the ten places on court: who stands there, his court and buttons for shots and actions,
// and his counts. Shows, and says what was pressed; records nothing.
#pragma once

#include "game/EventKind.h"
#include "recording/LivePanel.h"
#include "recording/Slot.h"

#include <QPointF>
#include <QWidget>

#include <array>
#include <cstdint>
#include <map>
#include <string>

class QLabel;
class QPainter;

namespace hooptab {

class CountBox;
class LiveGame;
class MiniCourt;
class Settings;
class StatButton;
class Texts;

class PlayerPanel : public QWidget {
  Q_OBJECT
 public:
  // Settings and texts must outlive it.
  PlayerPanel(Slot slot, const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showGame(const LiveGame& game); // everything
  void showTime(const LiveGame& game); // the time on court alone
  void setPlaysRight(bool playsRight); // on the right-hand side of the court: the picture is turned round
  void setSelected(bool isSelected);   // for the next action, or whom a question is about: framed
  void relabelPanel();
  void applyColours();
  // Whether a press on it is one on the head of a panel, and on nothing that records.
  static bool isHead(const QWidget& widget);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // `place` is in units of the court as it is shown, not yet turned into left-hand orientation.
  void courtPressed(hooptab::Slot slot, QPointF place, bool isMade);
  void shotPressed(hooptab::Slot slot, hooptab::EventCode kind, bool isMade); // the five buttons
  void emptyPressed(hooptab::Slot slot);                                      // nobody stands here
  void headPressed(hooptab::Slot slot);                                       // number, name, points
  void actionPressed(hooptab::Slot slot, hooptab::EventCode kind);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void makeHead();
  void makeShots();
  void makeActions();
  QLabel* headLabel(const char* name, Text toolTip);
  [[nodiscard]] QString named(const char* name) const; // "lblFG(3)"
  void showPanel();
  void showFouls();
  void showName();
  void showOwnLabels();
  void layOut();
  void layOutHead();
  void paintPips(QPainter& painter) const;
  // From the panel's design to the panel as it is.
  [[nodiscard]] int across(int length) const;
  [[nodiscard]] int down(int length) const;

  Slot m_slot;
  bool m_isSelected = false;
  const Settings& m_settings;
  const Texts& m_texts;
  LivePanel m_shown;
  std::uint32_t m_teamColour = 0;         // as files keep it
  int m_mostFouls = 0;                    // personal ones; 0: no limit
  std::array<std::string, 2> m_ownLabels; // of the user's two statistics, as the game has them

  QWidget* m_content; // everything but the frame; hidden in an empty panel
  QLabel* m_entry = nullptr;
  QLabel* m_jersey = nullptr;
  QLabel* m_name = nullptr;
  QLabel* m_points = nullptr;
  QLabel* m_time = nullptr;
  MiniCourt* m_court = nullptr;
  std::map<EventCode, StatButton*> m_buttons;
  std::map<EventCode, CountBox*> m_counts; // of the buttons, and of the two kinds that the court records
  CountBox* m_total = nullptr;
};

} // namespace hooptab
