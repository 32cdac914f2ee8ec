#include "platform/sim/sim_serial.h"

#include <utility>

namespace platform::sim {

class SimSerialDevice : public SerialDevice {
 public:
  SimSerialDevice(SimSerialPorts& ports, Scheduler& scheduler)
      : ports_(ports), scheduler_(scheduler) {}
  ~SimSerialDevice() override { Close(); }

  std::string Open(const std::string& path, const SerialSettings& settings) override {
    const auto device = ports_.devices_.find(path);
    if (device == ports_.devices_.end()) return "no such device";
    if (device->second.busy || device->second.opener_ != nullptr) return "busy";
    device_ = &device->second;
    device_->opener_ = this;
    device_->openedWith = settings;
    device_->toProgram_.clear();
    return {};
  }

  void Close() override {
    if (device_ != nullptr) device_->opener_ = nullptr;
    device_ = nullptr;
  }

  std::string Read() override {
    return device_ == nullptr ? std::string() : std::exchange(device_->toProgram_, {});
  }

  void Write(std::string_view bytes) override {
    if (device_ != nullptr) device_->written += bytes;
  }

  void Lose() {
    device_ = nullptr;
    telling_ = scheduler_.Post([this] { lost("the device has gone"); });
  }

 private:
  SimSerialPorts& ports_;
  Scheduler& scheduler_;
  SimDevice* device_ = nullptr;
  Registration telling_;
};

void SimDevice::Feed(std::string_view bytes) {
  if (opener_ != nullptr) toProgram_ += bytes;
}

SimDevice& SimSerialPorts::Plug(const std::string& path, const std::string& product) {
  SimDevice& device = devices_[path];
  device.product = product;
  return device;
}

void SimSerialPorts::Unplug(const std::string& path) {
  const auto device = devices_.find(path);
  if (device == devices_.end()) return;
  if (device->second.opener_ != nullptr) device->second.opener_->Lose();
  devices_.erase(device);
}

std::unique_ptr<SerialPort> SimSerialPorts::MakePort() {
  return std::make_unique<SerialPort>(scheduler_,
                                      std::make_unique<SimSerialDevice>(*this, scheduler_));
}

std::vector<SerialPorts::Present> SimSerialPorts::List() {
  std::vector<Present> present;
  for (const auto& [path, device] : devices_) present.push_back({path, device.product});
  return present;
}

}  // namespace platform::sim
