#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/configuration.h"
#include "core/controls.h"
#include "core/dates.h"
#include "core/endpoints.h"
#include "core/error_log.h"
#include "core/settings.h"
#include "filters/profile_reader.h"
#include "filters/user_settings.h"
#include "platform/platform.h"
#include "platform/tasks.h"
#include "program/appearance.h"
#include "program/chain.h"
#include "program/colour_form.h"
#include "program/conditions.h"
#include "program/dx_look.h"
#include "program/dx_tab.h"
#include "program/file_condition.h"
#include "program/link_condition.h"
#include "program/message_form.h"
#include "program/offset_form.h"
#include "program/port_condition.h"
#include "program/practice_node.h"
#include "program/raw_pane.h"
#include "program/stand_ins.h"
#include "program/start_options.h"
#include "program/text_sizes.h"
#include "program/ties.h"
#include "program/user_info.h"
#include "program/views.h"
#include "session/comm_form.h"
#include "session/mode_switch.h"
#include "session/node_form.h"
#include "session/port_names.h"
#include "session/session.h"
#include "session/tnc_form.h"
#include "spots/spot_parts.h"

namespace program {

// Where the window stands, in twips (15 to a pixel). A width of 0: it was never placed.
struct FormPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  int inputHeight = 0;  // of the raw view; 0: never set
  bool maximised = false;

  bool operator==(const FormPlace&) const = default;
};

// The whole running system: who owns what, and how it comes up and goes down.
class Program {
 public:
  // What the program asks of whoever runs it.
  struct Needs {
    std::function<void()> quit;  // the shutdown is complete
    std::uint32_t seed = 0;      // of everything that is picked at random
    // Shows a page of the manual; empty: there is none.
    std::function<void(std::string_view page)> openManual = {};
  };

  // The country file that the system has, from its package of files for radio amateurs.
  static constexpr const char* kCountryFile = "/usr/share/hamradio-files/cty.dat";

  // The platform outlives the program. `folder` is the program's folder.
  Program(const platform::Platform& platform, std::string folder, Needs needs);
  ~Program();

  // Begins the start-up. It goes on by itself, and ends with Loading false.
  void Start();

  enum class Close { Ask, WithoutAsking };
  // Begins the shutdown, unless it runs already; the user may still cancel it where he is asked. A
  // close during start-up ends the program at once, without writing anything.
  void RequestClose(Close how);

  // Writes the configuration 2 seconds after the last call.
  void DelayedWriteCfg();

  platform::Files& files() const { return platform_.files; }

  bool Loading = true;
  bool Primary = true;  // no other running copy has this folder
  core::Property<std::string> title;
  core::Check DebuggingOn;         // the next run tells of each failure at once
  core::Check MultiNode;           // two copies are linked; its caption says which one this is
  core::Property<FormPlace> form;  // set by the window as the user moves it, and at start

 private:
  platform::Platform platform_;
  const std::string folder_;
  Needs needs_;

 public:
  core::Calendar calendar;
  core::ErrorLog errorLog;
  core::Settings settings;
  core::Endpoints endpoints;
  session::PortNames portNames;
  StandIns standIns;
  Conditions conditions;

 private:
  PracticeNode practiceNode_;
  LineChain chain_;
  Ties ties_;
  std::unique_ptr<core::Configuration> configuration_;  // once the folder is known

 public:
  session::Session session;
  session::CommForm commForm;
  session::TncForm tncForm;
  session::NodeDirectory nodeDirectory;
  session::NodeUpdate nodeUpdate;  // fraUpdate
  session::NodeForm nodeForm;      // frmNode
  session::ModeSwitch modeSwitch;  // of the menu of the connection
  spots::SpotParts spotParts;
  filters::UserSettings userSettings;
  filters::ProfileReader profileReader;
  UserInfo userInfo;
  OffsetForm offsetForm;
  MessageForm messageForm;  // frmMsg
  Views views;
  DxTab dxTab;
  Appearance appearance;
  TextSizes textSizes;
  ColourForm colourForm;  // frmColour
  DxLook dxLook;
  RawPane rawPane;
  StartOptions startOptions;

 private:
  struct Step;

  platform::Task<> StartUp();
  platform::Task<> PrepareFolder();
  void NoteWrite(const char* step, platform::Files::Fault fault);
  void TellUnwritable(platform::Files::Fault fault);
  platform::Task<> ReadDebugCfg();
  platform::Task<> ClearDebugCfg();
  platform::Task<> BringDataFiles();
  void BringCountryFile();
  void Bring(const char* file, std::string_view content);
  platform::Task<> ReadCfg();
  platform::Task<> StartLogger();
  platform::Task<> ReadPassword();
  platform::Task<> PrepareSession();
  void RenameDefaultNode();
  platform::Task<> ReadSpotFiles();
  platform::Task<> EndLoading();
  platform::Task<> BeginSpotLog();
  platform::Task<> AskWhatIsMissing();
  platform::Task<> AutoStart();

  platform::Task<> ShutDown(Close how);
  platform::Task<bool> MayEnd();
  platform::Task<bool> UserAgrees();
  platform::Task<bool> MailIsDone();
  bool WindowHasMoved() const;
  void Quit();

  StartOptions::Needs NeedsOfStartOptions();
  session::TncForm::Needs NeedsOfTncForm();
  ColourForm::Needs NeedsOfColourForm();
  session::ModeSwitch::Needs NeedsOfModeSwitch();
  spots::SpotParts::Needs NeedsOfSpots();
  // A column of the spots is called what the lines of the node hold in it.
  platform::Registration NameColumn(core::Label& words, spots::DisplayChoice::Check column);
  void TellOfMembers(spots::Membership::List list);
  void ChooseLinking();
  platform::Files::Fault WriteDebugCfg(bool on);
  bool KnowsUser() const;
  spots::NodeFacts NodeFacts() const;
  spots::SlotSwitches SlotSwitches() const;
  void CaptionSetup();
  void TakeMode();
  void TakeScript();
  std::string LinkWord() const;
  void ApplySettings();
  void WriteCfg();
  void SaveUserInfo(const std::string& password);
  void YieldToUserInfo(bool open);
  std::string Path(const char* file) const { return folder_ + "/" + file; }

  bool asking_ = false;  // whether to end
  bool ending_ = false;
  bool folderIsNew_ = false;
  bool configurationIsNew_ = false;
  bool offsetWaits_ = false;  // for the end of the form that asks for it too
  LinkCondition linkCondition_;
  FileConditions fileConditions_;
  platform::Registration clockWatched_;
  PortCondition portCondition_;
  platform::Registration userInfoWatched_;
  platform::Registration autoReconnectTicked_;
  platform::Registration linkingTicked_;
  platform::Registration macrosFollowing_;
  std::array<platform::Registration, 2> columnsNamed_;
  platform::Registration saved_;
  platform::Registration debuggingTicked_;
  platform::Registration ticking_;
  platform::Tasks tasks_;
};

}  // namespace program
