#include "publish/FeedChange.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace hooptab {

namespace {

std::string escaped(std::string_view name) {
  std::string text;
  for (const char letter : name) {
    if (letter == '~')
      text += "~0";
    else if (letter == '/')
      text += "~1";
    else
      text += letter;
  }
  return text;
}

bool haveSameNames(const FeedJson& one, const FeedJson& other) {
  return one.size() == other.size() &&
         std::ranges::all_of(other.items(), [&one](const auto& item) { return one.contains(item.key()); });
}

// What is told of values, and of lists that have grown.
class Values {
 public:
  void compare(const std::string& path, const FeedJson& before, const FeedJson& after) {
    if (before == after)
      return;
    if (before.is_object() && after.is_object() && haveSameNames(before, after)) {
      for (const auto& [name, value] : after.items())
        compare(path + '/' + escaped(name), before.at(name), value);
    } else if (before.is_array() && after.is_array() && before.size() == after.size()) {
      for (std::size_t place = 0; place < after.size(); ++place)
        compare(path + '/' + std::to_string(place), before[place], after[place]);
    } else if (before.is_array() && after.is_array() && before.size() < after.size() &&
               std::equal(before.begin(), before.end(), after.begin())) {
      appended.push_back(
          {path, FeedJson(after.begin() + static_cast<std::ptrdiff_t>(before.size()), after.end())});
    } else {
      set.push_back({path, after});
    }
  }

  FeedJson set = FeedJson::array();
  FeedJson appended = FeedJson::array();
};

std::string idOf(const FeedJson& play) {
  return play.at("id").get<std::string>();
}

// Whether the play itself stays what it was: what is different follows from other plays, or a partner has
// joined it.
bool onlyFollows(const FeedJson& before, const FeedJson& after) {
  constexpr std::string_view kFollowing[] = {"score", "total", "fouls", "teamFouls", "out"};
  const auto isFollowing = [&](std::string_view name) {
    return std::ranges::find(kFollowing, name) != std::end(kFollowing) ||
           (name == "with" && !before.contains("with"));
  };
  const auto covers = [&](const FeedJson& one, const FeedJson& other) {
    return std::ranges::all_of(one.items(), [&](const auto& item) {
      const auto found = other.find(item.key());
      return isFollowing(item.key()) || (found != other.end() && *found == item.value());
    });
  };
  return covers(before, after) && covers(after, before);
}

class Plays {
 public:
  Plays(const FeedJson& before, const FeedJson& after) {
    for (std::size_t place = 0; place < before.size(); ++place)
      m_before[idOf(before[place])] = {place, &before[place]};
    findKept(after);
    for (const FeedJson& play : before) {
      if (!m_kept.contains(idOf(play)))
        m_told.push_back(deleted(play, after));
    }
    std::vector<FeedJson> inserted;
    FeedJson next = nullptr;
    for (std::size_t place = after.size(); place > 0; --place) {
      const FeedJson& play = after[place - 1];
      if (m_kept.contains(idOf(play)))
        next = play.at("id");
      else
        inserted.push_back({{"op", "insert"}, {"before", next}, {"play", play}});
    }
    std::ranges::reverse(inserted);
    for (FeedJson& each : inserted)
      m_told.push_back(std::move(each));
    for (const FeedJson& play : after) {
      if (m_kept.contains(idOf(play)) && *m_before.at(idOf(play)).play != play)
        m_told.push_back(changed(*m_before.at(idOf(play)).play, play));
    }
  }

  [[nodiscard]] FeedJson told() && { return std::move(m_told); }

 private:
  struct Known {
    std::size_t place = 0;
    const FeedJson* play = nullptr;
  };

  // Those that are in both, in the same order; one that has moved goes and comes anew.
  void findKept(const FeedJson& after) {
    std::optional<std::size_t> last;
    for (const FeedJson& play : after) {
      const auto found = m_before.find(idOf(play));
      if (found == m_before.end() || (last && found->second.place < *last))
        continue;
      last = found->second.place;
      m_kept.insert(found->first);
    }
  }
  // A steal that was recorded before its turnover is told with it from then on, and is no correction.
  static FeedJson deleted(const FeedJson& play, const FeedJson& after) {
    FeedJson told = {{"op", "delete"}, {"play", play}};
    const bool hasJoined = std::ranges::any_of(after, [&play](const FeedJson& other) {
      return other.contains("with") && other.at("with").at("kind") == play.at("kind") &&
             other.at("with").at("number") == play.at("number") && other.at("period") == play.at("period") &&
             other.at("clock") == play.at("clock");
    });
    if (hasJoined)
      told["follows"] = true;
    return told;
  }
  static FeedJson changed(const FeedJson& before, const FeedJson& after) {
    FeedJson told = {{"op", "change"}, {"play", after}, {"was", before}};
    if (onlyFollows(before, after))
      told["follows"] = true;
    return told;
  }

  std::map<std::string, Known, std::less<>> m_before;
  std::set<std::string, std::less<>> m_kept;
  FeedJson m_told = FeedJson::array();
};

} // namespace

std::optional<FeedJson> feedChange(const FeedJson& before, const FeedJson& after) {
  FeedJson change = FeedJson::object();
  Values values;
  const auto isApart = [](std::string_view name) { return name == "id" || name == "plays"; };
  for (const auto& [name, value] : after.items()) {
    const auto old = before.find(name);
    if (!isApart(name))
      values.compare('/' + name, old == before.end() ? FeedJson() : *old, value);
  }
  if (!values.set.empty())
    change["set"] = std::move(values.set);
  if (!values.appended.empty())
    change["append"] = std::move(values.appended);
  if (before.contains("plays") && after.contains("plays") && before["plays"] != after["plays"])
    change["plays"] = Plays(before["plays"], after["plays"]).told();
  return change.empty() ? std::nullopt : std::optional(std::move(change));
}

} // namespace hooptab
