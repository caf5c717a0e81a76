#include "publish/WebDesk.h"

#include "publish/WebAddress.h"

namespace hooptab {

namespace {

// The words are for whoever meets them in a browser, whose language is not known here.
WebReply refused(int status, std::string_view words, std::string extra = {}) {
  return {wordsOfWeb(status, words), true, false, std::move(extra)};
}

bool isRead(std::string_view method) {
  return method == "GET" || method == "HEAD";
}

WebServed failed() {
  return {refused(500, "The server has failed at this; it goes on."), true, {}, {}};
}

} // namespace

WebServed WebDesk::serve(const WebAsked& asked, WebPass::Time now) {
  WebServed served;
  if (std::optional<WebReply> refusal = this->refusal(asked)) {
    served.reply = std::move(*refusal);
  } else {
    const WebAddressReading reading = readWebAddress(asked.target);
    if (reading.problem == WebAddressProblem::TooLong)
      served.reply = refused(414, "This address is too long.");
    else if (reading.problem != WebAddressProblem::None)
      served.reply = refused(400, "This is no address.");
    else
      try {
        served = fromSource(asked, reading.request, now);
      } catch (...) { // whatever it was: all others are served
        served = failed();
      }
  }
  served.hasBody = asked.method != "HEAD";
  return served;
}

std::optional<WebReply> WebDesk::refusal(const WebAsked& asked) const {
  if (!isRead(asked.method))
    return refused(405, "Nothing can be changed here.", "Allow: GET, HEAD\r\n");
  if (asked.hasBody)
    return refused(413, "A request has no body here.");
  if (asked.host.empty())
    return refused(400, "The request names no host.");
  if (!m_hosts.areOurs(asked.host, asked.arrivedAt))
    return refused(421, "This machine is not known by that name.\n"
                        "Cet ordinateur n'est pas connu sous ce nom.");
  return std::nullopt;
}

// A proxy of this machine asks from here, whoever asks through it.
std::optional<WebReply> WebDesk::privateRefusal(const WebAsked& asked, WebPass::Time now) {
  if (!m_pass.isSet()) {
    if (asked.isPeerLoopback && !asked.isForwarded && WebHosts::isLoopback(asked.host))
      return std::nullopt;
    return refused(403, "Without a pass phrase this is only for the machine that records the game.\n"
                        "Sans phrase de passe, ceci est réservé à l'ordinateur qui enregistre la partie.");
  }
  switch (m_pass.judge(asked.authorization, asked.peer, now)) {
  case WebPass::Verdict::Right: return std::nullopt;
  case WebPass::Verdict::Missing:
  case WebPass::Verdict::Wrong: break;
  case WebPass::Verdict::TooOften:
    return refused(429,
                   "Too many wrong pass phrases: wait.\nTrop de phrases de passe erronées\u00a0: patientez.",
                   "Retry-After: " + std::to_string(m_pass.pauseOf(asked.peer, now).count()) + "\r\n");
  }
  return refused(401, "This needs the pass phrase.\nLa phrase de passe est requise.",
                 "WWW-Authenticate: Basic realm=\"HOOPTAB\", charset=\"UTF-8\"\r\n");
}

WebServed WebDesk::fromSource(const WebAsked& asked, const WebRequest& request, WebPass::Time now) {
  WebServed served;
  const bool isPrivate = m_source.isPrivate(request);
  if (isPrivate)
    if (std::optional<WebReply> refusal = privateRefusal(asked, now)) {
      // A browser asks once more with the phrase, on the same connection.
      refusal->keepsOpen = asked.keepsOpen && refusal->answer.status == 401;
      served.reply = std::move(*refusal);
      return served;
    }
  served.stream = m_source.stream(request);
  if (served.stream) {
    if (asked.method != "HEAD")
      served.missed = served.stream->since(asked.lastEventId.empty() ? request.parameter("lastEventId")
                                                                     : asked.lastEventId);
    return served;
  }
  served.reply = {m_source.answer(request), isPrivate, asked.keepsOpen, {}};
  if (!fitsHeader(served.reply.answer))
    return failed();
  if (served.reply.answer.status == 200 && isKnownTag(asked.ifNoneMatch, served.reply.answer.tag)) {
    served.reply.answer.status = 304;
    served.reply.answer.body = nullptr;
  }
  return served;
}

} // namespace hooptab
