// Words that several kinds of reports are made of. Knows no game and no season.
#pragma once

#include "game/Statistics.h"
#include "report/Report.h"
#include "settings/Texts.h"

#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

// "Date: 2026-03-01", with the blanks of the language, and without the dots of a label that asks for
// something.
[[nodiscard]] std::string labelled(std::string_view label, std::string_view value, const Texts& texts);
[[nodiscard]] std::string labelled(Text labelText, std::string_view value, const Texts& texts);
// With a large first letter, for the begin of a row or a heading.
[[nodiscard]] std::string capitalised(std::string words);
// Over the columns of a group of shots.
[[nodiscard]] std::string groupTitle(const ShotGroup& group, const Texts& texts);
[[nodiscard]] ReportCell::Kind kindOfCell(ValueKind kind);
// The shots of a box score: twos are field goals of every kind.
inline constexpr ShotKinds kThreeKinds = shotKinds({EventCode::GF3});
inline constexpr ShotKinds kThrowKinds = shotKinds({EventCode::GFT});
inline constexpr ShotKinds kFieldKinds = kAllShotKinds & ~kThrowKinds;
inline constexpr ShotKinds kTwoKinds = kFieldKinds & ~kThreeKinds;
// "58%", for where there is no room for a decimal; "–" without a value. 0.5 is 50 %.
[[nodiscard]] std::string wholePercent(const std::optional<double>& share);
// As the name of a file, without blanks that follow each other.
[[nodiscard]] std::string proposedFileName(std::string words);
// Of a list with more rows than this its first ones are proposed for paper.
inline constexpr std::size_t kLongestList = 60;
inline constexpr std::size_t kProposedRows = 25;
// Leaves the first `most` rows of each table that is ranked, and those that are highlighted; its title tells
// of how many.
void keepBest(Report& report, std::size_t most, const Texts& texts);
// The rows of the longest ranked table; 0 without any.
[[nodiscard]] std::size_t rankedRows(const Report& report);
// Below tables of counts: what the codes of their columns mean, and which groups are left out on paper, since
// nobody tried such a shot.
void addNotes(Report& report, const ReportTable& table, const Texts& texts);

} // namespace hooptab
