#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

// All that the program keeps from one run to the next, but for the node password. The text form is
// that of "molva.cfg"; each key of it has one member here, under the name that the rules give it.
namespace core {

struct TncStep {
  std::string Command;  // sent
  std::string Reply;    // awaited
  std::string TimeOut;  // in seconds

  bool operator==(const TncStep&) const = default;
};

struct WebPage {
  std::string Page;
  std::string Address;

  bool operator==(const WebPage&) const = default;
};

// A program that is started along with this one.
struct StartedProgram {
  std::string Command;

  bool operator==(const StartedProgram&) const = default;
};

// Sizes and positions of windows are twips. Colours are decimal 24-bit numbers in blue-green-red
// order; 0 stands for the control's own colour.
struct Settings {
  // The operator.
  std::string MyCall;  // with its SSID; in upper case, like the name and the grid
  std::string MyName;
  std::string MyQth;
  std::string MyGrid;
  std::string HomeCluster;
  std::string MyEmail;
  std::string MyLocation;  // "42 17 N 83 44 W"
  std::string GmtOffset;   // hours, or "Ok" for the system's zone; empty: not chosen yet

  // Windows.
  int FormTop = 0;
  int FormLeft = 0;
  bool FormMaximized = false;
  int FormWidth = 0;  // 0 follows the screen
  int FormHeight = 6000;
  int InputHeight = 0;
  int ChatTop = 0;
  int ChatLeft = 0;
  int ChatHeight = 5000;
  int ChatWidth = 5000;
  int AR17Top = 0;
  int AR17Left = 0;
  int AlertTop = 0;
  int AlertLeft = 0;
  int AlertHeight = 6000;
  int AlertWidth = 8000;
  int FixSpotTop = 2000;
  int FixSpotLeft = 2000;
  int FixSpotHeight = 4000;
  int FixSpotWidth = 8000;
  int TncTop = 0;
  int TncLeft = 0;
  int TncHeight = 0;
  int TncWidth = 0;
  int SoundTop = 940;
  int SoundLeft = 940;
  int SoundHeight = 4700;
  int SoundWidth = 10000;
  int WebTop = 0;
  int WebLeft = 0;
  int WebWidth = 5000;
  int WebHeight = 5000;
  int WebSetupTop = 1000;
  int WebSetupLeft = 2000;
  int WebSetupWidth = 7800;
  int WebSetupHeight = 4300;
  int SunTop = 0;
  int SunHeight = 1875;
  int SunLeft = 0;
  int SunWidth = 7670;
  bool TalkHide = false;
  int TalkHeight = 4;
  int StartTab = 5;
  double TabCorrection = 1.0;

  // Start, end and what the program does by itself.
  bool AutoStart = false;
  bool AutoReconnect = true;
  bool QuietExit = false;
  std::vector<StartedProgram> ProgramStart;
  int ProgramStartUps = 0;
  bool DownloaderOk = true;
  bool DownloaderVisible = false;
  bool InternetCheckVersion = false;
  std::string UpgradeMsg;

  // The node and the way to it.
  std::string NodeCall = "MOLVA-1";
  std::string NodeHost;
  std::string NodeNumberedAddress;   // its last known dotted address
  std::string MolvaNumberedAddress;  // that of "MOLVA-1" itself
  std::string NodePort = "23";
  std::string LoginNode;
  std::string TncKA = "Rx";
  int TncKAtime = 0;  // in minutes; 0 is off
  std::string TelnetKA = "Rx";
  int TelnetKAtime = 5;
  bool DontShowClusterUpdate = false;
  bool DxARPCoff = false;
  bool AskSettings = false;  // an AR-Cluster is asked for the user's switches at login

  // The radio path and the serial ports.
  bool TncMode = false;
  std::string TncCluster;
  std::vector<TncStep> TncSteps;  // 6 at most
  int TncPort = 0;
  int TncBaud = 0;
  std::string TncParity = "N";              // or "Even", "Odd", "Space", "Mark"
  std::string TncDataBits = "8";            // or "4" to "7"
  std::string TncStopBits = "1";            // or "1.5", "2"
  std::string TncFlowControl = "Hardware";  // or "Xon / Xoff", "None", "Both"
  bool LocalNetwork = false;
  int NetworkPort = 0;
  int NetworkBaud = 0;
  bool Echo = false;
  int K3Port = 0;
  bool K3ReadSpotFreq = false;

  // Other programs.
  bool Linking = false;
  int LoggerPort = 7300;
  bool LoggingProgram = false;
  int SendToLog = 1;
  bool VQLog = false;
  bool BobDx = false;
  std::string HtmlFile;
  std::string GridFile;

  // Filters and requests.
  int FixOptions = 0;
  int DXBM = 31748;  // bit i rejects band i
  bool DontUseMyFilter = false;
  bool AutoFilter = false;
  bool CorrectErrors = true;
  bool RejSpots = false;  // the reject lists are in force
  bool RejectInvalidCountry = false;
  bool RejectNotLoTWeQSL = false;
  bool RejectCounties = false;
  int FilterBy = 1;
  bool GetMissedOnes = true;
  int GetNr = 100;
  int GetNrTnc = 20;
  std::array<double, 30> Freq{};  // kHz

