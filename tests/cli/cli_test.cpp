// The built hooptab-cli, run as a script runs it: what it prints and complains of, and its status.
#include "support/Json.h"
#include "support/SharedGames.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <regex>
#include <sys/wait.h>

using namespace hooptab;

namespace {

struct Outcome {
  int status = -1; // 128 and more: ended by a signal
  std::string output;
  std::string complaint;
};

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char letter : text)
    result += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
  return result + "'";
}

class Cli : public testing::Test {
 protected:
  // `arguments` as a shell takes them, redirections included.
  Outcome run(const std::string& arguments, const std::string& environment = "LC_ALL=C") {
    const std::string command = "exec 2>" + quoted(m_folder.path("stderr")) + "; " + environment + " " +
                                quoted(HOOPTAB_CLI) + " " + arguments;
    std::FILE* pipe = ::popen(command.c_str(), "r");
    Outcome outcome;
    char buffer[4096];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, pipe))
      outcome.output.append(buffer, count);
    const int ended = ::pclose(pipe);
    outcome.status = WIFEXITED(ended) ? WEXITSTATUS(ended) : 128 + WTERMSIG(ended);
    outcome.complaint = m_folder.read("stderr");
    return outcome;
  }
  std::string game(const std::string& text, const std::string& name = "g.GAM") {
    return quoted(m_folder.write(name, text));
  }

  TemporaryFolder m_folder;
};

std::ptrdiff_t linesOf(const std::string& text) {
  return std::ranges::count(text, '\n');
}
bool holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// Bytes of the code page: \xE9 is é, \x9C is œ.
std::string smallGame() {
  return "[DETAILS]\nVERSION=2.0\nDATE=2026-03-01\nTYPE=2\nENDROIT=Gymnase C\xF4t\xE9\n"
         "EQUIPE0ABB=PAN\nEQUIPE1ABB=OLY\nEQUIPE0NOM=Panth\xE8res\nNBREPERIODE=2\nDUREE=10\n"
         "[0]\n4=0,Zo\xE9 C\x9Cur\n5=1,Bea \"B\" Baker\n[1]\n7=2,Ida\n[PERIODE1]\n"
         "1=10:00,ARRET,IN-04-05,IN-07\n2=10:00,DEPART\n3=09:00,GFG,0-4,30,100\n4=08:00,GF3,1-7,115,100\n"
         "5=E07:00,SPF,0-4\n6=06:00,GFTA,0-5\n7=what\x1B[31m\n8=00:00,ARRET,IN-04-05,IN-07\n[PERIODE2]\n"
         "9=10:00,DEPART\n10=09:00,GFG,0-4,30,100\n11=08:30,STF,1-7\n12=00:00,ARRET,IN-04-05,IN-07\n"
         "[PERIODE3]\n13=05:00,DEPART\n14=04:00,GFT,1-7\n15=00:00,ARRET,IN-04-05,IN-07\n";
}

TEST_F(Cli, WrongUseIsStatus2AndOneClearLine) {
  for (const char* arguments : {"",
                                "--nope",
                                "play g.GAM",
                                "box",
                                "verify",
                                "events",
                                "box a b",
                                "box --json --csv a",
                                "verify --csv a",
                                "--lang de box a",
                                "box a --lang",
                                "box --lang= a",
                                "--",
                                "import",
                                "import --csv a",
                                "import --format tables a",
                                "import --anchor 1=0 a",
                                "export a",
                                "export --format nope a",
                                "export --format nba --date 2026-03-01 a",
                                "export --format clips --anchor x a",
                                "export --format clips --kind XYZ a",
                                "box --to x a",
                                "box --size 2 a",
                                "lines --size 6 a",
                                "lines --csv a",
                                "compare a 0-4",
                                "compare a 0-4 four",
                                "verify --replace a",
                                "import --date 2026-02-30 a"}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.output, "") << arguments;
    EXPECT_EQ(linesOf(outcome.complaint), 1) << arguments;
    EXPECT_TRUE(outcome.complaint.starts_with("hooptab-cli: ")) << outcome.complaint;
  }
}

TEST_F(Cli, TellsItsUseAndVersion) {
  const Outcome help = run("box --help");
  EXPECT_EQ(help.status, 0);
  for (const char* word : {"box", "events", "verify", "--json", "--csv", "--lang", "--version"})
    EXPECT_TRUE(holds(help.output, word)) << word;
  EXPECT_EQ(run("--version").output, "hooptab-cli " HOOPTAB_VERSION "\n");
}

