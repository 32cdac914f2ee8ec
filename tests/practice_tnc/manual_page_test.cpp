#include "packaging/manual_page.h"
#include "practice_tnc/options.h"

namespace {

TEST(TncManualPage, NamesEveryOptionOfTheHelp) {
  packaging::ExpectEveryOption(packaging::ManualPage(MOLVA_MANUAL_PAGE), practice_tnc::HelpText(),
                               13);
}

}  // namespace
