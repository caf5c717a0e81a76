#include "setup/NewGame.h"

#include "game/RuleSets.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "storage/codepage.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <set>

namespace hooptab {

namespace {

constexpr std::string_view kEnding = ".GAM";

constexpr PerSide<Text> kSideNames = {Text::Visitor, Text::Home};
constexpr PerSide<Text> kOwnAbbreviations = {Text::VisitorCapitals, Text::HomeCapitals};

// Of a team without a record, by side: told apart at a glance.
constexpr PerSide<std::uint32_t> kOwnColours = {0x8C7A1F, kDefaultTeamColour};

// What a set of rules says of one of the typed ones.
struct RuleOfSet {
  std::string TypedRules::*typed;
  int RuleSet::*number;
};
constexpr RuleOfSet kRulesOfSet[] = {
    {&TypedRules::periods, &RuleSet::periods},
    {&TypedRules::minutesPerPeriod, &RuleSet::minutes},
    {&TypedRules::bonus, &RuleSet::bonus},
    {&TypedRules::personalFoulLimit, &RuleSet::personalFouls},
    {&TypedRules::technicalFoulLimit, &RuleSet::technicalFouls},
};

std::vector<NewGame::Player> playersOf(const std::vector<TeamPlayer>& stored) {
  using enum NewGame::Eligibility;
  std::vector<NewGame::Player> players;
  std::set<std::string> numbers;
  for (const TeamPlayer& player : stored) {
    std::string number(Module1::trimmed(player.number));
    const bool isWrittenOtherwise = std::ranges::any_of(
        numbers, [&](const std::string& other) { return Roster::areOneNumber(other, number); });
    const bool isFirst = numbers.insert(number).second;
    const auto eligibility = !isJersey(number)    ? NoJersey
                             : !isFirst           ? NumberTaken
                             : isWrittenOtherwise ? NumberWrittenOtherwise
                                                  : CanPlay;
    players.push_back(
        {std::move(number), player.record.position, player.record.name, eligibility, eligibility == CanPlay});
  }
  return players;
}

// A full name as a list calls its team: "Quarry Hill Otters" is "Otters".
std::string abbreviationOf(std::string_view name) {
  std::string word(Module1::trimmed(name));
  word.erase(0, word.find_last_of(' ') + 1);
  std::erase(word, '-'); // which would end it
  return codepage::toUtf8(codepage::fromUtf8(word).substr(0, kLongestAbbreviation));
}

} // namespace

int NewGame::SideForm::checkedPlayers() const {
  return static_cast<int>(std::ranges::count_if(players, &Player::isChecked));
}

NewGame::NewGame(TeamStore& store, Settings& settings, const Texts& texts, std::string today,
                 const LastChoices& last)
    : date(today), place(last.place), statistician(last.statistician), m_store(store), m_settings(settings),
      m_texts(texts), m_today(std::move(today)), m_teams(store.list()), m_habits(last.habits) {
  const std::vector<int> types = offeredChoices(kFirstGameTypeText, texts);
  gameType = std::ranges::find(types, last.gameType) != types.end() ? last.gameType : kNone;
  const bool isInputType = last.inputType >= 0 && last.inputType < static_cast<int>(kInputTypes.size());
  inputType = isInputType ? last.inputType : kNone;
  for (const Side side : kSides) {
    const auto found = std::ranges::find(m_teams, last.teamId[side], &TeamEntry::id);
    if (last.teamId[side] > 0 && found != m_teams.end())
      chooseTeam(side, static_cast<int>(found - m_teams.begin()));
  }
}

void NewGame::chooseTeam(Side side, int team) {
  const TeamEntry& chosen = m_teams.at(static_cast<std::size_t>(team));
  const OwnTeam* own = ownTeam(team);
  const TeamRecord record = own != nullptr ? own->record : m_store.read(chosen.key);
  // What was said of no team yet, or of one that was only typed, is said of this one.
  const bool hadTeam = sides[side].team != kNone && !hasOwnTeam(side);
  if (hadTeam && sides[side].team != team)
    sheet.coach[side] = sheet.captain[side] = {};
  sides[side] = {team, record.name, record.category, record.storedColour,
                 own != nullptr ? std::vector<Player>() : playersOf(m_store.players(chosen.key))};
  if (record.isMain)
    mainTeam = side;
  else if (mainTeam == side)
    mainTeam.reset();
  if (side == Side::Home || mainTeam == side) {
    rules = {record.periods, record.minutesPerPeriod, record.bonus, record.personalFoulLimit,
             record.technicalFoulLimit};
    date = m_today;
  }
}

NewGame::OwnTeam* NewGame::ownTeam(int team) {
  const auto found = std::ranges::find(m_ownTeams, team, &OwnTeam::team);
  return team == kNone || found == std::end(m_ownTeams) ? nullptr : &*found;
}

bool NewGame::hasOwnTeam(Side side) const {
  const int team = sides[side].team;
  return team != kNone && std::ranges::find(m_ownTeams, team, &OwnTeam::team) != std::end(m_ownTeams);
}

void NewGame::chooseOwnTeam(Side side) {
  OwnTeam& own = m_ownTeams[side];
  if (own.team == kNone) {
    own.team = static_cast<int>(m_teams.size());
    own.record = {.abbreviation = std::string(m_texts.text(kOwnAbbreviations[side])),
                  .category = {},
                  .name = std::string(m_texts.text(kSideNames[side])),
                  .minutesPerPeriod = "10",
                  .periods = "4",
                  .bonus = "5",
                  .personalFoulLimit = "5",
                  .technicalFoulLimit = "2",
                  .storedColour = kOwnColours[side]};
    m_teams.push_back({{}, 0, own.record.abbreviation, {}});
  }
  if (sides[side].team == own.team)
    return;
  const TypedRules typed = rules;
  const std::string day = date;
  chooseTeam(side, own.team);
  date = day;
  // What stands there was typed, or is another team's: only what is missing is filled in.
  for (const auto& [rule, ofSet] : kRulesOfSet) {
    if (!(typed.*rule).empty())
      rules.*rule = typed.*rule;
  }
}

bool NewGame::renameOwnTeam(Side side) {
  OwnTeam* own = ownTeam(sides[side].team);
  if (own == nullptr)
    return false;
  const Side maker = own == &m_ownTeams[Side::Visitor] ? Side::Visitor : Side::Home;
  TeamRecord& record = own->record;
  if (record.name != sides[side].name) {
    record.name = sides[side].name;
    record.abbreviation = abbreviationOf(record.name);
    if (record.abbreviation.empty())
      record.abbreviation = m_texts.text(kOwnAbbreviations[maker]);
  }
  record.category = sides[side].category;
  TeamEntry& listed = m_teams.at(static_cast<std::size_t>(own->team));
  listed.abbreviation = record.abbreviation;
  listed.category = record.category;
  if (sides[otherSide(side)].team != kNone &&
      listText(Side::Visitor) == listText(Side::Home)) // the Lions of two towns
    listed.abbreviation = record.abbreviation = m_texts.text(kOwnAbbreviations[maker]);
  return true;
}

NewGame::Player* NewGame::wearerOf(Side side, std::string_view number) {
  std::vector<Player>& players = sides[side].players;
  const auto found = std::ranges::find_if(players, [&](const Player& player) {
    return player.eligibility == Eligibility::CanPlay &&
           (player.number == number || Roster::areOneNumber(player.number, number));
  });
  return found == players.end() ? nullptr : &*found;
}

QuickRoster NewGame::takeNumbers(Side side, std::string_view typed) {
  QuickRoster roster = quickRoster(typed);
  if (roster.problem != QuickRoster::Problem::None || roster.jerseys.empty())
    return roster;
  if (sides[side].team == kNone)
    chooseOwnTeam(side);
  std::vector<Player>& players = sides[side].players;
  std::erase_if(players, [](const Player& player) { return player.isAdded && player.name.empty(); });
  for (Player& player : players)
    player.isChecked = false;
  for (const std::string& number : roster.jerseys) {
    if (Player* wearer = wearerOf(side, number))
      wearer->isChecked = true;
    else
      players.push_back({.number = number, .isChecked = true, .isAdded = true});
  }
  return roster;
}

NewGame::AddedPlayer NewGame::addPlayer(Side side, std::string_view number, std::string_view name) {
  using enum AddedPlayer::Problem;
  const std::string jersey(Module1::trimmed(number));
  if (!isJersey(jersey))
    return {NoJersey, jersey};
  if (const Player* wearer = wearerOf(side, jersey))
    return {NumberWorn, jersey, std::string(Module1::trimmed(wearer->number + ' ' + wearer->name))};
  Player player{
      .number = jersey, .name = std::string(Module1::trimmed(name)), .isChecked = true, .isAdded = true};
  if (!fitsInValue(playerValue(RosterPlayer{player.number, player.position, player.name})))
    return {TooLong, jersey};
  if (sides[side].team == kNone)
    chooseOwnTeam(side);
  sides[side].players.push_back(std::move(player));
  return {None, jersey};
}

void NewGame::setChecked(Side side, std::size_t player, bool isChecked) {
  Player& chosen = sides[side].players.at(player);
  chosen.isChecked = isChecked && chosen.eligibility == Eligibility::CanPlay;
}

void NewGame::stepPosition(Side side, std::size_t player) {
  int& position = sides[side].players.at(player).position;
  position = nextChoice(kFirstPositionText, position, m_texts);
}

void NewGame::chooseRules(std::string_view key) {
  const RuleSet* const set = ruleSetOf(key);
  m_chosenRules = set == nullptr ? std::string() : std::string(key);
  if (set == nullptr)
    return;
  for (const auto& [rule, number] : kRulesOfSet)
    rules.*rule = std::to_string(set->*number);
}

std::string NewGame::ruleSet() const {
  return m_chosenRules.value_or(habit().ruleSet);
}

bool NewGame::differsFromRules() const {
  const RuleSet* const set = ruleSetOf(ruleSet());
  return set != nullptr && std::ranges::any_of(kRulesOfSet, [&](const RuleOfSet& rule) {
           return Module1::leadingNumber(rules.*rule.typed) != set->*rule.number;
         });
}

RecordingLevel NewGame::level() const {
  return m_chosenLevel.value_or(habit().level);
}

TeamHabit NewGame::habitOf(int team) const {
  const auto found = m_habits.find(team);
  if (found == m_habits.end())
    return {};
  TeamHabit habit = found->second;
  if (ruleSetOf(habit.ruleSet) == nullptr) // of a later program
    habit.ruleSet.clear();
  return habit;
}

TeamHabit NewGame::habit() const {
  const TeamEntry* const team = entry(mainTeam.value_or(Side::Home));
  return team == nullptr ? TeamHabit() : habitOf(team->id);
}

bool NewGame::isLive() const {
  return inputType != kNone && kInputTypes.at(static_cast<std::size_t>(inputType)).stored == 0;
}

std::vector<RosterPlayer> NewGame::roster(Side side) const {
  std::vector<RosterPlayer> roster;
  for (const Player& player : sides[side].players) {
    if (player.isChecked)
      roster.push_back({player.number, player.position, player.name});
  }
  return roster;
}

NewGame::Objection NewGame::missingTeam() const {
  for (const Side side : kSides) {
    if (sides[side].team == kNone)
      return {Problem::NoTeam, side};
  }
  return {};
}

NewGame::Objection NewGame::missing() const {
  if (const Objection team = missingTeam(); team != Objection())
    return team;
  if (Module1::trimmed(date).empty())
    return {Problem::NoDate};
  if (gameType == kNone)
    return {Problem::NoGameType};
  if (inputType == kNone)
    return {Problem::NoInputType};
  if (kInputTypes.at(static_cast<std::size_t>(inputType)).usesKeypad && !mainTeam)
    return {Problem::NoMainTeam};
  return {};
}

NewGame::Objection NewGame::problem() const {
  // No minutes at all are a game without time.
  const int minutes = Module1::leadingNumber(rules.minutesPerPeriod);
  if (minutes < 0 || minutes > kMostMinutes)
    return {Problem::Minutes};
  if (Module1::leadingNumber(rules.periods) <= 0)
    return {Problem::Periods};
  const bool isOfThisGame =
      std::ranges::any_of(m_ownTeams, [](const OwnTeam& own) { return own.team != kNone; });
  if (sides[Side::Visitor].team == sides[Side::Home].team ||
      (isOfThisGame && listText(Side::Visitor) == listText(Side::Home)))
    return {Problem::SameTeam};
  if (Module1::leadingNumber(rules.bonus) <= 0)
    return {Problem::Bonus};
  if (inputType == kNone)
    return {Problem::NoInputType};
  if (Module1::leadingNumber(rules.personalFoulLimit) <= 0)
    return {Problem::PersonalFouls};
  if (Module1::leadingNumber(rules.technicalFoulLimit) <= 0)
    return {Problem::TechnicalFouls};
  if (const Objection team = missingTeam(); team != Objection())
    return team;
  for (const Side side : kSides) {
    if (sides[side].checkedPlayers() > kMostPlayers)
      return {Problem::TooManyPlayers, side};
  }
  return {};
}

const TeamEntry* NewGame::entry(Side side) const {
  const int team = sides[side].team;
  return team == kNone ? nullptr : &m_teams.at(static_cast<std::size_t>(team));
}

std::string NewGame::listText(Side side) const {
  const TeamEntry* team = entry(side);
  return team == nullptr ? std::string() : team->abbreviation + '-' + team->category;
}

std::string NewGame::abbreviation(Side side) const {
  return std::string(Module1::trimmed(Module1::field(listText(side), 1, '-')));
}

std::string NewGame::proposedFileName() const {
  const std::string_view type = choiceName(kFirstGameTypeText, gameType, m_texts);
  return Module1::asFileName(date + ' ' + std::string(type) + ' ' + listText(Side::Visitor) + ' ' +
                             listText(Side::Home)) +
         std::string(kEnding);
}

std::string NewGame::overwriteQuestion(const std::string& path) const {
  GameDetails lost;
  const GameFileProblem problem = GameFile(m_store.store(), path).readDetails(lost);
  if (problem == GameFileProblem::Absent)
    return {};
  if (problem != GameFileProblem::None)
    return m_texts.withPlaceholder(Text::OtherFileIsLost, path);
  const std::string game =
      lost.abbreviation[Side::Visitor] + " - " + lost.abbreviation[Side::Home] + " (" + lost.date + ')';
  return withPlaceholders(
      m_texts.text(lost.isFinished ? Text::FinishedGameIsLost : Text::UnfinishedGameIsLost), path, game);
}

GameDetails NewGame::details() const {
  GameDetails details;
  details.inputType = kInputTypes.at(static_cast<std::size_t>(inputType)).stored;
  details.date = date;
  details.mainTeam = mainTeam.value_or(Side::Visitor);
  for (const Side side : kSides) {
    details.teamId[side] = entry(side) == nullptr ? 0 : entry(side)->id;
    details.teamColour[side] = sides[side].colour;
    details.abbreviation[side] = abbreviation(side);
    details.name[side] = sides[side].name;
    details.category[side] = sides[side].category;
  }
  std::ranges::copy(m_settings.statisticLabel, details.statisticLabel);
  details.place = place;
  details.statistician = statistician;
  // Its seconds have to be a number, too.
  details.minutesPerPeriod =
      std::min(Module1::leadingNumber(rules.minutesPerPeriod), std::numeric_limits<int>::max() / 60);
  details.typedRules = rules;
  details.type = gameType;
  details.notes = notes;
  details.ruleSet = ruleSet();
  if (const RuleSet* const set = ruleSetOf(details.ruleSet))
    details.overtimeMinutes = set->overtimeMinutes;
  // A game for which nobody chose says nothing.
  if (isLive() && (level() != RecordingLevel::Basic || habit().level != RecordingLevel::Basic))
    details.level = level();
  GameSheet written = sheet;
  for (const Side side : kSides) {
    // Somebody who was taken out of the game since leads nobody.
    const std::vector<RosterPlayer> players = roster(side);
    if (std::ranges::find(players, written.captain[side], &RosterPlayer::jersey) == players.end())
      written.captain[side].clear();
  }
  for (const auto& [key, value] : written.changedFrom({}))
    setDetail(details, key, value);
  return details;
}

GameFileProblem NewGame::create(const std::string& path) {
  const GameFileProblem problem =
      GameFile(m_store.store(), path).create(details(), roster(Side::Visitor), roster(Side::Home));
  if (problem != GameFileProblem::None)
    return problem;
  m_chosenRules = ruleSet(); // whoever becomes the main team
  m_chosenLevel = level();
  if (!mainTeam)
    mainTeam = Side::Visitor;
  m_settings.lastGameFolder = std::filesystem::path(path).parent_path().string();
  m_settings.saveKeypadIsActive(kInputTypes.at(static_cast<std::size_t>(inputType)).usesKeypad);
  return GameFileProblem::None;
}

LastChoices NewGame::choices() const {
  LastChoices choices;
  for (const Side side : kSides)
    choices.teamId[side] = entry(side) == nullptr ? 0 : entry(side)->id;
  choices.place = place;
  choices.statistician = statistician;
  choices.gameType = gameType;
  choices.inputType = inputType;
  for (const int team : choices.teamId) {
    if (team > 0)
      choices.habits[team] = {ruleSet(), isLive() ? level() : habitOf(team).level};
  }
  return choices;
}

std::string withGameEnding(const std::string& path) {
  const std::size_t begin = path.size() - std::min(path.size(), kEnding.size());
  return codepage::equalNames(path.substr(begin), kEnding) ? path : path + std::string(kEnding);
}

} // namespace hooptab
