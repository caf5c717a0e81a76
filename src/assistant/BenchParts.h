// The parts of the bench window, each painted in whatever room it gets: the head, the tiles, tables of
// players and fives, the four factors. Their type grows with their height, so that a large screen is read
// from the bench. They show what they are given, say it to screen readers, and take no keys.
#pragma once

#include "assistant/BenchFigures.h"

#include <QFont>
#include <QWidget>

#include <vector>

namespace hooptab {

// Of a row of that height.
[[nodiscard]] QFont benchFont(int rowHeight, QFont::Weight weight);

class BenchPart : public QWidget {
 public:
  BenchPart(const char* name, QWidget* parent);

 protected:
  // What is shown, in words; repaints where it reads otherwise than before.
  void say(const QString& title, const QStringList& words);
};

class BenchHead : public BenchPart {
 public:
  explicit BenchHead(QWidget* parent);
  void showFigures(const BenchFigures& figures, const QString& state, const QString& fouls);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int paintTeam(QPainter& painter, int x, const BenchFigures::Team& team) const;
  void paintFouls(QPainter& painter, int left) const;

  BenchFigures::Team m_us, m_them;
  QString m_clock, m_period, m_fouls;
  bool m_isRunning = false;
};

class BenchTile : public BenchPart {
 public:
  using BenchPart::BenchPart;
  void showTile(const BenchFigures::Tile& tile);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  BenchFigures::Tile m_tile;
};

class BenchTable : public BenchPart {
 public:
  enum class Tone { Usual, Quiet, Good, Bad };
  struct Cell {
    QString text = {};
    Tone tone = Tone::Usual;
    bool isBold = false;
    int pips = -1; // fouls as dots, in place of a text
  };
  struct Row {
    std::vector<Cell> cells = {};
    bool isAlarm = false;
    bool isRaised = false;
    bool isOut = false;    // red squares in place of dots
    bool hasPlate = false; // the jersey on ink
  };
  struct Column {
    QString head;
    double width = 0; // in heights of the type; 0: what is left, once a table
    bool isRight = true;
  };
  BenchTable(const char* name, std::vector<Column> columns, QWidget* parent);

  void showRows(const QStringList& heads, std::vector<Row> rows, int pips);
  void setRowHeight(int height);
  [[nodiscard]] static Cell signedCell(int number);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] std::vector<QRect> places(int top, int type) const;
  void paintPips(QPainter& painter, const QRect& place, const Row& row, int count, int type) const;

  std::vector<Column> m_columns;
  std::vector<Row> m_rows;
  int m_pips = 0;
  int m_rowHeight = 24;
};

class BenchFactors : public BenchPart {
 public:
  explicit BenchFactors(QWidget* parent);
  void showFactors(const QString& title, const BenchFigures& figures);
  void setRowHeight(int height);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_title, m_teams;
  std::vector<BenchFigures::Factor> m_factors;
  int m_rowHeight = 24;
};

} // namespace hooptab
