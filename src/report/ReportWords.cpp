#include "report/ReportWords.h"

#include "storage/Placeholders.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace hooptab {

namespace {

constexpr std::string_view kNoLabel = "---"; // of a statistic of the user's own

} // namespace

std::string labelled(std::string_view label, std::string_view value, const Texts& texts) {
  const std::string_view bare = label.substr(0, label.find_last_not_of('.') + 1);
  return withPlaceholders(texts.text(Text::SubjectAndWords), bare, value);
}

std::string labelled(Text labelText, std::string_view value, const Texts& texts) {
  return labelled(texts.text(labelText), value, texts);
}

std::string capitalised(std::string words) {
  constexpr char kSmallToLarge = 'a' - 'A';
  if (words.empty())
    return words;
  if (words[0] >= 'a' && words[0] <= 'z') {
    words[0] = static_cast<char>(words[0] - kSmallToLarge);
  } else if (words.size() > 1 && words[0] == '\xC3' && words[1] >= '\xA0' && words[1] != '\xB7') {
    words[1] = static_cast<char>(words[1] - kSmallToLarge); // à to þ in UTF-8, but for the sign of division
  }
  return words;
}

std::string groupTitle(const ShotGroup& group, const Texts& texts) {
  return group.title == Text::None ? std::string(group.name)
                                   : capitalised(std::string(texts.text(group.title)));
}

ReportCell::Kind kindOfCell(ValueKind kind) {
  switch (kind) {
  case ValueKind::Count: break;
  case ValueKind::Time: return ReportCell::Kind::Time;
  case ValueKind::Percent: return ReportCell::Kind::Percent;
  }
  return ReportCell::Kind::Number;
}

std::string wholePercent(const std::optional<double>& share) {
  constexpr double kPercent = 100;
  return share ? std::to_string(std::lround(kPercent * *share)) + "%" : "–";
}

std::string proposedFileName(std::string words) {
  std::string name = Module1::asFileName(std::move(words));
  const auto rest =
      std::ranges::unique(name, [](char left, char right) { return left == ' ' && right == ' '; });
  name.erase(rest.begin(), rest.end());
  return name;
}

void keepBest(Report& report, std::size_t most, const Texts& texts) {
  for (ReportBlock& block : report.blocks) {
    auto* table = std::get_if<ReportTable>(&block);
    if (table == nullptr || !table->isRanked || table->rows.size() <= most)
      continue;
    const std::string words = withPlaceholders(texts.text(Text::FirstRows), std::to_string(most),
                                               std::to_string(table->rows.size()));
    table->title += (table->title.empty() ? "" : " – ") + words;
    std::size_t place = 0;
    std::erase_if(table->rows, [&](const ReportRow& row) {
      return ++place > most && row.emphasis != ReportRow::Emphasis::Highlighted;
    });
  }
}

std::size_t rankedRows(const Report& report) {
  std::size_t rows = 0;
  for (const ReportBlock& block : report.blocks) {
    if (const auto* table = std::get_if<ReportTable>(&block); table != nullptr && table->isRanked)
      rows = std::max(rows, table->rows.size());
  }
  return rows;
}

void addNotes(Report& report, const ReportTable& table, const Texts& texts) {
  std::string codes;
  std::string untried;
  std::size_t column = 0;
  for (const ReportColumnGroup& group : table.groups) {
    if (group.isUnused)
      untried += (untried.empty() ? "" : ", ") + group.title;
    for (std::size_t i = 0; i < group.columns; ++i, ++column) {
      const ReportColumn& each = table.columns[column];
      const bool isCode = group.title.empty() && !each.isLeftAligned && each.name != "Time";
      if (isCode && !each.words.empty() && !each.words.ends_with(kNoLabel))
        codes += (codes.empty() ? "" : ";  ") + each.header + " = " + each.words;
    }
  }
  const auto add = [&](std::string words) {
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Note, std::move(words)});
  };
  if (!codes.empty())
    add(std::move(codes));
  if (!untried.empty())
    add(texts.withPlaceholder(Text::NobodyTried, untried));
}

} // namespace hooptab
