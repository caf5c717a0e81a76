// What becomes of a request: refused, answered or put through to a stream. Decides who may have it, by the
// names of this machine and by the pass phrase, before the source is asked. Knows no connection.
#pragma once

#include "publish/WebHosts.h"
#include "publish/WebPass.h"
#include "publish/WebReply.h"

#include <optional>

namespace hooptab {

// A request as it came in. Empty: it was not given.
struct WebAsked {
  std::string_view method;
  std::string_view target;
  std::string_view host;
  std::string_view authorization;
  std::string_view ifNoneMatch;
  std::string_view lastEventId;
  bool hasBody = false;
  bool isForwarded = false; // says itself that somebody else asks through who sent it
  bool keepsOpen = false;   // where nothing speaks against it
  std::string_view peer;    // its address
  bool isPeerLoopback = false;
  std::string_view arrivedAt; // the address of ours
};

struct WebServed {
  WebReply reply;                       // of no stream
  bool hasBody = true;                  // else only its header is told
  std::shared_ptr<WebStream> stream;    // null: none
  std::vector<WebStream::Frame> missed; // of it; whoever listens before the source does anything else has all
};

class WebDesk {
 public:
  WebDesk(WebSource& source, WebHosts hosts, WebPass pass)
      : m_source(source), m_hosts(std::move(hosts)), m_pass(std::move(pass)) {}

  // Whatever the source throws becomes an answer.
  [[nodiscard]] WebServed serve(const WebAsked& asked, WebPass::Time now);

 private:
  [[nodiscard]] std::optional<WebReply> refusal(const WebAsked& asked) const;
  [[nodiscard]] std::optional<WebReply> privateRefusal(const WebAsked& asked, WebPass::Time now);
  [[nodiscard]] WebServed fromSource(const WebAsked& asked, const WebRequest& request, WebPass::Time now);

  WebSource& m_source;
  WebHosts m_hosts;
  WebPass m_pass;
};

} // namespace hooptab
