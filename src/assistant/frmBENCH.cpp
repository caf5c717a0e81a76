#include "assistant/frmBENCH.h"

#include "appearance/ElidedLabel.h"
#include "appearance/OtherScreen.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "assistant/BenchParts.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <QToolButton>

#include <algorithm>
#include <chrono>
#include <utility>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr QSize kSize(1024, 720);
constexpr QSize kSmallest(720, 480);
constexpr QSize kDesigned(900, 600); // at which the lengths below hold
constexpr auto kRefresh = 100ms;     // behind the first news of what is shown next
constexpr auto kTick = 250ms;
constexpr int kFiveRows = 5;
constexpr int kBenchRows = 7; // of twelve players
constexpr int kFiveLines = 5; // best, worst, now
constexpr int kFactors = 4;
constexpr int kMostPips = 6;
constexpr double kLeftShare = 0.585;

using Cell = BenchTable::Cell;
using Tone = BenchTable::Tone;

QString headOf(const Texts& texts, Text text, const std::string& team) {
  return QStringLiteral("%1 · %2").arg(caption(texts, text), toQt(team));
}

BenchTable::Row rowOf(const BenchFigures::Player& player, const Texts& texts, bool isOnCourt) {
  BenchTable::Row row{
      .isAlarm = isOnCourt && player.isInTrouble, .isOut = player.isOut, .hasPlate = isOnCourt};
  const Tone tone = isOnCourt || (player.hasPlayed && !player.isOut) ? Tone::Usual : Tone::Quiet;
  const auto text = [&](const std::string& words) {
    return Cell{.text = player.hasPlayed ? toQt(words) : QStringLiteral("–"), .tone = tone};
  };
  Cell stay = text(player.stay);
  stay.isBold = isOnCourt;
  if (player.isOut)
    stay = {.text = caption(texts, Text::FouledOutWord), .tone = Tone::Bad, .isBold = true};
  else if (player.isLong)
    stay = {.text = QStringLiteral("▲ ") + toQt(player.stay), .tone = Tone::Bad, .isBold = true};
  row.cells = {{.text = toQt(player.jersey), .tone = tone, .isBold = true},
               {.text = toQt(player.name), .tone = tone},
               {.pips = player.fouls},
               text(player.minutes),
               player.hasPlayed ? BenchTable::signedCell(player.plusMinus) : text({}),
               text(std::to_string(player.points)),
               std::move(stay)};
  return row;
}

} // namespace

frmBENCH::frmBENCH(GameSession& session, const Texts& texts, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::WindowDoesNotAcceptFocus), m_game(session.game()), m_texts(texts) {
  setObjectName(QStringLiteral("frmBENCH"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setMinimumSize(kSmallest);
  makeParts();
  makeTeams();
  m_refresh.setSingleShot(true);
  m_refresh.setInterval(kRefresh);
  m_tick.setInterval(kTick);
  connect(&m_refresh, &QTimer::timeout, this, &frmBENCH::refresh);
  connect(&m_tick, &QTimer::timeout, this, &frmBENCH::askRefresh);
  m_listening = session.listen([this](const GameNews& news) {
    if (!news.isOfGame())
      return;
    m_record.reset();
    askRefresh();
  });
  relabelWindow();
  applyColours();
}

void frmBENCH::makeParts() {
  m_head = new BenchHead(this);
  constexpr std::array kTiles = {"picBENCHRUN", "picBENCHSINCE", "picBENCHFOULS"};
  for (std::size_t i = 0; i < kTiles.size(); ++i)
    m_tiles[i] = new BenchTile(kTiles[i], this);
  const std::vector<BenchTable::Column> players = {{{}, 2.8, false}, {{}, 0, false}, {{}, 5.2}, {{}, 3.6},
                                                   {{}, 2.8},        {{}, 2.4},      {{}, 4.6}};
  m_five = new BenchTable("lvwFIVE", players, this);
  m_thisFive = new ElidedLabel(this);
  m_thisFive->setObjectName(QStringLiteral("lblTHISFIVE"));
  m_thisFive->setAutoFillBackground(true);
  m_thisFive->setBackgroundRole(QPalette::AlternateBase);
  m_bench = new BenchTable("lvwBENCH", players, this);
  m_factors = new BenchFactors(this);
  m_fives = new BenchTable("lvwFIVES", {{{}, 0, false}, {{}, 3.6}, {{}, 3}, {{}, 3.4}}, this);
  m_theirFive = new BenchTable("lvwTHEIRFIVE", {{{}, 2.8, false}, {{}, 0, false}, {{}, 3}, {{}, 5.2}}, this);
}

void frmBENCH::makeTeams() {
  for (const Side team : kSides) {
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("cmdBENCHTEAM(%1)").arg(numberOf(team)));
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->setFocusPolicy(Qt::NoFocus);
    setToolTipNumber(*button, Text::BenchViewTip);
    connect(button, &QToolButton::clicked, this, [this, team] { setTeam(team); });
    m_teams[team] = button;
  }
}

void frmBENCH::open(const QByteArray& geometry) {
  showOnOtherScreen(*this, geometry, kSize);
  m_shown.start();
}

void frmBENCH::comeToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  m_shown.start();
}

