#include "publish/WebHosts.h"

#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

std::string inSmallLetters(std::string_view text) {
  std::string result(text);
  for (char& letter : result)
    if (letter >= 'A' && letter <= 'Z')
      letter = static_cast<char>(letter - 'A' + 'a');
  return result;
}

// The name without port, brackets and the root's dot; empty where it is none.
std::string nameOf(std::string_view host) {
  std::string_view name;
  std::string_view rest;
  if (host.starts_with('[')) {
    const std::size_t end = host.find(']');
    if (end == std::string_view::npos)
      return {};
    name = host.substr(1, end - 1);
    rest = host.substr(end + 1);
  } else if (std::count(host.begin(), host.end(), ':') > 1) { // as people write it, without brackets
    name = host;
  } else {
    name = host.substr(0, host.find(':'));
    rest = host.substr(name.size());
  }
  if (!rest.empty() && (rest[0] != ':' || (rest.size() > 1 && Module1::wholeNumber(rest.substr(1)) < 0)))
    return {};
  if (name.ends_with('.'))
    name.remove_suffix(1);
  return inSmallLetters(name);
}

bool isLoopbackName(std::string_view name) {
  return name == "localhost" || name == "127.0.0.1" || name == "::1";
}

} // namespace

WebHosts::WebHosts(std::string_view machineName, const std::vector<std::string>& names) {
  if (const std::string machine = nameOf(machineName); !machine.empty()) {
    m_names.push_back(machine);
    m_names.push_back(machine.substr(0, machine.find('.')) + ".local");
  }
  for (const std::string& given : names)
    if (std::string name = nameOf(given); !name.empty())
      m_names.push_back(std::move(name));
}

bool WebHosts::areOurs(std::string_view host, std::string_view arrivedAt) const {
  const std::string name = nameOf(host);
  if (name.empty())
    return false;
  return isLoopbackName(name) || name == arrivedAt ||
         std::find(m_names.begin(), m_names.end(), name) != m_names.end();
}

bool WebHosts::isLoopback(std::string_view host) {
  return isLoopbackName(nameOf(host));
}

} // namespace hooptab
