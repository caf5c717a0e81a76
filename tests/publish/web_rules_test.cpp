// What the server decides before a game is asked, without connections.
#include "publish/WebAddress.h"
#include "publish/WebDoor.h"
#include "publish/WebHosts.h"
#include "publish/WebNetworks.h"
#include "publish/WebPass.h"
#include "publish/WebReply.h"

#include <gtest/gtest.h>

using namespace hooptab;
using namespace std::chrono_literals;

TEST(WebAddressTest, IsTakenApart) {
  const WebAddressReading reading =
      readWebAddress("/g/Finale%20A+B/api/%C3%A9v?after=k2x9-126&lang=fr&lang=en&t=a+b%3D&flag&=x");
  ASSERT_EQ(reading.problem, WebAddressProblem::None);
  EXPECT_EQ(reading.request.path, "/g/Finale A+B/api/év");
  const std::map<std::string, std::string, std::less<>> expected = {
      {"after", "k2x9-126"}, {"lang", "fr"}, {"t", "a b="}, {"flag", ""}};
  EXPECT_EQ(reading.request.query, expected);
  EXPECT_EQ(readWebAddress("/").request.path, "/");
  EXPECT_EQ(readWebAddress("/overlay/?x=/../").request.path, "/overlay/");
}

TEST(WebAddressTest, WhatIsNoneIsRefused) {
  for (const char* target : {"",
                             "*",
                             "api",
                             "http://localhost/",
                             "//x",
                             "/a//b",
                             "/.",
                             "/..",
                             "/a/../b",
                             "/%2e%2E/etc",
                             "/a%2fb",
                             "/a%5Cb",
                             "/a\\b",
                             "/%00",
                             "/a%0d%0aSet-Cookie",
                             "/%",
                             "/%4",
                             "/%zz",
                             "/%ff",
                             "/%c0%ae",
                             "/a#b",
                             "/?a=%",
                             "/?a=%00"})
    EXPECT_EQ(readWebAddress(target).problem, WebAddressProblem::Malformed) << target;
  EXPECT_EQ(readWebAddress('/' + std::string(kLongestWebAddress - 1, 'a')).problem, WebAddressProblem::None);
  EXPECT_EQ(readWebAddress('/' + std::string(kLongestWebAddress, 'a')).problem, WebAddressProblem::TooLong);
}

TEST(WebHostsTest, OursAreThisMachinesAndThoseGiven) {
  const WebHosts hosts("Table.club.example", {"Scores.Example:443", "2001:db8::1"});
  for (const char* host :
       {"localhost:8080", "LOCALHOST", "127.0.0.1", "[::1]:80", "192.168.1.7:8080", "table.local",
        "table.club.example.", "scores.example", "scores.example:8443", "[2001:db8::1]:80"})
    EXPECT_TRUE(hosts.areOurs(host, "192.168.1.7")) << host;
  for (const char* host : {"", "evil.example", "192.168.1.8", "localhost.evil.example", "localhost:80x",
                           "localhost@evil", "[::1", "[::1]x", ":80", "local", "."})
    EXPECT_FALSE(hosts.areOurs(host, "192.168.1.7")) << host;
  EXPECT_FALSE(WebHosts::isLoopback("192.168.1.7"));
}

namespace {
constexpr WebPass::Time kNow = WebPass::Time(1000h);
// "x:" with "secret:é", and with "secret".
constexpr std::string_view kRight = "basic eDpzZWNyZXQ6w6k=";
constexpr std::string_view kWrong = "Basic eDpzZWNyZXQ=";
} // namespace

TEST(WebPassTest, KnowsThePhraseAlone) {
  using enum WebPass::Verdict;
  WebPass pass("secret:é");
  EXPECT_EQ(pass.judge(kRight, "a", kNow), Right);
  EXPECT_EQ(pass.judge(kWrong, "a", kNow), Wrong);
  EXPECT_EQ(pass.judge("Basic eDpzZWNyZXQ6w6lz", "a", kNow), Wrong); // begins with it
  EXPECT_EQ(pass.judge("Basic eDpzZWNyZXc6w6k=", "a", kNow), Wrong); // as long, one letter is another
  for (const char* none : {"", "Basic", "Basic ", "Bearer eDpz", "Basic ****", "Basic eHNlY3JldA=="})
    EXPECT_EQ(pass.judge(none, "a", kNow), Missing) << none;
  EXPECT_EQ(WebPass("").judge("Basic eDo=", "a", kNow), Wrong); // nobody knows what there is not
}

