#include "ui/get_spots_panel.h"

#include <QGridLayout>
#include <QLabel>

#include "platform/qt/qt_text.h"
#include "program/dx_tab.h"
#include "spots/bands.h"
#include "ui/bind.h"
#include "ui/form.h"

namespace ui {
namespace {

constexpr const char* kEverything = "ALL";
constexpr int kFieldWidth = 120;

QString CallHint(bool usable) {
  return usable ? QString() : GetSpotsPanel::tr("A band is chosen: choose ALL to ask for a call");
}

}  // namespace

GetSpotsPanel::GetSpotsPanel(spots::SpotRequests& requests, std::function<void()> clear,
                             std::function<void()> help, Frames& frames, DropButton* button)
    : DropPanel(button, tr("Get spots from the node"), std::move(help)),
      requests_(requests),
      band_(new QComboBox(this)),
      call_(new QLineEdit(this)) {
  FillBands();
  call_->setAccessibleName(tr("Call to get spots of"));
  call_->setFixedWidth(kFieldWidth);
  auto* count = new QLineEdit(this);
  count->setAccessibleName(tr("How many missed spots to get, 0 to 100"));
  count->setFixedWidth(kFieldWidth);
  BindTextBox(count, requests.txtGetNr, frames);
  auto* get = new QPushButton(tr("&Get Spots"), this);
  get->setAccessibleName(tr("Get the spots of this band or call"));
  auto* missed = new QPushButton(tr("&Missed"), this);
  missed->setAccessibleName(tr("Get the missed spots"));
  auto* clearing = new QPushButton(tr("Clear &Spots"), this);
  clearing->setAccessibleName(tr("Clear all spots from the table"));
  auto* bandLabel = new QLabel(tr("&Band"), this);
  NameByLabel(band_, bandLabel, tr("Band to get spots of"));
  auto* callLabel = new QLabel(tr("&Call"), this);
  callLabel->setBuddy(call_);
  auto* countLabel = new QLabel(tr("C&ount"), this);
  countLabel->setBuddy(count);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 16, 16, 16);
  grid->setSpacing(8);
  grid->addWidget(bandLabel, 0, 0);
  grid->addWidget(band_, 0, 1);
  grid->addWidget(callLabel, 1, 0);
  grid->addWidget(call_, 1, 1);
  grid->addWidget(get, 1, 2);
  grid->addWidget(countLabel, 2, 0);
  grid->addWidget(count, 2, 1);
  grid->addWidget(missed, 2, 2);
  grid->addWidget(clearing, 3, 2);
  connect(get, &QPushButton::clicked, this, [this] { GetSpots(); });
  connect(call_, &QLineEdit::returnPressed, this, [this] { GetSpots(); });
  connect(clearing, &QPushButton::clicked, this, [this, clear = std::move(clear)] {
    close();
    clear();
  });
  connect(missed, &QPushButton::clicked, this, [this] { GetMissed(); });
  connect(band_, &QComboBox::currentIndexChanged, this, [this](int band) {
    call_->setEnabled(band == spots::kAllBands);
    call_->setToolTip(CallHint(band == spots::kAllBands));
  });
}

void GetSpotsPanel::FillBands() {
  band_->addItem(QLatin1String(kEverything), QByteArray(kEverything));
  for (int band = 1; band < spots::kAlarmBand; ++band) {
    const std::string_view label = spots::BandAt(band).label;
    band_->addItem(platform::qt::TextOf(program::BandWords(band)),
                   QByteArray(label.data(), static_cast<qsizetype>(label.size())));
  }
}

void GetSpotsPanel::GetSpots() {
  close();
  requests_.cmdGetSpots(band_->currentData().toByteArray().toStdString(),
                        call_->text().trimmed().toStdString());
}

void GetSpotsPanel::GetMissed() {
  close();
  requests_.cmdMissed();
}

}  // namespace ui
