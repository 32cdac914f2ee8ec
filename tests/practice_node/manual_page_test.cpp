#include "packaging/manual_page.h"
#include "practice_node/options.h"

namespace {

TEST(ManualPage, NamesEveryOptionOfTheHelp) {
  packaging::ExpectEveryOption(packaging::ManualPage(MOLVA_MANUAL_PAGE), practice_node::HelpText(),
                               16);
}

}  // namespace
