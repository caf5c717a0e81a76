#include "setup/SetupWords.h"

#include "storage/Placeholders.h"

namespace hooptab {

namespace {

Text textOf(NewGame::AddedPlayer::Problem problem) {
  using enum NewGame::AddedPlayer::Problem;
  switch (problem) {
  case NoJersey: return Text::InvalidNumber;
  case NumberWorn: return Text::NumberWorn;
  case TooLong: return Text::NameTooLong;
  case None: break;
  }
  return Text::None;
}

Text textOf(QuickRoster::Problem problem) {
  using enum QuickRoster::Problem;
  switch (problem) {
  case NoJersey: return Text::NoSuchNumber;
  case Twice: return Text::NumberTwice;
  case WrittenOtherwise: return Text::WrittenOtherwise;
  case OneTooMany: return Text::OneTooMany;
  case None: break;
  }
  return Text::None;
}

} // namespace

Text textOf(const NewGame::Objection& objection) {
  using enum NewGame::Problem;
  switch (objection.problem) {
  case NoTeam: return Text::ChooseTeams;
  case NoDate: return Text::EnterDate;
  case NoGameType: return Text::ChooseGameType;
  case NoInputType: return Text::ChooseInputType;
  case NoMainTeam: return Text::ChooseMainTeam;
  case Minutes: return Text::InvalidMinutes;
  case Periods: return Text::InvalidPeriods;
  case SameTeam: return Text::SameTeam;
  case Bonus: return Text::InvalidBonus;
  case PersonalFouls: return Text::InvalidPersonalFouls;
  case TechnicalFouls: return Text::InvalidTechnicalFouls;
  case TooManyPlayers: return objection.side == Side::Visitor ? Text::VisitorsTooMany : Text::HomeTooMany;
  case None: break;
  }
  return Text::None;
}

std::string wordsOf(const NewGame::AddedPlayer& added, const Texts& texts) {
  const Text text = textOf(added.problem);
  return text == Text::None ? std::string() : withPlaceholders(texts.text(text), added.jersey, added.wearer);
}

std::string wordsOf(const QuickRoster& roster, const Texts& texts) {
  const Text text = textOf(roster.problem);
  return text == Text::None ? std::string() : withPlaceholders(texts.text(text), roster.part, roster.other);
}

} // namespace hooptab
