#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

// The files of nodes: one a line, its fields parted by commas. Text in, nodes out, and back.
namespace session {

// The two kinds of list.
struct NodeListFormat {
  std::string_view file;  // in the program's folder
  std::string_view path;  // where a server of such lists has it
  bool info;              // a fourth field, of free text
};
inline constexpr NodeListFormat kNewNodeFormat = {"dxclusters.dat", "/telnet/dxclusters.php", true};
inline constexpr NodeListFormat kOldNodeFormat = {"cluster.dat", "/cluster.dat", false};

struct NodeRow {
  std::string call;
  std::string host;
  std::string port;
  std::string info;

  bool operator==(const NodeRow&) const = default;
};

// The built-in "MOLVA-1" serves for these: no list may hold them.
inline constexpr std::array<std::string_view, 3> kBlockedNodes = {"MOLVA", "MOLVA-2", "MOLVA-3"};
bool IsBlockedNode(std::string_view call);

// A TCP port: digits alone, from 1 to 65535.
bool IsNodePort(std::string_view text);

// The text as it can stand in a field: a comma or a control character becomes a blank, double
// quotes and the blanks around it go.
std::string NodeField(std::string_view text);

struct NodeList {
  struct Row {
    std::string_view call;
    std::string_view host;
    std::string_view port;
    std::string_view info;
  };
  std::string_view version;  // empty: it names none
  std::vector<Row> rows;     // in their order; a call may come more than once
};

// Reads a text that is without double quotes, into which the result points. Lines without a call, a
// host and a port are skipped, and so are blocked calls, and in the old format lines of more or
// fewer than three fields. Blanks around a field go.
NodeList ParseNodeList(std::string_view text, const NodeListFormat& format);

// What both kinds of list are read without.
std::string WithoutQuotes(std::string_view text);

// Adds the line by which a list names its version: three fields in the old format.
void AppendNodeVersion(std::string& text, std::string_view version, const NodeListFormat& format);

// Adds the line of one node.
void AppendNodeLine(std::string& text, const NodeRow& row, const NodeListFormat& format);

}  // namespace session