TEST_F(Cli, TellsLinesFlowAndComparison) {
  const std::string file = game(smallGame());
  const Json box = Json::parse(run("box --json " + file).output);
  EXPECT_EQ(box["teams"][0]["players"][0]["plusMinus"].integer(), 0); // 4-4 with him on court
  EXPECT_EQ(box["teams"][1]["lines"][0]["plusMinus"].integer(), 0);
  EXPECT_EQ(box["teams"][0]["paint"].integer(), 4);
  EXPECT_TRUE(box["teams"][0]["fastBreak"].isNull());
  EXPECT_EQ(box["teams"][1]["biggestLead"]["clock"].text(), "08:00");
  EXPECT_EQ(box["leadChanges"].integer(), 2);
  EXPECT_EQ(box["timesTied"].integer(), 1);
  const Json lines = Json::parse(run("lines --json --size 1 " + file).output);
  EXPECT_EQ(lines[0]["together"][0]["players"].text(), "4");
  EXPECT_EQ(lines[0]["together"][0]["seconds"].integer(), 1500);
  EXPECT_EQ(lines[0]["together"][1]["onCourt"].boolean(), false);
  const Json flow = Json::parse(run("flow --json " + file).output);
  EXPECT_EQ(flow["steps"].array().size(), 4U);
  EXPECT_GT(flow["steps"][1]["homeWins"].number(), flow["steps"][0]["homeWins"].number());
  const Json compared = Json::parse(run("compare --json " + file + " 0-4 1-7").output);
  EXPECT_EQ(compared[0]["PTS"].integer(), 4);
  EXPECT_DOUBLE_EQ(compared[1]["usage"].number(), 1);
  EXPECT_TRUE(holds(run("compare --lang fr " + file).output, "Dans la raquette"));
  const Outcome stranger = run("compare " + file + " 0-4 0-99");
  EXPECT_EQ(stranger.status, 1);
  EXPECT_TRUE(holds(stranger.complaint, "0-99"));
}

TEST_F(Cli, SaysOfAFileThatIsNoGameWhatAndWhere) {
  m_folder.write("empty.GAM", "");
  m_folder.write("other.GAM", "[DETAILS]\nVERSION=1.0\n");
  m_folder.write("binary.GAM", std::string("\0\xFF[\x01=\xFE\n\0", 8));
  std::filesystem::create_directory(m_folder.path("folder.GAM"));
  m_folder.write("huge.GAM", "");
  std::filesystem::resize_file(m_folder.path("huge.GAM"), 100'000'000);
  const char* const noGame = "Not a Valid .GAM File";
  const std::pair<const char*, const char*> cases[] = {
      {"empty.GAM", noGame},       {"other.GAM", noGame},
      {"binary.GAM", noGame},      {"folder.GAM", "cannot be read"},
      {"huge.GAM", "too large"},   {"none.GAM", "no such file"},
      {"g.GAM/in", "no such file"}};
  game(smallGame());
  for (const auto& [name, reason] : cases) {
    for (const char* command : {"box --json ", "events ", "verify "}) {
      const Outcome outcome = run(command + quoted(m_folder.path(name)));
      EXPECT_EQ(outcome.status, 1) << command << name;
      EXPECT_EQ(outcome.output, "") << command << name;
      EXPECT_EQ(linesOf(outcome.complaint), 1) << outcome.complaint;
      EXPECT_TRUE(holds(outcome.complaint, name)) << outcome.complaint;
      EXPECT_TRUE(holds(outcome.complaint, reason)) << outcome.complaint;
    }
  }
}

TEST_F(Cli, BoxIsATableAlignedByCharacters) {
  const Outcome english = run("box " + game(smallGame()));
  EXPECT_EQ(english.status, 0) << english.complaint;
  EXPECT_EQ(english.output, R"(PAN 4 - 4 OLY
2026-03-01 - Season - Gymnase Côté

Points by Period  1  2  OT1  TOTAL
PAN               2  2    0      4
OLY               3  0    1      4

Fouls  1  2  OT1  TOTAL
PAN    0  0    0      0
OLY    0  1    0      1

Time in Lead   Time  times
PAN           11:00      2
OLY           09:00      1
Tied          05:00      1

PAN - Panthères
No  Player Name    Pos       Time  PTS  M/A       %   FG   F3   FT  OR  DR  Ast  BS  ST  TO  PF  TF  Rat.
 4  Zoé Cœur       Center   25:00    4  2/2  100.0%  2/2  0/0  0/0   0   0    0   0   0   0   0   0     4
 5  Bea "B" Baker  Forward  25:00    0  0/1    0.0%  0/0  0/0  0/1   0   0    0   0   0   0   0   0    -1
---------------------------------------------------------------------------------------------------------
    TOTAL                   50:00    4  2/3   66.7%  2/2  0/0  0/1   0   0    0   0   0   0   0   0     3

OLY
No  Player Name  Pos     Time  PTS  M/A       %   FG   F3   FT  OR  DR  Ast  BS  ST  TO  PF  TF  Rat.
 7  Ida          Guard  25:00    4  2/2  100.0%  0/0  1/1  1/1   0   0    0   0   0   0   0   1     4
-----------------------------------------------------------------------------------------------------
    TOTAL               25:00    4  2/2  100.0%  0/0  1/1  1/1   0   0    0   0   0   0   0   1     4
)");
  const std::string file = quoted(m_folder.path("g.GAM"));
  const Outcome french = run("box --lang fr " + file);
  for (const char* word : {"Saison", "PROL.1", "Fautes", "À égalité", "Nom du joueur", "Ailier", "Ren."})
    EXPECT_TRUE(holds(french.output, word)) << word << '\n' << french.output;
  EXPECT_EQ(run("box " + file, "LC_ALL= LANG=fr_CA.UTF-8").output, french.output);
  EXPECT_EQ(run("box --lang=en " + file, "LC_ALL=fr_CA").output, english.output);
}

