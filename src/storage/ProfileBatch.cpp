#include "storage/ProfileBatch.h"

namespace hooptab {

void ProfileBatch::set(std::string section, std::string key, std::string value) {
  m_operations.emplace_back(SetValue{std::move(section), std::move(key), std::move(value)});
}

void ProfileBatch::deleteValue(std::string section, std::string key) {
  set(std::move(section), std::move(key), "0");
}

void ProfileBatch::deleteSection(std::string section) {
  m_operations.emplace_back(DeleteSection{std::move(section)});
}

void ProfileBatch::setSectionLines(std::string section,
                                   std::vector<std::pair<std::string, std::string>> lines) {
  m_operations.emplace_back(SetSectionLines{std::move(section), std::move(lines), false});
}

void ProfileBatch::setStoredSectionLines(std::string section,
                                         std::vector<std::pair<std::string, std::string>> lines) {
  m_operations.emplace_back(SetSectionLines{std::move(section), std::move(lines), true});
}

} // namespace hooptab
