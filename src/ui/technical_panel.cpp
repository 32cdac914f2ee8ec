#include "ui/technical_panel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

#include "ui/bind.h"

namespace ui {
namespace {

void HideWhileEmpty(QWidget* widget, core::Label& model, Frames& frames) {
  const auto show = [widget, &model] {
    widget->setVisible(model.Visible.Get() && !model.Caption.Get().empty());
  };
  BindProperty<bool>(widget, model.Visible, frames, [show](bool) { show(); });
  BindProperty<std::string>(widget, model.Caption, frames, [show](const auto&) { show(); });
}

}  // namespace

TechnicalPanel::TechnicalPanel(program::Program& program, Frames& frames, QWidget* parent)
    : QWidget(parent), column_(new QVBoxLayout(this)) {
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(4);
  session::Session& session = program.session;
  Add(tr("Inactivity"), session.keepAlive.lblInactivity, frames);
  Add(tr("Links that the TNC gave up"), session.tncNotices.lblRetriedOut, frames);
  Add(tr("Keep-alives sent"), session.keepAlive.lblKA[0], frames);
  Add(tr("Nulls received"), session.keepAlive.lblKA[1], frames);
  Add(tr("Links given up"), session.keepAlive.lblKA[2], frames);
  Add(tr("Links that ended"), session.connection.lblDisconnects, frames);
  Add(tr("Minutes between tries over the TNC"), session.technical.lblTechnical[0], frames);
  Add(tr("Minutes to the next try over the TNC"), session.technical.lblTechnical[1], frames);
  Add(tr("Characters repaired"), session.technical.lblTech[session::Technical::kEscapedErrors],
      frames);
  Add(tr("Spot lines of the node"), session.ar17.lblStatus, frames);
  spots::SpotParts& spots = program.spotParts;
  Add(tr("AR17 lines in error"), spots.lines.errors.lblAr17Errors, frames);
  Add(tr("ZV11 lines in error"), spots.lines.errors.lblZv11Errors, frames);
  Add(tr("Spots against the node's country filter"), spots.localReject.lblFilterErrors, frames);
  Add(tr("Spots rejected"), spots.rejectLists.lblRejected, frames);
  Add(tr("Share of duplicates among Skimmer spots"), spots.duplicates.SkimmerDupes, frames);
  AddFigure(tr("Spots corrected"), spots.fixList.lblFixes, frames);
  AddFigure(tr("Seconds from a spot's line to its row"), spots.numbers.txtTime, frames);
  AddFigure(tr("Seconds to the node's answer"), session.latency.Text3, frames);
  AddFigure(tr("Seconds to the first of the missed spots"), spots.lines.list.lblSeconds, frames);
  AddFigure(tr("Of these, not the link's own"), spots.lines.list.lblBeyondLatency, frames);
  AddFigure(tr("Spots in the last list"), spots.lines.list.lblCount, frames);
  AddDebugging(program.DebuggingOn, frames);
}

void TechnicalPanel::Add(const QString& name, core::Label& model, Frames& frames) {
  auto* figure = new QLabel(this);
  figure->setAccessibleName(name);
  column_->addWidget(figure);
  BindLabel(figure, model, frames);
  HideWhileEmpty(figure, model, frames);
}

void TechnicalPanel::AddFigure(const QString& name, core::Label& model, Frames& frames) {
  auto* words = new QLabel(name + QLatin1String(" ="), this);
  auto* figure = new QLabel(this);
  figure->setAccessibleName(name);
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  row->addWidget(words);
  row->addWidget(figure);
  row->addStretch();
  column_->addLayout(row);
  BindCount(figure, model, frames);
  HideWhileEmpty(figure, model, frames);
  HideWhileEmpty(words, model, frames);
}

void TechnicalPanel::AddDebugging(core::Check& model, Frames& frames) {
  auto* box = new QCheckBox(tr("Tell of each failure at once, from the ne&xt start on"), this);
  box->setAccessibleName(tr("Tell of each failure at once, from the next start on"));
  BindTick(box, model, frames);
  column_->addSpacing(4);
  column_->addWidget(box);
}

}  // namespace ui