TEST(WebPassTest, GuessersWaitLongerEachTime) {
  using enum WebPass::Verdict;
  WebPass pass("secret:é");
  WebPass::Time now = kNow;
  for (const std::chrono::seconds pause : {60s, 120s, 240s}) {
    for (int i = 0; i < WebPass::kTries; ++i)
      EXPECT_EQ(pass.judge(kWrong, "a", now), Wrong);
    EXPECT_EQ(pass.judge(kRight, "a", now + pause - 1ms), TooOften);
    EXPECT_EQ(pass.judge(kRight, "b", now), Right);
    EXPECT_EQ(pass.pauseOf("a", now), pause);
    now += pause;
  }
  EXPECT_EQ(pass.judge(kRight, "a", now), Right);
  for (std::size_t i = 0; i < WebPass::kMostAddresses; ++i)
    EXPECT_EQ(pass.judge(kWrong, "guesser " + std::to_string(i), now), Wrong);
  EXPECT_EQ(pass.judge(kWrong, "new", now), TooOften);
  EXPECT_EQ(pass.judge(kRight, "a", now), Right); // was right before
  EXPECT_EQ(pass.judge(kRight, "new", now + 1h), Right);
}

TEST(WebDoorTest, LetsInWhomTheLimitsLetIn) {
  WebLimits limits;
  limits.connections = 5;
  limits.connectionsOfAddress = 2;
  limits.proxies = {"10.0.0.1"};
  WebDoor door(limits, 100);
  WebDoor::Ticket first = door.admit("a", false);
  const WebDoor::Ticket second = door.admit("a", false);
  EXPECT_EQ(door.admit("a", false), nullptr);
  first = nullptr;
  first = door.admit("a", false);
  EXPECT_NE(first, nullptr);
  const std::vector<WebDoor::Ticket> others = {door.admit("10.0.0.1", false), door.admit("10.0.0.1", false),
                                               door.admit("10.0.0.1", false)};
  EXPECT_NE(others[2], nullptr);
  EXPECT_EQ(door.admit("127.0.0.1", true), nullptr); // full
}

TEST(WebReplyTest, IsDatedAndKeptAsTheAnswerSays) {
  WebAnswer answer = wordsOfWeb(200, "x");
  answer.maxAge = 5;
  const std::string header = headerOf({answer, false, true, {}}, 784'111'777'999);
  EXPECT_NE(header.find("\r\nDate: Sun, 06 Nov 1994 08:49:37 GMT\r\n"), std::string::npos) << header;
  EXPECT_NE(header.find("\r\nCache-Control: public, max-age=5\r\n"), std::string::npos);
  EXPECT_NE(headerOf({answer, true, true, {}}, 0).find("\r\nCache-Control: no-store\r\n"), std::string::npos);
  answer.location = "/a\r\nSet-Cookie: b";
  EXPECT_FALSE(fitsHeader(answer));
}

TEST(WebNetworksTest, ThisMachineComesLast) {
  const std::vector<WebNetwork> networks = webNetworks();
  ASSERT_FALSE(networks.empty());
  EXPECT_TRUE(networks.back().isLoopback);
  for (const char* address :
       {"10.1.2.3", "172.31.0.1", "192.168.0.9", "169.254.1.1", "127.0.0.1", "::1", "fd00::1", "fe80::1"})
    EXPECT_TRUE(isPrivateAddress(address)) << address;
  for (const char* address :
       {"11.0.0.1", "172.32.0.1", "192.169.0.1", "8.8.8.8", "2001:db8::1", "::2", "", "x"})
    EXPECT_FALSE(isPrivateAddress(address)) << address;
}
