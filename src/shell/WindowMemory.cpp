#include "shell/WindowMemory.h"

#include "appearance/Measure.h"
#include "storage/Module1.h"
#include "storage/PathText.h"
#include "storage/codepage.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace hooptab {

namespace {

constexpr const char* kLayouts = "LAYOUT";
constexpr const char* kRecentFiles = "RECENT";
constexpr const char* kChoices = "CHOICES";
constexpr const char* kLastGame = "LASTGAME";
constexpr const char* kHabits = "TEAMGAMES";

// "FIBA,LEAGUE".
std::string habitText(const TeamHabit& habit) {
  return habit.ruleSet + ',' + std::string(levelKey(habit.level));
}

TeamHabit habitOf(std::string_view text) {
  const std::size_t comma = std::min(text.find(','), text.size());
  const std::optional<RecordingLevel> level = levelOf(text.substr(std::min(comma + 1, text.size())));
  return {std::string(text.substr(0, comma)), level.value_or(RecordingLevel::Basic)};
}

} // namespace

WindowMemory::WindowMemory(ProfileStore& store, const std::string& programFolder)
    : m_store(store), m_path((std::filesystem::path(programFolder) / "WINDOWS.INI").string()) {}

std::string WindowMemory::layout(std::string_view name) {
  return value(kLayouts, name);
}

void WindowMemory::rememberLayout(std::string_view name, std::string_view text) {
  write(kLayouts, name, text);
}

std::vector<std::string> WindowMemory::rememberedFiles() {
  std::vector<std::string> result;
  for (std::size_t i = 1; i <= kMostRecentFiles; ++i) {
    std::string path = unescapedPath(value(kRecentFiles, std::to_string(i)));
    if (!path.empty() && std::ranges::find(result, path) == result.end())
      result.push_back(std::move(path));
  }
  return result;
}

std::vector<std::string> WindowMemory::recentFiles() {
  std::vector<std::string> result = rememberedFiles();
  std::erase_if(result, [](const std::string& path) {
    std::error_code ignored;
    return !std::filesystem::is_regular_file(path, ignored);
  });
  return result;
}

void WindowMemory::rememberFile(const std::string& path) {
  std::vector<std::string> paths = recentFiles();
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  paths.resize(std::min(paths.size(), kMostRecentFiles));
  std::vector<std::pair<std::string, std::string>> lines;
  for (std::size_t i = 0; i < paths.size(); ++i)
    lines.emplace_back(std::to_string(i + 1), escapedPath(paths[i]));
  ProfileBatch batch;
  batch.setSectionLines(kRecentFiles, std::move(lines));
  (void)m_store.write(m_path, batch);
}

std::optional<ColourScheme> WindowMemory::colourScheme() {
  const std::string name = value(kChoices, "COLOURS");
  if (name == "light")
    return ColourScheme::Light;
  if (name == "dark")
    return ColourScheme::Dark;
  return std::nullopt;
}

void WindowMemory::rememberColourScheme(ColourScheme scheme) {
  write(kChoices, "COLOURS", scheme == ColourScheme::Dark ? "dark" : "light");
}

int WindowMemory::zoom() {
  const int percent = Module1::leadingNumber(value(kChoices, "ZOOM"));
  return percent == 0 ? 100 : std::clamp(percent, Measure::kLeastZoom, Measure::kMostZoom);
}

void WindowMemory::rememberZoom(int percent) {
  write(kChoices, "ZOOM", std::to_string(percent));
}

bool WindowMemory::courtIsCalm() {
  return value(kChoices, "COURT") != "as set";
}

void WindowMemory::rememberCourtIsCalm(bool isCalm) {
  write(kChoices, "COURT", isCalm ? "calm" : "as set");
}

std::string WindowMemory::exportFolder() {
  return unescapedPath(value(kChoices, "EXPORTS"));
}

void WindowMemory::rememberExportFolder(std::string_view folder) {
  write(kChoices, "EXPORTS", escapedPath(folder));
}

std::string WindowMemory::exportKind() {
  return value(kChoices, "EXPORTKIND");
}

void WindowMemory::rememberExportKind(std::string_view key) {
  write(kChoices, "EXPORTKIND", key);
}

int WindowMemory::refreshSeconds() {
  const int seconds = Module1::leadingNumber(value(kChoices, "REFRESH"));
  return seconds == 10 || seconds == 30 || seconds == 60 ? seconds : 0;
}

void WindowMemory::rememberRefreshSeconds(int seconds) {
  write(kChoices, "REFRESH", std::to_string(seconds));
}

std::string WindowMemory::keyChoices() {
  return value(kChoices, "KEYS");
}

void WindowMemory::rememberKeyChoices(std::string_view choices) {
  write(kChoices, "KEYS", choices);
}

LastChoices WindowMemory::lastGame() {
  LastChoices choices;
  if (value(kLastGame, "TYPE").empty())
    return choices;
  const auto number = [this](std::string_view key) { return Module1::leadingNumber(value(kLastGame, key)); };
  choices.teamId[Side::Visitor] = number("VISITORS");
  choices.teamId[Side::Home] = number("HOME");
  choices.place = value(kLastGame, "PLACE");
  choices.statistician = value(kLastGame, "STATISTICIAN");
  choices.gameType = number("TYPE");
  choices.inputType = number("INPUT");
  choices.habits = habits();
  return choices;
}

void WindowMemory::rememberLastGame(const LastChoices& choices) {
  ProfileBatch batch;
  batch.set(kLastGame, "VISITORS", std::to_string(choices.teamId[Side::Visitor]));
  batch.set(kLastGame, "HOME", std::to_string(choices.teamId[Side::Home]));
  batch.set(kLastGame, "PLACE", choices.place);
  batch.set(kLastGame, "STATISTICIAN", choices.statistician);
  batch.set(kLastGame, "TYPE", std::to_string(choices.gameType));
  batch.set(kLastGame, "INPUT", std::to_string(choices.inputType));
  std::map<int, TeamHabit> known = habits();
  for (const auto& [team, habit] : choices.habits) {
    if (known[team] != habit)
      batch.set(kHabits, std::to_string(team), habitText(habit));
  }
  (void)m_store.write(m_path, batch);
}

std::map<int, TeamHabit> WindowMemory::habits() {
  std::map<int, TeamHabit> habits;
  const ProfileReading file = m_store.read(m_path);
  for (const ProfileText::Line& line : file.text.section(kHabits)) {
    if (const int team = Module1::wholeNumber(line.name); team > 0)
      habits.try_emplace(team, habitOf(line.value));
  }
  return habits;
}

// Read whole: the state of a wide table is longer than a value of the store may be.
std::string WindowMemory::value(std::string_view section, std::string_view key) {
  const ProfileReading file = m_store.read(m_path);
  const std::optional<std::string_view> stored = file.text.value(section, key);
  return stored ? codepage::toUtf8(*stored) : std::string();
}

void WindowMemory::write(std::string section, std::string_view key, std::string_view value) {
  ProfileBatch batch;
  batch.set(std::move(section), std::string(key), std::string(value));
  (void)m_store.write(m_path, batch);
}

} // namespace hooptab
