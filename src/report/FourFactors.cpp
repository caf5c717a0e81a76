#include "report/FourFactors.h"

#include "insight/Rates.h"

#include <utility>

namespace hooptab {

namespace {

constexpr std::string_view kRates[] = {"eFG", "TOrate", "ORpct", "FTrate"};

} // namespace

ReportRow comparedRow(PerSide<ReportCell> cells, std::string words, double better) {
  cells[Side::Visitor].isStrong = better > 0;
  cells[Side::Home].isStrong = better < 0;
  return {{std::move(cells[Side::Visitor]), textCell(std::move(words)), std::move(cells[Side::Home])}};
}

void addFourFactors(ReportTable& table, const CourtShare& share, const Texts& texts) {
  for (const std::string_view name : kRates) {
    const Rate& rate = rateNamed(name);
    PerSide<std::optional<double>> values;
    PerSide<ReportCell> cells;
    for (const Side team : kSides) {
      values[team] = rate.value(RateBasis::ofAll(team, share));
      cells[team] = {rateText(rate, values[team]), ReportCell::Kind::Number,
                     values[team].value_or(0) * (rate.kind == RateKind::Share ? 100 : 1)};
      if (!values[team])
        cells[team] = textCell("–");
    }
    const double difference =
        values[Side::Visitor] && values[Side::Home] ? *values[Side::Visitor] - *values[Side::Home] : 0;
    table.rows.push_back(comparedRow(std::move(cells), std::string(texts.text(rate.words)),
                                     rate.isBetterLow ? -difference : difference));
  }
}

} // namespace hooptab
