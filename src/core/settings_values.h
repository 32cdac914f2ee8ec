#pragma once

#include <string>
#include <string_view>

#include "core/settings_table.h"

// One value of the configuration: from its text and to it, by the form of its row.
namespace core {

// Any number but 0; TRUE, bare or as #TRUE#, in any case.
bool IsTrue(std::string_view value);

// Sets the member. What can't be read as told in settings.h.
void ReadValue(const SettingRow& row, std::string_view value, std::string& member);
void ReadValue(const SettingRow& row, std::string_view value, int& member);
void ReadValue(const SettingRow& row, std::string_view value, double& member);
void ReadValue(const SettingRow& row, std::string_view value, bool& member);

// The field as it stands in the file.
std::string ValueField(const SettingRow& row, const std::string& member);
std::string ValueField(const SettingRow& row, int member);
std::string ValueField(const SettingRow& row, double member);
std::string ValueField(const SettingRow& row, bool member);

}  // namespace core
