// A game and its video: where each event is, and what is made of it.
#include "extracts/Captions.h"
#include "extracts/Chapters.h"
#include "extracts/ClipTimeline.h"
#include "extracts/Clips.h"
#include "extracts/VideoClock.h"
#include "support/TextGame.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <sstream>

using namespace hooptab;

namespace {

// The times of all events in seconds, "-" where there is none; with the notes behind them.
std::string timesIn(const std::string& periods, const std::vector<VideoAnchor>& anchors,
                    const std::string& details = {}) {
  const std::string text = textOfGame(periods, details);
  const auto game = counted(gameOfText(text));
  const VideoTimes times = videoTimes(extractSource(*game, ProfileText(text)), anchors);
  std::string all;
  for (const auto& time : times.times) {
    std::ostringstream seconds;
    seconds << static_cast<double>(time.value_or(0)) / 1000;
    all += (all.empty() ? "" : " ") + (time ? seconds.str() : "-");
  }
  constexpr const char* kProblems[] = {" unknown ", " crossed ", " unreached "};
  for (const auto& [problem, x, y] : times.notes)
    all += kProblems[static_cast<std::size_t>(problem)] + std::to_string(x) + ',' + std::to_string(y);
  return all;
}

TEST(VideoClock, ReachesAStretchOfTheClockByOneAnchor) {
  const std::string lines =
      "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=10:00,DEPART\n3=09:40,GFG,0-4\n4=09:30,ARRET\n"
      "5=09:30,SPF,0-5\n6=09:30,GFT,1-7\n7=09:30,DEPART\n8=09:20,STO,1-7\n9=E09:00,STO,1-8\n";
  EXPECT_EQ(timesIn(lines, {{2, 60'000}}), "60 60 80 90 90 90 - - - unreached 1,4");
  EXPECT_EQ(timesIn(lines, {{2, 60'000}, {7, 150'000}}), "60 60 80 90 90 150 150 160 -")
      << "free throws are where the clock goes on";
  EXPECT_EQ(timesIn(lines, {{3, 80'000}, {8, 160'500}}), "60 60 80 90 90 150.5 150.5 160.5 -")
      << "any event serves";
  EXPECT_EQ(timesIn(lines, {{2, 60'000}, {4, 75'000}, {7, 150'000}}).substr(0, 14), "60 60 70 75 75")
      << "between two anchors in the measure of the clock";
  EXPECT_EQ(timesIn(lines, {{7, 10'000}, {2, 60'000}, {9, 1}, {77, 1}}),
            "60 60 80 90 90 90 - - - unknown 9,0 unknown 77,0 crossed 2,7 unreached 1,4");
  EXPECT_EQ(timesIn("[PERIODE1]\n1=10:00,ARRET\n2=09:30,STO,0-4\n", {{1, 5'000}}).substr(0, 3), "5 -")
      << "a start that was lost: the clock did run";
  EXPECT_EQ(timesIn("[PERIODE1]\n1=00:00,DEPART\n2=00:00,STO,0-4\n", {{1, 5'000}}, "DUREE=0\n").substr(0, 3),
            "5 -")
      << "a game without time has no clock to go by";
}

TEST(VideoClock, ReachesEverythingByTheClockOnTheWall) {
  const std::string lines =
      "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=10:00,DEPART\n3=09:40,GFG,0-4\n4=09:30,ARRET\n5=09:30,XTO,1\n"
      "6=09:30,DEPART\n7=09:20,STO,1-7\n"
      "[HORLOGE]\nPARTIE=abc\n2=1763790000000\n4=1763790031500\n5=1763790040000\n6=1763790100000\n";
  EXPECT_EQ(timesIn(lines, {{3, 100'000}}, "IDPARTIE=abc\n"), "79 79 100 110.5 119 179 189")
      << "31.5 seconds by the wall for 30";
  EXPECT_EQ(timesIn(lines, {{2, 0}, {6, 40'000}}, "IDPARTIE=abc\n"), "0 0 21 31.5 40 40 50")
      << "the camera was stopped";
  EXPECT_EQ(timesIn(lines, {}, "IDPARTIE=abc\n"), "- - - - - - - unreached 3,3");
}

TEST(VideoClock, ReadsAnchors) {
  const auto read = [](std::string_view text) {
    const auto anchor = readAnchor(text);
    return anchor ? std::to_string(anchor->event) + '@' + std::to_string(anchor->time) : std::string("none");
  };
  EXPECT_EQ(read("312=1:04:12.5"), "312@3852500");
  EXPECT_EQ(read("3=75:00"), "3@4500000");
  EXPECT_EQ(read("3=12,0625"), "3@12062");
  for (const char* wrong :
       {"", "3", "=5", "x=5", "0=5", "3=", "3=1:60", "3=1:2:3:4", "3=-5", "3=5.", "3=5.x", "3=1::2"})
    EXPECT_EQ(read(wrong), "none") << wrong;
  EXPECT_EQ(videoTimeText(3'852'500), "1:04:12");
  EXPECT_EQ(videoTimeText(62'999), "1:02");
}

// A period in a video that begins two seconds before the jump ball.
const char* const kPlay =
    "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n3=09:58,STO,0-4,K="
    "TRAVEL\n"
    "4=09:52,STO,0-5\n5=09:40,GFG,1-7,20,90\n6=09:20,GF3,1-3\n7=09:00,GFGA,1-7\n8=08:50,GF3,1-8\n9=08:00,"
    "ARRET\n"
    "10=08:00,XTO,0\n[PERIODE2]\n11=10:00,DEPART\n12=09:00,GFT,0-4\n13=08:00,STO,1-22\n";
const std::vector<VideoAnchor> kAnchors = {{2, 2'000}, {11, 3'700'000}};

std::string clipsIn(const ClipFilter& filter, const std::vector<VideoAnchor>& anchors = kAnchors) {
  const std::string text = textOfGame(kPlay);
  const auto game = counted(gameOfText(text));
  const Texts texts;
  const ClipList list = clipsOf(extractSource(*game, ProfileText(text)), {anchors, filter}, texts);
  std::string all;
  for (const Clip& clip : list.clips)
    all += clip.code + ' ' + std::to_string(clip.start / 1000) + '-' + std::to_string(clip.end / 1000) + "; ";
  EXPECT_EQ(list.notes.empty(), list.unreached == 0);
  return all + std::to_string(list.unreached) + " of " + std::to_string(list.wanted);
}

TEST(Clips, AreTheEventsThatAreAskedFor) {
  EXPECT_EQ(clipsIn({.kinds = *readClipKinds("STO")}),
            "PAN turnover 0-8; PAN turnover 2-14; OLY turnover 3812-3824; 0 of 3")
      << "none begins before the video, and those that overlap stay apart";
  EXPECT_EQ(clipsIn({.player = "1-07"}), "OLY 2 points 14-26; OLY 2 points 54-66; 0 of 2");
  EXPECT_EQ(clipsIn({.kinds = *readClipKinds("GFGA,XTO")}),
            "OLY 2 points 54-66; PAN time-out 114-126; 0 of 2");
  EXPECT_EQ(clipsIn({.team = Side::Visitor, .period = 2}), "PAN free throw 3752-3764; 0 of 1");
  EXPECT_EQ(clipsIn({.line = "1-22-3-07-08-11", .kinds = *readClipKinds("GF3")}),
            "OLY 3 points 34-46; OLY 3 points 64-76; 0 of 2");
  EXPECT_EQ(clipsIn({.line = "0-04-05-10-12", .kinds = {}}), "0 of 0") << "four of the five";
  EXPECT_EQ(clipsIn({.period = 2}, {{2, 2'000}}), "2 of 2");
  EXPECT_EQ(clipsIn({.player = "nobody"}), "0 of 0");
  for (const char* wrong : {"", "STO,", "ARRET", "XAR", "STOA", "X"})
    EXPECT_FALSE(readClipKinds(wrong)) << wrong;
}

TEST(ClipTimeline, IsReadBackWithNamesAsTheyAre) {
  const std::string name = "<b>&\"O'Neil\"";
  std::string text = textOfGame(kPlay, "EQUIPE0COL=255\n");
  text.replace(text.find("Ann Able"), 8, name + '\x01');
  const auto game = counted(gameOfText(text));
  const Texts texts;
  const ClipList list =
      clipsOf(extractSource(*game, ProfileText(text)), {kAnchors, {.player = "0-4"}}, texts);
  const std::string xml = timelineXml(list, game->game.details);
  EXPECT_TRUE(xml.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(xml.c_str()));
  const pugi::xml_node first = document.select_node("/file/ALL_INSTANCES/instance[1]").node();
  EXPECT_STREQ(first.child_value("start"), "0.000");
  EXPECT_STREQ(first.child_value("end"), "8.000");
  EXPECT_STREQ(first.child_value("code"), "PAN turnover");
  std::string labels;
  for (const pugi::xml_node label : first.children("label"))
    labels += std::string(label.child_value("group")) + '=' + label.child_value("text") + '|';
  EXPECT_EQ(labels,
            "Player=4 " + name + "?|Period=1|Clock=09:58|Score=0-0|Line=4-5-10-12-15|Detail=travelling|");
  EXPECT_EQ(document.select_nodes("/file/ROWS/row").size(), 2U) << "one for each name";
  EXPECT_STREQ(document.select_node("/file/ROWS/row[code='PAN turnover']").node().child_value("R"), "65535");
}

std::string chaptersIn(const std::vector<VideoAnchor>& anchors, Language language = Language::English,
                       const std::string& details = {}) {
  const std::string text = textOfGame(kPlay, details);
  const auto game = counted(gameOfText(text));
  Texts texts;
  texts.setLanguage(language);
  return chaptersOf(extractSource(*game, ProfileText(text)), anchors, texts).text;
}

TEST(Chapters, ArePeriodsTimeOutsAndRuns) {
  EXPECT_EQ(chaptersIn(kAnchors),
            "0:00 Period 1, PAN 0 - 0 OLY\n0:22 Run of OLY: 8-0\n2:02 PAN: time-out, PAN 0 - 8 OLY\n"
            "1:01:40 Period 2, PAN 0 - 8 OLY\n");
  EXPECT_EQ(chaptersIn({{2, 100'000}}, Language::French),
            "0:00 PAN - OLY\n1:40 Période 1, PAN 0 - 0 OLY\n2:00 Série de OLY : 8-0\n3:40 PAN : temps "
            "mort, PAN 0 - 8 OLY\n");
  EXPECT_EQ(chaptersIn({{11, 0}}), "") << "one chapter is none";
  const std::string tooLong =
      chaptersIn(kAnchors, Language::English, "EQUIPE0ABB=<" + std::string(90, 'x') + "\n");
  EXPECT_TRUE(tooLong.starts_with("0:00 Period 1, ‹" + std::string(58, 'x') + "…\n")) << tooLong;
}

TEST(Captions, TellTheScoreFromBasketToBasket) {
  const std::string text = textOfGame(kPlay, "EQUIPE1ABB=A-->B\n");
  const auto game = counted(gameOfText(text));
  const Texts texts;
  const std::string captions = captionsOf(extractSource(*game, ProfileText(text)), kAnchors, texts).text;
  EXPECT_TRUE(
      captions.starts_with("WEBVTT\n\n00:00:02.000 --> 00:00:22.000\nPAN 0 - 0 A--&gt;B   Period 1\n\n"
                           "00:00:22.000 --> 00:00:42.000\nPAN 0 - 2 A--&gt;B   Period 1\n"
                           "A--&gt;B 7 Ida Ivers: 2 points made\n\n"))
      << captions;
  EXPECT_TRUE(captions.ends_with("01:02:40.000 --> 01:03:50.000\nPAN 1 - 8 A--&gt;B   Period 2\n"
                                 "PAN 4 Ann Able: free throw made\n"))
      << captions;
}

} // namespace
