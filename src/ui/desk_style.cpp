#include "ui/desk_style.h"

#include <QAbstractButton>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

namespace ui {
namespace {

constexpr int kIndicator = 15;
constexpr int kChoicePadding = 5;
constexpr double kStroke = 1.8;

QColor BorderOf(const QStyleOption& option) {
  if (option.state.testFlag(QStyle::State_HasFocus)) return option.palette.color(QPalette::Link);
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  return option.palette.color(enabled ? QPalette::PlaceholderText : QPalette::Mid);
}

QRectF FrameOf(const QRect& place) { return QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5); }

void BeginFrame(QPainter& painter, const QStyleOption& option, const QColor& border) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(border);
  const bool pressed = option.state.testFlag(QStyle::State_Sunken);
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  const QPalette::ColorRole unpressed = enabled ? QPalette::Base : QPalette::Window;
  painter.setBrush(option.palette.color(pressed ? QPalette::Highlight : unpressed));
}

void DrawTick(QPainter& painter, const QStyleOption& option) {
  BeginFrame(painter, option, BorderOf(option));
  painter.drawRoundedRect(FrameOf(option.rect), 3, 3);
  if (!option.state.testFlag(QStyle::State_On)) return;
  const QPointF at = option.rect.topLeft();
  const double unit = option.rect.width() / 15.0;
  QPainterPath tick(at + QPointF(3.5, 7.8) * unit);
  tick.lineTo(at + QPointF(6.4, 10.6) * unit);
  tick.lineTo(at + QPointF(11.6, 4.4) * unit);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(option.palette.color(QPalette::Text), kStroke, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.drawPath(tick);
}

void DrawDot(QPainter& painter, const QStyleOption& option) {
  BeginFrame(painter, option, BorderOf(option));
  painter.drawEllipse(FrameOf(option.rect));
  if (!option.state.testFlag(QStyle::State_On)) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(option.palette.color(QPalette::Text));
  const double inset = option.rect.width() * 0.3;
  painter.drawEllipse(QRectF(option.rect).adjusted(inset, inset, -inset, -inset));
}

void DrawChoice(QPainter& painter, const QStyleOption& option, const QRect& arrow) {
  const bool focused = option.state.testFlag(QStyle::State_HasFocus);
  BeginFrame(painter, option, option.palette.color(focused ? QPalette::Link : QPalette::Mid));
  painter.drawRoundedRect(FrameOf(option.rect), 4, 4);
  const QPointF middle = QRectF(arrow).center();
  QPainterPath chevron(middle + QPointF(-3.5, -1.5));
  chevron.lineTo(middle + QPointF(0, 2));
  chevron.lineTo(middle + QPointF(3.5, -1.5));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(option.palette.color(QPalette::PlaceholderText), 1.4, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(chevron);
}

}  // namespace

DeskStyle::DeskStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  // A button shows the focus by its border.
  if (element == PE_FrameFocusRect && qobject_cast<const QAbstractButton*>(widget)) return;
  const bool tick = element == PE_IndicatorCheckBox;
  if (!tick && element != PE_IndicatorRadioButton)
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  painter->save();
  tick ? DrawTick(*painter, *option) : DrawDot(*painter, *option);
  painter->restore();
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (control != CC_ComboBox)
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  painter->save();
  DrawChoice(*painter, *option, subControlRect(control, option, SC_ComboBoxArrow, widget));
  painter->restore();
}

QSize DeskStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
  return type == CT_ComboBox ? usual + QSize(2 * kChoicePadding, kChoicePadding) : usual;
}

QRect DeskStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl part, const QWidget* widget) const {
  const QRect usual = QProxyStyle::subControlRect(control, option, part, widget);
  if (control != CC_ComboBox || part != SC_ComboBoxEditField) return usual;
  return usual.adjusted(kChoicePadding, 0, 0, 0);
}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return kIndicator;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

}  // namespace ui
