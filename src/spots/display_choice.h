#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/settings.h"
#include "spots/row_layout.h"

namespace spots {

// The form "DX Spots" (frmAR17): what the operator wants to see of a spot. Its controls stand for
// nothing until they are applied.
class DisplayChoice {
 public:
  struct Needs {
    std::function<bool()> nodeAddsWords;  // the node's plain lines can carry words on both stations
    std::function<void(std::string_view command)> send;  // to the node
    std::function<void(std::string_view text)> tell;     // shows a message
  };

  // The settings outlive it; they are read at once, and by Read.
  DisplayChoice(core::Settings& settings, Needs needs);

  static constexpr std::string_view kTitle = "DX Spots";
  // Places in optFormat.
  enum Format { kClassic, kExpanded };
  // Places in chkAr17.
  enum Check {
    kNode,
    kComments,
    kBearing,
    kDistance,
    kDxCty,
    kKilometres,
    kDxState,
    kOrigCty,
    kOrigState,
    kDate,
    kDxCq,
    kDxItu,
    kDontUse,  // nodes aren't asked for extended lines
    kSpotterIp,
    kCountryName,
    kOrigCq,
    kOrigItu,
    kDxGrid,
    kOrigGrid,
    kWide,
    kChecks,
  };

  core::Choice optFormat;
  core::Label fraFormat;  // says which display is chosen
  std::array<core::Check, kChecks> chkAr17;
  core::TextBox txtSpotWidth;
  core::Button cmdApply;

  const ShownColumns& Shown() const { return layout_.shape.shown; }
  const RowLayout& Layout() const { return layout_; }

  // Told after what is chosen holds, and stands in the settings.
  core::Observers<> Applied;
  // Told when the columns may have changed, by the user or by the settings.
  core::Observers<> LaidOut;

  // Takes the settings into the controls, as they stand when the form opens; they hold at once.
  void Read();

 private:
  void Apply();
  void TellNode();
  void Hold();
  void ShowFormat();

  core::Settings& settings_;
  Needs needs_;
  RowLayout layout_;
  platform::Registration applying_;
  platform::Registration choosing_;
};

}  // namespace spots
