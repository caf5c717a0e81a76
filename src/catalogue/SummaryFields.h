// Every field of a listed game that is kept between two scans, told once for writing and reading alike: what
// a game gets more is one line more here. Left out are its path, by which it is found, and what only the
// whole catalogue knows. An archive writes or reads numbers, texts and lists, and the numbers of names.
#pragma once

#include "catalogue/ListedGame.h"
#include "settings/ChoiceTexts.h"

#include <bit>
#include <cstdint>

namespace hooptab {

// Most counts are 0: those that are not, and which they are.
template <class Archive, class Counted>
void visitCounters(Archive& archive, Counted& counters) {
  static_assert(kCounterCount <= 32);
  std::uint32_t used = 0;
  if constexpr (!Archive::kReads) {
    for (std::size_t i = 0; i < kCounterCount; ++i)
      used |= counters.counts[i] != 0 ? 1U << i : 0U;
  }
  archive.number(used);
  if constexpr (Archive::kReads)
    archive.require((static_cast<std::uint64_t>(used) >> kCounterCount) == 0);
  for (std::uint32_t rest = used; rest != 0; rest &= rest - 1) {
    const auto place = static_cast<std::size_t>(std::countr_zero(rest));
    if (place < kCounterCount)
      archive.number(counters.counts[place]);
  }
}

template <class Archive, class Row>
void visitRow(Archive& archive, Row& row) {
  archive.number(row.seconds);
  visitCounters(archive, row.counters);
  archive.number(row.side);
  archive.number(row.position);
  if constexpr (Archive::kReads)
    archive.require(row.side <= Side::Home && row.position <= kChoiceCount);
}

template <class Archive, class Shot>
void visitShot(Archive& archive, Shot& shot) {
  archive.number(shot.x);
  archive.number(shot.y);
  archive.number(shot.player);
  auto marks = static_cast<std::uint8_t>((shot.isThree ? 1U : 0U) | (shot.isMade ? 2U : 0U) |
                                         (shot.hasPlace ? 4U : 0U));
  archive.number(marks);
  if constexpr (Archive::kReads) {
    shot.isThree = (marks & 1U) != 0;
    shot.isMade = (marks & 2U) != 0;
    shot.hasPlace = (marks & 4U) != 0;
  }
}

template <class Archive, class Found>
void visitFinding(Archive& archive, Found& finding) {
  archive.number(finding.kind);
  archive.number(finding.event);
  archive.optional(finding.team, [&](auto& team) { archive.number(team); });
  archive.text(finding.jersey);
  archive.text(finding.subject);
  archive.text(finding.found);
  archive.text(finding.wanted);
  if constexpr (Archive::kReads)
    archive.require(!finding.team || *finding.team <= Side::Home);
}

template <class Archive, class Row>
void visitTeamRow(Archive& archive, Row& row) {
  archive.number(row.offensiveRebounds);
  archive.number(row.defensiveRebounds);
  archive.number(row.turnovers);
  archive.number(row.benchTechnicals);
  archive.number(row.timeOuts);
}

template <class Archive, class Origins>
void visitOrigins(Archive& archive, Origins& origins) {
  archive.number(origins.paint);
  archive.number(origins.fromTurnovers);
  archive.number(origins.secondChance);
  archive.optional(origins.bench, [&](auto& bench) { archive.number(bench); });
  archive.number(origins.quick);
  archive.optional(origins.fastBreak, [&](auto& fastBreak) { archive.number(fastBreak); });
}

template <class Archive, class Game>
void visitGame(Archive& archive, Game& game) {
  archive.text(game.date);
  archive.optional(game.day, [&](auto& day) { archive.number(day); });
  archive.text(game.place);
  archive.number(game.type);
  archive.number(game.isPractice);
  archive.text(game.ruleSet);
  archive.number(game.input);
  for (const Side side : kSides) {
    archive.team(game.team[side]);
    archive.number(game.teamNumber[side]);
    archive.number(game.points[side]);
    archive.number(game.teamColour[side]);
    archive.number(game.possessions[side]);
    visitTeamRow(archive, game.teamRows[side]);
    visitOrigins(archive, game.origins[side]);
  }
  archive.list(game.periodPoints, [&](auto& period) {
    for (auto& points : period)
      archive.number(points);
  });
  archive.number(game.starters);
  archive.number(game.overtimes);
  archive.number(game.seconds);
  for (auto& seconds : game.leadSeconds)
    archive.number(seconds);
  for (auto& label : game.label)
    archive.text(label);
  archive.number(game.fingerprint);
  archive.number(game.beginning);
  archive.number(game.eventCount);
  archive.text(game.outOfRange);
  archive.list(game.wrong, [&](auto& finding) { visitFinding(archive, finding); });
  archive.number(game.wrongCount);
  archive.list(game.players, [&](auto& row) {
    archive.player(row.id);
    visitRow(archive, row);
    archive.number(row.extras.foulsDrawn);
    archive.number(row.extras.blocksAgainst);
  });
  archive.list(game.lines, [&](auto& row) {
    archive.line(row.id);
    visitRow(archive, row);
    visitCounters(archive, row.opponents);
    for (auto& begun : row.possessions)
      archive.number(begun);
    archive.number(row.members);
  });
  archive.list(game.shots, [&](auto& shot) { visitShot(archive, shot); });
  if constexpr (Archive::kReads) {
    archive.require(game.type >= 0 && game.type < kChoiceCount && game.input <= InputKind::Other);
    for (const SeasonShot& shot : game.shots)
      archive.require(shot.player < game.players.size());
  }
}

} // namespace hooptab