  // Spots: their store, their log and their columns.
  bool ShowSpotNrs = false;
  int SpotMemoryAll = 200;
  int SpotMemorySingle = 200;
  bool LogDxSpots = false;
  int ReloadHours = 12;
  int KeepSpotsDays = 7;
  bool DeleteDxLogs = false;
  bool LoadLogFileOnStartup = false;
  bool ShowSkimmerDupes = false;  // the share of duplicates among Skimmers' spots is on show
  bool AllowSkimmerDupes = false;
  bool ShowOwnSkimmerSpots = false;  // duplicates too, of the operator's own call
  bool Sys1 = false;
  bool Sys2 = false;
  bool ArNode = false;
  bool ArCty = false;
  bool ArIP = false;
  bool ArBearing = false;
  bool ArKm = false;
  bool ArDistance = false;
  bool ArWAZ = false;
  bool ArITU = false;
  bool ArOrigCty = false;
  bool ArOrigState = false;
  bool ArDate = false;
  bool ArComments = false;
  bool ShowCountryName = false;
  bool dxsState = false;
  bool dxsOrigWAZ = false;
  bool dxsOrigITU = false;
  bool DxGrid = false;
  bool SpotterGrid = false;
  bool ClassicDisplay = false;
  bool ExtraWide = false;
  bool DxTitleVisible = true;  // the heads of the columns
  int SpotWidth = 0;

  // Colours and fonts.
  std::string Theme;   // "Light" or "Dark"; empty follows the system
  int RawSize = 13;    // of the text in the raw view, in pixels
  int LoginSize = 13;  // and in the login message
  int ColourRaw = 0;
  int ColourRawText = 0;
  int ColourDx = 15531007;
  int ColourWWV = 0;
  int ColourLoginMsg = 0;
  int ColourWx = 0;
  int ColourMail = 0;
  int ColourTalk = 0;
  int ColourAnn = 0;
  int ColourLocals = 0;
  int ColourBandPass = 12517052;
  int ColourBandReject = 14146559;
  int ColourSettings = 0;
  int ColourNodeConn = 65280;
  int ColourNodeTrying = 0;
  int ColourNodeDisc = 0;
  int ColourTalkTalkee = 0;
  int ColourTalkMsg = 0;
  int ColourTalkUsers = 0;
  int ColourMissed1 = 12517052;
  int ColourMissed2 = 15925232;
  int Missed = 65535;
  std::array<int, 16> SpotColor{};  // [0] is the colour numbered 1
  int Fonts = 31;
  bool BlackFont = false;
  std::string DxFont;
  double DxSize = 0;
  bool DxBold = false;
  bool DxItalic = false;
  int CharacterWidth = 120;
  int CharacterHeight = 225;

  // Talk, alarms, sounds and mail.
  bool AutoAlert = false;
  bool TalkOnTop = false;
  bool AutoTalk = false;
  bool Sun = false;
  int ZKDX = 0;
  int SoundOn = 0;  // bit i is switch i
  bool AlarmEmailOn = false;
  bool AlarmEmailDisabled = false;
  std::string AlarmEmail;
  std::string AlarmISP;
  std::string ISPport = "25";
  std::string ISPpassword;
  std::string IspEmail;
  bool SSL = false;
  bool DontShowEmailForm = false;

  // The web: pages, call books, lists of members.
  std::vector<WebPage> WebPages = {{"Space Weather", "https://www.swpc.noaa.gov/"}};
  bool PremiumService = false;
  bool DetailedService = false;
  int QrzLookUp = 0;  // 0 is QRZ, 1 is HamCall
  std::string QrzName;
  std::string QrzPassword;
  bool DontLookupDxCall = false;
  bool DefaultBrowser = false;
  bool ShLoTW = false;
  bool AutoLoTW = false;
  bool LoTWChecking = false;
  bool SheQSL = false;
  bool AutoeQSL = false;
  bool eQSLChecking = false;

  bool operator==(const Settings&) const = default;
};

// Reads a configuration's text. Total: whatever the text is, a key that it doesn't hold keeps its
// default, unknown keys are ignored, and of a key that stands twice the last counts. Keys count to
// the letter.
// - Each line is split at its first comma; double quotes don't count, so values keep their commas.
// - A bad number is 0, and one beyond the range of int is held within it. Whether a number makes
//   sense is for those who use it, but for the spot memories, where 0 and less is 200.
// - A flag is set by any number but 0 and by TRUE, bare or as #TRUE#, in any case.
// - "TncParity" and its like keep their default in place of a word that isn't one of theirs.
// - A last line without a line end is what a cut may have left: it counts only with a comma, with
//   something behind that, and with its quotes in pairs.
// - Old keys count too: "PrimaryNode", "PrimaryAddress", "DxSourceToNetwork", "AlarmEmailOn",
//   "LotwYN".
// A location that can be read comes out as degrees and minutes (core/location.h). Without any web
// page the default one is there.
Settings ParseSettings(std::string_view text);

// The whole text in the order of the keys; `dts` is the time of writing. Double quotes in values
// are lost, line ends become blanks, steps without a time-out are left out.
std::string FormatSettings(const Settings& settings, std::string_view dts);

}  // namespace core
