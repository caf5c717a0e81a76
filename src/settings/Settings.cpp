#include "settings/Settings.h"

#include "storage/AtomicFile.h"
#include "storage/BatchText.h"
#include "storage/Module1.h"
#include "storage/PathText.h"
#include "storage/cinifile.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace hooptab {

namespace {

constexpr const char* kSection = "CONFIGURATION";
// A key list shorter than this is that of no settings file of ours.
constexpr std::size_t kShortestKeyList = 10;

std::uint32_t colour(std::string_view text) {
  constexpr std::uint32_t kColourBits = 0xFFFFFF;
  return static_cast<std::uint32_t>(std::max(0, Module1::leadingNumber(text))) & kColourBits;
}

// A remembered folder may have been removed, or stand on a drive that is not there today.
std::string existingFolder(const std::string& text, const std::string& otherwise) {
  for (const std::string& path : {text, unescapedPath(text)}) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
      return path;
  }
  return otherwise;
}

std::optional<std::string> presentText(std::string text) {
  return text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::string valueIn(const ProfileBatch& batch, std::string_view key) {
  for (const ProfileBatch::Operation& operation : batch.operations()) {
    const auto* set = std::get_if<ProfileBatch::SetValue>(&operation);
    if (set != nullptr && set->section == kSection && set->key == key)
      return set->value;
  }
  return {};
}

bool isSettings(const ProfileText& text) {
  return text.keyList(kSection).size() >= kShortestKeyList;
}

std::size_t hashOf(const ProfileText& text) {
  return std::hash<std::string>()(text.bytes());
}

const char* flagText(bool on) {
  return on ? "True" : "False";
}

} // namespace

const std::vector<std::uint32_t>& customColours() {
  static const std::vector<std::uint32_t> colours = {
      8438015,  11599792, 13882281, 10329599, 16759671, 7105791, 11140947, 13224393,
      14068651, 12303223, 4103935,  8453888,  4737279,  8716287, 10197915, 16749608};
  return colours;
}

Settings::Settings(ProfileStore& store, std::string folder)
    : m_store(store), m_folder(std::move(folder)), m_guard(store, isSettings) {}

std::string Settings::path() const {
  return (std::filesystem::path(m_folder) / "CONFIG.INI").string();
}

Settings::Preparation Settings::prepare(const Texts& texts) {
  if (isComplete()) {
    read();
    return Preparation::AlreadyThere;
  }
  const ProfileBatch content = firstRunContent(texts, m_folder);
  const bool isReadable = canBeRead();
  if (!m_pending.write(
          content, [this](const ProfileBatch& batch) { return complete(batch); }, now())) {
    take([&content](std::string_view key) { return valueIn(content, key); });
    return isReadable ? Preparation::WriteFailed : Preparation::CannotBeRead;
  }
  read();
  return m_keptAs.empty() ? Preparation::FirstRun : Preparation::FirstRunKeptOld;
}

// A file that is there but cannot be read may hold all the user's teams: it is left alone.
bool Settings::canBeRead() {
  return m_store.read(path()).isKnown();
}

bool Settings::isComplete() {
  return isSettings(m_store.read(path()).text);
}

WriteResult Settings::complete(const ProfileBatch& content) {
  const ProfileReading found = m_store.read(path());
  if (isSettings(found.text))
    return {};
  if (!found.isKnown())
    return found.error;
  if (const std::string bytes = found.text.bytes(); !bytes.empty()) {
    if (WriteResult kept = keep(bytes); !kept.isOnDisk())
      return kept;
  }
  const ProfileWrite written = m_store.write(path(), content, found);
  if (written.isOnDisk())
    m_guard.begin(path(), written.left().text);
  return written;
}

WriteResult Settings::keep(const std::string& bytes) {
  if (!m_keptAs.empty())
    return {};
  StorageError error;
  const std::string copy = freeNameBeside(m_store.files(), path(), &error);
  if (copy.empty())
    return error;
  FileStamp stamp;
  WriteResult written = replaceWholeFile(m_store.files(), copy, bytes, stamp);
  if (written.isOnDisk())
    m_keptAs = copy;
  return written;
}

void Settings::read() {
  cinifile file(m_store);
  file.Path(path());
  file.Section(kSection);
  take([&file](std::string_view key) {
    file.Key(std::string(key));
    return file.Value();
  });
  if (const ProfileReading found = m_store.read(path()); isSettings(found.text))
    m_guard.begin(path(), found.text);
}

void Settings::take(const std::function<std::string(std::string_view key)>& value) {
  twoPointColour = colour(value("COULEUR2PTS"));
  boxColour = colour(value("COULEURBOX"));
  threePointColour = colour(value("COULEUR3PTS"));
  buttonColour = colour(value("COULEURBUT"));
  statisticLabel[0] = value("STATU1");
  statisticLabel[1] = value("STATU2");
  ownRating = {value("RATING"), value("RATINGNAME")};
  language = Texts::languageOfOffset(Module1::leadingNumber(value("LANGUE")));
  asksRebounds = Module1::flag(value("SAVEREBOUND"));
  keypadIsActive = Module1::flag(value("KEYPAD"));
  for (std::size_t place = 0; place < kKeypadKeys.size(); ++place)
    keypadKeyTexts[place] = value(kKeypadKeys[place]);
  lastGameFolder = existingFolder(value("LASTPATHGAME"), m_folder);
  lastScanFolder = existingFolder(value("LASTPATHBMP"), m_folder);
  for (const LanguageFacts& facts : kLanguages)
    webPage[indexOf(facts.language)] = presentText(value(facts.webPage));
}

