#pragma once

#include <string>
#include <vector>

#include "airfuel/port_time_area.h"
#include "core/numbers.h"

namespace veldox {

/// One side of the engine as its reports and graphs have it.
struct TimeAreaSide {
  TimeAreaPort port;
  ValveGear gear;
  ValveCurve curve;
  double valveOpen = 0;       ///< where the lift file begins, degrees before its dead centre
  double advance = 0;         ///< degrees that the lobe stands early
  double step = 0;            ///< crank degrees between the records of the lift file
  std::vector<double> lifts;  ///< that the timing of the valve is told at
  std::string tableCam;       ///< that filled the lift table; empty for one that was entered
};

/// The crank turns twice for each turn of the cam.
inline constexpr double kCrankDegreesPerCamDegree = 2;

/// What is told of the lift file.
struct TimeAreaCam {
  std::string title;   ///< name of the file; empty for a lift table
  std::string header;  ///< its heading, which may be several lines
  bool isCamDoctor = false;
  bool inCamDegrees = false;  ///< the steps of the file are degrees of the cam
};

/// What the reports are made of. Valves, areas and the user's coefficient are above 0.
struct TimeAreaValues {
  TimeAreaEngine engine;
  double userCoefficient = 0;
  TimeAreaSide intake;
  TimeAreaSide exhaust;
  TimeAreaCam cam;
  double valveClearance = 0;   ///< at top dead centre with closed valves, inches; 0 is not told
  bool inMillimetres = false;  ///< lifts are told in millimetres
};

/// Time area, piston demand and velocities of both ports by the lifts of the lift table.
std::string TimeAreaReport(const TimeAreaValues& values, DecimalMark mark);
/// The same record by record of the lift file, with the motion of the valves and their flow.
std::string TimeAreaReport2(const TimeAreaValues& values, DecimalMark mark);
/// When the valves open and close, alone.
std::string CamSpecReport(const TimeAreaValues& values, DecimalMark mark);

}  // namespace veldox
