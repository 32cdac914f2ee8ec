#include "spots/log_files.h"

#include <algorithm>

#include "core/text.h"

namespace spots {
namespace {

constexpr std::string_view kNameStart = "dx-";
constexpr std::string_view kNameEnd = ".txt";

// 0 for what is no such date.
int DayOfDate(const core::Calendar& calendar, std::string_view date) {
  std::string_view year = core::Trim(date);
  core::ExtractToCharacter('-', year);
  const std::string_view month = core::ExtractToCharacter('-', year);
  return month.size() == 3 && year.size() == 4 ? calendar.ConvertDate2Julian(date) : 0;
}

bool IsYear(std::string_view folder) {
  return folder.size() == 4 &&
         std::ranges::all_of(folder, [](char each) { return each >= '0' && each <= '9'; });
}

bool IsLogName(const core::Calendar& calendar, std::string_view name) {
  if (!name.starts_with(kNameStart) || !name.ends_with(kNameEnd)) return false;
  name.remove_prefix(kNameStart.size());
  name.remove_suffix(kNameEnd.size());
  return name == core::Trim(name) && DayOfDate(calendar, name) != 0;
}

std::string Within(std::string folder, std::string_view name) {
  return folder.append("/").append(name);
}

}  // namespace

std::string LogFolder(const std::string& programFolder, int day) {
  return programFolder + '/' + core::EnglishDate(day).substr(7);
}

std::string LogName(int day) {
  return std::string(kNameStart).append(core::EnglishDate(day)).append(kNameEnd);
}

std::string LogPath(const std::string& programFolder, int day) {
  return LogFolder(programFolder, day) + '/' + LogName(day);
}

int LogDay(core::Calendar& calendar, std::string_view spotDate) {
  const core::Calendar::Today& today = calendar.MakeTodaysDate();
  if (spotDate == today.date) return today.dayNumber;
  const int day = DayOfDate(calendar, spotDate);
  return day == 0 ? today.dayNumber : day;
}

void DeleteLogFiles(platform::Files& files, core::Calendar& calendar,
                    const std::string& programFolder, int daysToKeep) {
  const int today = calendar.MakeTodaysDate().dayNumber;
  const int days = std::clamp(daysToKeep, 1, today);
  std::vector<std::string> kept;
  for (int day = today - days + 1; day <= today; ++day) kept.push_back(LogName(day));
  std::ranges::sort(kept);
  for (const std::string& year : files.List(programFolder)) {
    if (!IsYear(year)) continue;
    const std::string folder = Within(programFolder, year);
    for (const std::string& name : files.List(folder))
      if (IsLogName(calendar, name) && !std::ranges::binary_search(kept, name))
        files.Remove(Within(folder, name));
  }
}

}  // namespace spots
