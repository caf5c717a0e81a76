// The server as a client meets it, over real connections of this machine.
#include "publish/WebServer.h"

#include "WebClient.h"

#include <future>
#include <gtest/gtest.h>
#include <thread>

using namespace hooptab;
using namespace std::chrono_literals;

namespace {

class NumberStream : public WebStream {
 public:
  std::vector<Frame> since(std::string_view lastId) override {
    const std::size_t begin = lastId.empty() ? 0 : std::stoul(std::string(lastId));
    return {m_frames.begin() + static_cast<std::ptrdiff_t>(std::min(begin, m_frames.size())), m_frames.end()};
  }
  // One more, numbered from 1.
  void add(std::size_t bytes = 1) {
    const std::string id = std::to_string(m_frames.size() + 1);
    m_frames.push_back(
        std::make_shared<const std::string>("id: " + id + "\ndata: " + std::string(bytes, 'x') + "\n\n"));
    tell(m_frames.back());
  }

 private:
  std::vector<Frame> m_frames;
};

class MadeUpSource : public WebSource {
 public:
  WebAnswer answer(const WebRequest& request) override {
    if (request.path == "/throws")
      throw 17;
    WebAnswer answer;
    if (request.path == "/large")
      answer.body = std::make_shared<const std::string>(3'000'000, 'x');
    else
      answer.body =
          std::make_shared<const std::string>(request.path + '|' + std::string(request.parameter("q")));
    answer.tag = request.path == "/tagged" ? "v1" : "";
    answer.location = request.path == "/bad" ? "a\r\nb: c" : "";
    return answer;
  }
  std::shared_ptr<WebStream> stream(const WebRequest& request) override {
    return request.path.ends_with("/events") ? numbers : nullptr;
  }
  bool isPrivate(const WebRequest& request) const override { return request.path.starts_with("/bench"); }
  void tick(std::int64_t now) override {
    ticked.set_value(now); // the second time it throws
  }

  std::shared_ptr<NumberStream> numbers = std::make_shared<NumberStream>();
  std::promise<std::int64_t> ticked;
};

// Holds when it becomes so, at the latest after what no healthy machine needs.
template <class Condition>
bool comesTrue(Condition condition) {
  const auto limit = std::chrono::steady_clock::now() + 10s;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > limit)
      return false;
    std::this_thread::sleep_for(1ms);
  }
  return true;
}

class WebServerTest : public testing::Test {
 protected:
  void serve() { server = std::make_unique<WebServer>(options, std::make_unique<MadeUpSource>()); }
  void tell(int count, std::size_t bytes = 1) {
    for (int i = 0; i < count; ++i)
      server->post([bytes](WebSource& source) { static_cast<MadeUpSource&>(source).numbers->add(bytes); });
  }
  WebReceived get(const std::string& target, const std::string& more = {},
                  const std::string& host = "localhost") {
    WebClient client(server->port());
    client.ask("GET " + target, more, host);
    return client.answer();
  }

  WebOptions options;
  std::unique_ptr<WebServer> server;
};

} // namespace

TEST_F(WebServerTest, AnswersOneAfterTheOther) {
  serve();
  WebClient client(server->port());
  client.ask("GET /a?q=%C3%A9");
  const WebReceived first = client.answer();
  EXPECT_EQ(first.status, 200);
  EXPECT_EQ(first.body, "/a|é");
  EXPECT_EQ(first.field("Connection"), "keep-alive");
  EXPECT_EQ(first.field("Cache-Control"), "no-store");
  EXPECT_EQ(first.field("X-Content-Type-Options"), "nosniff");
  EXPECT_EQ(first.field("Content-Security-Policy"),
            "default-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'");
  client.send(
      "HEAD /b HTTP/1.1\r\nHost: localhost\r\n\r\nGET /large HTTP/1.1\r\nHost: localhost\r\nConnection: "
      "close\r\n\r\n"); // without waiting
  const WebReceived head = client.answer(false);
  EXPECT_EQ(head.field("Content-Length"), "3");
  const WebReceived large = client.answer();
  EXPECT_EQ(large.body.size(), 3'000'000U);
  EXPECT_EQ(large.field("Connection"), "close");
  EXPECT_TRUE(client.seesTheEnd());
}

TEST_F(WebServerTest, WhatTheClientHasIsNotSentAgain) {
  serve();
  const WebReceived fresh = get("/tagged", "If-None-Match: \"v0\"\r\n");
  EXPECT_EQ(fresh.status, 200);
  EXPECT_EQ(fresh.field("Cache-Control"), "no-cache");
  const WebReceived same = get("/tagged", "If-None-Match: \"v0\", W/\"v1\"\r\n");
  EXPECT_EQ(same.status, 304);
  EXPECT_EQ(same.field("ETag"), "\"v1\"");
  EXPECT_EQ(same.field("Content-Length"), "");
}

