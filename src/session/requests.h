#pragma once

namespace session {

// What the login and the clock set going in parts of the program above the session.
class LoginRequests {
 public:
  virtual ~LoginRequests() = default;
  virtual void GetEm() = 0;             // asks for the spots missed without a link
  virtual void GetLatestVersion() = 0;  // looks for a newer program and newer data files
  virtual void AskSunTimes() = 0;       // asks the node for sun times at the operator's place
};

class ClockWork {
 public:
  virtual ~ClockWork() = default;
  virtual void HourlyWork() = 0;          // a new hour has begun
  virtual void Sun() = 0;                 // a minute has passed: the countdown to the sun's times
  virtual void DayChange() = 0;           // a new UTC day has begun
  virtual void EnableLoggingSpots() = 0;  // the spot log goes on in the file of the new day
};

}  // namespace session
