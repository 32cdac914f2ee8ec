#include "practice_node/dialect.h"

#include <algorithm>

namespace practice_node {
namespace {

constexpr std::array<Hint, 3> kArHints = {{
    {Field::Name, "Use SET/NAME <your name> to tell the users your name."},
    {Field::Location, "Please set your latitude/longitude information with SET/LOCATION."},
    {Field::Email, "Please enter your email address as SET/EMAIL n0call@example.org"},
}};

constexpr std::array<Hint, 4> kSpiderHints = {{
    {Field::Name, "Please enter your name, set/name <your name>"},
    {Field::Qth, "Please enter your QTH, set/qth <your qth>"},
    {Field::Location, "Please enter your location with set/location or set/qra"},
    {Field::HomeNode, "Please enter your Home Node, set/homenode <your home DX Cluster>"},
}};

constexpr std::array<Hint, 2> kClxHints = {{
    {Field::Name, "Use SET/NAME <your name>, please."},
    {Field::Location, "please enter ur location using SET/LOCATION and SET/QTH"},
}};

constexpr std::array<Hint, 2> kPlainHints = {{
    {Field::Name, "Use SET/NAME <your name>, please."},
    {Field::Location, "Please set your latitude/longitude information with SET/LOCATION."},
}};

constexpr std::array<FieldWords, kFields> kArFields = {{
    {"Name:          ", "Name set to "},
    {"Location:      ", "QTH set to "},
    {"Lat/Lon:    ", "Lat/Lon set to "},
    {"", "Grid set to "},
    {"Home Node:     ", "Home node set to "},
    {"Email:         ", "Email set to "},
}};

constexpr std::array<FieldWords, kFields> kSpiderFields = {{
    {"Name         : ", "Your name is now "},
    {"QTH          : ", "Your QTH is now "},
    {"Location     : ", "Your location is now "},
    {"", "Your QRA Locator is now "},
    {"Home Node    : ", "Your Home Node is now "},
    {"", "Your email address is now "},
}};

constexpr std::array<FieldWords, kFields> kClxFields = {{
    {"Name            : ", "Name set to "},
    {"QTH             : ", "QTH set to "},
    {"Geogr. Location : ", "Lat/Lon set to "},
    {"", "Grid set to "},
    {"Home Node       : ", "Home node set to "},
    {"", "Email set to "},
}};

constexpr std::array<FieldWords, kFields> kDxNetFields = {{
    {"Name          : ", "Name set to "},
    {"QTH           : ", "QTH set to "},
    {"Locator       : ", "Lat/Lon set to "},
    {"", "Grid set to "},
    {"Home node     : ", "Home node set to "},
    {"", "Email set to "},
}};

constexpr std::string_view kFiltersOff =
    "DX Spot Bandmode Filter set Off\n"
    "DX Spot Orig State Filter set Off\n"
    "DX Spot Orig Cty Filter set to Off\n"
    "DX Spot CTY Filter set to Off\n"
    "Announcement Spot Orig State Filter set Off\n"
    "WX Spot Orig State Filter set Off";

constexpr std::array<Dialect, kKinds> kDialects = {{
    {
        .kind = Kind::ArCluster,
        .option = "ar",
        .software = "AR-Cluster",
        .greeting = "Welcome to %M, a practice node",
        .loginPrompt = "Please enter your call: ",
        .badCall = "%W is not a valid callsign",
        .badPassword = "Wrong password",
        .welcome = "\nHello %H (%C)\n"
                   "Welcome to the %M AR-Cluster node, version 6\n"
                   "Users here: %N  %U",
        .hints = kArHints,
        .prompt = "%C de %M %D %T   arc >",
        .unknownCommand = "%W command error",
        .farewell = "73 %C de %M",
        .filters = kFiltersOff,
        .replaced = "",
        .stationLabel = "Station:       ",
        .fields = kArFields,
    },
    {
        .kind = Kind::Spider,
        .option = "spider",
        .software = "DXSpider",
        .greeting = "",
        .loginPrompt = "login: ",
        .badCall = "Sorry %W is an invalid callsign",
        .badPassword = "Sorry",
        .welcome = "Hello %I, this is %M, a practice node\n"
                   "running DXSpider %V\n"
                   "Cluster: 1 nodes, %N local / %N total users  Max users 20  %U",
        .hints = kSpiderHints,
        .prompt = "%C de %M %D %T dxspider >",
        .unknownCommand = "Invalid command",
        .farewell = "73 de %M",
        .filters = "%C: no filters set",
        .nothingFound = "sh/dx: '%W' not found",
        .replaced = "%C has logged in once more, this instance is disconnected",
        .stationLabel = "User         : ",
        .fields = kSpiderFields,
        .timeSlots = true,
        .dashInRanges = false,
        .bells = true,
    },
    {
        .kind = Kind::Clx,
        .option = "clx",
        .software = "CLX",
        .greeting = "",
        .loginPrompt = "login: ",
        .badCall = "%W is not a valid callsign",
        .badPassword = "Login incorrect",
        .welcome = "\nHello %I, you are at %M running CLX 5.20\n"
                   "%N users, %U",
        .hints = kClxHints,
        .prompt = "%C de %M %D %T clx >",
        .unknownCommand = "Unknown command: %W",
        .farewell = "73 and bye, %C",
        .filters = kFiltersOff,
        .replaced = "",
        .stationLabel = "Callsign        : ",
        .fields = kClxFields,
        .lowerCase = true,
    },
    {
        .kind = Kind::DxNet,
        .option = "dxnet",
        .software = "DxNet",
        .greeting = "Bienvenue / Welcome",
        .loginPrompt = "Your callsign:",
        .badCall = "%W is not a valid callsign",
        .badPassword = "Password refused",
        .welcome = "\nHello %I, the software of %M is DxNet.\n"
                   "%N users",
        .hints = kPlainHints,
        .prompt = "%C de %M %T DxNet>",
        .unknownCommand = "%W ? Unknown command, type HELP",
        .farewell = "73 %C",
        .filters = kFiltersOff,
        .replaced = "",
        .stationLabel = "User          : ",
        .fields = kDxNetFields,
    },
    {
        .kind = Kind::WinCluster,
        .option = "wincluster",
        .software = "WinCluster",
        .greeting = "%M on WinCluster",
        .loginPrompt = "Callsign : ",
        .badCall = "%W is not a valid callsign",
        .badPassword = "Invalid password",
        .welcome = "\nWelcome %I, this is WinCluster at %M\n"
                   "%N users connected",
        .hints = kPlainHints,
        .prompt = "%C de %M %D %T WinCluster>",
        .unknownCommand = "Invalid command: %W",
        .farewell = "73 %C de %M",
        .filters = kFiltersOff,
        .replaced = "",
        .stationLabel = "User          : ",
        .fields = kDxNetFields,
        .zoneInSpots = true,
        .listCall = 10,
    },
    {
        .kind = Kind::Zelva,
        .option = "zelva",
        .software = "Zelva Cluster",
        .greeting = "",
        .loginPrompt = "Please enter your call: ",
        .badCall = "%W is not a valid callsign",
        .badPassword = "Wrong password",
        .welcome = "\nHello %I\n"
                   "Welcome to %M, a Zelva Cluster\n"
                   "%N users  %U",
        .hints = kPlainHints,
        .prompt = "%C de %M %D %T   ZLV >",
        .unknownCommand = "%W is not a command here",
        .farewell = "73 %C de %M",
        .filters = kFiltersOff,
        .replaced = "%C has logged in once more, this instance is disconnected",
        .stationLabel = "User         : ",
        .fields = kSpiderFields,
        .shape = Shape::Zv11,
        .oldestFirst = true,
    },
    {
        .kind = Kind::Skimmer,
        .option = "skimmer",
        .software = "CW Skimmer",
        .greeting = "Welcome to the Skimmer Server telnet port of %M",
        .loginPrompt = "Please enter your callsign: ",
        .badCall = "%W is not a valid callsign",
        .badPassword = "Wrong password",
        .welcome = "\nHello %C, here is CW Skimmer at %M",
        .hints = {},
        .prompt = "%C de %M %D %T CwSkimmer >",
        .unknownCommand = "Command not supported: %W",
        .farewell = "73",
        .filters = "No filters",
        .nothingFound = "",
        .replaced = "",
        .stationLabel = "",
        .fields = {},
    },
}};

}  // namespace

const Dialect& DialectOf(Kind kind) { return kDialects[static_cast<std::size_t>(kind)]; }

std::span<const Dialect, kKinds> Dialects() { return kDialects; }

std::string_view LabelOf(const ToggleWords& words, Kind kind) {
  if (kind == Kind::Skimmer) return {};
  if (kind == Kind::Spider) return words.spiderLabel;
  return kind == Kind::Zelva ? words.zelvaLabel : words.title;
}

std::optional<Kind> KindNamed(std::string_view option) {
  const auto* found = std::find_if(kDialects.begin(), kDialects.end(),
                                   [&](const Dialect& each) { return each.option == option; });
  if (found == kDialects.end()) return std::nullopt;
  return found->kind;
}

}  // namespace practice_node
