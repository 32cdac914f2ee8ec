#pragma once

#include <array>
#include <string_view>

namespace spots {

// The states by call area, as the filter by states shows them: first the labels of the areas, two
// characters each, then for each label the codes of its states, two characters each.
inline constexpr std::array<std::string_view, 12> AreaStates = {
    "W1W2W3W4W5W6W7W8W9W0VE",
    "CTMAMENHRIVT",
    "NJNY",
    "DCDEMDPA",
    "ALGAKYNCFLSCTNVA",
    "ARLAMSNMOKTX",
    "CA",
    "AZIDMTNVORWAWYUT",
    "MIOHWV",
    "INILWI",
    "COIAKSMNMONENDSD",
    "NBNSPENLQCONMBSKABBCNTNUYT",
};

}  // namespace spots
