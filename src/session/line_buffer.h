#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace session {

// Puts received bytes together to lines. A line ends at CR, or where a prompt that waits for an
// answer is complete.
class LineBuffer {
 public:
  enum class Event {
    None,            // the line goes on
    Nul,             // a NUL came: a sign of life, not part of the line
    Line,            // Text is a whole line
    PasswordPrompt,  // the same, and the node waits for the password
  };

  // Which prompts end a line: those of a telnet login, the TNC's own, or none.
  enum class Prompts { None, Login, Tnc };

  Event Put(std::uint8_t byte, Prompts prompts);

  // Hands the line over, in exchange for the memory of `into`, and begins a new one. Blanks that
  // end a whole line are gone.
  void Take(std::string& into);

  // Begins a new line.
  void Clear();

 private:
  Event AtPrompt(Prompts prompts) const;

  std::string text_;
  std::size_t leadingBlanks_ = 0;  // of text_
};

// Empties a text that has grown far beyond any usual line, and gives its memory back.
void GiveBackGiant(std::string& text);

// Replaces each "%xx" by the byte it names, from the left, a "%" that comes out of it included.
// Ends at the first one that names a control character or is not hexadecimal; the count of
// replacements.
int RepairEscapes(std::string& line);

}  // namespace session
