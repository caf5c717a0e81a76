// torture_foreign PROGRAM [MOMENTS|SECONDSs] [SEED]: a game is recorded by clicks while another hand does to
// its file what hands, editors, sync clients and loose sticks do, at random moments between the clicks. After
// each, the window and the file must say the same, hold every click, and what the other hand added must stand
// somewhere. One line of counts; exit status 1 when anything was lost or hung.
#include "Amount.h"
#include "Table.h"
#include "settings/Text.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <iostream>
#include <random>

using namespace hooptab;
namespace fs = std::filesystem;

namespace {

class ForeignHand {
 public:
  ForeignHand(const TemporaryFolder& folder, unsigned seed) : m_folder(folder), m_random(seed) {
    fs::create_directory(folder.path("games"));
    makeGame(path());
    remember();
  }
  std::string path() const { return m_folder.path("games/T.GAM"); }
  int roll(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }
  void remember() { m_versions.push_back(read()); }

  struct Kind {
    const char* name;
    std::function<void()> act;
    std::function<void()> undo = [] {}; // for what the disk refuses meanwhile
  };
  const std::vector<Kind>& kinds() const { return m_kinds; }
  // Those that the other hand has written, and that stand nowhere any more.
  int lostMarks() const {
    std::string all;
    for (const auto& entry : fs::directory_iterator(m_folder.path("games"))) {
      if (entry.is_regular_file() && entry.file_size() < 1024 * 1024)
        all += m_folder.read("games/" + entry.path().filename().string());
    }
    int lost = 0;
    for (const std::string& mark : m_marks) {
      if (all.find(mark) != std::string::npos)
        continue;
      ++lost;
      std::cerr << "lost: " << mark << '\n';
    }
    return lost;
  }
  std::size_t marks() const { return m_marks.size(); }

 private:
  std::string read() const { return m_folder.read("games/T.GAM"); }
  void write(const std::string& bytes) { m_folder.write("games/T.GAM", bytes); }
  std::string mark() {
    m_marks.push_back("SST,1-5,M" + std::to_string(m_marks.size()) + "M");
    return m_marks.back();
  }
  // At once, as another program that takes care: what is written in place while the program saves goes to a
  // file that has no name any more, and nobody could save it.
  void append(const std::string& line) {
    m_folder.write("games/T.GAM~", read() + line + "\r\n");
    fs::rename(path() + "~", path());
  }
  std::string nextNumber() const {
    const std::string text = read();
    const std::size_t at = text.find("EVENUM=");
    return at == std::string::npos ? "99" : text.substr(at + 7, text.find('\r', at) - at - 7);
  }
  void replace(const std::string& what, const std::string& by) {
    std::string text = read();
    if (const std::size_t at = text.find(what); at != std::string::npos)
      write(text.replace(at, what.size(), by));
  }
  void cut(std::size_t size) { fs::resize_file(path(), size); }
  void mode(fs::perms perms) { fs::permissions(path(), perms); }
  void resave() { // as editors do
    fs::copy_file(path(), path() + "~");
    fs::rename(path() + "~", path());
  }

