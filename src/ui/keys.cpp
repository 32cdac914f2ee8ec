#include "ui/keys.h"

#include <QtGlobal>
#include <array>

namespace ui {
namespace {

constexpr std::array kKeys = {
    Key{"Alt+1", Act::ChooseTab, 0, QT_TR_NOOP("Settings")},
    Key{"Alt+2", Act::ChooseTab, 1, QT_TR_NOOP("Country filter")},
    Key{"Alt+3", Act::ChooseTab, 2, QT_TR_NOOP("State filter")},
    Key{"Alt+4", Act::ChooseTab, 3, QT_TR_NOOP("Band filter")},
    Key{"Alt+5", Act::ChooseTab, 4, QT_TR_NOOP("Users")},
    Key{"Alt+6", Act::ChooseTab, 5, QT_TR_NOOP("DX spots")},
    Key{"Alt+7", Act::ChooseTab, 6, QT_TR_NOOP("WWV")},
    Key{"Alt+8", Act::ChooseTab, 7, QT_TR_NOOP("Login message")},
    Key{"Alt+9", Act::ChooseTab, 8, QT_TR_NOOP("Announcements")},
    Key{"Alt+0", Act::ChooseTab, 9, QT_TR_NOOP("Weather")},
    Key{"Alt+-", Act::ChooseTab, 10, QT_TR_NOOP("Mail")},
    Key{"Ctrl+0", Act::ChooseBand, 0, QT_TR_NOOP("Spots of all bands")},
    Key{"Ctrl+1", Act::ChooseBand, 1, QT_TR_NOOP("Spots of 160 m")},
    Key{"Ctrl+2", Act::ChooseBand, 2, QT_TR_NOOP("Spots of 80 m")},
    Key{"Ctrl+3", Act::ChooseBand, 3, QT_TR_NOOP("Spots of 60 m")},
    Key{"Ctrl+4", Act::ChooseBand, 4, QT_TR_NOOP("Spots of 40 m")},
    Key{"Ctrl+5", Act::ChooseBand, 5, QT_TR_NOOP("Spots of 30 m")},
    Key{"Ctrl+6", Act::ChooseBand, 6, QT_TR_NOOP("Spots of 20 m")},
    Key{"Ctrl+7", Act::ChooseBand, 7, QT_TR_NOOP("Spots of 17 m")},
    Key{"Ctrl+8", Act::ChooseBand, 8, QT_TR_NOOP("Spots of 15 m")},
    Key{"Ctrl+9", Act::ChooseBand, 9, QT_TR_NOOP("Spots of 12 m")},
    Key{"F5", Act::ConnectOrDisconnect, 0, QT_TR_NOOP("Connect or disconnect")},
    Key{"F6", Act::GoRound, 0, QT_TR_NOOP("Go round link bar, tabs, page, raw view, command line")},
    Key{"Ctrl+L", Act::CommandLine, 0, QT_TR_NOOP("Command line")},
    Key{"Esc", Act::ReturnToTable, 0, QT_TR_NOOP("Back to the spots")},
    Key{"Ctrl+F", Act::Find, 0, QT_TR_NOOP("Find in the view")},
    Key{"Ctrl++; Ctrl+=", Act::LargerText, 0, QT_TR_NOOP("Larger text in the view")},
    Key{"Ctrl+-", Act::SmallerText, 0, QT_TR_NOOP("Smaller text in the view")},
    Key{"Ctrl+?; F1", Act::ListKeys, 0, QT_TR_NOOP("All keys")},
};

}  // namespace

std::span<const Key> Keys() { return kKeys; }

}  // namespace ui
