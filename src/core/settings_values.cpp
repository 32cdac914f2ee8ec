#include "core/settings_values.h"

#include <algorithm>

#include "core/quoted.h"
#include "core/text.h"

namespace core {
namespace {

constexpr int kLowestStoredPort = 7300;

const Settings& Defaults() {
  static const Settings defaults;
  return defaults;
}

bool IsWord(const SettingRow& row, std::string_view value) {
  return std::find(row.words.begin(), row.words.end(), value) != row.words.end();
}

}  // namespace

bool IsTrue(std::string_view value) {
  return Val(value) != 0 || SameIgnoringCase(value, "TRUE") || SameIgnoringCase(value, "#TRUE#");
}

void ReadValue(const SettingRow& row, std::string_view value, std::string& member) {
  if (row.form == Form::Words && !IsWord(row, value)) return;
  member = row.form == Form::UpperCase ? UCase(value) : std::string(value);
}

void ReadValue(const SettingRow&, std::string_view value, int& member) { member = ValInt(value); }

void ReadValue(const SettingRow&, std::string_view value, double& member) { member = Val(value); }

void ReadValue(const SettingRow& row, std::string_view value, bool& member) {
  const bool firstWord = row.form == Form::Words && SameIgnoringCase(value, row.words[0]);
  member = firstWord || IsTrue(value);
}

std::string ValueField(const SettingRow&, const std::string& member) { return QuotedField(member); }

std::string ValueField(const SettingRow&, int member) { return std::to_string(member); }

std::string ValueField(const SettingRow&, double member) { return NumberField(member); }

std::string ValueField(const SettingRow& row, bool member) {
  if (row.form == Form::Boolean) return BooleanField(member);
  if (row.form == Form::Words) return QuotedField(row.words[member ? 0 : 1]);
  return member ? "-1" : "0";
}

bool Always(const Settings&, const SettingRow&) { return true; }

bool Never(const Settings&, const SettingRow&) { return false; }

bool IfChanged(const Settings& settings, const SettingRow& row) {
  return std::visit(
      [&](const auto& member) {
        if constexpr (requires { settings.*member; })
          return settings.*member != Defaults().*member;
        else
          return true;
      },
      row.member);
}

bool IfOneOf(const Settings& settings, const SettingRow& row) {
  const auto* member = std::get_if<std::string Settings::*>(&row.member);
  return member && IsWord(row, settings.**member);
}

bool IfHighPort(const Settings& settings, const SettingRow&) {
  return settings.LoggerPort >= kLowestStoredPort;
}

bool IfLotw(const Settings& settings, const SettingRow&) {
  return settings.ShLoTW || settings.AutoLoTW;
}

bool IfEqsl(const Settings& settings, const SettingRow&) {
  return settings.SheQSL || settings.AutoeQSL;
}

}  // namespace core
