// hooptab-cli: box scores, events and checks of game files, for scripts and for support. Writes to no file.
#include "cli/Options.h"
#include "cli/Output.h"
#include "cli/Reports.h"
#include "cli/TextTable.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <iostream>

namespace hooptab {

namespace {

enum ExitStatus { kGood = 0, kFound = 1, kWrongUse = 2 };

void complain(const std::string& text) {
  std::cerr << "hooptab-cli: " << printable(text) << '\n';
}

std::string explained(GameFileProblem problem) {
  switch (problem) {
  case GameFileProblem::Absent: return "there is no such file; check its name and folder";
  case GameFileProblem::TooLarge: return "the file is too large to be a game; give a .GAM file";
  case GameFileProblem::InvalidFormat:
    return "Invalid File Format (Not a Valid .GAM File); give a game that HOOPTAB recorded";
  default: return "cannot be read; give a file, not a folder, and check that you may read it";
  }
}

class Program {
 public:
  explicit Program(const Options& options) : m_options(options) { m_texts.setLanguage(options.language); }

  int run() {
    switch (m_options.command) {
    case CliCommand::Help: m_output.write(cliUsage()); break;
    case CliCommand::Version: m_output.write("hooptab-cli " HOOPTAB_VERSION "\n"); break;
    default:
      for (const std::string& file : m_options.files)
        show(file);
    }
    if (m_output.error() != 0) {
      complain(std::string("the output cannot be written: ") + std::strerror(m_output.error()));
      m_status = kFound;
    }
    return m_status;
  }

 private:
  void show(const std::string& file) {
    Scorecard card(m_store, file);
    if (const GameFileProblem problem = card.load(); problem != GameFileProblem::None) {
      complain(file + ": " + explained(problem));
      m_status = kFound;
      return;
    }
    if (m_options.command == CliCommand::Verify) {
      verify(card);
      return;
    }
    if (card.outOfRange()) {
      complain(file + ": " + tooMany(card));
      m_status = kFound;
    }
    m_output.write(report(card));
  }
  std::string report(const Scorecard& card) const {
    if (m_options.command == CliCommand::Events)
      return eventsText(card.game(), m_texts);
    switch (m_options.format) {
    case BoxFormat::Json: return boxJson(card);
    case BoxFormat::Csv: return boxCsv(card, m_texts);
    case BoxFormat::Text: break;
    }
    return boxText(card, m_texts);
  }
  void verify(const Scorecard& card) {
    std::vector<GameFinding> findings = checkGame(card.game());
    if (card.outOfRange())
      findings.push_back({false, 0, {}, {}, tooMany(card)});
    m_output.write(verifyText(card.game(), findings));
    if (!std::ranges::all_of(findings, &GameFinding::isWarning))
      m_status = kFound;
  }
  static std::string tooMany(const Scorecard& card) {
    const CountOutOfRange& count = *card.outOfRange();
    return "a count is out of range and stays at its limit: " + card.game().details.abbreviation[count.team] +
           ' ' + count.what;
  }

  const Options& m_options;
  Texts m_texts;
  Output m_output;
  FileSystem m_files;
  cinifile m_store{m_files};
  int m_status = kGood;
};

} // namespace

} // namespace hooptab

int main(int argc, char* argv[]) {
  using namespace hooptab;
  try {
    const Options options = parseOptions({argv + std::min(argc, 1), argv + argc}, environmentLanguage());
    if (!options.error.empty()) {
      complain(options.error + "; see hooptab-cli --help");
      return kWrongUse;
    }
    return Program(options).run();
  } catch (const std::exception& error) {
    complain(std::string("failed: ") + error.what());
    return kFound;
  }
}
