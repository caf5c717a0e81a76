#include "checks/FindingWords.h"
#include "cli/Reports.h"
#include "storage/Placeholders.h"
#include "storage/Utf8.h"

#include <algorithm>

namespace hooptab {

namespace {

std::string behind(const std::string& subject, const std::string& words, const Texts& texts) {
  return withPlaceholders(texts.text(Text::SubjectAndWords), subject, words);
}

std::string lineOf(const Finding& finding, const Game& game, const Texts& texts) {
  std::string text = printable(wordsOf(finding, game, texts));
  if (finding.hasEvent()) {
    const GameEvent& event = game.events[finding.event];
    const std::string place = withPlaceholders(texts.text(Text::AtEvent), std::to_string(event.period),
                                               printable(event.key), printable(event.line));
    text = behind(place, text, texts);
  }
  return behind(std::string(texts.text(finding.isWrong() ? Text::Wrong : Text::Doubtful)), text, texts);
}

} // namespace

std::string verifyText(const Scorecard& card, const Texts& texts) {
  const std::string file = printable(card.path()) + ": ";
  const FindingSummary summary = summaryOf(card.findings());
  std::string text;
  for (const auto& [finding, more] : summary.rows) {
    text += file + lineOf(finding, card.game(), texts) + '\n';
    if (more > 0)
      text += file + texts.withPlaceholder(Text::MoreOfThisKind, std::to_string(more)) + '\n';
  }
  return text + file + countsText(summary, texts) + '\n';
}

void writeVerified(const Scorecard& card, const Texts& texts, JsonWriter& json) {
  json.beginObject();
  json.member("file", card.path());
  json.member("good", std::ranges::none_of(card.findings(), &Finding::isWrong));
  json.name("findings");
  json.beginArray();
  for (const Finding& finding : card.findings()) {
    const GameEvent event = finding.hasEvent() ? card.game().events[finding.event] : GameEvent();
    json.beginLine();
    json.beginObject();
    json.member("level", finding.isWrong() ? "wrong" : "doubtful");
    json.member("number", static_cast<int>(finding.kind));
    json.member("period", event.period);
    json.member("event", event.key);
    json.member("line", event.line);
    json.member("text", wordsOf(finding, card.game(), texts));
    json.endObject();
    json.endLine();
  }
  json.endArray();
  json.endObject();
}

} // namespace hooptab
