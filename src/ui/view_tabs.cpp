#include "ui/view_tabs.h"

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/one_line.h"

namespace ui {
namespace {

constexpr core::Position kLongestCaption = 40;

}  // namespace

ViewTabs::ViewTabs(program::Views& model, Frames& frames, QWidget* parent) : QTabBar(parent) {
  setDrawBase(false);
  setExpanding(false);
  setAccessibleName(tr("Views"));
  for (core::Label& each : model.tab) AddOne(each, frames);
  // Not with the next frame: the user looks at what he has chosen.
  following_ = model.onShow.Observe([this](int tab) { setCurrentIndex(tab); });
  connect(this, &QTabBar::currentChanged, this, [this, &model](int tab) {
    model.Choose(tab);
    setCurrentIndex(model.onShow.Get());
  });
}

void ViewTabs::AddOne(core::Label& model, Frames& frames) {
  const int tab = addTab({});
  BindProperty<std::string>(this, model.Caption, frames, [this, tab](const std::string& text) {
    const QString caption = Literally(OneLine(text, kLongestCaption));
    if (tabText(tab) != caption) setTabText(tab, caption);
  });
  BindProperty<bool>(this, model.Enabled, frames, [this, tab](bool on) { setTabEnabled(tab, on); });
  BindProperty<std::string>(this, model.ToolTip, frames, [this, tab](const std::string& text) {
    setTabToolTip(tab, platform::qt::TextOf(text));
  });
}

}  // namespace ui
