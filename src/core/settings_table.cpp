#include "core/settings_table.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

#include "core/settings_values.h"

namespace core {
namespace {

using Pair = std::array<std::string_view, 2>;
constexpr Pair kFormWords = {"Maximized", "NotMax"};
constexpr Pair kUpperTrue = {"TRUE", "FALSE"};
constexpr Pair kTrue = {"True", "False"};
constexpr Pair kMinusOne = {"-1", "0"};
constexpr Pair kOne = {"1", "0"};

// What the serial settings may be besides their defaults.
constexpr std::array<std::string_view, 4> kParities = {"Even", "Odd", "Space", "Mark"};
constexpr std::array<std::string_view, 4> kDataBits = {"4", "5", "6", "7"};
constexpr std::array<std::string_view, 2> kStopBits = {"1.5", "2"};
constexpr std::array<std::string_view, 3> kFlowControls = {"Xon / Xoff", "None", "Both"};

constexpr std::array<std::string_view, 2> kThemes = {"Light", "Dark"};

void Ignore(Settings&, std::string_view) {}

void KeepFromLog(Settings& settings, std::string_view value) {
  if (IsTrue(value)) settings.SendToLog = 0;
}

void ShowBothMarks(Settings& settings, std::string_view value) {
  if (IsTrue(value)) settings.ShLoTW = settings.SheQSL = true;
}

constexpr auto kRows = std::to_array<SettingRow>({
    {"DTS", WritingTime{}},
    {"My Call", &Settings::MyCall, Form::UpperCase},
    {"My Name", &Settings::MyName, Form::UpperCase},
    {"My QTH", &Settings::MyQth},
    {"My Grid", &Settings::MyGrid, Form::UpperCase},
    {"Home Cluster", &Settings::HomeCluster},
    {"My Email", &Settings::MyEmail},
    {"My Location", &Settings::MyLocation},
    {"Gmt Offset", &Settings::GmtOffset},
    {"FormTop", &Settings::FormTop},
    {"FormLeft", &Settings::FormLeft},
    {"Form", &Settings::FormMaximized, Form::Words, Always, kFormWords},
    {"FormWidth", &Settings::FormWidth},
    {"FormHeight", &Settings::FormHeight},
    {"InputHeight", &Settings::InputHeight},
    {"ChatTop", &Settings::ChatTop},
    {"ChatLeft", &Settings::ChatLeft},
    {"ChatHeight", &Settings::ChatHeight},
    {"ChatWidth", &Settings::ChatWidth},
    {"AR17Top", &Settings::AR17Top},
    {"AR17Left", &Settings::AR17Left},
    {"AlertTop", &Settings::AlertTop},
    {"AlertLeft", &Settings::AlertLeft},
    {"AlertHeight", &Settings::AlertHeight},
    {"AlertWidth", &Settings::AlertWidth},
    {"FixSpotTop", &Settings::FixSpotTop},
    {"FixSpotLeft", &Settings::FixSpotLeft},
    {"FixSpotHeight", &Settings::FixSpotHeight},
    {"FixspotWidth", &Settings::FixSpotWidth},
    {"FixOptions", &Settings::FixOptions},
    {"DXBM", &Settings::DXBM},
    {"Linking", &Settings::Linking},
    {"LoggerPort", &Settings::LoggerPort, Form::Plain, IfHighPort},
    {"LoggingProgram", &Settings::LoggingProgram},
    {"SendToLog", &Settings::SendToLog},
    {"LoginNode", &Settings::LoginNode},
    {"DontUseMyFilter", &Settings::DontUseMyFilter},
    {"DoNotAsk", &Settings::QuietExit},
    {"RejSpots", &Settings::RejSpots},
    {"AutoAlert", &Settings::AutoAlert},
    {"TalkOnTop", &Settings::TalkOnTop},
    {"AutoTalk", &Settings::AutoTalk},
    {"AutoStart", &Settings::AutoStart},
    {"AutoFilter", &Settings::AutoFilter},
    {"Get Missed", &Settings::GetMissedOnes},
    {"Show Spot Nrs", &Settings::ShowSpotNrs, Form::Plain, IfChanged},
    {"Spot Memory All", &Settings::SpotMemoryAll},
    {"Spot Memory Single", &Settings::SpotMemorySingle},
    {"Tnc Cluster", &Settings::TncCluster},
    {"Tnc Command", Column<TncStep>{&TncStep::Command}},
    {"Tnc Reply", Column<TncStep>{&TncStep::Reply}},
    {"Tnc TimeOut", Column<TncStep>{&TncStep::TimeOut}},
    {"Tnc", &Settings::TncMode},
    {"TncPort", &Settings::TncPort},
    {"TncBaud", &Settings::TncBaud},
    {"TncParity", &Settings::TncParity, Form::Words, IfOneOf, kParities},
    {"TncDataBits", &Settings::TncDataBits, Form::Words, IfOneOf, kDataBits},
    {"TncStopBits", &Settings::TncStopBits, Form::Words, IfOneOf, kStopBits},
    {"TncFlowControl", &Settings::TncFlowControl, Form::Words, IfOneOf, kFlowControls},
    {"TncKA", &Settings::TncKA},
    {"TncKAtime", &Settings::TncKAtime},
    {"TelnetKA", &Settings::TelnetKA},
    {"TelnetKAtime", &Settings::TelnetKAtime},
    {"AutoReconnect", &Settings::AutoReconnect},
    {"LocalNetwork", &Settings::LocalNetwork},
    {"NetworkPort", &Settings::NetworkPort},
    {"NetworkBaud", &Settings::NetworkBaud},
    {"SelectedNode", &Settings::NodeCall},
    {"SelectedNodesAddress", &Settings::NodeHost},
    {"NodesNumberedAdd", &Settings::NodeNumberedAddress},
    {"PrimaryPort", &Settings::NodePort},
    {"MolvaNumberedAdd", &Settings::MolvaNumberedAddress},
    {"TalkHide", &Settings::TalkHide},
    {"TalkHeight", &Settings::TalkHeight},
    {"Tnc Top", &Settings::TncTop},
    {"Tnc Left", &Settings::TncLeft},
    {"Tnc Height", &Settings::TncHeight},
    {"Tnc Width", &Settings::TncWidth},
    {"StartTab", &Settings::StartTab},
    {"ColourRaw", &Settings::ColourRaw},
    {"ColourRawText", &Settings::ColourRawText},
    {"ColourDx", &Settings::ColourDx},
    {"ColourWWV", &Settings::ColourWWV},
    {"ColourLoginMsg", &Settings::ColourLoginMsg},
    {"ColourWx", &Settings::ColourWx},
    {"ZKDX", &Settings::ZKDX},
    {"Web Page", Column<WebPage>{&WebPage::Page}},
    {"Web Address", Column<WebPage>{&WebPage::Address}},
    {"ColourMail", &Settings::ColourMail},
    {"ColourTalk", &Settings::ColourTalk},
    {"ColourAnn", &Settings::ColourAnn},
    {"ColourLocals", &Settings::ColourLocals},
    {"ColourBandPass", &Settings::ColourBandPass},
    {"ColourBandReject", &Settings::ColourBandReject},
    {"ColourSettings", &Settings::ColourSettings},
    {"ColourNodeConn", &Settings::ColourNodeConn},
    {"ColourNodeTrying", &Settings::ColourNodeTrying},
    {"ColourNodeDisc", &Settings::ColourNodeDisc},
    {"ColourTalkTalkee", &Settings::ColourTalkTalkee},
    {"ColourTalkMsg", &Settings::ColourTalkMsg},
    {"ColourTalkUsers", &Settings::ColourTalkUsers},
    {"ColourMissed1", &Settings::ColourMissed1},
    {"ColourMissed2", &Settings::ColourMissed2},
    {"SpotColor", ColourFamily{&Settings::SpotColor, 1, 1}},
    {"Filter By", &Settings::FilterBy},
    {"Sys1", &Settings::Sys1},
    {"Sys2", &Settings::Sys2},
    {"ArNode", &Settings::ArNode},
    {"Reject Invalid Country", &Settings::RejectInvalidCountry, Form::Words, IfChanged, kUpperTrue},
    {"ArCty", &Settings::ArCty},
    {"ArIP", &Settings::ArIP},
    {"ArBearing", &Settings::ArBearing},
    {"ArKm", &Settings::ArKm},
    {"ArDistance", &Settings::ArDistance},
    {"ArWAZ", &Settings::ArWAZ},
    {"ArITU", &Settings::ArITU},
    {"ArOrigCty", &Settings::ArOrigCty},
    {"ArOrigState", &Settings::ArOrigState},
    {"ArDate", &Settings::ArDate},
    {"ArComments", &Settings::ArComments},
    {"ShowCountryName", &Settings::ShowCountryName},
    {"dxsState", &Settings::dxsState},
    {"dxsOrigWAZ", &Settings::dxsOrigWAZ},
    {"dxsOrigITU", &Settings::dxsOrigITU},
    {"DxGrid", &Settings::DxGrid},
    {"SpotterGrid", &Settings::SpotterGrid},
    {"ClassicDisplay", &Settings::ClassicDisplay},
    {"ExtraWide", &Settings::ExtraWide},
    {"Sun", &Settings::Sun},
    {"SoundOn", &Settings::SoundOn},
    {"SoundTop", &Settings::SoundTop},
    {"SoundLeft", &Settings::SoundLeft},
    {"SoundHeight", &Settings::SoundHeight},
    {"SoundWidth", &Settings::SoundWidth},
    {"Echo", &Settings::Echo},
    {"DxARPCoff", &Settings::DxARPCoff, Form::Plain, IfChanged},
    {"Dont Show Cluster Update", &Settings::DontShowClusterUpdate, Form::Words, IfChanged,
     kMinusOne},
    {"Fonts", &Settings::Fonts},
    {"BlackFont", &Settings::BlackFont},
    {"GetNr", &Settings::GetNr},
    {"GetNrTnc", &Settings::GetNrTnc},
    {"Missed", &Settings::Missed},
    {"FixFilterErrors", &Settings::CorrectErrors},
    {"AlarmEmailDisabled", &Settings::AlarmEmailDisabled, Form::Boolean},
    {"AlarmEmail", &Settings::AlarmEmail},
    {"AlarmISP", &Settings::AlarmISP},
    {"ISPport", &Settings::ISPport},
    {"ISPpassword", &Settings::ISPpassword},
    {"IspEmail", &Settings::IspEmail},
    {"SSL", &Settings::SSL, Form::Boolean},
    {"DontShowEmailForm", &Settings::DontShowEmailForm},
    {"UpgradeMsg", &Settings::UpgradeMsg},
    {"Dx Font", &Settings::DxFont},
    {"Dx Size", &Settings::DxSize},
    {"Dx Bold", &Settings::DxBold},
    {"Dx Italic", &Settings::DxItalic},
    {"Character Width", &Settings::CharacterWidth},
    {"Character Height", &Settings::CharacterHeight},
    {"Spot Width", &Settings::SpotWidth},
    {"Dx Title Visible", &Settings::DxTitleVisible},
    {"Premium Service", &Settings::PremiumService, Form::Plain, IfChanged},
    {"Detailed Service", &Settings::DetailedService, Form::Plain, IfChanged},
    {"QrzLookUp", &Settings::QrzLookUp},
    {"QrzName", &Settings::QrzName},
    {"QrzPassword", &Settings::QrzPassword},
    {"DontLookupDxCall", &Settings::DontLookupDxCall, Form::Plain, IfChanged},
    {"Default Browser", &Settings::DefaultBrowser, Form::Plain, IfChanged},
    {"ShLoTW", &Settings::ShLoTW, Form::Plain, IfLotw},
    {"AutoLoTW", &Settings::AutoLoTW, Form::Boolean, IfLotw},
    {"LoTWChecking", &Settings::LoTWChecking, Form::Plain, IfChanged},
    {"SheQSL", &Settings::SheQSL, Form::Plain, IfEqsl},
    {"AutoeQSL", &Settings::AutoeQSL, Form::Boolean, IfEqsl},
    {"eQSLChecking", &Settings::eQSLChecking, Form::Plain, IfChanged},
    {"Reject Not LoTW/eQSL", &Settings::RejectNotLoTWeQSL, Form::Plain, IfChanged},
    {"InternetCheckVersion", &Settings::InternetCheckVersion},
    {"WebTop", &Settings::WebTop},
    {"WebLeft", &Settings::WebLeft},
    {"WebWidth", &Settings::WebWidth},
    {"WebHeight", &Settings::WebHeight},
    {"WebSetupTop", &Settings::WebSetupTop},
    {"WebSetupLeft", &Settings::WebSetupLeft},
    {"WebSetupWidth", &Settings::WebSetupWidth},
    {"WebSetupHeight", &Settings::WebSetupHeight},
    {"SunTop", &Settings::SunTop},
    {"SunHeight", &Settings::SunHeight},
    {"SunLeft", &Settings::SunLeft},
    {"SunWidth", &Settings::SunWidth},
    {"LogDxSpots", &Settings::LogDxSpots},
    {"ReloadHours", &Settings::ReloadHours},
    {"KeepSpotsDays", &Settings::KeepSpotsDays},
    {"DeleteDxLogs", &Settings::DeleteDxLogs},
    {"LoadLogFileOnStartup", &Settings::LoadLogFileOnStartup},
    {"Tab Correction", &Settings::TabCorrection},
    {"DownloaderOk", &Settings::DownloaderOk, Form::Plain, IfChanged},
    {"DownloaderVisible", &Settings::DownloaderVisible, Form::Plain, IfChanged},
    {"ProgramStartUps", &Settings::ProgramStartUps, Form::Plain, IfChanged},
    {"ProgramStart", Column<StartedProgram>{&StartedProgram::Command}},
    {"VQLog", &Settings::VQLog, Form::Plain, IfChanged},
    {"Bob=Dx", &Settings::BobDx, Form::Plain, IfChanged},
    {"htmlFile", &Settings::HtmlFile, Form::Plain, IfChanged},
    {"GridFile", &Settings::GridFile, Form::Plain, IfChanged},
    {"K3 Port", &Settings::K3Port, Form::Plain, IfChanged},
    {"K3 Read Spot Freq", &Settings::K3ReadSpotFreq, Form::Words, IfChanged, kOne},
    {"Show Skimmer Dupes", &Settings::ShowSkimmerDupes, Form::Words, IfChanged, kTrue},
    {"Ask Settings", &Settings::AskSettings, Form::Plain, IfChanged},
    {"Theme", &Settings::Theme, Form::Words, IfOneOf, kThemes},
    {"Raw Size", &Settings::RawSize, Form::Plain, IfChanged},
    {"Login Size", &Settings::LoginSize, Form::Plain, IfChanged},
    {"Reject Counties", &Settings::RejectCounties, Form::Plain, IfChanged},
    {"Allow Skimmer Dupes", &Settings::AllowSkimmerDupes, Form::Plain, IfChanged},
    {"Show Own Skimmer Spots", &Settings::ShowOwnSkimmerSpots, Form::Plain, IfChanged},
    {"Freq", FrequencyFamily{&Settings::Freq, 0, 2}},
    {"WwvWeb", &Ignore, Form::Plain, Never},
    {"DxSourceToNetwork", &KeepFromLog, Form::Plain, Never},
    {"PrimaryNode", &Settings::NodeCall, Form::Plain, Never},
    {"PrimaryAddress", &Settings::NodeHost, Form::Plain, Never},
    {"AlarmEmailOn", &Settings::AlarmEmailOn, Form::Plain, Never},
    {"LotwYN", &ShowBothMarks, Form::Plain, Never},
});

// The places of the rows, sorted by their keys.
constexpr auto kByKey = [] {
  std::array<std::uint16_t, kRows.size()> places{};
  std::iota(places.begin(), places.end(), std::uint16_t{0});
  std::sort(places.begin(), places.end(),
            [](std::uint16_t a, std::uint16_t b) { return kRows[a].key < kRows[b].key; });
  return places;
}();

constexpr bool NoKeyTwice() {
  return std::adjacent_find(kByKey.begin(), kByKey.end(), [](std::uint16_t a, std::uint16_t b) {
           return kRows[a].key == kRows[b].key;
         }) == kByKey.end();
}
static_assert(NoKeyTwice());

}  // namespace

std::span<const SettingRow> SettingRows() { return kRows; }

const SettingRow* FindSettingRow(std::string_view key) {
  const auto place = std::lower_bound(
      kByKey.begin(), kByKey.end(), key,
      [](std::uint16_t row, std::string_view wanted) { return kRows[row].key < wanted; });
  if (place == kByKey.end() || kRows[*place].key != key) return nullptr;
  return &kRows[*place];
}

}  // namespace core
