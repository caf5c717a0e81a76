#include "season/GameColumns.h"

#include "settings/ChoiceTexts.h"

#include <array>
#include <limits>

namespace hooptab {

namespace {

enum Column {
  Date = 1,
  Type,
  Result,
  Visitor,
  VisitorPoints,
  Home,
  HomePoints,
  Input,
  Location,
  File,
  TeamIds,
  VisitorWin,
  VisitorLead,
  Tie,
  TiedTime,
  HomeWin,
  HomeLead,
};

constexpr std::array<GameColumn, kGameColumnCount> kColumns = {{
    {Date, "Date", Text::None, 2558, true, "Date"},
    {Type, "Type", Text::None, 2205, false, "Type"},
    {Result, {}, Text::Results, 1764, false, "Result"},
    {Visitor, {}, Text::Away, 3881, true, "Visitor"},
    {VisitorPoints, "PTS", Text::None, 1058, false, "VisitorPTS"},
    {Home, {}, Text::AtHome, 3881, true, "Home"},
    {HomePoints, "PTS", Text::None, 1058, false, "HomePTS"},
    {Input, {}, Text::InputWord, 1764, false, "Input"},
    {Location, {}, Text::Location, 6174, true, "Location"},
    {File, "GAMEFILE", Text::None, 0, true, "File"},
    {TeamIds, "TEAMID", Text::None, 0, true, "TeamIds"},
    {VisitorWin, "Vis", Text::None, 0, false, "VisitorWin"},
    {VisitorLead, "Temps", Text::None, 0, false, "VisitorLead"},
    {Tie, "Tie", Text::None, 0, false, "Tie"},
    {TiedTime, "Temps", Text::None, 0, false, "TiedTime"},
    {HomeWin, "Rec", Text::None, 0, false, "HomeWin"},
    {HomeLead, "Temps", Text::None, 0, false, "HomeLead"},
}};

std::string_view inputText(InputKind input, const Texts& texts) {
  switch (input) {
  case InputKind::Live: return texts.text(Text::Live);
  case InputKind::LiveWithoutTime: return texts.text(Text::LiveWithoutTime);
  case InputKind::Manual: return texts.text(Text::Manual);
  case InputKind::Other: break;
  }
  return {};
}

std::string resultFor(const GameCatalogue& catalogue, const ListedGame& game,
                      std::optional<SeasonId> chosenTeam, const Texts& texts) {
  if (chosenTeam) {
    for (const Side side : kSides) {
      if (game.team[side] == *chosenTeam)
        return resultText(game, side, texts);
    }
    return {};
  }
  const std::optional<Side> winner = game.winner();
  return winner ? catalogue.teams()[game.team[*winner]].name : std::string(texts.text(Text::TieShort));
}

// The number of a column that has one.
int numberOf(const ListedGame& game, int column) {
  switch (column) {
  case VisitorPoints: return game.points[Side::Visitor];
  case HomePoints: return game.points[Side::Home];
  case VisitorWin: return game.winner() == Side::Visitor ? 1 : 0;
  case VisitorLead: return game.leadSeconds[0];
  case Tie: return game.winner() ? 0 : 1;
  case TiedTime: return game.leadSeconds[2];
  case HomeWin: return game.winner() == Side::Home ? 1 : 0;
  case HomeLead: return game.leadSeconds[1];
  default: return 0;
  }
}

double daySortValue(const ListedGame& game) {
  return game.day ? *game.day : std::numeric_limits<int>::max();
}

} // namespace

std::span<const GameColumn, kGameColumnCount> gameColumns() {
  return kColumns;
}

std::string gameCell(const GameCatalogue& catalogue, const ListedGame& game, int column,
                     std::optional<SeasonId> chosenTeam, const Texts& texts) {
  switch (column) {
  case Date: return game.date;
  case Type: return std::string(gameTypeText(game.type, texts));
  case Result: return resultFor(catalogue, game, chosenTeam, texts);
  case Visitor: return catalogue.teams()[game.team[Side::Visitor]].name;
  case Home: return catalogue.teams()[game.team[Side::Home]].name;
  case Input: return std::string(inputText(game.input, texts));
  case Location: return game.place;
  case File: return game.path;
  case TeamIds:
    return std::to_string(game.teamNumber[Side::Visitor]) + "-" + std::to_string(game.teamNumber[Side::Home]);
  default: return std::to_string(numberOf(game, column));
  }
}

double gameSortValue(const ListedGame& game, int column) {
  return column == Date ? daySortValue(game) : numberOf(game, column);
}

bool gameColumnIsText(int column) {
  switch (column) {
  case Type:
  case Result:
  case Visitor:
  case Home:
  case Input:
  case Location:
  case File:
  case TeamIds: return true;
  default: return false;
  }
}

std::string resultText(const ListedGame& game, Side side, const Texts& texts) {
  const std::optional<Side> winner = game.winner();
  const Text text = !winner ? Text::TieShort : *winner == side ? Text::WinShort : Text::LossShort;
  return std::string(texts.text(text)) + " " + std::to_string(game.points[side]) + "-" +
         std::to_string(game.points[otherSide(side)]);
}

SeasonRow rowOfResult(const GameResult& result) {
  SeasonRow row;
  row.games = 1;
  row.numbers = result.numbers;
  row.extras = result.extras;
  row.onCourt = result.onCourt;
  return row;
}

SeasonRow sumOfResults(std::span<const GameResult> results) {
  SeasonRow row;
  row.games = static_cast<int>(results.size());
  for (const GameResult& result : results) {
    row.numbers.seconds += result.numbers.seconds;
    for (std::size_t i = 0; i < kCounterCount; ++i)
      row.numbers.counters.counts[i] += result.numbers.counters.counts[i];
    addExtras(row.extras, result.extras);
    row.onCourt += result.onCourt;
  }
  return row;
}

int seasonColumnOfResult(int column) {
  if (column <= kResultOpponentColumn)
    return 0;
  return statistics()[static_cast<std::size_t>(column - kResultOpponentColumn - 1)].seasonColumn;
}

std::string resultHeader(int column, const Texts& texts) {
  switch (column) {
  case 1: return "Date";
  case 2: return std::string(texts.text(Text::Where));
  case 3: return std::string(texts.text(Text::Results));
  case kResultOpponentColumn: return std::string(texts.text(Text::Opponent));
  default: break;
  }
  return seasonHeader(seasonColumnOfResult(column), SeasonTable::Players, texts);
}

std::string resultCell(const GameCatalogue& catalogue, const GameResult& result, int column,
                       const Texts& texts) {
  const ListedGame& game = catalogue.games()[result.game];
  switch (column) {
  case 1: return game.date;
  case 2: return std::string(texts.text(result.side == Side::Visitor ? Text::Away : Text::AtHome));
  case 3: return resultText(game, result.side, texts);
  case kResultOpponentColumn: return catalogue.teams()[game.team[otherSide(result.side)]].name;
  default: return seasonCell(rowOfResult(result), seasonColumnOfResult(column), SeasonView::Totals, texts);
  }
}

double resultSortValue(const GameCatalogue& catalogue, const GameResult& result, int column) {
  if (column <= kResultOpponentColumn)
    return daySortValue(catalogue.games()[result.game]);
  return seasonSortValue(rowOfResult(result), seasonColumnOfResult(column), SeasonView::Totals);
}

} // namespace hooptab
