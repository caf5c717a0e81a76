#include "publish/WebReply.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace hooptab {

namespace {

// The overlay is opened by the browser of the streaming program itself: nobody has to frame a page of ours.
constexpr std::string_view kSecurity =
    "Content-Security-Policy: default-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors "
    "'none'\r\n"
    "X-Content-Type-Options: nosniff\r\n"
    "Referrer-Policy: no-referrer\r\n"
    "Cross-Origin-Resource-Policy: same-origin\r\n";

std::string_view reasonOf(int status) {
  constexpr std::pair<int, std::string_view> kReasons[] = {
      {200, "OK"},
      {301, "Moved Permanently"},
      {302, "Found"},
      {303, "See Other"},
      {304, "Not Modified"},
      {307, "Temporary Redirect"},
      {308, "Permanent Redirect"},
      {400, "Bad Request"},
      {401, "Unauthorized"},
      {403, "Forbidden"},
      {404, "Not Found"},
      {405, "Method Not Allowed"},
      {413, "Content Too Large"},
      {414, "URI Too Long"},
      {421, "Misdirected Request"},
      {429, "Too Many Requests"},
      {431, "Request Header Fields Too Large"},
      {500, "Internal Server Error"},
      {503, "Service Unavailable"},
  };
  for (const auto& [code, reason] : kReasons)
    if (code == status)
      return reason;
  return {};
}

// As mail and the web write it: "Sun, 06 Nov 1994 08:49:37 GMT".
std::string dateOf(std::int64_t now) {
  constexpr std::array<const char*, 7> kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  using namespace std::chrono;
  const sys_seconds time = floor<seconds>(sys_time<milliseconds>(milliseconds(now)));
  const sys_days days = floor<std::chrono::days>(time);
  const year_month_day day(days);
  const hh_mm_ss clock(time - days);
  std::array<char, 64> text = {};
  std::snprintf(text.data(), text.size(), "%s, %02u %s %04d %02d:%02d:%02d GMT",
                kDays[weekday(days).c_encoding()], static_cast<unsigned>(day.day()),
                kMonths[static_cast<unsigned>(day.month()) - 1], static_cast<int>(day.year()),
                static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()));
  return text.data();
}

std::string firstLines(int status, std::int64_t now) {
  return "HTTP/1.1 " + std::to_string(status) + ' ' + std::string(reasonOf(status)) +
         "\r\nDate: " + dateOf(now) + "\r\n" + std::string(kSecurity);
}

std::string keepingOf(const WebReply& reply) {
  const WebAnswer& answer = reply.answer;
  if (reply.isPrivate)
    return "no-store";
  if (answer.maxAge > 0)
    return "public, max-age=" + std::to_string(answer.maxAge);
  return answer.tag.empty() ? "no-store" : "no-cache";
}

bool isOneLine(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char letter) {
    return static_cast<unsigned char>(letter) < 0x20 || letter == 0x7F;
  });
}

} // namespace

std::int64_t webNow() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

WebAnswer wordsOfWeb(int status, std::string_view words) {
  WebAnswer answer;
  answer.status = status;
  answer.body = std::make_shared<const std::string>(std::string(words) + '\n');
  return answer;
}

bool isKnownTag(std::string_view ifNoneMatch, std::string_view tag) {
  if (tag.empty())
    return false;
  if (ifNoneMatch == "*")
    return true;
  return ifNoneMatch.find('"' + std::string(tag) + '"') != std::string_view::npos;
}

bool fitsHeader(const WebAnswer& answer) {
  return isOneLine(answer.type) && isOneLine(answer.location) && isOneLine(answer.tag) &&
         answer.tag.find('"') == std::string::npos && answer.status >= 200 && answer.status <= 599;
}

std::string headerOf(const WebReply& reply, std::int64_t now) {
  const WebAnswer& answer = reply.answer;
  std::string header = firstLines(answer.status, now);
  header += reply.keepsOpen ? "Connection: keep-alive\r\n" : "Connection: close\r\n";
  header += "Cache-Control: " + keepingOf(reply) + "\r\n";
  if (!answer.tag.empty())
    header += "ETag: \"" + answer.tag + "\"\r\n";
  if (!answer.location.empty())
    header += "Location: " + answer.location + "\r\n";
  if (answer.status != 304 && answer.status != 204) {
    if (answer.body)
      header += "Content-Type: " + answer.type + "\r\n";
    header += "Content-Length: " + std::to_string(answer.body ? answer.body->size() : 0) + "\r\n";
  }
  return header + reply.extra + "\r\n";
}

// The end of the connection is the end of the stream, so that messages go out as they are.
std::string headerOfStream(std::int64_t now) {
  return firstLines(200, now) + "Connection: close\r\n"
                                "Cache-Control: no-store\r\n"
                                "X-Accel-Buffering: no\r\n"
                                "Content-Type: text/event-stream\r\n\r\n";
}

} // namespace hooptab