std::string Settings::shownLabel(std::string_view label) {
  const bool hasPrefix = label.starts_with("U1-") || label.starts_with("U2-");
  return std::string(hasPrefix ? label.substr(3) : label);
}

bool Settings::asksForTextNumbers() const {
  return statisticLabel[0].starts_with("WW-DEBUG");
}

bool Settings::saveLanguage(Language chosen) {
  language = chosen;
  return save("LANGUE", std::to_string(factsOf(chosen).offset));
}

bool Settings::saveAsksRebounds(bool on) {
  asksRebounds = on;
  return save("SAVEREBOUND", flagText(on));
}

bool Settings::saveKeypadIsActive(bool on) {
  keypadIsActive = on;
  return save("KEYPAD", flagText(on));
}

bool Settings::saveKeypadKeyTexts(const KeypadKeyTexts& texts) {
  ProfileBatch batch;
  for (std::size_t place = 0; place < kKeypadKeys.size(); ++place) {
    if (texts[place] != keypadKeyTexts[place])
      batch.set(kSection, kKeypadKeys[place], texts[place]);
  }
  keypadKeyTexts = texts;
  return batch.operations().empty() ? retry() : save(batch);
}

bool Settings::saveLastFolders() {
  ProfileBatch batch;
  batch.set(kSection, "LASTPATHGAME", pathValue(lastGameFolder));
  batch.set(kSection, "LASTPATHBMP", pathValue(lastScanFolder));
  return save(batch);
}

bool Settings::saveAppearance(const ChosenColours& colours, const std::string (&labels)[2]) {
  twoPointColour = colours.twoPoints;
  boxColour = colours.box;
  threePointColour = colours.threePoints;
  buttonColour = colours.buttons;
  statisticLabel[0] = labels[0];
  statisticLabel[1] = labels[1];
  ProfileBatch batch;
  batch.set(kSection, "COULEUR2PTS", std::to_string(twoPointColour));
  batch.set(kSection, "COULEURBOX", std::to_string(boxColour));
  batch.set(kSection, "COULEUR3PTS", std::to_string(threePointColour));
  batch.set(kSection, "COULEURBUT", std::to_string(buttonColour));
  batch.set(kSection, "STATU1", statisticLabel[0]);
  batch.set(kSection, "STATU2", statisticLabel[1]);
  return save(batch);
}

bool Settings::saveOwnRating(const OwnRatingChoice& choice) {
  ownRating = choice;
  ProfileBatch batch;
  batch.set(kSection, "RATING", choice.formula);
  batch.set(kSection, "RATINGNAME", choice.name);
  return save(batch);
}

bool Settings::saveOfOthers(const ProfileBatch& batch) {
  if (!canBeRead())
    return false;
  (void)save(batch);
  return true;
}

// Of a file that cannot be read nothing is known; what waits for it is no picture of it.
ProfileText Settings::content() {
  const ProfileReading found = m_store.read(path());
  if (!found.isKnown())
    return {};
  ProfileText content = found.text;
  for (const PendingWrites::Waiting& each : m_pending.waiting())
    content = withBatch(std::move(content), each.batch);
  return content;
}

bool Settings::retry() {
  return m_pending.retry(now());
}

void Settings::settle() {
  if (retry())
    (void)write({});
}

WriteResult Settings::write(const ProfileBatch& batch) {
  if (!m_guard.isWatching()) // there is no file yet that could be missed
    return m_store.write(path(), batch);
  const FileGuard::Found found = m_guard.look();
  if (found == FileGuard::Found::OutOfReach)
    return batch.isEmpty() ? WriteResult() : m_guard.obstacle();
  const bool isOlder = found == FileGuard::Found::Changed && m_older.contains(hashOf(m_guard.found()));
  const bool isLost = found == FileGuard::Found::Gone || found == FileGuard::Found::Unusable || isOlder;
  const std::size_t before = hashOf(m_guard.left());
  const auto theirs = isOlder ? FileGuard::Theirs::NotMissed : FileGuard::Theirs::Kept;
  WriteResult written = isLost ? m_guard.rewrite(batch, theirs) : m_guard.write(batch);
  if (!written.isOnDisk())
    return written;
  m_older.insert(before);
  m_older.erase(hashOf(m_guard.left()));
  if (isLost)
    m_restored = Restored{m_guard.takeKeptAs()};
  return written;
}

bool Settings::save(const char* key, std::string value) {
  ProfileBatch batch;
  batch.set(kSection, key, std::move(value));
  return save(batch);
}

bool Settings::save(const ProfileBatch& batch) {
  return m_pending.write(
      batch, [this](const ProfileBatch& own) { return write(own); }, now());
}

} // namespace hooptab
