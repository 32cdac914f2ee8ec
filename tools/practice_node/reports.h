#pragma once

#include <string_view>

#include "practice_node/caller.h"

namespace practice_node {

// The longer answers of a node; each is the answer of a command.

// DXSpider and Zelva Cluster: the user's data and switches, labels aligned to the right.
void ReportUser(Caller& caller, std::string_view argument);
// AR-Cluster, DxNet and WinCluster: the switches, one a line.
void ReportSwitches(Caller& caller, std::string_view argument);
// CLX: the switches in one row of a table.
void ReportSwitchTable(Caller& caller, std::string_view argument);
// All: the personal data of the station named, or of the caller.
void ReportStation(Caller& caller, std::string_view argument);

}  // namespace practice_node
