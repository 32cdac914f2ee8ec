#include "session/port_choice.h"

#include <gmock/gmock.h>

#include "platform/sim/sim_files.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class PortChoiceTest : public testing::Test {
 protected:
  // The entry that is chosen, in its words.
  static const std::string& Chosen(const core::Choice& choice) {
    return choice.Options.Get()[static_cast<std::size_t>(choice.Selected.Get())];
  }

  platform::sim::SimFiles files;
  session::PortNames names{files, "/ports.cfg"};
  session::PortChoice choice{names};
  const session::PortChoice::Devices present = {{"/dev/ttyUSB0", "FT232R USB UART"},
                                                {"/dev/ttyUSB3", ""}};
};

TEST_F(PortChoiceTest, PortsAre1To32WithTheirDevicesBehindNone) {
  choice.Load(17, 9600, present);
  ASSERT_THAT(choice.optCommPort.Options.Get(), SizeIs(33));
  EXPECT_EQ(choice.optCommPort.Options.Get().front(), "none");
  EXPECT_EQ(choice.optCommPort.Options.Get().back(), "32:  /dev/ttyUSB15");
  EXPECT_EQ(choice.Port(), 17);
  EXPECT_EQ(choice.Device(), "/dev/ttyUSB0");
}

TEST_F(PortChoiceTest, DevicesGoByTheirProductsToo) {
  choice.Load(17, 9600, present);
  EXPECT_THAT(choice.cboDevice.Options.Get(),
              ElementsAre("/dev/ttyUSB0  FT232R USB UART", "/dev/ttyUSB3"));
  EXPECT_EQ(choice.cboDevice.Selected.Get(), 0);
}

TEST_F(PortChoiceTest, DeviceThatIsNotFoundStandsFirstAndSaysSo) {
  choice.Load(1, 9600, present);
  EXPECT_EQ(Chosen(choice.cboDevice), "/dev/ttyS0  (not among the devices found)");
  EXPECT_THAT(choice.cboDevice.Options.Get(), SizeIs(3));
  EXPECT_EQ(choice.Device(), "/dev/ttyS0");
}

TEST_F(PortChoiceTest, WithoutAPortThereIsNoDeviceToChoose) {
  for (const int port : {0, -1, 33}) {
    choice.Load(port, 9600, present);
    EXPECT_EQ(choice.Port(), 0);
    EXPECT_EQ(choice.Device(), "");
    EXPECT_THAT(choice.cboDevice.Options.Get(), IsEmpty());
    EXPECT_FALSE(choice.cboDevice.Enabled.Get());
  }
}

TEST_F(PortChoiceTest, ChoosingAPortShowsItsDevice) {
  choice.Load(0, 9600, present);
  choice.optCommPort.UserSelects(20);
  EXPECT_EQ(choice.Device(), "/dev/ttyUSB3");
  EXPECT_EQ(Chosen(choice.cboDevice), "/dev/ttyUSB3");
  EXPECT_TRUE(choice.cboDevice.Enabled.Get());
}

TEST_F(PortChoiceTest, ChosenDeviceStaysWhenThereAreOthers) {
  choice.Load(17, 9600, present);
  choice.cboDevice.UserSelects(1);
  EXPECT_EQ(choice.Device(), "/dev/ttyUSB3");
  choice.Look({{"/dev/ttyACM0", "TNC-X"}});
  EXPECT_EQ(choice.Device(), "/dev/ttyUSB3");
  EXPECT_THAT(choice.cboDevice.Options.Get(),
              ElementsAre("/dev/ttyUSB3  (not among the devices found)", "/dev/ttyACM0  TNC-X"));
}

TEST_F(PortChoiceTest, ProductOfAnyLengthAndBytesIsOneShortLine) {
  choice.Load(17, 9600, {{"/dev/ttyUSB0", "a\nb\x1b" + std::string(1000, 'x')}});
  EXPECT_EQ(Chosen(choice.cboDevice), "/dev/ttyUSB0  a b " + std::string(56, 'x'));
}

TEST_F(PortChoiceTest, SpeedIsThatOfTheSettingsAnd9600WithoutOne) {
  choice.Load(17, 1200, present);
  EXPECT_EQ(Chosen(choice.cboBaud), "1200");
  EXPECT_EQ(choice.Baud(), 1200);
  for (const int none : {0, -5}) {
    choice.Load(17, none, present);
    EXPECT_EQ(choice.Baud(), 9600);
  }
}

TEST_F(PortChoiceTest, UnusualSpeedStaysToBeChosen) {
  choice.Load(17, 7200, present);
  EXPECT_EQ(choice.Baud(), 7200);
  EXPECT_EQ(Chosen(choice.cboBaud), "7200");
}

}  // namespace
