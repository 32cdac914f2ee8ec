#include "session/port_choice.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace session {
namespace {

constexpr std::array kBauds = {300, 600, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};
constexpr int kUsualBaud = 9600;

// What a device calls itself may be anything.
constexpr std::size_t kLongestProduct = 60;

std::string Printable(std::string_view product) {
  std::string text(product.substr(0, kLongestProduct));
  std::replace_if(
      text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return text;
}

int PlaceOf(const auto& list, const auto& item) {
  return static_cast<int>(std::find(list.begin(), list.end(), item) - list.begin());
}

}  // namespace

PortChoice::PortChoice(const PortNames& names)
    : names_(names),
      portChosen_(optCommPort.Click.Add([this] {
        device_ = names_.Path(Port());
        ShowDevices();
      })),
      deviceChosen_(cboDevice.Click.Add(
          [this] { device_ = paths_[static_cast<std::size_t>(cboDevice.Selected.Get())]; })) {
  ShowBaud(kUsualBaud);
}

void PortChoice::Load(int port, int baud, Devices present) {
  present_ = std::move(present);
  device_ = names_.Path(port);
  ShowPorts();
  optCommPort.Selected.Set(device_.empty() ? 0 : port);
  ShowDevices();
  ShowBaud(baud);
}

void PortChoice::Look(Devices present) {
  present_ = std::move(present);
  ShowPorts();
  ShowDevices();
}

void PortChoice::Clear() {
  optCommPort.Selected.Set(0);
  device_.clear();
  ShowDevices();
}

void PortChoice::Enable(bool on) {
  enabled_ = on;
  optCommPort.Enabled.Set(on);
  cboBaud.Enabled.Set(on);
  ShowDevices();
}

int PortChoice::Baud() const { return bauds_[static_cast<std::size_t>(cboBaud.Selected.Get())]; }

void PortChoice::ShowPorts() {
  std::vector<std::string> ports = names_.Paths();
  for (std::size_t number = 1; number < ports.size(); ++number)
    ports[number] = std::to_string(number) + ":  " + ports[number];
  ports.front() = "none";
  optCommPort.Options.Set(std::move(ports));
}

void PortChoice::ShowDevices() {
  paths_.clear();
  for (const auto& each : present_) paths_.push_back(each.path);
  const bool chosen = !device_.empty();
  if (chosen && PlaceOf(paths_, device_) == static_cast<int>(paths_.size()))
    paths_.insert(paths_.begin(), device_);
  std::vector<std::string> words;
  if (chosen)
    for (const std::string& path : paths_) words.push_back(Words(path));
  cboDevice.Options.Set(std::move(words));
  cboDevice.Selected.Set(chosen ? PlaceOf(paths_, device_) : 0);
  cboDevice.Enabled.Set(enabled_ && chosen);
}

// A path by which a device goes too may stand in the file: it is not missing for that.
std::string PortChoice::Words(const std::string& path) const {
  const auto found = std::find_if(present_.begin(), present_.end(),
                                  [&](const auto& each) { return each.path == path; });
  if (found == present_.end()) return path + "  (not among the devices found)";
  return found->product.empty() ? path : path + "  " + Printable(found->product);
}

void PortChoice::ShowBaud(int baud) {
  bauds_.assign(kBauds.begin(), kBauds.end());
  const int shown = baud > 0 ? baud : kUsualBaud;
  if (PlaceOf(bauds_, shown) == static_cast<int>(bauds_.size())) bauds_.push_back(shown);
  std::vector<std::string> words;
  for (const int each : bauds_) words.push_back(std::to_string(each));
  cboBaud.Options.Set(std::move(words));
  cboBaud.Selected.Set(PlaceOf(bauds_, shown));
}

}  // namespace session