TEST_F(Cli, JsonHasItsKeysInOrderAndTheSameInEveryLanguage) {
  const std::string file = game(smallGame(), "od\xFF\"d\x01.GAM");
  const Outcome outcome = run("box --json " + file);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, run("--lang fr box " + file + " --json").output);
  std::size_t at = 0;
  std::istringstream keys(
      "file version teams abb name points periods fouls players number name position seconds FGM FGA "
      "F3M F3A FTM FTA LLM LLA LRM LRA PBM PBA DKM DKA M A PTS Ast BS ST TO OR DR S1 S2 PF TF rating "
      "lines line seconds FGM M rating abb lines lead seconds times");
  for (std::string key; keys >> key;) {
    at = outcome.output.find('"' + key + "\": ", at);
    ASSERT_NE(at, std::string::npos) << key;
  }
  const Json json = Json::parse(outcome.output);
  EXPECT_TRUE(json["file"].text().ends_with("/od\xEF\xBF\xBD\"d\x01.GAM")) << json["file"].text();
  EXPECT_EQ(json["version"].text(), "2.0");
  EXPECT_EQ(json["teams"].array().size(), 2U);
  const Json& team = json["teams"][0];
  EXPECT_EQ(team["name"].text(), "Panthères");
  EXPECT_EQ(team["periods"].array().size(), 3U);
  EXPECT_EQ(team["points"].integer(), 4);
  EXPECT_EQ(team["periods"][1].integer(), 2);
  EXPECT_EQ(team["players"].array().size(), 2U) << "the total is no player";
  EXPECT_EQ(team["players"][0]["name"].text(), "Zoé Cœur");
  EXPECT_EQ(team["players"][0]["position"].text(), "Center");
  EXPECT_EQ(team["players"][1]["rating"].integer(), -1);
  EXPECT_EQ(team["players"][0]["PTS"].integer(), 4);
  EXPECT_EQ(team["lines"][0]["PTS"].integer(), 4);
  EXPECT_EQ(team["lines"][0]["line"].text(), "IN-04-05");
  EXPECT_EQ(team["lines"][0]["seconds"].integer(), 1500);
  EXPECT_EQ(json["teams"][1]["fouls"][1].integer(), 1);
  EXPECT_EQ(json["lead"]["seconds"][0].integer() + json["lead"]["seconds"][1].integer() +
                json["lead"]["seconds"][2].integer(),
            1500);
  EXPECT_EQ(json["lead"]["times"][2].integer(), 1);
}

TEST_F(Cli, CsvHasARowForEachPlayerAndTotalWithQuotedFields) {
  std::string text = smallGame();
  text.replace(text.find("EQUIPE0ABB=PAN"), 14, "EQUIPE0ABB=P,N");
  const Outcome outcome = run("box --csv " + game(text));
  EXPECT_EQ(outcome.status, 0);
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < outcome.output.size();) {
    const std::size_t end = outcome.output.find("\r\n", begin);
    ASSERT_NE(end, std::string::npos) << "every line ends in CR LF";
    lines.push_back(outcome.output.substr(begin, end - begin));
    begin = end + 2;
  }
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[0],
            "team,No,Name,Pos,Time,PF,TF,rating,M,A,%,PTS,FGM,FGA,FG%,FGPTS,F3M,F3A,F3%,F3PTS,FTM,FTA,FT%,"
            "FTPTS,LLM,LLA,LL%,LLPTS,LRM,LRA,LR%,LRPTS,PBM,PBA,PB%,PBPTS,DKM,DKA,DK%,DKPTS,Ast,BS,ST,TO,OR,"
            "DR,S1,S2,seconds,plusMinus,possessionsCounted,possessionsEstimated,paint,fromTurnovers,"
            "secondChance,bench,fastBreak");
  EXPECT_TRUE(lines[1].starts_with("\"P,N\",4,Zoé Cœur,Center,25:00,0,0,4,2,2,100.0%,4,2,2,100.0%,4,"));
  EXPECT_TRUE(lines[2].starts_with("\"P,N\",5,\"Bea \"\"B\"\" Baker\",Forward,")) << lines[2];
  EXPECT_TRUE(lines[3].starts_with("\"P,N\",,TOTAL,na,50:00,")) << lines[3];
  EXPECT_TRUE(lines[5].starts_with("OLY,,TOTAL,")) << lines[5];
  EXPECT_TRUE(lines[1].ends_with(",0,,,,,,,")) << "4-4 while on court; " << lines[1];
  const Json teams = Json::parse(run("box --json " + game(text)).output)["teams"];
  for (const auto& [line, team] : {std::pair(3U, 0U), {5U, 1U}}) {
    const Json& possessions = teams[team]["possessions"];
    EXPECT_TRUE(lines[line].ends_with(",," + std::to_string(possessions["counted"].integer()) + ',' +
                                      (team == 0 ? "2.44,4" : "1.44,0") + ",0,0,0,"))
        << lines[line];
  }
  for (const std::size_t line : {std::size_t{4}, std::size_t{5}})
    EXPECT_EQ(std::ranges::count(lines[line], ','), std::ranges::count(lines[0], ',')) << lines[line];
}

