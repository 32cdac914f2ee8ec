#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "core/version.h"
#include "platform/qt/qt_text.h"
#include "ui/bind.h"
#include "ui/colour_dialog.h"
#include "ui/comm_dialog.h"
#include "ui/conditions_bar.h"
#include "ui/fix_spot_dialog.h"
#include "ui/login_view.h"
#include "ui/message_dialog.h"
#include "ui/node_dialog.h"
#include "ui/offset_dialog.h"
#include "ui/settings_page.h"
#include "ui/spots_dialog.h"
#include "ui/status_line.h"
#include "ui/tab_order.h"
#include "ui/tnc_dialog.h"
#include "ui/touch_watch.h"
#include "ui/user_info_dialog.h"
#include "ui/view_colours.h"
#include "ui/window_place.h"

namespace ui {
namespace {

constexpr QSize kUsualSize(1280, 800);

// The page of the manual for what is on show.
std::string_view PageFor(int view) {
  if (view == program::Views::Dx) return "dx";
  if (view == program::Views::Settings) return "window#The settings";
  if (view == program::Views::LoginMsg) return "window#The login message";
  return "index";
}

// The focus is on it or on something in it.
bool HasFocusWithin(const QWidget* widget) {
  const QWidget* focus = QApplication::focusWidget();
  return widget == focus || widget->isAncestorOf(focus);
}

}  // namespace

MainWindow::MainWindow(program::Program& program, Frames& frames, LiveTheme& theme)
    : program_(program),
      linkBar_(new LinkBar(program, frames, theme, this)),
      tabs_(new ViewTabs(program.views, frames, this)),
      pages_(new QStackedWidget(this)),
      splitter_(new QSplitter(Qt::Vertical, this)),
      dx_(MakeDxPage(frames, theme)),
      loginMessage_(new LoginView(program.session.loginText.rtbLoginMsg, program.session.loginLinks,
                                  frames, this)),
      raw_(new TextPageView(program.session.outgoing.Text2, frames, this)),
      findInLogin_(new FindBar(loginMessage_, *loginMessage_, tr("login message"))),
      findInRaw_(new FindBar(raw_, *raw_, tr("raw view"))),
      commandRow_(new CommandRow(program.session, frames, this)),
      columns_(new DisplayDialog(program.spotParts.display, frames, this)),
      rejects_(new RejectDialog(program.spotParts.rejectForm, program.spotParts.rejectLists,
                                program.spotParts.localReject.CorrectErrors, frames, this)) {
  AddPages(frames, theme);
  Lay(frames, theme);
  AddDialogs(frames, theme);
  AddMenus(frames);
  AddKeys();
  new TouchWatch(this, frames);
  BindProperty<std::string>(this, program.title, frames, [this](const std::string& title) {
    setWindowTitle(platform::qt::TextOf(title));
  });
  placing_ = program.form.Observe([this](const program::FormPlace& place) { Place(place); });
  alone_ = program.rawPane.Maximised.Observe([this](bool alone) { pages_->setVisible(!alone); });
  // Also where that tab is the one on show already.
  connect(tabs_, &QTabBar::tabBarClicked, this, [this](int tab) {
    if (tab >= 0) ChooseTab(tab);
  });
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
  if (!program_.rawPane.Maximised.Get()) place.inputHeight = Twips(raw_->height());
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

void MainWindow::AddPages(Frames& frames, LiveTheme& theme) {
  loginMessage_->setAccessibleName(tr("Login message of the node"));
  raw_->setAccessibleName(tr("Raw view: all text from and to the node"));
  for (int tab = 0; tab < program::Views::kTabs; ++tab) {
    QWidget* page = tab == program::Views::Settings
                        ? new SettingsPage(program_, frames, theme, this)
                    : tab == program::Views::Dx       ? dx_
                    : tab == program::Views::LoginMsg ? loginMessage_
                                                      : new QWidget(this);
    pages_->addWidget(page);
  }
  following_ = program_.views.onShow.Observe([this](int tab) { pages_->setCurrentIndex(tab); });
  const auto size = [&](TextPageView* view, program::TextSizes::View which) {
    BindProperty<int>(view, program_.textSizes.Size[which], frames,
                      [view](const int& pixels) { view->SetSize(pixels); });
  };
  size(raw_, program::TextSizes::Raw);
  size(loginMessage_, program::TextSizes::LoginMsg);
  core::Property<program::ColourValues>& colours = program_.colourForm.OnShow;
  BindColours(raw_, colours, program::ColourKey::Raw, program::ColourKey::RawText, frames, theme);
  BindColours(loginMessage_, colours, program::ColourKey::LoginMsg, {}, frames, theme);
}

DxPage* MainWindow::MakeDxPage(Frames& frames, LiveTheme& theme) {
  spots::SpotParts& parts = program_.spotParts;
  return new DxPage({.table = parts.table,
                     .display = parts.display,
                     .membership = parts.membership,
                     .requests = parts.requests,
                     .numbers = parts.numbers,
                     .empty = program_.dxTab.lblEmpty,
                     .look = {.size = program_.textSizes.Size[program::TextSizes::Dx],
                              .font = program_.dxLook.Font,
                              .heads = program_.dxLook.chkTitle.Value,
                              .colours = program_.colourForm.OnShow},
                     .settings = program_.settings},
                    {.click = [this](const spots::Click& click) { Do(click); },
                     .clickChoice = {},
                     .clearSpots = [&parts] { parts.ClearSpots(); },
                     .help = [this](const char* page) { OpenManual(page); },
                     .columns = [this] { columns_->Show(); },
                     .spotLog = [&parts] { parts.spotsForm.Show(); },
                     .rejects = [this] { rejects_->Show(); },
                     .corrections = [&parts] { parts.fixForm.Show(); }},
                    frames, theme, this);
}

void MainWindow::Do(const spots::Click& click) {
  if (click.act == spots::Click::Act::Node) program_.session.outgoing.Send(click.text);
}

void MainWindow::AddDialogs(Frames& frames, LiveTheme& theme) {
  spots::SpotParts& parts = program_.spotParts;
  Keep(columns_, kAr17Place);
  AddHelp(columns_, "dx#Columns");
  AddHelp(rejects_, "dx#What you don't want to see");
  AddHelp(new UserInfoDialog(program_.userInfo, frames, this), "first-evening");
  AddHelp(new OffsetDialog(program_.offsetForm, frames, this), "first-evening");
  AddHelp(new CommDialog(program_.commForm, frames, this), "tnc");
  auto* tnc = new TncDialog(program_.tncForm, frames, this);
  Keep(tnc, kTncPlace);
  AddHelp(tnc, "tnc");
  AddHelp(new MessageDialog(program_.messageForm, frames, this), "index");
  AddHelp(new NodeDialog({.form = program_.nodeForm,
                          .update = program_.nodeUpdate,
                          .directory = program_.nodeDirectory},
                         frames, this),
          "nodes");
  AddHelp(new ColourDialog({.form = program_.colourForm,
                            .look = program_.dxLook,
                            .size = program_.textSizes.Size[program::TextSizes::Dx],
                            .settings = program_.settings},
                           frames, theme, this),
          "window#Colours and fonts");
  AddHelp(new SpotsDialog(parts.spotsForm, frames, this), "dx#The log");
  auto* corrections =
      new FixSpotDialog({.form = parts.fixForm, .list = parts.fixList, .files = program_.files()},
                        frames, theme, this);
  Keep(corrections, kFixSpotPlace);
  AddHelp(corrections, "dx#What you know better");
}

void MainWindow::Keep(QDialog* dialog, const PlaceKeys& keys) {
  new DialogPlace(dialog, program_.settings, keys, [this] { program_.DelayedWriteCfg(); });
}

void MainWindow::AddHelp(QDialog* dialog, const char* page) {
  connect(new QShortcut(Qt::Key_F1, dialog), &QShortcut::activated, this,
          [this, page] { OpenManual(page); });
}

void MainWindow::Lay(Frames& frames, LiveTheme& theme) {
  splitter_->setHandleWidth(1);
  splitter_->setChildrenCollapsible(false);
  splitter_->addWidget(pages_);
  splitter_->addWidget(raw_);
  splitter_->setSizes({520, 130});
  auto* column = new QWidget(this);
  auto* rows = new QVBoxLayout(column);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  auto* conditions = new ConditionsBar(program_.conditions, frames, theme, this);
  rows->addWidget(linkBar_);
  rows->addWidget(conditions);
  rows->addWidget(tabs_);
  rows->addWidget(splitter_, 1);
  rows->addWidget(commandRow_);
  rows->addWidget(new StatusLine(program_.session, frames, theme, this));
  setCentralWidget(column);
  OrderParts(this, {linkBar_, conditions, tabs_, pages_, raw_, commandRow_});
}

void MainWindow::AddMenus(Frames& frames) {
  auto* menus = new Menus({.state = [this](const Command& command) { return StateOf(command); },
                           .run = [this](const Command& command) { Do(command); }},
                          this);
  setMenuBar(menus);
  session::Connection& connection = program_.session.connection;
  for (core::Button* each : {&connection.cmdConnect, &connection.cmdDisconnect})
    BindProperty<bool>(menus, each->Enabled, frames,
                       [menus](bool) { menus->Refresh(Menu::Connection); });
}

void MainWindow::AddKeys() {
  for (const Command& command : Commands()) {
    if (!command.HasKey()) continue;
    for (const QKeySequence& keys : QKeySequence::listFromString(QLatin1String(command.keys)))
      connect(new QShortcut(keys, this), &QShortcut::activated, this,
              [this, &command] { Do(command); });
  }
}

void MainWindow::Do(const Command& command) {
  session::Connection& connection = program_.session.connection;
  spots::SpotParts& parts = program_.spotParts;
  switch (command.act) {
    case Act::ConnectOrDisconnect:
      return (connection.cmdConnect.Enabled.Get() ? connection.cmdConnect
                                                  : connection.cmdDisconnect)
          .Press();
    case Act::Connect:
      return connection.cmdConnect.Press();
    case Act::Disconnect:
      return connection.cmdDisconnect.Press();
    case Act::Nodes:
      return program_.nodeForm.Show();
    case Act::RadioClus:
      return program_.modeSwitch.RadioClus.Press();
    case Act::TelnetClus:
      return program_.modeSwitch.TelnetClus.Press();
    case Act::LinkSettings:
      return program_.commForm.Show();
    case Act::TncScript:
      return program_.tncForm.Show();
    case Act::Quit:
      return program_.RequestClose(program::Program::Close::Ask);
    case Act::UserInfo:
      return program_.userInfo.Show();
    case Act::Columns:
      return columns_->Show();
    case Act::SpotLog:
      return parts.spotsForm.Show();
    case Act::Rejects:
      return rejects_->Show();
    case Act::Corrections:
      return parts.fixForm.Show();
    case Act::CorrectErrors:
      return parts.localReject.CorrectErrors.UserSets(!parts.localReject.CorrectErrors.Value.Get());
    case Act::Colours:
      return program_.colourForm.Show();
    case Act::ChooseTheme:
      return program_.appearance.optTheme.UserSelects(command.number);
    case Act::ChooseTab:
      return ChooseTab(command.number);
    case Act::ChooseBand:
      ShowPages();
      return program_.dxTab.ChooseBand(command.number);
    case Act::RawView:
      return program_.rawPane.Turn();
    case Act::CommandLine:
      return commandRow_->Line()->setFocus();
    case Act::ReturnToTable:
      return ReturnToTable();
    case Act::GoRound:
      return GoRound();
    case Act::Find:
      return Find();
    case Act::LargerText:
      return program_.textSizes.Change(ViewAtHand(), 1);
    case Act::SmallerText:
      return program_.textSizes.Change(ViewAtHand(), -1);
    case Act::Manual:
      return OpenManual(program_.rawPane.Maximised.Get() ? "window#The raw view"
                                                         : PageFor(program_.views.onShow.Get()));
    case Act::ListKeys:
      return ListKeys();
    case Act::About:
      return TellAbout();
  }
}

Menus::State MainWindow::StateOf(const Command& command) const {
  const session::Connection& connection = program_.session.connection;
  switch (command.act) {
    case Act::Connect:
      return {.enabled = connection.cmdConnect.Enabled.Get(),
              .ticked = {},
              .why = tr("There is a link already.")};
    case Act::Disconnect:
      return {.enabled = connection.cmdDisconnect.Enabled.Get(),
              .ticked = {},
              .why = tr("There is no link.")};
    case Act::RadioClus:
    case Act::TelnetClus:
      return {.ticked = program_.settings.TncMode == (command.act == Act::RadioClus), .why = {}};
    case Act::CorrectErrors: {
      const core::Check& errors = program_.spotParts.localReject.CorrectErrors;
      return {.enabled = errors.Enabled.Get(),
              .ticked = errors.Value.Get(),
              .why = tr("The node says nothing that would tell an error.")};
    }
    case Act::ChooseTheme:
      return {.ticked = program_.appearance.optTheme.Selected.Get() == command.number, .why = {}};
    case Act::ChooseTab: {
      const core::Label& tab = program_.views.tab[static_cast<std::size_t>(command.number)];
      return {.enabled = tab.Enabled.Get(),
              .ticked = program_.views.onShow.Get() == command.number,
              .why = platform::qt::TextOf(tab.ToolTip.Get())};
    }
    case Act::RawView:
      return {.ticked = program_.rawPane.Maximised.Get(), .why = {}};
    default:
      return {};
  }
}

// The raw view gives back what it has taken of the window.
void MainWindow::ShowPages() {
  if (program_.rawPane.Maximised.Get()) program_.rawPane.Turn();
}

void MainWindow::ChooseTab(int tab) {
  if (program_.views.tab[static_cast<std::size_t>(tab)].Enabled.Get()) ShowPages();
  program_.views.Choose(tab);
}

void MainWindow::ReturnToTable() {
  ShowPages();
  program_.views.Choose(program::Views::Dx);
  dx_->setFocus(Qt::OtherFocusReason);
}

void MainWindow::GoRound() {
  QPushButton* link =
      linkBar_->Connect()->isVisible() ? linkBar_->Connect() : linkBar_->Disconnect();
  const bool alone = program_.rawPane.Maximised.Get();
  const std::array<QWidget*, 5> places = {link, tabs_, alone ? raw_ : pages_->currentWidget(), raw_,
                                          commandRow_->Line()};
  std::size_t next = 0;
  for (std::size_t i = 0; i < places.size(); ++i)
    if (HasFocusWithin(places[i])) next = (i + 1) % places.size();
  places[next]->setFocus(Qt::TabFocusReason);
}

void MainWindow::Find() {
  const program::TextSizes::View view = ViewAtHand();
  if (view == program::TextSizes::Raw) findInRaw_->Open();
  if (view == program::TextSizes::LoginMsg) findInLogin_->Open();
  if (view == program::TextSizes::Dx) dx_->OpenFind();
}

void MainWindow::ListKeys() {
  if (keyList_ == nullptr) AddHelp(keyList_ = new KeyList(this), "window");
  keyList_->show();
  keyList_->activateWindow();
}

void MainWindow::OpenManual(std::string_view page) {
  if (manual_ == nullptr) AddHelp(manual_ = new ManualWindow(this), "index");
  manual_->Open(platform::qt::TextOf(page));
}

void MainWindow::TellAbout() {
  program_.messageForm.Show("About Molva Desk",
                            "Molva Desk " + std::string(core::kProgramVersion) +
                                "\n\nA client for the DX clusters of radio amateurs.");
}

program::TextSizes::View MainWindow::ViewAtHand() const {
  if (HasFocusWithin(raw_)) return program::TextSizes::Raw;
  if (loginMessage_->isVisible()) return program::TextSizes::LoginMsg;
  if (dx_->isVisible()) return program::TextSizes::Dx;
  return program::TextSizes::Raw;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  program_.RequestClose(program::Program::Close::Ask);
}

}  // namespace ui
