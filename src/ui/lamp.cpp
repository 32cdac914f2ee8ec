#include "ui/lamp.h"

#include <QPainter>
#include <array>

#include "ui/bind.h"

namespace ui {
namespace {

constexpr int kDiameter = 10;

}  // namespace

Lamp::Lamp(QWidget* parent) : QWidget(parent) { setFixedSize(kDiameter + 2, kDiameter + 2); }

void Lamp::SetColour(const QColor& colour) {
  if (colour == colour_) return;
  colour_ = colour;
  update();
}

void Lamp::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour_);
  painter.drawEllipse(1, 1, kDiameter, kDiameter);
}

void BindLamp(Lamp* lamp, session::SessionState& state, Frames& frames, LiveTheme& theme) {
  const auto light = [lamp, &state, &theme] {
    constexpr std::array kTokens = {Token::Bad, Token::Caution, Token::Good};
    const Token token = kTokens[static_cast<std::size_t>(state.Phase.Get())];
    lamp->SetColour(theme.Get().Of(state.txtNode.ForeColour.Get(), token));
  };
  BindProperty<session::LinkPhase>(lamp, state.Phase, frames, [light](auto) { light(); });
  BindProperty<core::Colour>(lamp, state.txtNode.ForeColour, frames, [light](auto) { light(); });
  BindProperty<Theme>(lamp, theme, frames, [light](auto) { light(); });
}

}  // namespace ui