// Names that a spreadsheet would run and that would command a terminal, in every output.
TEST_F(Cli, NamesAreNoFormulasAndNoCommands) {
  const std::string text =
      "[DETAILS]\nVERSION=2.0\nTERMINE=1\nDATE=2026-\x1B[2J01\nENDROIT=\x07\x81\nNBREPERIODE=1\n"
      "DUREE=10\nEQUIPE0ABB=@A\x1B\nEQUIPE1ABB=\x8D\x42\nEQUIPE0NOM=\x9D\x43\n"
      "[0]\n4=0,=cmd|'/C calc'!A0\n5=1,+Bo\x1B]0x\x07\n[1]\n-7=2,\x90Ida\n"
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05,IN-\x1B\n2=09:00,STO,0-4\n3=08:00,GFTA,1-\x8F\n"
      "\x1B=07:00,SA\n9=05:00,ARRET,IN-04-05,IN-\n";
  const std::string file = game(text);
  const std::string folder = quoted(m_folder.path());
  for (const std::string& arguments :
       {"box " + file, "box --csv " + file, "box --json " + file, "events " + file, "verify " + file,
        "season " + folder, "season --csv " + folder, "season --json " + folder}) {
    const Outcome outcome = run(arguments);
    EXPECT_FALSE(outcome.output.empty()) << arguments;
    for (std::size_t i = 0; i < outcome.output.size(); ++i) {
      const auto byte = static_cast<unsigned char>(outcome.output[i]);
      const bool isC1 = byte == 0xC2 && static_cast<unsigned char>(outcome.output.at(i + 1)) < 0xA0;
      EXPECT_FALSE(isC1 || byte == 0x7F || (byte < 0x20 && byte != '\r' && byte != '\n'))
          << arguments << " at " << i;
    }
  }
  const std::string box = run("box --csv " + file).output;
  EXPECT_TRUE(holds(box, "\r\n'@A,4,'=cmd|'/C calc'!A0,")) << box;
  EXPECT_TRUE(holds(box, "\r\n'@A,5,'+Bo]0x,")) << box;
  EXPECT_TRUE(holds(box, "\r\nB,-7,Ida,")) << box;
  EXPECT_TRUE(holds(box, ",0,0,-1,")) << "a rating below 0 is a number: " << box;
  EXPECT_TRUE(holds(run("season --csv " + folder).output, "\r\nplayers,total,'@A-,4,'=cmd|'/C calc'!A0,"));
}

TEST_F(Cli, EventsAreToldInWordsAndNeverCommandTheTerminal) {
  const Outcome outcome = run("events " + game(smallGame()));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(linesOf(outcome.output), 16);
  for (const char* line : {" 3       1  09:00  PAN 4 Zoé Cœur: 2 points made\n",
                           " 5       1  07:00  [deleted] PAN 4 Zoé Cœur: personal foul\n",
                           " 7       1         [Cannot be understood] what?[31m\n",
                           " 8       1  00:00  STOP\n", "14     OT1  04:00  OLY 7 Ida: free throw made\n"})
    EXPECT_TRUE(holds(outcome.output, line)) << line << outcome.output;
  EXPECT_TRUE(holds(run("events --lang fr " + quoted(m_folder.path("g.GAM"))).output,
                    "[supprimé] PAN 4 Zoé Cœur : faute personnelle"));
}

