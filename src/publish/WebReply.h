// What goes over the wire before a body: the status and header of an answer, with what keeps a browser from
// doing more with a page of ours than showing it. Knows no connection.
#pragma once

#include "publish/WebSource.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace hooptab {

struct WebReply {
  WebAnswer answer;
  bool isPrivate = false; // may be kept nowhere
  bool keepsOpen = false; // another request may follow
  std::string extra = {}; // further lines of the header, each with its end
};

// An answer in words.
[[nodiscard]] WebAnswer wordsOfWeb(int status, std::string_view words);
// Without a body where the client has it already, by the header If-None-Match.
[[nodiscard]] bool isKnownTag(std::string_view ifNoneMatch, std::string_view tag);
// Whether all that goes into the header is one line each.
[[nodiscard]] bool fitsHeader(const WebAnswer& answer);

// By the system's clock, in milliseconds since 1970.
[[nodiscard]] std::int64_t webNow();
// With its empty line; `now` as above.
[[nodiscard]] std::string headerOf(const WebReply& reply, std::int64_t now);
[[nodiscard]] std::string headerOfStream(std::int64_t now);

} // namespace hooptab
