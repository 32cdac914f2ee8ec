#include "ui/main_window.h"

#include <QCloseEvent>
#include <QShortcut>
#include <QVBoxLayout>
#include <array>

#include "ui/bind.h"
#include "ui/status_line.h"

namespace ui {
namespace {

constexpr int kLoginTab = 7;

// The tabs in their order. A tab without a page yet stands there disabled.
constexpr std::array kTabs = {"Settings", "Country",   "State", "Bands",   "Users", "DX",
                              "WWV",      "Login Msg", "Ann",   "Wx Plus", "Mail"};

}  // namespace

MainWindow::MainWindow(program::Program& program, Frames& frames, const Theme& theme)
    : program_(program),
      linkBar_(new LinkBar(program, frames, theme, this)),
      tabs_(new QTabBar(this)),
      pages_(new QStackedWidget(this)),
      splitter_(new QSplitter(Qt::Vertical, this)),
      loginMessage_(new TextPageView(program.session.connection.rtbLoginMsg, frames, this)),
      raw_(new TextPageView(program.session.outgoing.Text2, frames, this)),
      commandRow_(new CommandRow(program.session, frames, this)) {
  AddTabs();
  Lay();
  layout()->setContentsMargins(0, 0, 0, 0);
  centralWidget()->layout()->addWidget(new StatusLine(program.session, frames, theme, this));
  AddKeys();
  BindProperty<std::string>(this, program.title, frames, [this](const std::string& title) {
    setWindowTitle(QString::fromStdString(title));
  });
  resize(1280, 800);
  commandRow_->Line()->setFocus();
}

void MainWindow::AddTabs() {
  tabs_->setDrawBase(false);
  tabs_->setExpanding(false);
  tabs_->setAccessibleName(tr("Views"));
  for (const char* caption : kTabs) {
    const int tab = tabs_->addTab(tr(caption));
    pages_->addWidget(tab == kLoginTab ? static_cast<QWidget*>(loginMessage_) : new QWidget(this));
    tabs_->setTabEnabled(tab, tab == kLoginTab);
    if (tab != kLoginTab) tabs_->setTabToolTip(tab, tr("This view is not part of this version."));
  }
  connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
  tabs_->setCurrentIndex(kLoginTab);
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