bool frmBENCH::isInSight() const {
  return isVisible() && !isMinimized() &&
         m_shown.elapsed() >= QGuiApplication::styleHints()->mouseDoubleClickInterval();
}

void frmBENCH::setTeam(Side team) {
  m_us = team;
  askRefresh();
}

void frmBENCH::showEvent(QShowEvent*) {
  refresh();
}

// The first news begins the wait, so that what comes meanwhile is shown with it, and never later.
void frmBENCH::askRefresh() {
  if (isVisible() && !m_refresh.isActive())
    m_refresh.start();
}

void frmBENCH::refresh() {
  const bool isRunning = m_game.phase() == LiveGame::Phase::Running;
  if (!isRunning)
    m_tick.stop();
  else if (!m_tick.isActive())
    m_tick.start();
  if (!isVisible())
    return;
  if (!m_record)
    m_record.emplace(m_game);
  const BenchFigures figures = BenchFigures::of(m_game, *m_record, m_us, m_texts);
  m_head->showFigures(figures, caption(m_texts, figures.isRunning ? Text::ClockRuns : Text::ClockStands),
                      caption(m_texts, Text::TeamFouls));
  m_tiles[0]->showTile(figures.run);
  m_tiles[1]->showTile(figures.sinceTimeOut);
  m_tiles[2]->showTile(figures.foulTrouble);
  showTables(figures);
  const int benchRows = std::max(static_cast<int>(figures.bench.size()), kBenchRows);
  bool isLaidOut = std::exchange(m_benchRows, benchRows) == benchRows;
  for (const Side team : kSides) {
    const QString name = toQt(team == m_us ? figures.us.name : figures.them.name);
    m_teams[team]->setText(withoutMnemonic(name));
    m_teams[team]->setAccessibleName(name);
    m_teams[team]->setChecked(team == m_us);
    isLaidOut = isLaidOut && m_teams[team]->width() >= m_teams[team]->sizeHint().width();
  }
  const QString title =
      QStringLiteral("%1 – %2").arg(caption(m_texts, Text::BenchView), toQt(figures.us.name));
  setWindowTitle(asTitle(title));
  if (!isLaidOut)
    layOut();
}

void frmBENCH::showTables(const BenchFigures& figures) {
  const int limit = m_game.game().details.personalFoulLimit;
  const int pips = limit > 0 && limit <= kMostPips ? limit : kFiveRows;
  const QString minutes = caption(m_texts, Text::MinutesShort);
  const QString fouls = caption(m_texts, Text::Fouls);
  const QString points = QStringLiteral("PTS");
  const QString difference = QStringLiteral("+/−");
  const auto rowsOf = [this](const std::vector<BenchFigures::Player>& players, bool isOnCourt) {
    std::vector<BenchTable::Row> rows;
    for (const BenchFigures::Player& player : players)
      rows.push_back(rowOf(player, m_texts, isOnCourt));
    return rows;
  };
  m_five->showRows({{},
                    headOf(m_texts, Text::FiveNow, figures.us.name),
                    fouls,
                    minutes,
                    difference,
                    points,
                    caption(m_texts, Text::OnSince)},
                   rowsOf(figures.five, true), pips);
  m_thisFive->setText(toQt(figures.thisFive));
  m_bench->showRows({{},
                     caption(m_texts, Text::Bench),
                     fouls,
                     minutes,
                     difference,
                     points,
                     caption(m_texts, Text::RestingSince)},
                    rowsOf(figures.bench, false), pips);
  m_factors->showFactors(
      QStringLiteral("%1 · %2").arg(caption(m_texts, Text::WhatCostsMost), toQt(figures.factorsOf)), figures);

  std::vector<BenchTable::Row> fives;
  for (const BenchFigures::Five& five : figures.fives) {
    const QString now = five.isNow ? QStringLiteral(" ● ") + caption(m_texts, Text::Now) : QString();
    fives.push_back({.cells = {{.text = toQt(five.jerseys) + now, .isBold = true},
                               {.text = toQt(five.minutes)},
                               BenchTable::signedCell(five.plusMinus),
                               {.text = toQt(five.net), .tone = five.hasNet ? Tone::Usual : Tone::Quiet}},
                     .isRaised = five.isNow});
  }
  m_fives->showRows({caption(m_texts, Text::BestFives), minutes, difference,
                     toQt(m_texts.withPlaceholder(Text::NetWord, "")).trimmed()},
                    std::move(fives), pips);
  std::vector<BenchTable::Row> theirs;
  for (const BenchFigures::Player& player : figures.theirFive)
    theirs.push_back({.cells = {{.text = toQt(player.jersey), .isBold = true},
                                {.text = toQt(player.name)},
                                {.text = QString::number(player.points)},
                                {.pips = player.fouls}},
                      .isOut = player.isOut});
  m_theirFive->showRows({{}, headOf(m_texts, Text::TheirFive, figures.them.name), points, fouls},
                        std::move(theirs), pips);
}

