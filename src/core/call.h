#pragma once

#include <string>
#include <string_view>

namespace core {

// The bare call, in upper case, of a call as it stands in text: "(N0CALL-3)", "F/N0CALL/P",
// "+n0call-#" and "N0CALL*" are all "N0CALL". Empty if nothing is left. Doesn't check that it is a
// call.
std::string Nossid(std::string_view call);

// The part of a call before its "-": "F/K1TST-2" is "F/K1TST".
std::string BaseCall(std::string_view myCall);

}  // namespace core
