// What the web server gives: answers to addresses, and streams of messages. The server knows connections and
// no game, a source knows games and no connection. All of it is called on the server's thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct WebRequest {
  std::string path; // decoded; begins with "/", without parts "." and ".."
  // Decoded; of a name given twice the first one.
  std::map<std::string, std::string, std::less<>> query;

  // Empty where it was not given.
  [[nodiscard]] std::string_view parameter(std::string_view name) const {
    const auto found = query.find(name);
    return found == query.end() ? std::string_view() : std::string_view(found->second);
  }
};

struct WebAnswer {
  int status = 200;
  std::string type = "text/plain; charset=utf-8";
  std::shared_ptr<const std::string> body; // many who ask share one; null: nothing
  std::string tag = {};                    // ETag, without its quotes; empty: none
  int maxAge = 0;                          // seconds for which it may be kept; 0: it must be asked for anew
  std::string location = {};               // of a redirection
};

// Messages to all who listen, in order.
class WebStream {
 public:
  // As it goes over the wire ("id: ...\ndata: ...\n\n"); shared by all connections.
  using Frame = std::shared_ptr<const std::string>;
  using Listener = std::function<void(const Frame& frame)>;
  using Listening = std::shared_ptr<const Listener>;

  WebStream() = default;
  WebStream(const WebStream&) = delete;
  WebStream& operator=(const WebStream&) = delete;
  virtual ~WebStream() = default;

  // What somebody needs first who has all up to that id; empty: who has nothing.
  [[nodiscard]] virtual std::vector<Frame> since(std::string_view lastId) = 0;
  // Called for each frame from now on, until what is returned goes.
  [[nodiscard]] Listening listen(Listener listener) {
    auto listening = std::make_shared<const Listener>(std::move(listener));
    m_listeners.push_back(listening);
    return listening;
  }
  [[nodiscard]] bool isHeard() const {
    for (const std::weak_ptr<const Listener>& listener : m_listeners)
      if (!listener.expired())
        return true;
    return false;
  }

 protected:
  void tell(const Frame& frame) {
    std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
    for (const std::weak_ptr<const Listener>& listener : std::vector(m_listeners))
      if (const Listening held = listener.lock())
        (*held)(frame);
  }

 private:
  std::vector<std::weak_ptr<const Listener>> m_listeners;
};

class WebSource {
 public:
  WebSource() = default;
  WebSource(const WebSource&) = delete;
  WebSource& operator=(const WebSource&) = delete;
  virtual ~WebSource() = default;

  [[nodiscard]] virtual WebAnswer answer(const WebRequest& request) = 0;
  // Null: the address is none of a stream.
  [[nodiscard]] virtual std::shared_ptr<WebStream> stream(const WebRequest& request) = 0;
  // Whether it is for those alone who know the pass phrase.
  [[nodiscard]] virtual bool isPrivate(const WebRequest& request) const = 0;
  // Once a second; `now` in milliseconds since 1970.
  virtual void tick(std::int64_t now) = 0;
};

} // namespace hooptab