TEST_F(Cli, VerifyNamesWhatIsWrongAndDoubtfulWithItsFilePeriodAndEvent) {
  const std::string tipOff =
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n";
  const std::string good = game(textOfGame(tipOff + "3=09:00,GFG,0-4,120,100\n", "EVENUM=4\n"), "good.GAM");
  const std::string bad =
      game(textOfGame(tipOff + "[PERIODE2]\n3=09:00,SPF,0-99\n", "EVENUM=4\n"), "bad.GAM");
  const Outcome doubtful = run("verify " + good);
  EXPECT_EQ(doubtful.status, 0) << "what is doubtful leaves a game good";
  EXPECT_TRUE(
      holds(doubtful.output, "good.GAM: doubtful: period 1, event 3 (09:00,GFG,0-4,120,100): A shot"));
  EXPECT_TRUE(holds(doubtful.output, "good.GAM: good, 1 doubtful\n"));
  const Outcome mixed = run("verify -- " + bad + " " + quoted(m_folder.path("none.GAM")) + " " + good);
  EXPECT_EQ(mixed.status, 1);
  EXPECT_TRUE(
      holds(mixed.output, "bad.GAM: wrong: period 1, event 2 (10:00,DEPART): Period 1 was not closed"));
  EXPECT_TRUE(holds(mixed.output,
                    "bad.GAM: doubtful: period 2, event 3 (09:00,SPF,0-99): PAN 99 is not in the roster\n"));
  EXPECT_TRUE(holds(mixed.output, "bad.GAM: 1 wrong, 1 doubtful\n"));
  EXPECT_TRUE(holds(mixed.output, "good.GAM: good, 1 doubtful\n"));
  EXPECT_TRUE(holds(mixed.complaint, "none.GAM"));
  EXPECT_TRUE(holds(run("verify --lang fr " + bad).output, "bad.GAM: erreurs : 1, à vérifier : 1\n"));

  const Json json = Json::parse(run("verify --json " + bad + " " + good).output);
  EXPECT_FALSE(json[0]["good"].boolean());
  EXPECT_TRUE(json[1]["good"].boolean());
  EXPECT_EQ(json[0]["findings"][0]["level"].text(), "wrong");
  EXPECT_EQ(json[0]["findings"][0]["period"].integer(), 1);
  EXPECT_EQ(json[0]["findings"][0]["event"].text(), "2");
  EXPECT_EQ(json[0]["findings"][0]["line"].text(), "10:00,DEPART");
  EXPECT_EQ(json[1]["findings"][0]["level"].text(), "doubtful");
  std::string cut = tipOff;
  for (int number = 3; number < 20; ++number)
    cut += std::to_string(number) + "=09:00,SST,0-0\n";
  EXPECT_TRUE(
      holds(run("verify " + game(textOfGame(cut), "cut.GAM")).output, "cut.GAM: and 12 more of this kind\n"));

  std::string many = textOfGame("[PERIODE1]\n");
  for (int number = 1; number <= 32768; ++number)
    many += std::to_string(number) + "=00:00,STF,0-4\n";
  const Outcome overflow = run("verify " + game(many, "many.GAM"));
  EXPECT_EQ(overflow.status, 1);
  EXPECT_TRUE(
      holds(overflow.output, "many.GAM: wrong: A count is out of range and stays at its limit: PAN 4 TF\n"));
}

