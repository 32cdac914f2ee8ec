#include "ui/commands.h"

#include <QtGlobal>
#include <array>

namespace ui {
namespace {

using enum Menu;

// A command of a menu, of a key alone, and of both.
constexpr Command Entry(Menu menu, const char* keys, Act act, const char* entry, const char* says,
                        int number = 0) {
  return {menu, keys, act, number, entry, says};
}
constexpr Command KeyAlone(const char* keys, Act act, int number, const char* says) {
  return {None, keys, act, number, "", says};
}
constexpr Command Tab(const char* keys, int tab, const char* entry, const char* says) {
  return {View, keys, Act::ChooseTab, tab, entry, says};
}

constexpr std::array kCommands = {
    Entry(Connection, "", Act::Connect, QT_TR_NOOP("&Connect"), QT_TR_NOOP("Connect")),
    Entry(Connection, "", Act::Disconnect, QT_TR_NOOP("&Disconnect"), QT_TR_NOOP("Disconnect")),
    Entry(Connection, "", Act::Nodes, QT_TR_NOOP("-&Nodes…"),
          QT_TR_NOOP("Which node to connect to")),
    Entry(Connection, "", Act::TelnetClus, QT_TR_NOOP("-Cluster by t&elnet…"),
          QT_TR_NOOP("Over the network; which node is asked next")),
    Entry(Connection, "", Act::RadioClus, QT_TR_NOOP("Cluster by &radio"),
          QT_TR_NOOP("Over a packet TNC and its script")),
    Entry(Connection, "", Act::LinkSettings, QT_TR_NOOP("Telnet or &TNC, and ports…"),
          QT_TR_NOOP("How the node is reached: telnet or TNC, and the serial ports")),
    Entry(Connection, "", Act::TncScript, QT_TR_NOOP("&Script for the TNC…"),
          QT_TR_NOOP("The way over a TNC to the cluster")),
    Entry(Connection, "Ctrl+Q", Act::Quit, QT_TR_NOOP("-&Quit"), QT_TR_NOOP("Quit")),

    Entry(Configuration, "", Act::UserInfo, QT_TR_NOOP("&User information…"),
          QT_TR_NOOP("Your call, name, place and password")),
    Entry(Configuration, "", Act::Columns, QT_TR_NOOP("-&Columns…"),
          QT_TR_NOOP("Columns of the spots")),
    Entry(Configuration, "", Act::SpotLog, QT_TR_NOOP("&Spot log…"),
          QT_TR_NOOP("The log of spots")),
    Entry(Configuration, "", Act::Rejects, QT_TR_NOOP("&Rejects…"),
          QT_TR_NOOP("What is not to be shown")),
    Entry(Configuration, "", Act::Corrections, QT_TR_NOOP("C&orrections…"),
          QT_TR_NOOP("Corrections of spots")),
    Entry(Configuration, "", Act::CorrectErrors,
          QT_TR_NOOP("Correct &errors of the node's filters"),
          QT_TR_NOOP("Holds spots back that the node's country filter let through")),
    Entry(Configuration, "", Act::Colours, QT_TR_NOOP("-Colours and &fonts…"),
          QT_TR_NOOP("Colours of the views, and the font of the spots")),
    Entry(Configuration, "", Act::ChooseTheme, QT_TR_NOOP("Theme of the s&ystem"),
          QT_TR_NOOP("Light or dark as the system is"), 0),
    Entry(Configuration, "", Act::ChooseTheme, QT_TR_NOOP("&Light theme"),
          QT_TR_NOOP("Light theme"), 1),
    Entry(Configuration, "", Act::ChooseTheme, QT_TR_NOOP("&Dark theme"), QT_TR_NOOP("Dark theme"),
          2),

    Tab("Alt+1", 0, QT_TR_NOOP("&Settings"), QT_TR_NOOP("Settings")),
    Tab("Alt+2", 1, QT_TR_NOOP("&Country"), QT_TR_NOOP("Country filter")),
    Tab("Alt+3", 2, QT_TR_NOOP("S&tate"), QT_TR_NOOP("State filter")),
    Tab("Alt+4", 3, QT_TR_NOOP("&Bands"), QT_TR_NOOP("Band filter")),
    Tab("Alt+5", 4, QT_TR_NOOP("&Users"), QT_TR_NOOP("Users")),
    Tab("Alt+6", 5, QT_TR_NOOP("&DX"), QT_TR_NOOP("DX spots")),
    Tab("Alt+7", 6, QT_TR_NOOP("&WWV"), QT_TR_NOOP("WWV")),
    Tab("Alt+8", 7, QT_TR_NOOP("&Login Msg"), QT_TR_NOOP("Login message")),
    Tab("Alt+9", 8, QT_TR_NOOP("&Ann"), QT_TR_NOOP("Announcements")),
    Tab("Alt+0", 9, QT_TR_NOOP("W&x Plus"), QT_TR_NOOP("Weather")),
    Tab("Alt+-", 10, QT_TR_NOOP("&Mail"), QT_TR_NOOP("Mail")),
    Entry(View, "F9", Act::RawView, QT_TR_NOOP("-&Raw view alone"),
          QT_TR_NOOP("The raw view alone, or below the page")),
    Entry(View, "Ctrl+F", Act::Find, QT_TR_NOOP("&Find…"), QT_TR_NOOP("Find in the view")),
    Entry(View, "Ctrl++; Ctrl+=", Act::LargerText, QT_TR_NOOP("Lar&ger text"),
          QT_TR_NOOP("Larger text in the view")),
    Entry(View, "Ctrl+-", Act::SmallerText, QT_TR_NOOP("Smaller t&ext"),
          QT_TR_NOOP("Smaller text in the view")),

    Entry(Help, "F1", Act::Manual, QT_TR_NOOP("&Manual"), QT_TR_NOOP("The manual at this page")),
    Entry(Help, "Ctrl+?", Act::ListKeys, QT_TR_NOOP("&Keys"), QT_TR_NOOP("All keys")),
    Entry(Help, "", Act::About, QT_TR_NOOP("-&About Molva Desk"), QT_TR_NOOP("Version")),

    KeyAlone("Ctrl+0", Act::ChooseBand, 0, QT_TR_NOOP("Spots of all bands")),
    KeyAlone("Ctrl+1", Act::ChooseBand, 1, QT_TR_NOOP("Spots of 160 m")),
    KeyAlone("Ctrl+2", Act::ChooseBand, 2, QT_TR_NOOP("Spots of 80 m")),
    KeyAlone("Ctrl+3", Act::ChooseBand, 3, QT_TR_NOOP("Spots of 60 m")),
    KeyAlone("Ctrl+4", Act::ChooseBand, 4, QT_TR_NOOP("Spots of 40 m")),
    KeyAlone("Ctrl+5", Act::ChooseBand, 5, QT_TR_NOOP("Spots of 30 m")),
    KeyAlone("Ctrl+6", Act::ChooseBand, 6, QT_TR_NOOP("Spots of 20 m")),
    KeyAlone("Ctrl+7", Act::ChooseBand, 7, QT_TR_NOOP("Spots of 17 m")),
    KeyAlone("Ctrl+8", Act::ChooseBand, 8, QT_TR_NOOP("Spots of 15 m")),
    KeyAlone("Ctrl+9", Act::ChooseBand, 9, QT_TR_NOOP("Spots of 12 m")),
    KeyAlone("F5", Act::ConnectOrDisconnect, 0, QT_TR_NOOP("Connect or disconnect")),
    KeyAlone("F6", Act::GoRound, 0,
             QT_TR_NOOP("Go round link bar, tabs, page, raw view, command line")),
    KeyAlone("Ctrl+L", Act::CommandLine, 0, QT_TR_NOOP("Command line")),
    KeyAlone("Esc", Act::ReturnToTable, 0, QT_TR_NOOP("Back to the spots")),
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

}  // namespace ui
