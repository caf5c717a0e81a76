#include "extracts/ClipTimeline.h"

#include "storage/Utf8.h"

#include <cstdio>
#include <map>
#include <optional>
#include <pugixml.hpp>
#include <sstream>

namespace hooptab {

namespace {

// Characters that command a terminal have no place in XML either.
void add(pugi::xml_node parent, const char* name, std::string_view text) {
  parent.append_child(name).text().set(printable(text).c_str());
}

std::string secondsText(VideoTime time) {
  char text[48];
  std::snprintf(text, sizeof text, "%lld.%03d", static_cast<long long>(time / 1000),
                static_cast<int>(time % 1000));
  return text;
}

void addInstance(pugi::xml_node parent, const Clip& clip, std::size_t number) {
  pugi::xml_node instance = parent.append_child("instance");
  add(instance, "ID", std::to_string(number));
  add(instance, "start", secondsText(clip.start));
  add(instance, "end", secondsText(clip.end));
  add(instance, "code", clip.code);
  for (const auto& [group, text] : clip.labels) {
    pugi::xml_node label = instance.append_child("label");
    add(label, "group", group);
    add(label, "text", text);
  }
}

void addRow(pugi::xml_node parent, const std::string& code, std::uint32_t colour) {
  constexpr std::uint32_t kWider = 257; // from 255 to 65535
  pugi::xml_node row = parent.append_child("row");
  add(row, "code", code);
  add(row, "R", std::to_string((colour & 0xFFU) * kWider));
  add(row, "G", std::to_string((colour >> 8 & 0xFFU) * kWider));
  add(row, "B", std::to_string((colour >> 16 & 0xFFU) * kWider));
}

} // namespace

std::string timelineXml(const ClipList& list, const GameDetails& details) {
  constexpr std::uint32_t kNobodys = 0x808080;
  pugi::xml_document document;
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  pugi::xml_node file = document.append_child("file");
  pugi::xml_node instances = file.append_child("ALL_INSTANCES");
  std::map<std::string, std::optional<Side>> rows; // their team
  std::size_t number = 0;
  for (const Clip& clip : list.clips) {
    addInstance(instances, clip, ++number);
    rows.emplace(clip.code, clip.team);
  }
  pugi::xml_node rowNodes = file.append_child("ROWS");
  for (const auto& [code, team] : rows)
    addRow(rowNodes, code, team ? details.teamColour[*team] : kNobodys);
  std::ostringstream text;
  document.save(text, "  ", pugi::format_default, pugi::encoding_utf8);
  return text.str();
}

} // namespace hooptab