TEST_F(Cli, SeasonTellsTheSameNumbersAsTextJsonAndCsv) {
  const std::string details = "TERMINE=1\nNBREPERIODE=1\nEVENUM=10\nEQUIPE0CAT=A\nEQUIPE1CAT=A\nTYPE=2\n";
  const std::string start = "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n";
  const std::string stop = "9=05:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";
  (void)game(textOfGame(start + "3=09:00,GF3,0-4\n" + stop, details + "DATE=2026-01-01\n"), "1.GAM");
  (void)game(textOfGame(start + "3=09:00,GFG,0-4\n4=08:00,GF3,1-7\n" + stop, details + "DATE=2026-01-02\n"),
             "2.GAM");
  (void)game(textOfGame(start), "live.GAM");
  const std::string folder = quoted(m_folder.path());

  const Outcome text = run("season " + folder);
  EXPECT_EQ(text.status, 0);
  EXPECT_EQ(text.complaint, "");
  EXPECT_TRUE(holds(text.output, "PLAYER STATISTICS FOR SELECTED GAMES")) << text.output;
  EXPECT_TRUE(holds(text.output, "live.GAM: not finished"));
  EXPECT_TRUE(holds(run("season --lang fr " + folder).output, "live.GAM: pas terminée"));
  EXPECT_TRUE(run("season --lang fr " + folder).output.starts_with("Parties : 2\n"));

  const Json all = Json::parse(run("season --json " + folder).output);
  ASSERT_EQ(all["games"].array().size(), 2U);
  EXPECT_EQ(all["games"][0]["result"].text(), "PAN");
  EXPECT_EQ(all["games"][1]["homePoints"].integer(), 3);
  EXPECT_EQ(all["skipped"][0]["reason"].text(), "not finished");
  const Json& ann = all["players"][0];
  EXPECT_EQ(ann["name"].text(), "Ann Able");
  EXPECT_EQ(ann["games"].integer(), 2);
  EXPECT_EQ(ann["seconds"].integer(), 600);
  EXPECT_EQ(ann["FGM"].integer(), 1) << "counters are those of the box score";
  EXPECT_EQ(ann["perGame"]["FGM"].text(), "1.0") << "columns are those of the season, two and three together";
  EXPECT_EQ(ann["perGame"]["PTS"].text(), "2.5");
  EXPECT_EQ(ann["perMinute"]["PTS"].text(), "0.50");
  EXPECT_EQ(all["lines"][0]["line"].text(), "IN-04-05-10-12-15");
  EXPECT_EQ(all["leaders"]["total"]["PTS"][1]["name"].text(), "Ida Ivers");
  EXPECT_EQ(all["leaders"]["perGame"]["PTS"][1]["value"].text(), "1.5");
  EXPECT_TRUE(all["leaders"]["perMinute"]["DKM"].array().empty());
  EXPECT_EQ(ann["plusMinus"].integer(), 2) << "3-0 and 2-3";
  EXPECT_EQ(all["lines"][0]["plusMinus"].integer(), 2);
  EXPECT_EQ(all["teams"][0]["possessions"]["counted"].integer(), 2);
  EXPECT_EQ(all["teams"][0]["possessions"]["estimated"].text(), "2.0");
  EXPECT_EQ(all["teams"][0]["offRating"].text(), "250.0");

  const Json ofTeam =
      Json::parse(run("season --json --team OLY-A --from=2026-01-02 --type 2 " + folder).output);
  ASSERT_EQ(ofTeam["games"].array().size(), 1U);
  EXPECT_EQ(ofTeam["games"][0]["result"].text(), "W 3-2");
  EXPECT_EQ(ofTeam["players"].array().size(), 5U);
  EXPECT_EQ(run("season --json --team oly-a " + folder).output,
            run("season --json --team OLY-A " + folder).output);

  const std::string csv = run("season --csv " + folder).output;
  EXPECT_TRUE(csv.starts_with(
      "table,view,team,No,Name,Time,G,PF,TF,rating,TGM,TGA,%,PTS,F2M,F2A,F2%,F2PTS,F3M,F3A,F3%,F3PTS,FTM,FTA,"
      "FT%,FTPTS,FGM,FGA,FG%,FGPTS,LLM,LLA,LL%,LLPTS,LRM,LRA,LR%,LRPTS,PBM,PBA,PB%,PBPTS,DKM,DKA,DK%,DKPTS,"
      "Ast,BS,ST,TO,OR,DR,TR,U1,U2,#,Pos,PosHist,underMinimum,plusMinus\r\n"))
      << csv;
  EXPECT_EQ(linesOf(csv), 1 + 4 * (10 + 2)) << "totals, per game, per minute, per 40 minutes";
  EXPECT_TRUE(holds(csv, "\r\nplayers,perGame,PAN-A,4,Ann Able,05:00,2,0.0,0.0,2.5,1.0,1.0,100.0%,2.5,"));
  EXPECT_TRUE(holds(csv, ",0,1.0\r\n")) << "plus and minus a game";
  const std::string french = run("season --csv-for fr " + folder).output;
  EXPECT_TRUE(french.starts_with("\xEF\xBB\xBFTableau;Vue;Équipe;No;Nom du joueur;Temps;"));
  EXPECT_TRUE(
      holds(french, "\r\nJoueurs;Par partie;PAN-A;4;Ann Able;05:00;2;0,0;0,0;2,5;1,0;1,0;100,0%;2,5;"));
  EXPECT_TRUE(
      run("box --csv-for=fr " + quoted(m_folder.path("1.GAM"))).output.starts_with("\xEF\xBB\xBFÉquipe;"));
  // The minimum: nobody plays six minutes a game here.
  const std::string six = "season --min-minutes 6 ";
  EXPECT_TRUE(holds(run(six + folder).output, "Ann Able *")) << "marked in the text";
  EXPECT_TRUE(std::regex_search(run(six + "--csv " + folder).output,
                                std::regex(",0,-?[0-9.]*\r\nplayers,perMinute,")));
  const Json marked = Json::parse(run(six + "--json " + folder).output);
  EXPECT_EQ(marked["minimum"]["minutesPerTeamGame"].integer(), 6);
  EXPECT_TRUE(marked["leaders"]["per40"]["PTS"].array().empty());
  const Json five = Json::parse(run("season --min-minutes 5 --json " + folder).output);
  EXPECT_EQ(five["leaders"]["per40"]["PTS"][0]["value"].text(), "20.0");
}