  const TemporaryFolder& m_folder;
  std::mt19937 m_random;
  std::vector<std::string> m_versions;
  std::vector<std::string> m_marks;
  const std::vector<Kind> m_kinds = {
      {"next number", [this] { append(nextNumber() + "=10:00," + mark()); }},
      {"far number", [this] { append(std::to_string(100'000 + roll(100'000)) + "=10:00," + mark()); }},
      {"no event", [this] { append("what=is this? " + mark()); }},
      {"line without =", [this] { append("3 nothing"); }},
      {"older version",
       [this] { write(m_versions[static_cast<std::size_t>(roll(int(m_versions.size())))]); }},
      {"first version", [this] { write(m_versions.front()); }},
      {"deleted", [this] { fs::remove(path()); }},
      {"renamed", [this] { fs::rename(path(), path() + ".away" + std::to_string(roll(1'000'000))); }},
      {"garbage", [this] { write(std::string(static_cast<std::size_t>(roll(9000)) + 1, char(roll(256)))); }},
      {"empty", [this] { cut(0); }},
      {"cut off", [this] { cut(static_cast<std::size_t>(roll(int(fs::file_size(path()))))); }},
      {"too large", [this] { cut(64U << 20U); }},
      {"a folder", [this] { fs::remove(path()), fs::create_directory(path()); }},
      {"a link to nowhere", [this] { fs::remove(path()), fs::create_symlink("/nowhere/x", path()); }},
      {"notes", [this] { append("[DETAILS]"), replace("NOTES=", "NOTES=theirs"); }},
      {"player renamed", [this] { replace("Bea Baker", "Bea " + std::to_string(roll(100))); }},
      {"our line changed", [this] { replace(",GFT,0-4", ",GFTA,0-4"); }},
      {"our line deleted", [this] { replace("=10:00,GFT", "=E10:00,GFT"); }},
      {"period gone", [this] { replace("[PERIODE1]", "[PERIOD1]"); }},
      {"saved by an editor", [this] { resave(); }},
      {"touched", [this] { fs::last_write_time(path(), fs::file_time_type::clock::now()); }},
      {"read-only", [this] { mode(fs::perms::owner_read); }, [this] { mode(fs::perms::owner_all); }},
      {"disk out", [this] { fs::rename(m_folder.path("games"), m_folder.path("out")); },
       [this] { fs::rename(m_folder.path("out"), m_folder.path("games")); }},
  };
};

int run(const std::string& program, const Amount& amount) {
  const TemporaryFolder folder;
  fs::create_directory(folder.path("program"));
  ForeignHand hand(folder, amount.seed());
  ScorersTable table(program, folder.path("program"), hand.path());
  table.openGame();
  int clicks = 0;
  int failed = 0;
  int missed = 0;
  int done = 0;
  const auto click = [&](int least, int most) {
    for (int number = least + hand.roll(most - least + 1); number > 0; --number, ++clicks)
      table.score();
  };
  for (; amount.goesOn(done); ++done) {
    const auto& kind = hand.kinds()[static_cast<std::size_t>(done) % hand.kinds().size()];
    try {
      click(0, 3);
      std::this_thread::sleep_for(std::chrono::milliseconds(hand.roll(60)));
      kind.act();
      click(1, 3); // so that it is seen before the next one covers it
      kind.undo();
      // A click that the window never showed was not acknowledged; it is told, and must not be in the file.
      for (int tries = 0; tries < 50 && table.shownPoints() != clicks; ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
      if (const int shown = table.shownPoints(); shown < clicks) {
        missed += clicks - shown;
        clicks = shown;
      }
      waitUntil(
          "the file holds every click", [&] { return pointsIn(hand.path()) == clicks; }, 20);
      hand.remember();
    } catch (const std::exception& failure) {
      ++failed;
      std::cerr << "moment " << done << ", " << kind.name << ": " << failure.what() << "; clicks " << clicks
                << ", shown " << table.shownPoints() << ", in the file " << pointsIn(hand.path()) << '\n';
      clicks = table.shownPoints();
    }
  }
  const int status = table.leave();
  const int lost = hand.lostMarks();
  const int atEnd = pointsIn(hand.path());
  std::cout << "foreign hands: seed " << amount.seed() << ", moments " << done << " of "
            << hand.kinds().size() << " kinds, clicks " << clicks << ", in the file at the end " << atEnd
            << ", clicks never shown " << missed << ", foreign lines " << hand.marks() << ", of them lost "
            << lost << ", failed moments " << failed << ", exit status " << status << '\n';
  return failed == 0 && lost == 0 && atEnd == clicks && status == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
  try {
    return run(argv[1], Amount(wordsBehind(2, argc, argv), 1150));
  } catch (const std::exception& failure) {
    std::cout << "FAILED: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
