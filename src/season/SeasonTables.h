// What each table of the season's window shows: its columns in the language in use, and its rows. Cells are
// the texts and numbers of the core's columns; nothing is computed here. The texts and settings must outlive
// what is returned.
#pragma once

#include "season/GameColumns.h"
#include "season/Season.h"
#include "season/SeasonWords.h"
#include "season/SnapshotModel.h"
#include "settings/Settings.h"

#include <memory>
#include <vector>

namespace hooptab {

// The list of games: `places` are those in the catalogue.
[[nodiscard]] std::vector<TableColumn> gameListColumns(const Texts& texts);
[[nodiscard]] TableRows gameListRows(std::shared_ptr<const GameCatalogue> catalogue,
                                     std::vector<std::size_t> places, std::optional<SeasonId> chosenTeam,
                                     const Texts& texts);

// Files that are not in the list, and why.
[[nodiscard]] std::vector<TableColumn> skippedColumns(const Texts& texts);
[[nodiscard]] TableRows skippedRows(std::shared_ptr<const GameCatalogue> catalogue, const Texts& texts);

// The season tables. Rows of averages under the minimum are marked with a star. Behind the columns of the
// core stand points while on court, the team, which is shown where there are several, and the user's own
// rating, if there is one; null: no season yet.
[[nodiscard]] std::vector<TableColumn> seasonTableColumns(SeasonTable kind, SeasonView view,
                                                          const Season* season, const Settings& settings,
                                                          const Texts& texts);
[[nodiscard]] TableRows seasonTableRows(std::shared_ptr<const Season> season, SeasonTable kind,
                                        SeasonView view, const Texts& texts);

// "+6.2" of a player or line in that view, "–" where no game tells who was on court.
[[nodiscard]] QString plusMinusText(const SeasonRow& row, SeasonView view);
[[nodiscard]] TableColumn plusMinusColumn(const Texts& texts);

[[nodiscard]] TableColumn ownRatingColumn(const SeasonRating& rating, const Texts& texts);

[[nodiscard]] QString capitalisedText(QString words);
// A column as the name of a statistic, to choose it by.
[[nodiscard]] QString statisticName(int column, const Settings& settings, const Texts& texts,
                                    const OwnLabels& labels = {});
// The first of each statistic, and the leaders of one of them (its place in Leaders::statistics()).
[[nodiscard]] std::vector<TableColumn> firstLeaderColumns(const Texts& texts);
[[nodiscard]] TableRows firstLeaderRows(std::shared_ptr<const Season> season, SeasonView view,
                                        const Settings& settings, const Texts& texts);
[[nodiscard]] std::vector<TableColumn> leaderColumns(const Texts& texts);
[[nodiscard]] TableRows leaderRows(std::shared_ptr<const Season> season, SeasonView view,
                                   std::size_t statistic, const Texts& texts);

// A player or line: the records, and the games one by one.
[[nodiscard]] std::vector<TableColumn> recordColumns();
[[nodiscard]] TableRows recordRows(std::shared_ptr<const SeasonPerson> person);
[[nodiscard]] std::vector<TableColumn> resultColumns(const Settings& settings, const Texts& texts,
                                                     const OwnLabels& labels = {},
                                                     const SeasonRating& ownRating = {});
[[nodiscard]] TableRows resultRows(std::shared_ptr<const SeasonPerson> person, const Texts& texts);

} // namespace hooptab
