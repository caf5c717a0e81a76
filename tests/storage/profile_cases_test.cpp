// The behaviour of the store as scripts: a file's bytes, operations on it, and what must come of them. One
// operation a line, fields separated by TAB, escapes \t \n \r \\ \xNN.
#include "storage/cinifile.h"
#include "storage/codepage.h"
#include "support/SharedGames.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace hooptab {
namespace {

std::string unescaped(std::string_view text) {
  std::string bytes;
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (text[index] != '\\') {
      bytes += text[index];
      continue;
    }
    const char escape = text.at(++index);
    if (escape == 'x') {
      bytes += static_cast<char>(std::stoi(std::string(text.substr(index + 1, 2)), nullptr, 16));
      index += 2;
    } else {
      bytes += escape == 't' ? '\t' : escape == 'n' ? '\n' : escape == 'r' ? '\r' : escape;
    }
  }
  return bytes;
}

class Script {
 public:
  void run(std::string_view text) {
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
      if (line.empty())
        continue;
      SCOPED_TRACE(line.substr(0, 200));
      std::vector<std::string> fields;
      std::istringstream parts(line + '\t');
      for (std::string part; std::getline(parts, part, '\t');)
        fields.push_back(unescaped(part));
      ASSERT_TRUE(step(fields)) << "no such operation";
    }
  }

 private:
  static constexpr const char* kName = "case.ini";

  bool step(const std::vector<std::string>& fields) {
    const std::string& operation = fields[0];
    const auto field = [&](std::size_t index) { return codepage::toUtf8(fields.at(index)); };
    store.Path(folder.path(kName));
    store.Default("");
    if (operation == "ABSENT")
      return !folder.holds(kName);
    if (operation == "INIT" || operation == "PUT") {
      folder.write(kName, fields.at(1));
      return true;
    }
    if (operation == "FILE") {
      EXPECT_EQ(folder.holds(kName) ? folder.read(kName) : "absent", fields.at(2));
      return true;
    }
    store.Section(field(1));
    if (operation == "KEYS") {
      EXPECT_EQ(store.INISection(), field(3));
    } else if (operation == "DELSEC") {
      store.DeleteSection();
      EXPECT_NE(store.LastReturnCode(), 0);
    } else if (operation == "GET") {
      store.Key(field(2));
      store.Default(field(3));
      EXPECT_EQ(store.Value(), field(5));
    } else if (operation == "SET") {
      store.Key(field(2));
      store.Value(field(3));
      EXPECT_NE(store.LastReturnCode(), 0);
    } else if (operation == "DEL") {
      store.Key(field(2));
      store.DeleteValue();
      EXPECT_NE(store.LastReturnCode(), 0);
    } else {
      return false;
    }
    return true;
  }

  TemporaryFolder folder;
  FileSystem files;
  ProfileStore profiles{files};
  cinifile store{profiles};
};

constexpr std::pair<const char*, const char*> kOwnCases[] = {
    {"ReadsByNameWithoutRegardToCase", R"(INIT	[D\xe9tails]\r\n Name = A, b = c \r\nname=2\r\n;name=3\r\n
GET	D\xc9TAILS	NAME	?	=>	A, b = c
GET	D\xe9tails	none	?	=>	?
GET	none	Name	?	=>	?
KEYS	d\xe9tails	=>	Name\x00name\x00
)"},
    {"KeepsEverythingItDoesNotWrite",
     R"(INIT	stray=1\r\n; top\n\n[ A ] tail\rx = 1\r\n\t\n;c\r\nalone\r\n[B]\nb=2
SET	a	X	9
SET	A	new	3
SET	b	c	4
FILE	=>	stray=1\r\n; top\n\n[ A ] tail\rx=9\r\n\t\n;c\r\nalone\r\nnew=3\r\n[B]\nb=2\r\nc=4\r\n
)"},
    {"AddsSectionsAtTheEnd", R"(ABSENT
SET	PERIODE1	1	10:00,ARRET,IN-,IN-
SET	DETAILS	EVENUM	2
SET	PERIODE1	2	10:00,DEPART
FILE	=>	[PERIODE1]\r\n1=10:00,ARRET,IN-,IN-\r\n2=10:00,DEPART\r\n[DETAILS]\r\nEVENUM=2\r\n
)"},
    {"DeletesTheFirstSectionOfAName", R"(INIT	[A]\r\na=1\r\n; kept\r\n\r\n[a]\r\na=2\r\n
DELSEC	none
DELSEC	A
GET	A	a	?	=>	2
FILE	=>	; kept\r\n[a]\r\na=2\r\n
)"},
    {"DeletedValuesReadAsZero",
     "INIT\t[C]\\r\\nKEYPAD=True\\r\\n\nDEL\tC\tkeypad\nFILE\t=>\t[C]\\r\\nKEYPAD=0\\r\\n\n"},
    {"LineBreaksAndNulsNeverOpenALine", R"(ABSENT
SET	A	notes	one\r\n[B]\r\rx=1\ny\x00z
FILE	=>	[A]\r\nnotes=one [B]  x=1 yz\r\n
SET	A\r\nq=1	k\n[C]	v
FILE	=>	[A]\r\nnotes=one [B]  x=1 yz\r\n[A q=1]\r\nk [C]=v\r\n
)"},
    {"EndsNameAndValueAtANul", R"(INIT	[A]\r\nk\x00l=5\x006\r\n
GET	A	k	?	=>	5
SET	A	k	5
FILE	=>	[A]\r\nk\x00l=5\x006\r\n
)"},
};

TEST(Profile, BehavesAsOurOwnCasesSay) {
  for (const auto& [name, script] : kOwnCases) {
    SCOPED_TRACE(name);
    Script().run(script);
  }
}

// The buffer of 9,999 bytes keeps two for the NULs that close a list.
TEST(Profile, KeyListsThatLeaveNoRoomForTheirEndAreCut) {
  TemporaryFolder folder;
  FileSystem files;
  ProfileStore profiles(files);
  cinifile store(profiles);
  for (const std::size_t length : {9'996U, 9'997U, 9'998U, 9'999U, 10'000U}) {
    std::string whole;
    for (char name = 'a'; whole.size() < length; ++name)
      whole += std::string(std::min<std::size_t>(length - whole.size(), 500) - 1, name) + '\0';
    std::string bytes = "[K]\r\n";
    for (const char letter : whole)
      bytes += letter == '\0' ? std::string("=1\r\n") : std::string(1, letter);
    store.Path(folder.write("keys.ini", bytes));
    store.Section("K");
    EXPECT_EQ(store.INISection(), whole.substr(0, 9'997)) << length;
  }
}

class SharedProfileCases : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(SharedProfileCases, AreHowTheStoreBehaves) {
  int cases = 0;
  for (const auto& entry : std::filesystem::directory_iterator(GetParam())) {
    SCOPED_TRACE(entry.path().filename());
    std::ostringstream script;
    script << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    ASSERT_NE(script.str().find("=>"), std::string::npos) << "a case that checks nothing";
    Script().run(script.str());
    ++cases;
  }
  EXPECT_GT(cases, 0);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SharedProfileCases);
INSTANTIATE_TEST_SUITE_P(Profile, SharedProfileCases, testing::ValuesIn(sharedFolders("profile/cases")));

} // namespace
} // namespace hooptab
