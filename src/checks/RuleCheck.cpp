#include "checks/RuleCheck.h"

#include "game/EventDetails.h"
#include "game/RuleSets.h"

namespace hooptab {

RuleCheck::RuleCheck(const Game& game, std::vector<Finding>& findings)
    : m_game(game), m_findings(findings), m_rules(ruleSetOf(game.details.ruleSet)),
      m_hasAwards(game.details.recordingLevel() != RecordingLevel::Basic),
      m_throws(game.details.minutesPerPeriod > 0), m_timeOuts(game.details) {}

void RuleCheck::take(const GameEvent& event, std::size_t place) {
  if (m_hasAwards) {
    (void)m_throws.take(event, place);
    checkThrows(m_throws.ended(), IsOver::Yes);
  }
  if (m_rules == nullptr)
    return;
  if (event.code == EventCode::XTO && event.player.team)
    checkTimeOut(event, place);
  else if (event.code == EventCode::XCF)
    checkTechnical(event, place);
}

void RuleCheck::finish() {
  checkThrows(m_throws.stand(), m_game.details.isFinished ? IsOver::Yes : IsOver::No);
}

void RuleCheck::checkThrows(const FreeThrows::Stand& stand, IsOver isOver) {
  for (const FreeThrows::LooseThrow& loose : stand.loose) {
    Finding finding{.kind = FindingKind::ThrowWithoutFoul,
                    .event = loose.place,
                    .team = loose.team,
                    .jersey = std::string(m_game.events[loose.place].player.jersey)};
    if (loose.link.kind == FreeThrows::Link::Kind::BeyondAward) {
      finding.kind = FindingKind::ThrowBeyondAward;
      finding.found = std::to_string(loose.link.number);
      finding.wanted = std::to_string(loose.link.awarded.value_or(0));
    }
    m_findings.push_back(std::move(finding));
  }
  for (const FreeThrows::Award& award : stand.awards) {
    if (isOver == IsOver::Yes && award.awarded && award.isOpen())
      m_findings.push_back({.kind = FindingKind::ThrowsMissing,
                            .event = award.foul,
                            .team = award.team,
                            .found = std::to_string(award.taken),
                            .wanted = std::to_string(*award.awarded)});
  }
}

void RuleCheck::checkTimeOut(const GameEvent& event, std::size_t place) {
  const Side team = *event.player.team;
  const auto before = m_timeOuts.of(team, event.period, event.clockSeconds);
  m_timeOuts.take(event);
  if (before && before->left == 0)
    m_findings.push_back({.kind = FindingKind::TimeOutTooMany,
                          .event = place,
                          .team = team,
                          .found = std::to_string(before->taken)});
}

// The bench can be given more than the coach.
void RuleCheck::checkTechnical(const GameEvent& event, std::size_t place) {
  BenchTechnicals& technicals = m_technicals[*event.player.team];
  const bool isOfCoach = event.detail(detail_key::kKind) == "C";
  if (isOfCoach && isCoachOut(m_game.details, technicals))
    m_findings.push_back({.kind = FindingKind::CoachOutBefore, .event = place, .team = event.player.team});
  technicals.take(event);
}

} // namespace hooptab