TEST_F(Cli, SeasonNamesWhatItCannotTake) {
  const std::string folder = quoted(m_folder.path());
  const std::string text = textOfGame("[PERIODE1]\n1=10:00,SA,0-4\n", "TERMINE=1\nEQUIPE0CAT=A\n");
  (void)game(text, "a.GAM");
  (void)game(text, "b.GAM");
  EXPECT_TRUE(holds(run("season --json " + folder).complaint, "a.GAM: cannot be right")) << "of 4 periods 1";
  EXPECT_EQ(Json::parse(run("season --json --leave-out-wrong " + folder).output)["games"].array().size(), 0U);
  const std::string right =
      textOfGame("[PERIODE1]\n1=10:00,SA,0-4\n", "TERMINE=1\nEQUIPE0CAT=A\nNBREPERIODE=1\nEVENUM=2\n");
  (void)game(right, "a.GAM");
  (void)game(right, "b.GAM");
  const Outcome twice = run("season --json " + folder);
  EXPECT_EQ(twice.status, 0);
  EXPECT_TRUE(holds(twice.complaint, "b.GAM: the same game as ")) << twice.complaint;
  const Outcome once = run("season --json --once " + folder);
  EXPECT_EQ(once.complaint, "");
  EXPECT_EQ(Json::parse(once.output)["games"].array().size(), 1U);

  const Outcome stranger = run("season --team PAN-B " + folder);
  EXPECT_EQ(stranger.status, 1);
  EXPECT_TRUE(holds(stranger.complaint, "no game of team PAN-B; there are PAN-A, OLY-"));
  EXPECT_EQ(run("season " + quoted(m_folder.path("missing"))).status, 1);
  for (const char* wrong : {"season", "season --from yesterday .", "season --to=2026-02-30 .",
                            "season --type x .", "season --team", "season . .", "season --min-games 101 .",
                            "season --csv-for de .", "box --once g.GAM"})
    EXPECT_EQ(run(wrong).status, 2) << wrong;
  const Outcome noType = run("season --type 7 " + folder);
  EXPECT_EQ(noType.status, 2);
  EXPECT_TRUE(holds(noType.complaint, "there is no type 7")) << noType.complaint;
}

// What no program of ours writes: each output says the same of it, and verify names what is wrong.
TEST_F(Cli, WhatIsExportedIsImportedAgainWithTheSameBox) {
  const std::string path = m_folder.write(
      "g.GAM", textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n"
                          "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"
                          "3=10:00,DEPART\n4=09:00,GF3,0-4,115,100\n5=09:00,SA,0-5\n"
                          "6=08:00,STO,1-7,K=TRAVEL\n7=00:00,ARRET,IN-04-05-10-12-15,"
                          "IN-03-07-08-11-22\n",
                          "DATE=2026-03-01\nTERMINE=1\nEQUIPE0NOM=Pandas\nEQUIPE1NOM=Olives\n"));
  for (const char* format : {"fls", "euroleague", "nba", "bbgame"}) {
    SCOPED_TRACE(format);
    const std::string there = m_folder.path(format);
    std::filesystem::create_directory(there);
    const std::string way = "export " + quoted(path) + " --format " + format + " --to " + quoted(there);
    EXPECT_EQ(run(way).status, 0);
    EXPECT_TRUE(holds(run(way).complaint, "--replace")); // never over what is there
    const Outcome imported =
        run("import " + quoted(there) + " --date 2026-03-01 --json --to " + quoted(there));
    EXPECT_EQ(imported.status, 0) << imported.complaint;
    const Json list = Json::parse(imported.output);
    ASSERT_EQ(list.array().size(), 1U);
    EXPECT_EQ(list[0]["format"].text(), format);
    EXPECT_EQ(list[0]["differences"].array().size(), 0U);
    const std::string game = list[0]["game"].text();
    EXPECT_TRUE(game.ends_with("2026-03-01 PAN-OLY.GAM")) << game;
    EXPECT_TRUE(holds(run("box --csv " + quoted(game)).output, "PAN")) << game;
    const Outcome again = run("import " + quoted(there) + " --date 2026-03-01 --json --to " + quoted(there));
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(holds(again.output, "the same game is there already"));
  }
}

TEST_F(Cli, ExportsWhatOthersWorkOnWith) {
  const std::string path = m_folder.path("g.GAM");
  game(smallGame());
  const std::string to = " --to " + quoted(m_folder.path(""));
  EXPECT_EQ(run("export --format tables " + quoted(m_folder.path("")) + to).status, 0);
  EXPECT_EQ(linesOf(m_folder.read("games.csv")), 2);
  EXPECT_EQ(run("export --format overlay " + quoted(path) + to).status, 0);
  EXPECT_EQ(m_folder.read("visitor_score.txt"), "4");
  EXPECT_EQ(
      run("export --format clips --kind GFG --anchor 2=10 --anchor 9=1:00:00 " + quoted(path) + to).status,
      0);
  EXPECT_TRUE(holds(m_folder.read("g-clips.xml"), "<start>62"));
  const Outcome few = run("export --format chapters --anchor 2=10 " + quoted(path) + to);
  EXPECT_EQ(few.status, 1); // two periods are no list of chapters
  EXPECT_FALSE(few.complaint.empty());
}