TEST_F(WebServerTest, WhatItDoesNotTakeIsRefusedAndClosed) {
  serve();
  const std::string host = "Host: localhost\r\n";
  const std::pair<std::string, int> cases[] = {
      {"POST / HTTP/1.1\r\n" + host + "Content-Length: 3\r\n\r\nabc", 405},
      {"OPTIONS * HTTP/1.1\r\n" + host + "\r\n", 405},
      {"BREW / HTTP/1.1\r\n" + host + "\r\n", 405},
      {"GET / HTTP/1.1\r\n" + host + "Content-Length: 3\r\n\r\nabc", 413},
      {"GET / HTTP/1.1\r\n" + host + "Transfer-Encoding: chunked\r\n\r\n", 413},
      {"GET / HTTP/1.1\r\n\r\n", 400},
      {"GET / HTTP/1.1\r\n" + host + host + "\r\n", 400},
      {"GET / HTTP/1.1\r\nHost: evil.example\r\n\r\n", 421},
      {"GET /../../etc/passwd HTTP/1.1\r\n" + host + "\r\n", 400},
      {"GET http://localhost/ HTTP/1.1\r\n" + host + "\r\n", 400},
      {"GET /" + std::string(3'000, 'a') + " HTTP/1.1\r\n" + host + "\r\n", 414},
      {"GET / HTTP/1.1\r\n" + host + "X: " + std::string(40'000, 'a') + "\r\n\r\n", 431},
      {"GET / HTTP/1.1\r\nno field\r\n\r\n", 400},
      {"\x16\x03\x01 not words at all\r\n\r\n", 400},
  };
  for (const auto& [request, status] : cases) {
    WebClient client(server->port());
    client.send(request);
    EXPECT_EQ(client.answer().status, status) << request;
  }
  WebClient client(server->port());
  client.send("DELETE / HTTP/1.1\r\n" + host + "\r\n");
  const WebReceived refused = client.answer();
  EXPECT_EQ(refused.field("Allow"), "GET, HEAD");
  EXPECT_EQ(refused.field("Connection"), "close");
  EXPECT_EQ(get("/").status, 200);
}

TEST_F(WebServerTest, AFailureOfTheSourceIsOneAnswer) {
  serve();
  EXPECT_EQ(get("/throws").status, 500);
  EXPECT_EQ(get("/bad").status, 500); // would have put a line of its own into the header
  WebClient listener(server->port());
  listener.ask("GET /events", "Last-Event-ID: none\r\n");
  EXPECT_EQ(listener.answer().status, 500);
  server->post([](WebSource&) { throw 17; });
  EXPECT_EQ(get("/").status, 200);
}

TEST_F(WebServerTest, WithoutAPassPhraseWhatIsPrivateStaysHere) {
  options.names = {"table.example"};
  serve();
  EXPECT_EQ(get("/bench").status, 200);
  EXPECT_EQ(get("/", {}, "table.example").status, 200);
  EXPECT_EQ(get("/bench", {}, "table.example").status, 403);
  EXPECT_EQ(get("/bench/events", {}, "table.example").status, 403);
  EXPECT_EQ(get("/bench", "X-Forwarded-For: 127.0.0.1\r\n").status, 403);
}

TEST_F(WebServerTest, APassPhraseIsAskedForAndNotGuessed) {
  options.passPhrase = "secret";
  serve();
  const WebReceived asked = get("/bench");
  EXPECT_EQ(asked.status, 401);
  EXPECT_EQ(asked.field("WWW-Authenticate"), "Basic realm=\"HOOPTAB\", charset=\"UTF-8\"");
  const std::string right = "Authorization: Basic eDpzZWNyZXQ=\r\n";
  const WebReceived given = get("/bench", right);
  EXPECT_EQ(given.status, 200);
  EXPECT_EQ(given.field("Cache-Control"), "no-store");
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(get("/bench/events", "Authorization: Basic eDp3cm9uZw==\r\n").status, 401);
  const WebReceived paused = get("/bench", right);
  EXPECT_EQ(paused.status, 429);
  EXPECT_FALSE(paused.field("Retry-After").empty());
  EXPECT_EQ(get("/").status, 200);
}

TEST_F(WebServerTest, EachListenerHasEveryMessageOnceInOrder) {
  serve();
  tell(3);
  WebClient all(server->port());
  all.ask("GET /events");
  const WebReceived header = all.answer();
  EXPECT_EQ(header.field("Content-Type"), "text/event-stream");
  EXPECT_EQ(header.field("Cache-Control"), "no-store");
  EXPECT_EQ(all.receiveUntil("id: 3\ndata: x\n\n"), "id: 1\ndata: x\n\nid: 2\ndata: x\n\nid: 3\ndata: x\n\n");
  tell(1);
  auto again = std::make_unique<WebClient>(server->port());
  again->ask("GET /events", "Last-Event-ID: 2\r\n");
  again->answer();
  EXPECT_EQ(again->receiveUntil("id: 4\n"), "id: 3\ndata: x\n\nid: 4\n");
  EXPECT_EQ(server->viewers(), 2);
  tell(1);
  EXPECT_EQ(all.receiveUntil("id: 5\n"), "id: 4\ndata: x\n\nid: 5\n");
  EXPECT_EQ(again->receiveUntil("id: 5\n"), "data: x\n\nid: 5\n");
  again = nullptr;
  EXPECT_TRUE(comesTrue([&] { return server->viewers() == 1; }));
  WebClient head(server->port());
  head.ask("GET /");
  EXPECT_EQ(head.answer().field("Connection"), "keep-alive");
  head.ask("HEAD /events?lastEventId=1");
  EXPECT_EQ(head.answer().field("X-Accel-Buffering"), "no");
  EXPECT_TRUE(head.seesTheEnd());
}

TEST_F(WebServerTest, ASlowReaderIsCutAndTheOthersGoOn) {
  options.limits.waitingBytes = 20'000;
  serve();
  WebClient slow(server->port(), 4'096);
  slow.ask("GET /events");
  ASSERT_EQ(slow.answer().status, 200);
  WebClient quick(server->port());
  quick.ask("GET /events");
  ASSERT_EQ(quick.answer().status, 200);
  for (int i = 1; i <= 400; ++i) {
    tell(1, 1'000);
    ASSERT_FALSE(quick.receiveUntil("id: " + std::to_string(i) + "\n").empty());
  }
  EXPECT_EQ(server->viewers(), 1);
  EXPECT_TRUE(slow.seesTheEnd());
  // Asked again, all that was missed comes at once, however much it is.
  WebClient behind(server->port());
  behind.ask("GET /events?lastEventId=1");
  EXPECT_FALSE(behind.receiveUntil("id: 400\n").empty());
}

TEST_F(WebServerTest, WaitsHaveAnEnd) {
  options.limits.headerTime = options.limits.idleTime = options.limits.writeTime = 50ms;
  options.limits.connectionsOfAddress = 1; // so that one who comes in tells that the one before is out
  options.limits.countsLoopback = true;
  serve();
  WebClient halfAsked(server->port());
  halfAsked.send("GET / HTTP/1.1\r\nHost:");
  EXPECT_TRUE(halfAsked.seesTheEnd());
  std::unique_ptr<WebClient> client;
  const auto comesIn = [&](const std::string& target) {
    client = std::make_unique<WebClient>(server->port(), 4'096);
    client->ask("GET " + target);
    return client->receiveUntil("\r\n").ends_with("200 OK\r\n");
  };
  EXPECT_TRUE(comesTrue([&] { return comesIn("/"); }));
  EXPECT_TRUE(client->seesTheEnd()); // idle
  EXPECT_TRUE(comesTrue([&] { return comesIn("/large"); }));
  std::unique_ptr<WebClient> deaf;
  deaf.swap(client);
  EXPECT_TRUE(comesTrue([&] { return comesIn("/"); }));
  EXPECT_LT(deaf->rest().size(), 3'000'000U);

  options.limits.idleTime = 10min; // of which nothing is given to a request that has begun
  serve();
  EXPECT_TRUE(comesTrue([&] { return comesIn("/"); }));
  EXPECT_EQ(WebClient(server->port()).answer().status, 503); // that one is in
  client->send("GET");
  EXPECT_TRUE(client->seesTheEnd());
}

TEST_F(WebServerTest, WorkIsDoneInOrderAndTimePasses) {
  serve();
  std::string done;
  std::promise<std::future<std::int64_t>> last;
  for (char letter = 'a'; letter <= 'z'; ++letter)
    server->post([&done, letter](WebSource&) { done += letter; });
  server->post(
      [&last](WebSource& source) { last.set_value(static_cast<MadeUpSource&>(source).ticked.get_future()); });
  auto ticked = last.get_future().get();
  EXPECT_EQ(done, "abcdefghijklmnopqrstuvwxyz");
  ASSERT_EQ(ticked.wait_for(10s), std::future_status::ready);
  EXPECT_GT(ticked.get(), 1'600'000'000'000);
}

TEST_F(WebServerTest, NothingIsLeftOfOneThatGoes) {
  serve();
  tell(1);
  const std::uint16_t port = server->port();
  WebClient listener(port);
  listener.ask("GET /events");
  EXPECT_FALSE(listener.receiveUntil("id: 1").empty());
  const WebClient silent(port);
  server = nullptr;
  EXPECT_TRUE(listener.seesTheEnd());
  EXPECT_THROW(WebClient{port}, std::runtime_error);
  options.port = port;
  serve(); // the port is free at once
  EXPECT_EQ(get("/").status, 200);
}

TEST_F(WebServerTest, SaysWhyItCannotListen) {
  serve();
  const std::pair<WebOptions, WebServerProblem> cases[] = {
      {{"127.0.0.1", server->port(), {}, {}, {}}, WebServerProblem::PortTaken},
      {{"203.0.113.77", 0, {}, {}, {}}, WebServerProblem::AddressNotHere},
      {{"localhost", 0, {}, {}, {}}, WebServerProblem::NoAddress}};
  for (const auto& [asked, problem] : cases) {
    try {
      const WebServer another(asked, std::make_unique<MadeUpSource>());
      ADD_FAILURE() << asked.address;
    } catch (const WebServerError& error) {
      EXPECT_EQ(error.problem(), problem) << asked.address;
      EXPECT_EQ(error.errorNumber() == 0, problem == WebServerProblem::NoAddress);
    }
  }
}
