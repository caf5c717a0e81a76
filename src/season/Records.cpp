#include "season/Records.h"

namespace hooptab {

namespace {

struct Row {
  std::string_view key, what, column;
};
constexpr std::array<Row, Records::kCount> kRows = {{
    {"R0", "PT", "PTS"},  {"R1", "RAT", "rating"}, {"R2", "TIME", "Time"}, {"R3", "Made", "TGM"},
    {"R4", "Att", "TGA"}, {"R5", "2PT", "F2M"},    {"R6", "3PT", "F3M"},   {"R7", "FT", "FTM"},
    {"R8", "FG", "FGM"},  {"R9", "LUL", "LLM"},    {"R10", "LUR", "LRM"},  {"R11", "PB", "PBM"},
    {"R12", "DK", "DKM"}, {"R13", "Ast", "Ast"},   {"R14", "BS", "BS"},    {"R15", "ST", "ST"},
    {"R16", "TO", "TO"},  {"R17", "OR", "OR"},     {"R18", "DR", "DR"},    {"R19", "TR", "TR"},
    {"R20", "U1", "U1"},  {"R21", "U2", "U2"},
}};

} // namespace

std::string Record::text() const {
  if (value == 0)
    return {};
  return valueText({value}, seasonColumn(column).statistic->kind);
}

Records::Records() {
  for (std::size_t i = 0; i < kCount; ++i)
    m_records[i] = {kRows[i].key, kRows[i].what, seasonColumn(kRows[i].column).index, 0, {}};
}

void Records::add(const GameCatalogue& catalogue, const GameResult& result, const Texts& texts) {
  const SeasonRow row = rowOfResult(result);
  const std::string where = resultCell(catalogue, result, 1, texts) + " " +
                            resultCell(catalogue, result, kResultOpponentColumn, texts);
  for (Record& record : m_records) {
    const auto value = static_cast<int>(seasonValue(row, record.column, SeasonView::Totals).numerator);
    if (record.value < value) {
      record.value = value;
      record.where = where;
    } else if (record.value == value && value > 0) {
      record.where = "+" + where;
    }
  }
}

} // namespace hooptab
