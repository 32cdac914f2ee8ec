#include "ui/main_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/offset_dialog.h"
#include "ui/settings_page.h"
#include "ui/status_line.h"
#include "ui/user_info_dialog.h"

namespace ui {
namespace {

constexpr int kSettingsTab = 0;
constexpr int kLoginTab = 7;

constexpr QSize kUsualSize(1280, 800);
constexpr int kTwipsPerPixel = 15;

int Pixels(int twips) { return twips / kTwipsPerPixel; }
int Twips(int pixels) { return pixels * kTwipsPerPixel; }

// The tabs in their order. A tab without a page yet stands there disabled.
constexpr std::array kTabs = {"Settings", "Country",   "State", "Bands",   "Users", "DX",
                              "WWV",      "Login Msg", "Ann",   "Wx Plus", "Mail"};

// A screen may have gone since the place was stored.
bool OnSomeScreen(const QRect& place) {
  const auto screens = QGuiApplication::screens();
  return std::any_of(screens.begin(), screens.end(), [&](const QScreen* each) {
    return each->availableGeometry().intersects(place);
  });
}

}  // namespace

MainWindow::MainWindow(program::Program& program, Frames& frames, const Theme& theme)
    : program_(program),
      linkBar_(new LinkBar(program, frames, theme, this)),
      tabs_(new QTabBar(this)),
      pages_(new QStackedWidget(this)),
      splitter_(new QSplitter(Qt::Vertical, this)),
      loginMessage_(new TextPageView(program.session.loginText.rtbLoginMsg, frames, this)),
      raw_(new TextPageView(program.session.outgoing.Text2, frames, this)),
      commandRow_(new CommandRow(program.session, frames, this)) {
  AddTabs(frames);
  Lay();
  layout()->setContentsMargins(0, 0, 0, 0);
  centralWidget()->layout()->addWidget(new StatusLine(program.session, frames, theme, this));
  AddKeys();
  BindProperty<std::string>(this, program.title, frames, [this](const std::string& title) {
    setWindowTitle(platform::qt::TextOf(title));
  });
  new UserInfoDialog(program.userInfo, frames, this);
  new OffsetDialog(program.offsetForm, frames, this);
  placing_ = program.form.Observe([this](const program::FormPlace& place) { Place(place); });
  connect(splitter_, &QSplitter::splitterMoved, this, [this] { StorePlace(); });
  commandRow_->Line()->setFocus();
}

void MainWindow::Place(const program::FormPlace& place) {
  if (placed_ == place) return;
  placed_ = place;
  const QSize room = screen()->availableSize();
  if (place.width == 0) {
    resize(kUsualSize.boundedTo(room));
  } else {
    const QRect wanted(Pixels(place.left), Pixels(place.top), Pixels(place.width),
                       Pixels(place.height));
    if (OnSomeScreen(wanted)) move(wanted.topLeft());
    resize(wanted.size());
  }
  if (place.inputHeight > 0) {
    const int raw = Pixels(place.inputHeight);
    splitter_->setSizes({std::max(splitter_->height() - raw, 1), raw});
  }
  if (place.maximised) setWindowState(windowState() | Qt::WindowMaximized);
}

void MainWindow::StorePlace() {
  if (!isVisible() || isMinimized()) return;
  program::FormPlace place = placed_;
  place.maximised = isMaximized();
  place.inputHeight = Twips(raw_->height());
  if (!place.maximised) {
    place.left = Twips(x());
    place.top = Twips(y());
    place.width = Twips(width());
    place.height = Twips(height());
  }
  placed_ = place;
  program_.form.Set(place);
}

void MainWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  StorePlace();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  StorePlace();
}

void MainWindow::AddTabs(Frames& frames) {
  tabs_->setDrawBase(false);
  tabs_->setExpanding(false);
  tabs_->setAccessibleName(tr("Views"));
  for (const char* caption : kTabs) {
    const int tab = tabs_->addTab(tr(caption));
    QWidget* page = MakePage(tab, frames);
    pages_->addWidget(page != nullptr ? page : new QWidget(this));
    tabs_->setTabEnabled(tab, page != nullptr);
    if (page == nullptr) tabs_->setTabToolTip(tab, tr("This view is not part of this version."));
  }
  connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
  tabs_->setCurrentIndex(kLoginTab);
}

QWidget* MainWindow::MakePage(int tab, Frames& frames) {
  if (tab == kSettingsTab) return new SettingsPage(program_, frames, this);
  if (tab == kLoginTab) return loginMessage_;
  return nullptr;
}

void MainWindow::Lay() {
  loginMessage_->setAccessibleName(tr("Login message of the node"));
  raw_->setAccessibleName(tr("Raw view: all text from and to the node"));
  splitter_->setHandleWidth(1);
  splitter_->setChildrenCollapsible(false);
  splitter_->addWidget(pages_);
  splitter_->addWidget(raw_);
  splitter_->setSizes({250, 450});
  auto* column = new QWidget(this);
  auto* rows = new QVBoxLayout(column);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(linkBar_);
  rows->addWidget(tabs_);
  rows->addWidget(splitter_, 1);
  rows->addWidget(commandRow_);
  setCentralWidget(column);
}

void MainWindow::AddKeys() {
  const auto key = [this](const QKeySequence& keys, auto act) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
  };
  key(QStringLiteral("Ctrl+L"), [this] { commandRow_->Line()->setFocus(); });
  key(QStringLiteral("F6"), [this] { GoRound(); });
  key(QStringLiteral("F5"), [this] {
    session::Connection& connection = program_.session.connection;
    (connection.cmdConnect.Enabled.Get() ? connection.cmdConnect : connection.cmdDisconnect)
        .Press();
  });
  for (int tab = 0; tab < tabs_->count(); ++tab) {
    const QString last = tab == 9 ? QStringLiteral("0") : QStringLiteral("-");
    const QString name = tab < 9 ? QString::number(tab + 1) : last;
    key(QStringLiteral("Alt+") + name, [this, tab] {
      if (tabs_->isTabEnabled(tab)) tabs_->setCurrentIndex(tab);
    });
  }
}

void MainWindow::GoRound() {
  QPushButton* link =
      linkBar_->Connect()->isVisible() ? linkBar_->Connect() : linkBar_->Disconnect();
  const std::array<QWidget*, 5> places = {link, tabs_, pages_->currentWidget(), raw_,
                                          commandRow_->Line()};
  std::size_t next = 0;
  for (std::size_t i = 0; i < places.size(); ++i)
    if (places[i]->hasFocus()) next = (i + 1) % places.size();
  places[next]->setFocus(Qt::TabFocusReason);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  program_.RequestClose(program::Program::Close::Ask);
}

}  // namespace ui
