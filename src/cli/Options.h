// The command line of hooptab-cli. Only takes it apart: what is asked for is done by main.
#pragma once

#include "cli/ExchangeOptions.h"
#include "feed/FeedGame.h"
#include "season/Qualification.h"
#include "settings/CommandLine.h"
#include "storage/DelimitedText.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

enum class CliCommand : std::uint8_t {
  Box,
  Lines,
  Flow,
  Compare,
  Events,
  Verify,
  Season,
  Import,
  Export,
  Serve,
  Help,
  Version
};
enum class OutputFormat : std::uint8_t { Text, Json, Csv };

// What a season is narrowed to; empty means all.
struct SeasonOptions {
  std::string team; // ABB-CAT
  std::optional<int> fromDay, toDay;
  std::optional<int> type;
  bool withSubfolders = false;
  bool countsCopiesOnce = false;
  bool leavesOutWrong = false;
  Qualification minimum;
};

// To whom games are given over the network, and how.
struct ServeOptions {
  std::string address = "127.0.0.1";
  int port = 0; // any that is free
  std::string passPhrase;
  std::vector<std::string> hosts; // under which it may be asked, too: those of a proxy before it
  NameForm names = NameForm::Full;
};

struct Options {
  CliCommand command = CliCommand::Help;
  OutputFormat format = OutputFormat::Text;
  CsvReader csvReader = CsvReader::Anybody;
  Language language = Language::English;
  SeasonOptions season;
  ExchangeOptions exchange;
  ServeOptions serve;
  int together = 5;                 // of `lines`: how many players
  std::vector<std::string> players; // of `compare`: two as events name them ("0-12"), or none
  std::vector<std::string> files;   // for a season its folder
  WrongUse wrong;
};

// `words` without the program's name. After "--" every word is a file.
[[nodiscard]] Options parseOptions(const std::vector<std::string>& words, Language usualLanguage);

} // namespace hooptab
