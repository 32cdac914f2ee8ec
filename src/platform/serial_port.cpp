#include <utility>

#include "platform/serial.h"

namespace platform {

SerialPort::SerialPort(Scheduler& scheduler, std::unique_ptr<SerialDevice> device)
    : scheduler_(scheduler), device_(std::move(device)) {
  device_->lost = [this](const std::string& why) {
    Close();
    if (lost) lost(why);
  };
}

std::string SerialPort::Open() {
  if (open_) return {};
  std::string why = device_->Open(CommPort, Settings);
  open_ = why.empty();
  return why;
}

void SerialPort::Close() {
  if (!std::exchange(open_, false)) return;
  device_->Close();
  received_.clear();
  waiting_.clear();
  writing_.Release();
}

std::size_t SerialPort::InBufferCount() {
  if (open_) received_ += device_->Read();
  return received_.size();
}

std::string SerialPort::Input() {
  InBufferCount();
  return std::exchange(received_, {});
}

void SerialPort::Output(std::string_view bytes, Milliseconds gap) {
  if (!open_) return;
  if (waiting_.empty() && gap == Milliseconds{0}) {
    device_->Write(bytes);
    return;
  }
  waiting_.push_back({std::string(bytes), gap});
  if (waiting_.size() == 1)
    writing_ = scheduler_.After(waiting_.front().gap, [this] { WriteNext(); });
}

void SerialPort::WriteNext() {
  device_->Write(waiting_.front().bytes);
  waiting_.erase(waiting_.begin());
  if (!waiting_.empty()) writing_ = scheduler_.After(waiting_.front().gap, [this] { WriteNext(); });
}

}  // namespace platform