void frmBENCH::relabelWindow() {
  hooptab::relabel(*this, m_texts);
  refresh();
}

void frmBENCH::applyColours() {
  QPalette colours = Theme::palette(Theme::current());
  colours.setColor(QPalette::Window, Theme::look().surface);
  setPalette(colours);
  for (QToolButton* button : m_teams)
    Theme::setType(*button, Type::Name);
  for (QWidget* part : findChildren<QWidget*>())
    part->update();
  layOut();
}

void frmBENCH::resizeEvent(QResizeEvent*) {
  layOut();
}

// By hand: every part keeps its place whatever it shows, and the rows share what height there is.
void frmBENCH::layOut() {
  const double unit = std::min(static_cast<double>(width()) / kDesigned.width(),
                               static_cast<double>(height()) / kDesigned.height());
  const auto length = [unit](int designed) { return static_cast<int>(designed * unit); };
  const int edge = length(10);
  const int gap = length(8);
  const QRect room = rect().adjusted(edge, edge, -edge, -edge);
  int right = room.right() + 1;
  for (const Side team : {Side::Home, Side::Visitor}) {
    QToolButton& button = *m_teams[team];
    const int buttonWidth = std::max(button.sizeHint().width(), length(72));
    right -= buttonWidth;
    button.setGeometry(right, room.top() + length(8), buttonWidth, length(30));
  }
  m_head->setGeometry(room.left(), room.top(), right - gap - room.left(), length(46));
  int top = m_head->geometry().bottom() + 1 + gap;
  const int tiles = static_cast<int>(m_tiles.size());
  const int tileWidth = (room.width() - (tiles - 1) * gap) / tiles;
  for (int i = 0; i < tiles; ++i)
    m_tiles[static_cast<std::size_t>(i)]->setGeometry(room.left() + i * (tileWidth + gap), top, tileWidth,
                                                      length(92));
  top += length(92) + gap;

  const int leftRows = 1 + kFiveRows + 1 + 1 + std::max(m_benchRows, kBenchRows);
  constexpr int kRightRows = 1 + kFactors + 1 + kFiveLines + 1 + kFiveRows;
  const int row = std::min((room.bottom() + 1 - top - 2 * gap) / std::max(leftRows, kRightRows), length(30));
  const int left = static_cast<int>(room.width() * kLeftShare);
  const auto place = [&](auto& part, int x, int& y, int partWidth, int rows) {
    part.setRowHeight(row);
    part.setGeometry(x, y, partWidth, rows * row);
    y += rows * row;
  };
  int y = top;
  place(*m_five, room.left(), y, left, 1 + kFiveRows);
  m_thisFive->setFont(benchFont(row, QFont::DemiBold));
  m_thisFive->setIndent(row / 3);
  m_thisFive->setGeometry(room.left(), y, left, row);
  y += row + gap;
  place(*m_bench, room.left(), y, left, 1 + std::max(m_benchRows, kBenchRows));
  const int x = room.left() + left + 2 * gap;
  const int rest = room.right() + 1 - x;
  y = top;
  place(*m_factors, x, y, rest, 1 + kFactors);
  y += gap;
  place(*m_fives, x, y, rest, 1 + kFiveLines);
  y += gap;
  place(*m_theirFive, x, y, rest, 1 + kFiveRows);
}

} // namespace hooptab
