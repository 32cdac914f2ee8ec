#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/settings.h"
#include "program/spot_font.h"
#include "program/text_sizes.h"

namespace program {

// Of frmColour, what is not a colour: the font of the table of spots, and whether the heads stand
// over its columns. What the user does here is seen at once, and kept.
class DxLook {
 public:
  // Both outlive it. `delayedWriteCfg` is called for each choice of the user's.
  DxLook(core::Settings& settings, TextSizes& sizes, std::function<void()> delayedWriteCfg);

  core::Property<SpotFont> Font;
  core::Choice optFont;  // the families that there are
  core::Choice optSize;  // in pixels
  core::Check chkBold;
  core::Check chkItalic;
  core::Button cmdDefaultFont;
  core::Check chkTitle;  // the heads are on show

  // The settings have been read.
  void Load();
  // The families of fixed width that this system has, and the one among them that is drawn where
  // none of these is chosen.
  void TakeFamilies(std::vector<std::string> families, const std::string& usual);

 private:
  void ChooseFamily();
  void ChooseSize();
  void TakeDefault();
  void Keep();
  void Renew();

  core::Settings& settings_;
  TextSizes& sizes_;
  std::function<void()> delayedWriteCfg_;
  std::string usual_;
  std::vector<platform::Registration> watching_;
};

}  // namespace program