TEST_F(Cli, OddValuesAreReadTheSameEverywhere) {
  const std::string text =
      "[DETAILS]\nVERSION=2.0\nTERMINE=1\nDATE=2026-03-01\nTYPE=7\nNBREPERIODE=1\nDUREE=10\n"
      "EQUIPE0ABB=PAN\nEQUIPE0CAT=A\n"
      "[0]\n14=12,Zoe\n5=4,Bea\n6=9,Cy\n[1]\n7=2,Ida\n"
      "[PERIODE1]\n1=10:00,ARRET,IN-14-05-06,IN-07\n2=09:00,GFT,0-0014\n"
      "[PERIODE300]\n3=05:00,GF3,0-14\n";
  const std::string file = game(text);
  const std::string folder = quoted(m_folder.path());
  const std::string box = run("box " + file).output;
  for (const char* part : {"PAN 4 - 0 ", "2026-03-01 - Other\n", "14  Zoe          na ",
                           " 5  Bea          na ", " 6  Cy           N/A"})
    EXPECT_TRUE(holds(box, part)) << part << '\n' << box;
  const Json json = Json::parse(run("season --json " + folder).output);
  EXPECT_EQ(json["games"][0]["visitorPoints"].integer(), 4);
  EXPECT_EQ(json["games"][0]["type"].integer(), 9);
  EXPECT_EQ(json["players"][0]["position"].text(), "na");
  EXPECT_TRUE(holds(run("season " + folder + " --type 9").output, "Other"));
  EXPECT_TRUE(holds(run("events " + file).output, " OT299  05:00  PAN 14 Zoe: 3 points made\n"));
  const Outcome verified = run("verify " + file);
  EXPECT_EQ(verified.status, 1);
  EXPECT_TRUE(holds(verified.output, "Section PERIODE300 lies behind")) << verified.output;
  const Outcome length = run("verify " + game("[DETAILS]\nVERSION=2.0\nDUREE=100\n", "length.GAM"));
  EXPECT_EQ(length.status, 1);
  EXPECT_TRUE(holds(length.output, "length.GAM: wrong: DUREE is 100 minutes")) << length.output;
}

TEST_F(Cli, VerifyPassesRealGamesAndNamesFaultyOnes) {
  for (const auto& path : realOrSampleGames()) {
    const Outcome outcome = run("verify " + quoted(path.string()));
    EXPECT_EQ(outcome.status, 0) << outcome.output;
  }
  for (const auto& path : sharedGames("faulty")) {
    const Outcome outcome = run("verify " + quoted(path.string()));
    EXPECT_GT(linesOf(outcome.output), 1) << "nothing is named: " << outcome.output;
    EXPECT_FALSE(holds(outcome.output, ": good\n")) << outcome.output;
  }
}

TEST_F(Cli, ReaderThatGoesAwayIsNoErrorButAnUnwritableOutputIs) {
  std::string events = "[PERIODE1]\n";
  for (int number = 1; number <= 10000; ++number)
    events += std::to_string(number) + "=09:00,STF,0-4\n";
  const std::string file = game(textOfGame(events));
  const std::string left = quoted(m_folder.path("left"));
  // More than a pipe holds, so that writing goes on after the reader left.
  const Outcome piped = run("events " + file + " >&1 | head -n 1");
  EXPECT_EQ(linesOf(piped.output), 1);
  EXPECT_EQ(piped.complaint, "");
  run("events " + file + "; echo $? >" + left + "; } | head -n 1", "{ LC_ALL=C");
  EXPECT_EQ(m_folder.read("left"), "0\n");
  const Outcome closed = run("box " + file + " >&-");
  EXPECT_EQ(closed.status, 1);
  EXPECT_TRUE(holds(closed.complaint, "output cannot be written")) << closed.complaint;
  EXPECT_EQ(run("box " + file + " >/dev/full").status, 1);
}

TEST_F(Cli, OddGamesDoNoHarmAndAreNotChanged) {
  std::string odd = smallGame() + "16=" + std::string(70000, 'x') +
                    "\n=\n[PERIODE255]\n17=00:00,GFG,0-4,1e9,-5\n[PERIODE300]\n18=00:00,SA,0-4\n";
  for (int number = 100; number < 400; ++number)
    odd += std::to_string(number) + "=00:00,ARRET,IN-" + std::to_string(number) + ",IN-1-2-3-4-5-6-7-8\n";
  for (std::size_t length = odd.size(); length > 0; length = length * 9 / 10) {
    const std::string file = game(odd.substr(0, length));
    for (const char* command : {"box --json ", "box --csv ", "box ", "events ", "verify "}) {
      const Outcome outcome = run(command + file);
      EXPECT_LE(outcome.status, 1) << command << length << outcome.complaint;
      if (std::string_view(command) == "box --json " && outcome.status == 0) {
        EXPECT_NO_THROW((void)Json::parse(outcome.output)) << length;
      }
    }
    EXPECT_EQ(m_folder.read("g.GAM"), odd.substr(0, length));
  }
}

} // namespace
