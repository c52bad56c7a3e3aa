#include "core/parameter_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "core/line_reader.h"
#include "core/notes.h"
#include "core/screen.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// A parameter file with its block and nothing else of the program.
struct Program {
  Program() { context.rules.BuildMessages(); }

  static constexpr const char* kFileName = "engine.prm";

  int Read(std::string_view bytes) { return file.ReadBytes(bytes, kFileName); }
  /// The reason for which bytes are refused as a whole.
  std::string Refusal(std::string_view bytes) {
    try {
      Read(bytes);
    } catch (const CommandError& error) {
      EXPECT_EQ(error.kind(), ErrorKind::File);
      return error.message();
    }
    return {};
  }
  std::string Bytes() { return file.Compose().bytes; }
  void UseComma() {
    block.DecimalCommaMode = 1;
    context.rules.BuildMessages();
  }

  TestHost host;
  ProgramContext context{host};
  ParameterBlock& block = context.block;
  ParameterFile file{context};
};

/// A screen with one control for each owner that a test names.
class OwnerScreen : public Screen {
 public:
  explicit OwnerScreen(ProgramContext& program) : Screen(program, "Owners", "Owners", "") {}

  /// @param member  the shared value that the field shows
  template <class Member = double ParameterBlock::*>
  Field& AddField(const std::string& owner, const std::string& text, Member member = nullptr) {
    return Add<Field>(owner, owner, "", text,
                      Entry(KeyRule::AnyText, member == nullptr ? Holds() : Holds(member)));
  }
  CheckBox& AddBox(const std::string& owner) { return Add<CheckBox>(owner, owner, ""); }
  OptionGroup& AddGroup(const std::string& owner, int chosen) {
    const std::initializer_list<OptionGroup::Choice> choices = {
        {0, "one", ""}, {1, "two", ""}, {2, "three", ""}};
    return Add<OptionGroup>(owner, owner, "", choices, chosen);
  }

  std::vector<Screen*> Itself() { return {this}; }
  ParameterFile::ControlFinder Finder() {
    return [this](std::string_view name) -> Control* {
      const auto found = owners_.find(std::string(name));
      return found == owners_.end() ? nullptr : found->second.get();
    };
  }

 private:
  template <class ControlType, class... Arguments>
  ControlType& Add(const std::string& owner, Arguments&&... arguments) {
    auto control = std::make_unique<ControlType>(frame_, std::forward<Arguments>(arguments)...);
    ControlType& added = *control;
    owners_[owner] = std::move(control);
    return added;
  }

  Frame frame_{*this, "Frame1", ""};
  std::map<std::string, std::unique_ptr<Control>> owners_;
};

std::vector<std::string> Lines(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < bytes.size()) {
    const std::size_t end = bytes.find("\r\n", start);
    if (end == std::string::npos) {
      lines.push_back(bytes.substr(start));
      break;
    }
    lines.push_back(bytes.substr(start, end - start));
    start = end + 2;
  }
  return lines;
}

/// The values of all lines with a key, in the order of the file.
std::vector<std::string> Values(const std::string& bytes, const std::string& key) {
  std::vector<std::string> values;
  for (const std::string& line : Lines(bytes)) {
    if (line.starts_with(key + " = ")) values.push_back(line.substr(key.size() + 3));
  }
  return values;
}

std::string Value(const std::string& bytes, const std::string& key) {
  const std::vector<std::string> values = Values(bytes, key);
  EXPECT_EQ(values.size(), 1U) << key;
  return values.empty() ? std::string() : values.front();
}

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
}

// ---------------------------------------------------------------- the file's look

/// The file of a new block without any screen. "54 * " stands for 54 such lines.
constexpr std::string_view kNewFile =
    R"(; A ';' in the first position of a line means that line is a comment
;
; The following parameters maybe in any order
;
; If for some reason a parameter is in the list more than once then the
;   last one will be used
;
Bore = 4.0
Stroke = 3.25
Rod Length = 5.7
Cubic Inches = 326.7256
RPM = 6500
Bore Increase = 0.0
Compression Ratio = 13.59405
New Compression Ratio = 0.0
Number of Cylinders = 8
Rod Stroke Ratio = 0.0
Bore Stroke Ratio = 0.0
Stroke Bore Ratio = 0.0
Average Piston Speed = 0.0
Block Deck Height = 0.0
Piston Compression Height = 0.0
Cubicin Option = 0
Piston Weight = 0.0
Rod Weight = 0.0
Small End Rod Weight = 0.0
Horse Power = 555.0
Horse Power Increase = 0.0
Crank Degrees = 0.0
Piston Travel = 0.0
Wrist Pin Offset = 0.0
Torque = 444.0
BMEP = 0.0
Journal Diameter = 0.0
Show 3 Decimals = No
Absolute Value = No
;   Data for CR
Deck Clearance = 0.0
Head Gasket = 0.0
Head Gasket Bore = 0.0
Head Gasket CC = 0.0
Comb Chamber Vol = 0.0
Dome Vol = 0.0
Total Vol = 0.0
Depth First Ring = 0.0
Top Land Diameter = 0.0
Ring CC = 0.0
Piston Depth = 0.0
CCs Poured = 0.0
Dish Depth = 0.0
Dish Bore = 0.0
Dish CC = 0.0
Dish Radius = 0.0
;   Data for ET/MPH/HP
MPH = 192.453
MPH8 = 0.0
MPH60 = 0.0
ET = 0.0
ET8 = 0.0
ET60 = 0.0
Hook Factor = 0.0
Car Weight = 2350.0
;   Data for Blowers
Max Compression Ratio = 0.0
Effective Compression Ratio = 0.0
Blower Pressure = 0.0
Blower Efficiency = 0.0
Blower Gear = 0.0
Blower Ratio = 0.0
Blower RPM = 0
Crank Gear = 0.0
IC In Temp = 0.0
IC Out Temp = 0.0
IC Pressure Loss = 0.0
Blower Density Ratio = 0.0
Pressure Ratio = 0.0
Number of Turbos = 0
Blower Option = 0
Rotary 2-Stroke = No
Blower Graph = No
Use VE RPM Table = No
54 * VE RPM = 0.0
BSAC = 0.0
Use BSAC RPM Table = No
54 * BSAC RPM = 0.0
Graph X Max = 0.0
Graph Y Max = 0.0
Max RPM = 8000
;   Data for Camshafts
Intake Open = 0.0
Intake Close = 95.5
Intake Duration = 0.0
Intake CL = 0.0
Exhaust Open = 0.0
Exhaust Close = 0.0
Exhaust Duration = 320.0
Exhaust CL = 0.0
Lobe Sep Angle = 0.0
Advance Retard = 0.0
Cam LIft = 0.0
Valve LIft = 0.0
Rocker Arm Ratio = 1.5
Exhaust Cam LIft = 0.0
Exhaust Valve LIft = 0.0
Exhaust Rocker Arm Ratio = 1.5
;   Data for Air Flow / Fuel / Exhaust
Old Depression = 0.0
New Depression = 0.0
Old AirFlow = 0.0
BSFC = 0.0
Mass Air Flow = 0.0
Number Injectors = 0
Duty Cycle = 0.0
Pulse Width = 0.0
Lbs Hour = 0.0
New Lbs Hour = 0.0
Old Fuel Pressure = 0.0
New Fuel Pressure = 0.0
Injector Dead Time = 0.0
Fuel Pump Flow = 0.0
Intake Flow = 0.0
Exhaust Flow = 0.0
Intake Exhaust Ratio = 0.0
RPM Max Horse Power = 0
Air Fuel Ratio = 0.0
Volumetric Efficiency = 0.85
Fuel Flow = 0.0
Carb Size = 0.0
Report Option8 = 0
Peak Torque RPM = 5900
Port Diameter = 2.25
Tube Length = 0.0
Tube Diameter = 0.0
Affected RPM = 0
Collector Length = 0.0
Collector Diameter = 0.0
Air Filter Diameter = 0.0
AirFuel Option2 = 0
Intake Valve Size = 0.0
Intake Valve Stem Diameter = 0.0
Intake Bowl CSA Percent = 0.0
AirFuel Option1 = 0
16 * IntakeFlow = 0.0 0.0
Exhaust Valve Size = 0.0
Exhaust Valve Stem Diameter = 0.0
Exhaust Bowl CSA Percent = 0.0
16 * ExhaustFlow = 0.0 0.0
16 * IntakeLift = 0.0 0.0
16 * ExhaustLift = 0.0 0.0
Lambda Option = 0
Degree TDC = 0.0
User DC = 0.0
Number of Intake Valves = 0
Number of Exhaust Valves = 0
Test Depression = 0.0
Graph Max Lift = 0.0
User Velocity fps = 0.0
Calculate Every x.xx lift = 0.0
Scale Size = 0.0
Scale Size 2 = 0.0
Intake Valve Angle = 0.0
Exhaust Valve Angle = 0.0
Seat Angle = 0.0
Seat Width = 0.0
Exh Seat Angle = 0.0
Exh Seat Width = 0.0
Intake MCSA = 0.0
Exhaust MCSA = 0.0
A-F Advance Retard = 0.0
Exh Advance Retard = 0.0
A-F Lobe Sep Angle = 0.0
Valve to Piston Cl = 0.0
16 * Lift Table = 0.0
H Factor = 0.0
AirFuel Option5 = 0
Show Dots = No
Show Large Grouping = No
Circle = No
Line = No
DOHC = No
Single Grouping = No
Intake Lash = 0.024
Intake Open BTDC = 0.0
Exhaust Lash = 0.03
Exhaust Open BBDC = 0.0
Mach Valve Diameter = 0.0
Mach Valve Lift = 0.0
Mach Number = 0.0
;   Data for Weather
Barometric Pressure = 29.92
Barometric Pressure New = 0.0
Temperature = 59.0
Temperature New = 0.0
Humidity = 5.0
Humidity New = 0.0
Altitude = 0.0
Altitude New = 0.0
Crank Pulley = 0.0
Accessory Pulley = 0.0
New Crank Pulley = 0.0
New Accessory Pulley = 0.0
Jet Size = 0.0
Metering Rod Size = 0.0
;   Data for Compression Gauge
Dynamic Compression Ratio = 7.432
Compression Gauge = 0.0
Crank Angle CG = 0.0
Base Exponent = 0.0
;   Data for Gears
Front Sprocket = 0
Rear Sprocket = 0
Rear Gear Ratio = 4.1
Ring Gear = 0
Pinion Gear = 0
New Rear Gear Ratio = 0.0
Tire Diameter = 24.0
New Tire Diameter = 0.0
Tire Width = 0.0
Wheel Diameter = 0.0
Aspect Ratio = 0.0
;   Trans Gear Ratios
T Gear 0 = 3.25
T Gear 1 = 2.25
T Gear 2 = 1.25
T Gear 3 = 1.0
T Gear 4 = 0.87
T Gear 5 = 0.0
T Gear 6 = 0.0
T Gear 7 = 0.0
T Gear 8 = 0.0
T Gear 9 = 0.0
T Gear 10 = 0.0
T Gear 11 = 0.0
T Gear 12 = 0.0
T Gear 13 = 0.0
T Gear 14 = 0.0
T Gear 15 = 0.0
T Gear 16 = 0.0
T Gear 17 = 0.0
Track Size = 0.0
Track Time = 0.0
Turn Radius = 0.0
Skid Pad Gs = 1.54321
Long Acel Gs = 0.0
;   Data for Springs / Torsion Bars / Sway Bars
Spring Wire Diameter = 0.0
Number Active Coils = 0.0
Number Coils = 0.0
Diameter Coils = 0.0
Spring Rate = 0.0
Modulus of Rigidity = 0
Modulus of Torsion = 0
Torsion Bar Diameter = 0.0
Torsion Bar Int Diameter = 0.0
Torsion Bar Length = 0.0
Torsion Arm Length = 0.0
Torsion Bar Rate = 0.0
Sway Bar Out Diameter = 0.0
Sway Bar Int Diameter = 0.0
Sway Bar Center Length = 0.0
Sway Bar Arm Length = 0.0
Effective Arm Length = 0.0
New Sway Bar Out Diameter = 0.0
Main Leaf Length = 0.0
Main Leaf Width = 0.0
Main Leaf Thickness = 0.0
Number Leafs = 0.0
;   Data for Chassis
Weight Left Front = 0.0
Weight Left Rear = 0.0
Weight Right Front = 0.0
Weight Right Rear = 0.0
Percent Weight Left Front = 0.0
Percent Weight Left Rear = 0.0
Percent Weight Right Front = 0.0
Percent Weight Right Rear = 0.0
Cross Weight = 0.0
Percent Cross Weight = 0.0
Weight Front = 0.0
Weight Rear = 0.0
Weight Left = 0.0
Weight Right = 0.0
Percent Weight Front = 0.0
Percent Weight Rear = 0.0
Percent Weight Left = 0.0
Percent Weight Right = 0.0
Wheel Base = 0.0
Raised Weight Front = 0.0
Height Front Wheel Hub = 0.0
Height Rear Wheel = 0.0
Horizontal CG = 0.0
Vertical CG = 0.0
Track Width = 0.0
Weight Transfer = 0.0
Ballast = 0.0
Ballast X = 0.0
Ballast Y = 0.0
Unsprung Weight Left Front = 0.0
Unsprung Weight Left Rear = 0.0
Unsprung Weight Right Front = 0.0
Unsprung Weight Right Rear = 0.0
Left Front Spring Rate = 0.0
Right Front Spring Rate = 0.0
Left Rear Spring Rate = 0.0
Right Rear Spring Rate = 0.0
Front Sway Bar Rate = 0.0
Rear Sway Bar Rate = 0.0
Left Front Spring Move = 0.0
Right Front Spring Move = 0.0
Left Rear Spring Move = 0.0
Right Rear Spring Move = 0.0
Left Front Sway Bar Move = 0.0
Right Front Sway Bar Move = 0.0
Left Rear Sway Bar Move = 0.0
Right Rear Sway Bar Move = 0.0
Front Track Width = 0.0
Rear Track Width = 0.0
Front Roll Center Height = 0.0
Rear Roll Center Height = 0.0
;   --
Type Curve = 2
Start Degrees = 0.0
End Degrees = 0.0
Every X Degrees = 0.0
Start Seconds = 0.0
End Seconds = 0.0
Every X Seconds = 0.0
;   Acceleration / Top Speed
Tire Rolling Resistance = 0.0
Coefficient of Drag = 0.34
Frontal Area = 19.4
Veh Width = 0.0
Track BP = 29.92126
Shift Torque = 0.0
Veh Height = 0.0
Percent Drive Train Power Loss = 0.0
Percent Rear End Power Loss = 0.0
Tire Rolling Radius = 12.0
Dyno Correction = 0.0
Launch RPM = 0
Shift RPM 1-2 = 0
Shift RPM 2-3 = 0
Shift RPM 3-4 = 0
Shift RPM 4-5 = 0
Shift RPM 5-6 = 0
Shift RPM 6-7 = 0
Shift RPM 7-8 = 0
Shift RPM 8-9 = 0
Shift RPM 9-10 = 0
Shift RPM 10-11 = 0
Shift RPM 11-12 = 0
Shift RPM 12-13 = 0
Shift RPM 13-14 = 0
Shift RPM 14-15 = 0
Shift RPM 15-16 = 0
Shift RPM 16-17 = 0
Shift RPM 17-18 = 0
Shift Time 1-2 = 0.0
Shift Time 2-3 = 0.0
Shift Time 3-4 = 0.0
Shift Time 4-5 = 0.0
Shift Time 5-6 = 0.0
Shift Time 6-7 = 0.0
Shift Time 7-8 = 0.0
Shift Time 8-9 = 0.0
Shift Time 9-10 = 0.0
Shift Time 10-11 = 0.0
Shift Time 11-12 = 0.0
Shift Time 12-13 = 0.0
Shift Time 13-14 = 0.0
Shift Time 14-15 = 0.0
Shift Time 15-16 = 0.0
Shift Time 16-17 = 0.0
Shift Time 17-18 = 0.0
Power Loss 0 = 0.0
Power Loss 1 = 0.0
Power Loss 2 = 0.0
Power Loss 3 = 0.0
Power Loss 4 = 0.0
Power Loss 5 = 0.0
Power Loss 6 = 0.0
Power Loss 7 = 0.0
Power Loss 8 = 0.0
Power Loss 9 = 0.0
Power Loss 10 = 0.0
Power Loss 11 = 0.0
Power Loss 12 = 0.0
Power Loss 13 = 0.0
Power Loss 14 = 0.0
Power Loss 15 = 0.0
Power Loss 16 = 0.0
Power Loss 17 = 0.0
Tire Growth 0 = 0.0
Tire Growth 1 = 0.0
Tire Growth 2 = 0.0
Tire Growth 3 = 0.0
Tire Growth 4 = 0.0
Tire Growth 5 = 0.0
Tire Growth 6 = 0.0
Tire Growth 7 = 0.0
Tire Growth 8 = 0.0
Tire Growth 9 = 0.0
Tire Growth 10 = 0.0
Tire Growth 11 = 0.0
Tire Growth 12 = 0.0
Tire Growth 13 = 0.0
Tire Growth 14 = 0.0
Tire Growth 15 = 0.0
Tire Growth 16 = 0.0
Tire Growth 17 = 0.0
Trans Gear = 0
RollOut = 0.0
Coefficient of Mu = 0.0
Converter Stall Speed = 0
Torque Multiplier = 0.0
Wind Speed = 0.0
Wind Direction = 0.0
Automatic Trans = No
Converter Slippage = 3.25
Primary Drive = 2.0
Use Primary Drive = No
Hood Scoop = No
RPM Acce Rate = No
;   Acceleration / Top Speed - CVT Constant Velocity Trans
CVT RPM = 0.0
CVT Power Loss = 0.0
;   Acceleration / Top Speed - Nitrous Data
7 * Nitrous MS = 0 0.0 0.0 0.0 0.0
7 * Nitrous MS = 0.0 0.0 0.0 0.0 0.0
Nitrous = No
Nitrous RWHP = No
;   Acceleration / Top Speed - Throttle Stop
Throttle Stop = No
Throttle Stop RPM = 0
Throttle Stop Time = 0.0
;   Acceleration / Top Speed - Graphing and Dyno Sheet / Text Report
Dyno BP = 0.0
Dyno VP = 0.0
Dyno Temp = 0.0
Smooth HP Graph = 0.0
Graph Dyno X High = 0.0
Graph Dyno Y High = 0.0
Graph Dyno Y Low = 0.0
Coast Gs = No
Compact Text Report = No
;   2 Stroke Exhaust
Exhaust Port Width = 0.0
Exhaust Port Height = 0.0
Exhaust Gas Temp = 0.0
Speed of Sound = 0.0
Power KW = 0.0
Konstant K0 = 0.0
Konstant K1 = 0.0
Konstant K2 = 0.0
Horn Coeff = 0.0
Angel 1 = 0.0
Angel 2 = 0.0
Length 3 = 0.0
Length 7 = 0.0
Diameter 1 = 0.0
Diameter 3 = 0.0
;   2 stroke Port Timing Form
2 S Exhaust Distance = 0.0
2 S Boost Distance = 0.0
2 S Transfer Distance = 0.0
2 S Exhaust Degrees = 0.0
2 S Boost Degrees = 0.0
2 S Transfer Degrees = 0.0
2 S Exhaust Port Area = 0.0
2 S Boost Port Area = 0.0
2 S Transfer Port Area = 0.0
Squish Ratio = 0.0
Squish Clearance = 0.0
;   Nitrous
Fuel Pressure = 0.0
Nitrous Pressure = 0.0
Nitrous Jet Size = 0.0
Number Nitrous Jets = 0
Nitrous Option = 0
Specific Gravity Gas = 0.0
Specific Gravity Methanol = 0.0
Specific Gravity Ethanol = 0.0
Specific Gravity E85 = 0.0
Fuel Jet Size = 0.0
Number Fuel Jets = 0
Fuel Jet Size S2 = 0.0
Number Fuel Jets S2 = 0
;   Cam Generation
25 * Cam Gen L = 0.0
24 * Cam Gen D = 0.0
24 * Cam Gen O = 0.0
24 * Cam Gen C = 0.0
24 * Cam Gen Asym O = 0.0
24 * Cam Gen Asym C = 0.0
M E Ratio = 0.0
Asymmetrical Zero Durat = 0.0
Tappet Bucket Diameter = 0.0
Tappet Max Velocity = 0.0
Asymmetrical = No
Output S96 = No
Lash Ramp Option = 0
Generation Method Option = 0
;   User Selected Graph Options
Graph Heads = No
Graph Logo = No
Move Grid Lines = No
Graph Line Color = No
Grid Switch = 1
Large Lines = No
Caption Top = 0
Caption Side = 0
Graph Font Size = 0
Company Name Location = 0
Semi Grid Cross Lines = No
Semi Grid Box Lines = No
Grid Color = 16777215
Solid Switch = 1
Graph Line Width = 0
Graph Font Color = 0
Graph BackGround Color = 0
;   The following 2 parameters must be in THIS Order
Custom Graph Width = 6
Custom Graph Height = 6
Custom Grid Line Count x = 10
Custom Grid Line Count y = 10
Draw Line Color = 99999
Draw Line Width = 1
Draw Switch = No
;   User Selected GUI Options -- Keep This Order
Quit BackGround Color = 0
BackGround Color = 0
Option Check Box Style = 1
Large Screen = No
Full Screen = No
Entry Box Font Name = 
Entry Box Font Size = 0
Entry Box Font Bold = 0
Entry Box Font Italic = 0
Entry Box Alignment = 2
Entry Box Style = 1
Label Box Font Name = 
Label Box Font Size = 0
Label Box Font Bold = 0
Label Box Font Italic = 0
Label Box Color = 0
Command Button Font Name = 
Command Button Font Size = 0
Command Button Font Bold = 0
Command Button Font Italic = 0
Help Box Font Name = 
Help Box Font Size = 0
Help Box Font Bold = 0
Help Box Font Italic = 0
Help Box Font Color = 0
Help BackGround Color = 0
Metric Mode = OFF
Print Heads = OFF
;   Data for Acceleration / Top speed calculator / Dyno Sheets
;   The following parameters must be in Ascending Order by RPM
;              RPM  Torque  Fuel  BSFC  A/F  SCFM BSAC
;                           lb/hr      Ratio
Acceleration = 5000 700.0
Acceleration = 5500 720.0
Acceleration = 6000 750.0
Acceleration = 6500 780.0
Acceleration = 7000 810.0
Acceleration = 7500 840.0
Acceleration = 8000 820.0
Acceleration = 8500 815.0
Acceleration = 9000 780.0
Acceleration = 9500 737.0
Acceleration = 10000 685.0
;   Data for Road Horse Power
;   The following parameters must be in Ascending Order by MPH
;         MPH    Time
Road HP = 21.51 1.6829
Road HP = 23.47 1.8356
Road HP = 25.67 2.0061
Road HP = 28.11 2.192
Road HP = 30.0 2.3341
Road HP = 32.27 2.5083
Road HP = 34.22 2.6635
Road HP = 36.67 2.8677
Road HP = 39.11 3.0899
Road HP = 40.09 3.1848
Road HP = 42.05 3.3879
;   Data for ROad Horse Power
;   The following parameters must be in Ascending Order by RPM
;         RPM    Time
ROad HP = 2200.0 1.6829
ROad HP = 2400.0 1.8356
ROad HP = 2625.0 2.0061
ROad HP = 2875.0 2.192
ROad HP = 3068.3 2.3341
ROad HP = 3300.0 2.5083
ROad HP = 3500.0 2.6635
ROad HP = 3750.0 2.8677
ROad HP = 4000.0 3.0899
ROad HP = 4100.0 3.1848
ROad HP = 4300.0 3.3879
)";

std::vector<std::string> NewFileLines() {
  std::vector<std::string> lines;
  std::istringstream text{std::string(kNewFile)};
  for (std::string line; std::getline(text, line);) {
    int times = 1;
    if (const std::size_t star = line.find(" * "); star != std::string::npos) {
      std::from_chars(line.data(), line.data() + star, times);
      line.erase(0, star + 3);
    }
    lines.insert(lines.end(), static_cast<std::size_t>(times), line);
  }
  return lines;
}

TEST(ParameterFileWriter, NewBlockGivesTheWholeFileInOrder) {
  Program program;
  const ParameterFile::Written written = program.file.Compose();
  const std::vector<std::string> expected = NewFileLines();
  const std::vector<std::string> lines = Lines(written.bytes);
  for (std::size_t i = 0; i < std::min(lines.size(), expected.size()); ++i) {
    ASSERT_EQ(lines[i], expected[i]) << "line " << i + 1;
  }
  EXPECT_EQ(lines.size(), expected.size());
  EXPECT_EQ(written.records, static_cast<int>(expected.size()) + 1);
}

TEST(ParameterFileWriter, EveryLineEndsWithCrLf) {
  Program program;
  program.block.Notes = "first\nsecond\r\nthird\rfourth";
  const std::string bytes = program.Bytes();
  EXPECT_TRUE(bytes.ends_with("Notes = first\r\nsecond\r\nthird\r\nfourth\r\n"));
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n') {
      ASSERT_EQ(bytes[i - 1], '\r') << i;
    }
    if (bytes[i] == '\r') {
      ASSERT_EQ(bytes[i + 1], '\n') << i;
    }
  }
}

TEST(ParameterFileWriter, NotesCountAsOneRecord) {
  Program program;
  const int without = program.file.Compose().records;
  program.block.Notes = "one\r\ntwo\r\nthree";
  EXPECT_EQ(program.file.Compose().records, without + 1);
}

TEST(ParameterFileWriter, CommaModeWritesCommas) {
  Program program;
  program.UseComma();
  program.block.CombChamberVol = 64.5;
  program.block.IntakeFlowTable[0] = {0.05, 33.5};
  const std::string bytes = program.Bytes();
  EXPECT_EQ(Value(bytes, "Bore"), "4,0");
  EXPECT_EQ(Value(bytes, "Comb Chamber Vol"), "64,5");
  EXPECT_EQ(Value(bytes, "Bore Increase"), "0,0");
  EXPECT_EQ(Value(bytes, "Max Compression Ratio"), "0,0");
  EXPECT_EQ(Value(bytes, "Smooth HP Graph"), "0,0");
  EXPECT_EQ(Value(bytes, "Shift Time 1-2"), "0,0");
  EXPECT_EQ(Values(bytes, "IntakeFlow").front(), "0,05 33,5");
  EXPECT_EQ(Values(bytes, "Acceleration").front(), "5000 700,0");
  EXPECT_EQ(Values(bytes, "Road HP").front(), "21,51 1,6829");
  EXPECT_EQ(Value(bytes, "RPM"), "6500");
}

// ---------------------------------------------------------------- record forms

TEST(ParameterFileWriter, NumbersHaveFiveDecimalsBelow100AndFourFromThere) {
  Program program;
  program.block.Bore = 99.123456;
  program.block.Stroke = 100.123456;
  program.block.RodLength = -123.123456;
  program.block.HeadGasket = 0.039;
  const std::string bytes = program.Bytes();
  EXPECT_EQ(Value(bytes, "Bore"), "99.12346");
  EXPECT_EQ(Value(bytes, "Stroke"), "100.1235");
  EXPECT_EQ(Value(bytes, "Rod Length"), "-123.12346");
  EXPECT_EQ(Value(bytes, "Head Gasket"), "0.039");
}

TEST(ParameterFileWriter, IntegersAreWholeNumbers) {
  Program program;
  program.block.RPM = 6500.5;
  program.block.LaunchRPM = 3999.6;
  program.block.MaxRPM = -0.4;
  program.block.GridColor = 16777215;
  const std::string bytes = program.Bytes();
  EXPECT_EQ(Value(bytes, "RPM"), "6501");
  EXPECT_EQ(Value(bytes, "Launch RPM"), "4000");
  EXPECT_EQ(Value(bytes, "Max RPM"), "0");
  EXPECT_EQ(Value(bytes, "Grid Color"), "16777215");
}

TEST(ParameterFileWriter, SwitchesAreYesOrNoAndOnOrOff) {
  Program program;
  program.block.DOHC = 1;
  program.block.AutomaticTrans = -1;
  program.block.MetricMenuOn = -1;
  program.block.PrintHeads = 1;
  const std::string bytes = program.Bytes();
  EXPECT_EQ(Value(bytes, "DOHC"), "Yes");
  EXPECT_EQ(Value(bytes, "Automatic Trans"), "Yes");
  EXPECT_EQ(Value(bytes, "Hood Scoop"), "No");
  EXPECT_EQ(Value(bytes, "Metric Mode"), "ON");
  EXPECT_EQ(Value(bytes, "Print Heads"), "ON");
}

TEST(ParameterFileWriter, ArrayLines) {
  Program program;
  program.block.VERPM[53] = 1234.56789;
  program.block.BSACRPM[0] = 0.05;
  program.block.IntakeLiftTable[1].Lift = 0.15;
  program.block.ExhaustFlowTable[15] = {0.75, 201.25};
  program.block.TGear[17] = 0.654321;
  program.block.ShiftRPM[1] = 7250.4;
  program.block.ShiftRPM[17] = 8000;
  program.block.ShiftTime[10] = 0.125;
  program.block.PowerLoss[0] = 2.5;
  program.block.TireGrowth[17] = 1.25;
  program.block.CamGenL[24] = 100.123456;
  program.block.CamGenAsymC[23] = 12.3456789;
  const std::string bytes = program.Bytes();
  // A field's number is cut to eight characters, not rounded.
  EXPECT_EQ(Values(bytes, "VE RPM").back(), "1234.567");
  EXPECT_EQ(Values(bytes, "VE RPM").size(), 54U);
  EXPECT_EQ(Values(bytes, "BSAC RPM").front(), "0.05");
  EXPECT_EQ(Values(bytes, "Lift Table")[1], "0.15");
  EXPECT_EQ(Values(bytes, "ExhaustFlow").back(), "0.75 201.25");
  EXPECT_EQ(Value(bytes, "T Gear 17"), "0.65432");
  EXPECT_EQ(Value(bytes, "Shift RPM 1-2"), "7250");
  EXPECT_EQ(Value(bytes, "Shift RPM 17-18"), "8000");
  EXPECT_EQ(Value(bytes, "Shift Time 10-11"), "0.125");
  EXPECT_EQ(Value(bytes, "Power Loss 0"), "2.5");
  EXPECT_EQ(Value(bytes, "Tire Growth 17"), "1.25");
  EXPECT_EQ(Values(bytes, "Cam Gen L").back(), "100.1235");
  EXPECT_EQ(Values(bytes, "Cam Gen Asym C").back(), "12.34568");
}

TEST(ParameterFileWriter, NitrousStagesHaveTheGearAsAWholeNumberInTheFirstSeven) {
  Program program;
  program.block.NitrousMS[0] = {1, 110.5, 4000, 50, 5200};
  program.block.NitrousMS[6] = {9, 0, 0, 0, 0};
  program.block.NitrousMS[7] = {150, 0.5, 60, 1.25, 6.75};
  const std::vector<std::string> stages = Values(program.Bytes(), "Nitrous MS");
  ASSERT_EQ(stages.size(), 14U);
  EXPECT_EQ(stages[0], "1 110.5 4000.0 50.0 5200.0");
  EXPECT_EQ(stages[6], "9 0.0 0.0 0.0 0.0");
  EXPECT_EQ(stages[7], "150.0 0.5 60.0 1.25 6.75");
}

TEST(ParameterFileWriter, TorqueRowsCarryTheFuelColumnsOnlyWhereThereIsFuel) {
  Program program;
  program.block.AccelRowCount = 2;
  program.block.AccelTorque[0] = 412.456;
  program.block.AccelBsfc[0] = 0.5;
  program.block.AccelFuel[1] = 123.4;
  program.block.AccelBsfc[1] = 0.45;
  program.block.AccelAirFuel[1] = 12.8;
  program.block.AccelScfm[1] = 350.12345;
  program.block.AccelBsac[1] = 5.76;
  EXPECT_THAT(Values(program.Bytes(), "Acceleration"),
              ElementsAre("5000 412.46", "5500 720.0 123.4 0.45 12.8 350.1235 5.76"));
}

TEST(ParameterFileWriter, RoadTablesWithoutRowsHaveNoComments) {
  Program program;
  program.block.RoadMphRowCount = 0;
  EXPECT_THAT(program.Bytes(), Not(HasSubstr(";   Data for Road Horse Power")));
  EXPECT_THAT(program.Bytes(), HasSubstr(";   Data for ROad Horse Power"));
  program.block.RoadRpmRowCount = 0;
  EXPECT_THAT(program.Bytes(), Not(HasSubstr(";   Data for ROad Horse Power")));
  EXPECT_THAT(program.Bytes(), Not(HasSubstr("oad HP")));
}

TEST(ParameterFileWriter, FontNamesAreText) {
  Program program;
  program.block.EntryBoxFontName = "Times New Roman";
  program.block.HelpBoxFontName = "two\r\nlines";
  EXPECT_EQ(Value(program.Bytes(), "Entry Box Font Name"), "Times New Roman");
  EXPECT_EQ(Value(program.Bytes(), "Label Box Font Name"), "");
  EXPECT_EQ(Value(program.Bytes(), "Help Box Font Name"), "two  lines");
}

// ---------------------------------------------------------------- owning controls

TEST(ParameterFileOwners, ZeroFallsBackOnTheFieldsText) {
  Program program;
  OwnerScreen screen(program.context);
  Field& height = screen.AddField("Form1.Text8", "9.025");
  program.file.BindOwners(screen.Finder(), screen.Itself());
  EXPECT_EQ(Value(program.Bytes(), "Block Deck Height"), "9.025");
  program.block.BlockDeckHeight = 9.8;
  EXPECT_EQ(Value(program.Bytes(), "Block Deck Height"), "9.8");
  program.block.BlockDeckHeight = 0;
  for (const char* text : {"", "-", "nine", "9.0.1", "1e999"}) {
    height.SetText(text);
    EXPECT_EQ(Value(program.Bytes(), "Block Deck Height"), "0.0") << text;
  }
}

TEST(ParameterFileOwners, NumbersWithoutFallbackDoNotLookAtTheirField) {
  Program program;
  OwnerScreen screen(program.context);
  screen.AddField("Form1.Text1", "7.5");
  program.file.BindOwners(screen.Finder(), screen.Itself());
  program.block.Bore = 0;
  EXPECT_EQ(Value(program.Bytes(), "Bore"), "0.0");
}

TEST(ParameterFileOwners, IntegersFallBackOnlyOnWhatTheirMemberCanHold) {
  Program program;
  OwnerScreen screen(program.context);
  Field& jets = screen.AddField("Form17.Text4", "42");
  Field& pressure = screen.AddField("Form17.Text1", "42");
  program.file.BindOwners(screen.Finder(), screen.Itself());
  EXPECT_EQ(Value(program.Bytes(), "Number Nitrous Jets"), "42");
  EXPECT_EQ(Value(program.Bytes(), "Fuel Pressure"), "42");
  jets.SetText("99999");
  pressure.SetText("99999");
  EXPECT_EQ(Value(program.Bytes(), "Number Nitrous Jets"), "0");
  EXPECT_EQ(Value(program.Bytes(), "Fuel Pressure"), "99999");
}

TEST(ParameterFileOwners, FieldTextIsWrittenFromItsFieldAndNeverFromTheBlock) {
  Program program;
  OwnerScreen screen(program.context);
  Field& ratio = screen.AddField("Form1CR.Text29", "11.50");
  program.file.BindOwners(screen.Finder(), screen.Itself());
  program.block.NewCompressionRatio = 12.5;
  EXPECT_EQ(Value(program.Bytes(), "New Compression Ratio"), "11.50");
  ratio.SetText("");
  EXPECT_EQ(Value(program.Bytes(), "New Compression Ratio"), "0.0");
  ratio.SetText("11.5.0");
  EXPECT_EQ(Value(program.Bytes(), "New Compression Ratio"), "0.0");
}

TEST(ParameterFileOwners, FieldTextWithoutItsScreenIsNotLost) {
  Program program;
  program.Read("New Compression Ratio = 12.125\r\n");
  EXPECT_EQ(Value(program.Bytes(), "New Compression Ratio"), "12.125");
}

TEST(ParameterFileOwners, ReadingPutsFallbackValuesIntoTheirFields) {
  Program program;
  OwnerScreen screen(program.context);
  Field& bore = screen.AddField("Form1.Text1", "4.0", &ParameterBlock::Bore);
  Field& height = screen.AddField("Form1.Text8", "9.0", &ParameterBlock::BlockDeckHeight);
  Field& ratio = screen.AddField("Form1CR.Text29", "0", &ParameterBlock::NewCompressionRatio);
  Field& teeth = screen.AddField("Form3.Text16", "0", &ParameterBlock::TypeCurve);
  program.file.BindOwners(screen.Finder(), screen.Itself());
  program.Read(
      "Bore = 4.125\r\nBlock Deck Height = 9.0256789\r\nNew Compression Ratio = 1234.56789\r\n"
      "Type Curve = 38\r\n");
  EXPECT_EQ(program.block.Bore, 4.125);
  EXPECT_EQ(bore.text(), "4.0");  // shown by the opener of its screen
  EXPECT_EQ(program.block.BlockDeckHeight, 9.0256789);
  EXPECT_EQ(height.text(), "9.025679");
  EXPECT_EQ(ratio.text(), "1234.567");
  EXPECT_EQ(program.block.TypeCurve, 38);
  EXPECT_EQ(teeth.text(), "38");
}

TEST(ParameterFileOwners, LiteralTextGoesToItsFieldAsItStands) {
  Program program;
  OwnerScreen screen(program.context);
  Field& smooth = screen.AddField("Form13.Text40", "N");
  program.file.BindOwners(screen.Finder(), screen.Itself());
  EXPECT_EQ(Value(program.Bytes(), "Smooth HP Graph"), "N");
  program.Read("Smooth HP Graph = Y\r\n");
  EXPECT_EQ(smooth.text(), "Y");
  EXPECT_EQ(program.block.SmoothHPGraph, "Y");
  // Without a text, files have had 0.0.
  program.Read("Smooth HP Graph = 0.0\r\n");
  EXPECT_EQ(smooth.text(), "Y");
  program.Read("Smooth HP Graph =  \r\n");
  EXPECT_EQ(smooth.text(), "");
  EXPECT_EQ(program.block.SmoothHPGraph, "");
}

TEST(ParameterFileOwners, BoxesAndOptionGroupsAreTiedToTheirSwitches) {
  Program program;
  OwnerScreen screen(program.context);
  CheckBox& decimals = screen.AddBox("Form1.Check3");
  OptionGroup& unit = screen.AddGroup("Form1.Option1", 1);
  program.file.BindOwners(screen.Finder(), screen.Itself());
  EXPECT_EQ(program.block.CubicinOption, 1);
  decimals.SetOn(true);
  EXPECT_EQ(program.block.Show3Decimals, 1);
  EXPECT_EQ(Value(program.Bytes(), "Show 3 Decimals"), "Yes");
  EXPECT_EQ(Value(program.Bytes(), "Cubicin Option"), "1");
  program.Read("Show 3 Decimals = No\r\nCubicin Option = 2\r\n");
  EXPECT_FALSE(decimals.on());
  EXPECT_EQ(program.block.Show3Decimals, 0);
  EXPECT_EQ(unit.chosen(), 2);
  EXPECT_EQ(program.block.CubicinOption, 2);
  program.Read("show 3 decimals = yes\r\n");
  EXPECT_TRUE(decimals.on());
}

TEST(ParameterFileOwners, AnOptionThatDoesNotExistIsAReadingError) {
  Program program;
  OwnerScreen screen(program.context);
  OptionGroup& unit = screen.AddGroup("Form1.Option1", 1);
  program.file.BindOwners(screen.Finder(), screen.Itself());
  program.host.Answer(Button::OK);
  program.Read("Cubicin Option = 3\r\n");
  EXPECT_EQ(unit.chosen(), 1);
  EXPECT_EQ(program.block.CubicinOption, 1);
}

TEST(ParameterFileOwners, FallbackTextsAreStableAfterTheFirstWriteAndRead) {
  for (const bool comma : {false, true}) {
    Program program;
    if (comma) program.UseComma();
    OwnerScreen screen(program.context);
    screen.AddField("Form1.Text8", comma ? "9,0250" : "9.0250", &ParameterBlock::BlockDeckHeight);
    screen.AddField("Form1.Text12", "", &ParameterBlock::RodStrokeRatio);
    screen.AddField("Form1CR.Text29", "1234567.25", &ParameterBlock::NewCompressionRatio);
    program.file.BindOwners(screen.Finder(), screen.Itself());
    program.Read(program.Bytes());
    const std::string second = program.Bytes();
    program.Read(second);
    EXPECT_EQ(program.Bytes(), second);
    EXPECT_EQ(Value(second, "Block Deck Height"), comma ? "9,025" : "9.025");
  }
}

// ---------------------------------------------------------------- round trips

/// A value that no other key holds and that every form can write.
double Distinct(int number) {
  return number + 0.25;
}

/// Gives every value of the block one of its own.
void FillBlock(ParameterBlock& block) {
  int number = 1;
  for (const KeyRow& row : KeyTable()) {
    ++number;
    const bool whole = row.form == KeyForm::Integer || row.form == KeyForm::IntegerOrField;
    if (row.cell != nullptr) {
      for (int i = row.firstRow; i < row.rows; ++i) {
        for (int column = 0; column < row.rowWidth; ++column) {
          ++number;
          const bool gear = row.tableForm == TableForm::GearChangeRpm ||
                            (row.tableForm == TableForm::NitrousStages && column == 0);
          row.cell(block, i, column) = gear ? number : Distinct(number);
        }
      }
    } else if (const auto* real = std::get_if<double ParameterBlock::*>(&row.member)) {
      block.** real = whole ? number : Distinct(number);
    } else if (const auto* text = std::get_if<std::string ParameterBlock::*>(&row.member)) {
      block.** text = "text " + std::to_string(number);
    } else if (const auto* color = std::get_if<std::int32_t ParameterBlock::*>(&row.member)) {
      block.** color = 100000 + number;
    } else if (const auto* count = std::get_if<std::int16_t ParameterBlock::*>(&row.member)) {
      block.** count = whole ? static_cast<std::int16_t>(number) : row.onValue;
      // Letters of a size that there is, styles that there are.
      if (row.nearest != nullptr) {
        block.** count = static_cast<std::int16_t>(row.nearest(10 + number % 30));
      }
    }
  }
  for (std::size_t i = 0; i < 20; ++i) {
    ++number;
    block.AccelRpm[i] = 3000 + 100 * static_cast<double>(i);
    block.AccelTorque[i] = Distinct(number);
    block.AccelFuel[i] = Distinct(number) + 1;
    block.AccelBsfc[i] = Distinct(number) + 2;
    block.AccelAirFuel[i] = Distinct(number) + 3;
    block.AccelScfm[i] = Distinct(number) + 4;
    block.AccelBsac[i] = Distinct(number) + 5;
    block.RoadMph[i] = Distinct(number) + 6;
    block.RoadMphTime[i] = Distinct(number) + 7;
    block.RoadRpm[i] = Distinct(number) + 8;
    block.RoadRpmTime[i] = Distinct(number) + 9;
  }
  block.AccelRowCount = 20;
  block.RoadMphRowCount = 19;
  block.RoadRpmRowCount = 18;
  block.Notes = "First Line, 3.5\r\n\r\n; third LINE\r\nBore = 9";
}

void ExpectSameValues(ParameterBlock& a, ParameterBlock& b) {
  for (const KeyRow& row : KeyTable()) {
    if (row.form == KeyForm::Comment) continue;
    for (int i = row.firstRow; i < std::max(row.rows, row.firstRow + 1); ++i) {
      EXPECT_EQ(KeyValueText(row, a, i), KeyValueText(row, b, i)) << row.key << ' ' << i;
    }
  }
  EXPECT_EQ(a.AccelRowCount, b.AccelRowCount);
  EXPECT_EQ(a.RoadMphRowCount, b.RoadMphRowCount);
  EXPECT_EQ(a.RoadRpmRowCount, b.RoadRpmRowCount);
  for (auto column :
       {&ParameterBlock::AccelRpm, &ParameterBlock::AccelTorque, &ParameterBlock::AccelFuel,
        &ParameterBlock::AccelBsfc, &ParameterBlock::AccelAirFuel, &ParameterBlock::AccelScfm,
        &ParameterBlock::AccelBsac, &ParameterBlock::RoadMph, &ParameterBlock::RoadMphTime,
        &ParameterBlock::RoadRpm, &ParameterBlock::RoadRpmTime}) {
    for (std::size_t i = 0; i < 18; ++i) EXPECT_EQ((a.*column)[i], (b.*column)[i]) << i;
  }
  EXPECT_EQ(a.Notes, b.Notes);
}

TEST(ParameterFileRoundTrip, EveryKeySurvives) {
  for (const bool comma : {false, true}) {
    Program writer;
    Program reader;
    if (comma) {
      writer.UseComma();
      reader.UseComma();
    }
    FillBlock(writer.block);
    const std::string bytes = writer.Bytes();
    const int lines = static_cast<int>(Lines(bytes).size());
    EXPECT_EQ(reader.Read(bytes), lines);
    ExpectSameValues(writer.block, reader.block);
    EXPECT_EQ(reader.Bytes(), bytes);
  }
}

TEST(ParameterFileRoundTrip, WhateverIsWrittenCanBeReadBack) {
  for (const double number : {1.7976931348623157e308, -1.7976931348623157e308, 5e-324, -1e-9, 1e300,
                              123456789.123456789, 0.1 + 0.2}) {
    for (const bool comma : {false, true}) {
      Program writer;
      if (comma) writer.UseComma();
      FillBlock(writer.block);
      for (const KeyRow& row : KeyTable()) {
        if (const auto* real = std::get_if<double ParameterBlock::*>(&row.member)) {
          writer.block.** real = number;
        }
        if (row.cell == nullptr) continue;
        for (int i = row.firstRow; i < row.rows; ++i) {
          for (int k = 0; k < row.rowWidth; ++k) row.cell(writer.block, i, k) = number;
        }
      }
      writer.block.AccelTorque.fill(number);
      writer.block.AccelAirFuel.fill(number);
      writer.block.RoadMph.fill(number);
      Program reader;
      if (comma) reader.UseComma();
      const std::string bytes = writer.Bytes();
      // No box, and nothing behind is lost.
      EXPECT_EQ(reader.Read(bytes), static_cast<int>(Lines(bytes).size()));
      EXPECT_EQ(reader.block.Notes, writer.block.Notes);
      EXPECT_TRUE(reader.Bytes() == bytes) << number;
    }
  }
}

TEST(ParameterFileRoundTrip, TorqueRowsWhoseSpeedsRoundToTheSameComeBack) {
  Program writer;
  writer.block.AccelRowCount = 4;
  const std::array rpm{2999.7, 3000.2, 3000.4, 3500.0};
  std::copy(rpm.begin(), rpm.end(), writer.block.AccelRpm.begin());
  const std::string bytes = writer.Bytes();
  EXPECT_THAT(Values(bytes, "Acceleration"),
              ElementsAre(StartsWith("2999.7 "), StartsWith("3000.2 "), StartsWith("3000.4 "),
                          StartsWith("3500 ")));
  Program reader;
  reader.Read(bytes);
  EXPECT_EQ(reader.block.AccelRowCount, 4);
  EXPECT_EQ(reader.block.AccelRpm[2], 3000.4);
}

TEST(ParameterFileRoundTrip, NewBlockIsStable) {
  for (const bool comma : {false, true}) {
    Program program;
    if (comma) program.UseComma();
    const std::string bytes = program.Bytes();
    program.Read(bytes);
    EXPECT_EQ(program.Bytes(), bytes);
  }
}

TEST(ParameterFileRoundTrip, EveryKeyIsReadInCapitals) {
  Program writer;
  Program reader;
  FillBlock(writer.block);
  writer.block.Notes.clear();
  std::string bytes;
  for (const std::string& line : Lines(writer.Bytes())) {
    std::string key = line.substr(0, line.find(" ="));
    if (!line.starts_with(";") && !line.starts_with("Road") && !line.starts_with("ROad")) {
      std::ranges::transform(key, key.begin(),
                             [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    }
    bytes += key + line.substr(key.size()) + "\r\n";
  }
  reader.Read(bytes);
  ExpectSameValues(writer.block, reader.block);
}

TEST(ParameterFileRoundTrip, LinesMayStandInAnyOrder) {
  Program writer;
  Program reader;
  FillBlock(writer.block);
  writer.block.Notes.clear();
  std::vector<std::string> lines = Lines(writer.Bytes());
  // The rows of an array keep their order among themselves.
  std::ranges::stable_sort(lines, {}, [](const std::string& line) {
    const std::string key = line.substr(0, line.find(" ="));
    return std::string(key.rbegin(), key.rend());
  });
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  reader.Read(bytes);
  ExpectSameValues(writer.block, reader.block);
}

TEST(ParameterFileRoundTrip, APointFileReadsInCommaMode) {
  Program writer;
  Program reader;
  FillBlock(writer.block);
  writer.block.Notes.clear();
  reader.UseComma();
  reader.Read(writer.Bytes());
  ExpectSameValues(writer.block, reader.block);
}

TEST(ParameterFileRoundTrip, ThroughTheDisk) {
  const TemporaryFolder folder;
  Program writer;
  Program reader;
  FillBlock(writer.block);
  const auto path = folder / "Motör.prm";
  const ParameterFile::Written composed = writer.file.Compose();
  EXPECT_EQ(writer.file.Write(path), composed.records);
  EXPECT_EQ(ReadFile(path), composed.bytes);
  reader.file.ReadParameterFile(path);
  ExpectSameValues(writer.block, reader.block);
  EXPECT_GT(writer.host.busyCount, 0);
  EXPECT_GT(reader.host.busyCount, 0);
}

TEST(ParameterFileWriter, AFolderThatIsNotThereEndsTheCommand) {
  const TemporaryFolder folder;
  Program program;
  try {
    program.file.Write(folder / "missing" / "engine.prm");
    FAIL() << "no error";
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::File);
  }
}

TEST(ParameterFileWriter, AValueThatIsNoNumberEndsTheCommandAndLeavesTheFile) {
  const TemporaryFolder folder;
  Program program;
  const auto path = folder / "engine.prm";
  WriteFile(path, "the old file");
  program.block.Bore = std::nan("");
  EXPECT_THROW(program.file.Write(path), CommandError);
  EXPECT_EQ(ReadFile(path), "the old file");
}

// ---------------------------------------------------------------- reading

TEST(ParameterFileReader, KeysAreReadWithoutCase) {
  Program program;
  program.Read("BORE = 4.5\r\nsTrOkE = 3.875\r\n");
  EXPECT_EQ(program.block.Bore, 4.5);
  EXPECT_EQ(program.block.Stroke, 3.875);
}

TEST(ParameterFileReader, AMissingValueIsZero) {
  for (const char* tail : {" =", " = ", " =  ", " =    ", " =\t"}) {
    Program program;
    program.block.DOHC = 1;
    program.block.ShiftTime[2] = 0.5;
    const std::string end = std::string(tail) + "\r\n";
    program.Read("Bore" + end + "Number of Cylinders" + end + "Throttle Stop Time" + end + "DOHC" +
                 end + "VE RPM" + end + "Shift Time 2-3" + end);
    EXPECT_EQ(program.block.Bore, 0);
    EXPECT_EQ(program.block.NumberofCylinders, 0);
    EXPECT_EQ(program.block.DOHC, 0);
    EXPECT_EQ(program.block.ShiftTime[2], 0);
  }
}

TEST(ParameterFileReader, AMissingTextIsEmpty) {
  Program program;
  program.block.EntryBoxFontName = "Arial";
  program.block.SmoothHPGraph = "Y";
  program.Read("Entry Box Font Name =\r\nSmooth HP Graph = \r\n");
  EXPECT_EQ(program.block.EntryBoxFontName, "");
  EXPECT_EQ(program.block.SmoothHPGraph, "");
}

TEST(ParameterFileReader, TheLastOfTheSameKeyWins) {
  Program program;
  program.Read("Bore = 4.1\r\nBore = 4.2\r\n");
  EXPECT_EQ(program.block.Bore, 4.2);
}

TEST(ParameterFileReader, CountsEveryLine) {
  Program program;
  EXPECT_EQ(program.Read("; comment\r\n\r\n   \r\nBore = 4.1\r\nNotes = a\r\nb\r\n"), 6);
  EXPECT_EQ(program.Read(""), 0);
  EXPECT_EQ(program.Read("Bore = 4.1"), 1);
  EXPECT_EQ(program.Read("\r\n"), 1);
}

TEST(ParameterFileReader, LineEndsMayBeLfAlone) {
  Program program;
  EXPECT_EQ(program.Read("Bore = 4.1\nStroke = 3.2\nNotes = a\nb"), 4);
  EXPECT_EQ(program.block.Bore, 4.1);
  EXPECT_EQ(program.block.Stroke, 3.2);
  EXPECT_EQ(program.block.Notes, "a\r\nb");
}

TEST(ParameterFileReader, TextMayBeWindows1252OrUtf8) {
  Program program;
  program.Read("Label Box Font Name = Gar\xE7on\r\nNotes = 1\r\n\x80 f\xFCr \xC4nderung\r\n");
  EXPECT_EQ(program.block.LabelBoxFontName, "Gar\xC3\xA7on");
  EXPECT_EQ(program.block.Notes, "1\r\n\xE2\x82\xAC f\xC3\xBCr \xC3\x84nderung");
  program.Read(
      "\xEF\xBB\xBF"
      "Bore = 4.3\r\nLabel Box Font Name = Gar\xC3\xA7on\r\n");
  EXPECT_EQ(program.block.Bore, 4.3);
  EXPECT_EQ(program.block.LabelBoxFontName, "Gar\xC3\xA7on");
}

TEST(ParameterFileReader, ANewReadingBeginsWithoutRowsAndNotes) {
  Program program;
  program.block.Notes = "old";
  program.block.AccelRowCount = 40;
  program.Read("Bore = 4\r\n");
  EXPECT_EQ(program.block.Notes, "");
  EXPECT_EQ(program.block.AccelRowCount, 11);
  EXPECT_EQ(program.block.AccelRpm[0], 5000);  // the table that was there
  EXPECT_EQ(program.block.RoadMphRowCount, 0);
  EXPECT_EQ(program.block.RoadRpmRowCount, 0);
}

TEST(ParameterFileReader, SwitchesAreReadInTheirSpellings) {
  for (const char* on : {"Yes", "yes", "YES", "ON", "on", "-1", "1", " yes "}) {
    Program program;
    program.Read(std::string("DOHC = ") + on + "\r\nMetric Mode = " + on +
                 "\r\nPrint Heads = " + on + "\r\n");
    EXPECT_EQ(program.block.DOHC, 1) << on;
    EXPECT_EQ(program.block.MetricMenuOn, -1) << on;
    EXPECT_EQ(program.block.PrintHeads, 1) << on;
  }
  for (const char* off : {"No", "no", "NO", "OFF", "off", "0", ""}) {
    Program program;
    program.block.DOHC = 1;
    program.block.MetricMenuOn = -1;
    program.Read(std::string("DOHC = ") + off + "\r\nMetric Mode = " + off + "\r\n");
    EXPECT_EQ(program.block.DOHC, 0) << off;
    EXPECT_EQ(program.block.MetricMenuOn, 0) << off;
  }
  for (const char* neither : {"maybe", "2", "yes no", "y"}) {
    Program program;
    program.host.Answer(Button::OK);
    program.Read(std::string("DOHC = ") + neither + "\r\n");
    EXPECT_EQ(program.block.DOHC, 0) << neither;
  }
}

TEST(ParameterFileReader, PressureLossNeedsTheBlankBehindItsEqualsSign) {
  Program program;
  program.Read("IC Pressure Loss = 1.0\r\n");
  EXPECT_EQ(program.block.ICPressureLoss, 1.0);
  program.host.Answer(Button::OK);
  program.Read("IC Pressure Loss =5\r\nIC In Temp =5\r\n");
  EXPECT_EQ(program.block.ICPressureLoss, 1.0);
  EXPECT_EQ(program.block.ICInTemp, 5);
  ASSERT_EQ(program.host.messages.size(), 1U);
  EXPECT_EQ(program.host.messages[0].text,
            "Invalid Input Record # - 1   Data --> IC Pressure Loss =5\r\nFile: engine.prm");
}

TEST(ParameterFileReader, IndexedLinesTellTheirRow) {
  Program program;
  program.Read(
      "Shift RPM 1-2 = 6500\r\nshift rpm 10-11 = 7000\r\nShift RPM 17-18 = 7100\r\n"
      "Shift Time 2-3 = 0.35\r\nSHIFT TIME 12-13 = 0.4\r\nT Gear 0 = 2.97\r\nT Gear 17 = 0.5\r\n"
      "Power Loss 3 = 4.5\r\nTire Growth 10 = 1.25\r\n");
  EXPECT_EQ(program.block.ShiftRPM[1], 6500);
  EXPECT_EQ(program.block.ShiftRPM[10], 7000);
  EXPECT_EQ(program.block.ShiftRPM[17], 7100);
  EXPECT_EQ(program.block.ShiftTime[2], 0.35);
  EXPECT_EQ(program.block.ShiftTime[12], 0.4);
  EXPECT_EQ(program.block.TGear[0], 2.97);
  EXPECT_EQ(program.block.TGear[17], 0.5);
  EXPECT_EQ(program.block.PowerLoss[3], 4.5);
  EXPECT_EQ(program.block.TireGrowth[10], 1.25);
}

TEST(ParameterFileReader, AnIndexOutsideItsTableIsAReadingError) {
  for (const char* line :
       {"Shift RPM 0-1 = 1", "Shift RPM 18-19 = 1", "Shift RPM 100-101 = 1", "Shift RPM = 1",
        "Shift RPM a-b = 1", "Shift RPM 1-2", "Shift Time 18-19 = 1", "T Gear 18 = 1",
        "T Gear -1 = 1", "Power Loss 18 = 1", "Tire Growth 99 = 1", "T Gear 1 2 = 3"}) {
    Program program;
    program.host.Answer(Button::OK);
    program.Read(std::string(line) + "\r\nBore = 9\r\n");
    ASSERT_EQ(program.host.messages.size(), 1U) << line;
    EXPECT_THAT(program.host.messages[0].text, HasSubstr("Error Reading Parameter File"));
    EXPECT_EQ(program.block.Bore, 4.0) << line;
  }
}

TEST(ParameterFileReader, ArraysFillRowByRowAndAnewWithEachReading) {
  Program program;
  for (int i = 0; i < 2; ++i) {
    program.Read(
        "VE RPM = 0.8\r\nBore = 4\r\nVE RPM = 0.9\r\nIntakeFlow = 0.1 60\r\n"
        "intakeflow = 0.2   120.5\r\nCam Gen L = 1.5\r\n");
    EXPECT_EQ(program.block.VERPM[0], 0.8);
    EXPECT_EQ(program.block.VERPM[1], 0.9);
    EXPECT_EQ(program.block.VERPM[2], 0);
    EXPECT_EQ(program.block.IntakeFlowTable[1].Lift, 0.2);
    EXPECT_EQ(program.block.IntakeFlowTable[1].Flow, 120.5);
    EXPECT_EQ(program.block.CamGenL[0], 1.5);
  }
}

TEST(ParameterFileReader, ARowBeyondAnArrayIsAReadingError) {
  Program program;
  std::string bytes;
  for (int i = 0; i < 17; ++i) bytes += "Lift Table = " + std::to_string(i) + "\r\n";
  program.host.Answer(Button::OK);
  EXPECT_EQ(program.Read(bytes), 17);
  EXPECT_EQ(program.block.IntakeLiftTable[15].Lift, 15);
}

TEST(ParameterFileReader, AColumnYieldsToItsTable) {
  for (const char* order : {"Lift Table = .1\r\nLift Table = .2\r\nIntakeLift = .15 262\r\n",
                            "IntakeLift = .15 262\r\nLift Table = .1\r\nLift Table = .2\r\n"}) {
    Program program;
    program.block.IntakeLiftTable[1].Flow = 242;
    program.Read(order);
    EXPECT_EQ(program.block.IntakeLiftTable[0].Lift, .15) << order;
    EXPECT_EQ(program.block.IntakeLiftTable[0].Flow, 262) << order;
    EXPECT_EQ(program.block.IntakeLiftTable[1].Lift, .2) << order;
    EXPECT_EQ(program.block.IntakeLiftTable[1].Flow, 242) << order;
  }
}

TEST(ParameterFileReader, NitrousStagesHaveFourOrFiveNumbers) {
  Program program;
  program.Read("Nitrous MS = 1 110 3000 50 4500\r\nNitrous MS = 2 120 3100 60\r\n");
  EXPECT_THAT(program.block.NitrousMS[0], ElementsAre(1, 110, 3000, 50, 4500));
  EXPECT_THAT(program.block.NitrousMS[1], ElementsAre(2, 120, 3100, 60, 0));
  for (const char* line : {"Nitrous MS = 1 2 3", "Nitrous MS = 1 2 3 4 5 6"}) {
    program.host.Answer(Button::OK);
    program.Read(line);
  }
}

TEST(ParameterFileReader, KeysOfEarlierVersions) {
  Program program;
  program.block.GridColor = 0;
  program.Read(
      "Grid Color R = 10\r\nGrid Color G = 20\r\nGrid Color B = 30\r\n"
      "Nitrous HP = 150\r\nNitrous RPM = 4000\r\nNitrous PC = 60\r\nNitrous Full = 5500\r\n");
  EXPECT_EQ(program.block.GridColor, 10 + 256 * 20 + 65536 * 30);
  EXPECT_EQ(program.block.NitrousMS[0][1], 150);
  EXPECT_EQ(program.block.NitrousMS[0][2], 4000);
  EXPECT_EQ(program.block.NitrousMS[0][3], 60);
  EXPECT_EQ(program.block.NitrousMS[0][4], 5500);
  program.Read("nitrous p = 70\r\ngrid color g = 255\r\n");
  EXPECT_EQ(program.block.NitrousMS[0][3], 70);
  EXPECT_EQ(program.block.GridColor, 10 + 256 * 255 + 65536 * 30);
  for (const char* level : {"256", "-1"}) {
    program.host.Answer(Button::OK);
    program.Read(std::string("grid color r = ") + level);
  }
  EXPECT_EQ(program.block.GridColor, 10 + 256 * 255 + 65536 * 30);
}

// ---------------------------------------------------------------- torque and road rows

TEST(ParameterFileTorque, RowsFillTheirColumns) {
  Program program;
  program.block.AccelFuel[1] = 77;  // of another engine
  program.Read("Acceleration = 3000 400.5 120 0.5 12.8 350 5.8\r\nACCELERATION =  3500   410\r\n");
  EXPECT_EQ(program.block.AccelRowCount, 2);
  EXPECT_EQ(program.block.AccelRpm[0], 3000);
  EXPECT_EQ(program.block.AccelTorque[0], 400.5);
  EXPECT_EQ(program.block.AccelFuel[0], 120);
  EXPECT_EQ(program.block.AccelBsfc[0], 0.5);
  EXPECT_EQ(program.block.AccelAirFuel[0], 12.8);
  EXPECT_EQ(program.block.AccelScfm[0], 350);
  EXPECT_EQ(program.block.AccelBsac[0], 5.8);
  EXPECT_EQ(program.block.AccelRpm[1], 3500);
  EXPECT_EQ(program.block.AccelTorque[1], 410);
  EXPECT_EQ(program.block.AccelFuel[1], 0);
}

TEST(ParameterFileTorque, PowerAndMetricRowsBecomePoundFeet) {
  Program program;
  // 100 HP at 5252 RPM are 100 lb-ft. 1.3558179 Nm are 1 lb-ft. 74.5701 kW are 100 HP.
  // 100 PS are 98.63 HP.
  program.Read(
      "accelerat hp = 2626 100\r\naccelerat nm = 3000 135.58179\r\n"
      "accelerat kw = 5252 74.5701\r\naccelerat ps = 10504 200\r\nacceleration = 11000 90\r\n");
  ASSERT_EQ(program.block.AccelRowCount, 5);
  EXPECT_DOUBLE_EQ(program.block.AccelTorque[0], 200);
  EXPECT_DOUBLE_EQ(program.block.AccelTorque[1], 100);
  EXPECT_DOUBLE_EQ(program.block.AccelTorque[2], 100);
  EXPECT_DOUBLE_EQ(program.block.AccelTorque[3], 98.63);
  EXPECT_DOUBLE_EQ(program.block.AccelTorque[4], 90);
}

TEST(ParameterFileTorque, PowerAtStandstillIsAReadingError) {
  Program program;
  program.host.Answer(Button::OK);
  program.Read("accelerat hp = 0 100\r\n");
  EXPECT_EQ(program.block.AccelTorque[0], 700);
  program.host.Answer(Button::OK);
  program.Read("accelerat hp = 1 1e308\r\n");
  EXPECT_EQ(program.block.AccelTorque[0], 700);
  program.Read("acceleration = 0 100\r\n");
  EXPECT_EQ(program.block.AccelTorque[0], 100);
}

TEST(ParameterFileTorque, RowsWhoseRpmDoesNotRiseAreToldAndLeftOut) {
  Program program;
  program.host.Answer(Button::OK);
  program.host.Answer(Button::OK);
  EXPECT_EQ(program.Read("Acceleration = 3000 400\r\nAcceleration = 3000 410\r\n"
                         "Acceleration = 2900 420\r\nAcceleration = 3100 430\r\n"),
            4);
  EXPECT_EQ(program.block.AccelRowCount, 2);
  EXPECT_EQ(program.block.AccelRpm[1], 3100);
  EXPECT_EQ(program.block.AccelTorque[1], 430);
  ASSERT_EQ(program.host.messages.size(), 2U);
  const Message& box = program.host.messages[0];
  EXPECT_EQ(box.icon, Icon::Warning);
  EXPECT_EQ(box.title, "VELDOX - Error Message");
  EXPECT_EQ(box.text,
            "Invalid Input Record # - 2   Data --> Acceleration = 3000 410\r\n"
            "File: engine.prm");
  EXPECT_THAT(box.buttons, ElementsAre(Button::OK));
}

TEST(ParameterFileTorque, RowsWithoutTorqueAreReadingErrors) {
  for (const char* line : {"Acceleration = 3000", "Acceleration =", "Acceleration = 3000 x",
                           "Acceleration = 3000 1 2 3 4 5 6 7"}) {
    Program program;
    program.host.Answer(Button::OK);
    program.Read(line);
    EXPECT_EQ(program.block.AccelRowCount, 11) << line;
  }
}

std::string NumberedRows(const std::string& key, int count) {
  std::string bytes;
  for (int i = 1; i <= count; ++i) bytes += key + " = " + std::to_string(i * 10) + " 5\r\n";
  return bytes;
}

TEST(ParameterFileTorque, AtMost961RowsAreKept) {
  for (const char* key : {"Acceleration", "Road HP", "ROad HP"}) {
    Program program;
    EXPECT_EQ(program.Read(NumberedRows(key, 961)), 961);
    program.host.Answer(Button::OK);
    EXPECT_EQ(program.Read(NumberedRows(key, 962) + "Bore = 9\r\n"), 962);
    EXPECT_EQ(program.block.Bore, 4.0);
    ASSERT_EQ(program.host.messages.size(), 1U);
    EXPECT_THAT(program.host.messages[0].text, HasSubstr("Record # 962\r\n"));
    const std::string word = key;
    EXPECT_EQ(word == "Acceleration" ? program.block.AccelRowCount
              : word == "Road HP"    ? program.block.RoadMphRowCount
                                     : program.block.RoadRpmRowCount,
              961);
  }
}

TEST(ParameterFileRoad, TheTwoTablesAreToldApartByTheirCase) {
  Program program;
  program.Read(
      "Road HP = 20.5 1.5\r\nROad HP = 2100 1.25\r\nRoad HP = 22 1.75\r\nROad HP = 2300 1.5\r\n"
      "Road HP = 24 2\r\n");
  EXPECT_EQ(program.block.RoadMphRowCount, 3);
  EXPECT_EQ(program.block.RoadRpmRowCount, 2);
  EXPECT_EQ(program.block.RoadMph[0], 20.5);
  EXPECT_EQ(program.block.RoadMphTime[2], 2);
  EXPECT_EQ(program.block.RoadRpm[1], 2300);
  EXPECT_EQ(program.block.RoadRpmTime[0], 1.25);
}

TEST(ParameterFileRoad, OtherSpellingsAreNoKeys) {
  for (const char* line : {"road hp = 20 1", "ROAD HP = 20 1", "Road hp = 20 1", "ROad = 1"}) {
    Program program;
    program.host.Answer(Button::OK);
    program.Read(line);
    ASSERT_EQ(program.host.messages.size(), 1U);
    EXPECT_EQ(program.host.messages[0].text, std::string("Invalid Input Record # - 1   Data --> ") +
                                                 line + "\r\nFile: engine.prm");
  }
}

TEST(ParameterFileRoad, AMissingTimeIsAReadingError) {
  Program program;
  program.host.Answer(Button::OK);
  program.Read("Road HP = 20\r\n");
  EXPECT_EQ(program.block.RoadMphRowCount, 0);
}

// ---------------------------------------------------------------- comma mode

TEST(ParameterFileComma, PointsOfAFileFromElsewhereAreCommas) {
  Program program;
  program.UseComma();
  program.Read(
      "Bore = 4.125\r\nStroke = 3,75\r\nCalculate Every x.xx lift = 0.05\r\n"
      "Acceleration = 3000 400.5 120.5 0.5 12.8 350.5 5.8\r\nRoad HP = 20.5 1.5\r\n"
      "IntakeFlow = 0.1 60.5\r\nShift Time 1-2 = 0.35\r\nLabel Box Font Name = Arial.2\r\n");
  EXPECT_EQ(program.block.Bore, 4.125);
  EXPECT_EQ(program.block.Stroke, 3.75);
  EXPECT_EQ(program.block.CalculateEveryLift, 0.05);
  EXPECT_EQ(program.block.AccelTorque[0], 400.5);
  EXPECT_EQ(program.block.AccelBsac[0], 5.8);
  EXPECT_EQ(program.block.RoadMphTime[0], 1.5);
  EXPECT_EQ(program.block.IntakeFlowTable[0].Flow, 60.5);
  EXPECT_EQ(program.block.ShiftTime[1], 0.35);
  EXPECT_EQ(program.block.LabelBoxFontName, "Arial.2");
}

TEST(ParameterFileComma, CommaNumbersAreErrorsInPointMode) {
  Program program;
  program.host.Answer(Button::OK);
  program.Read("Bore = 4,125\r\n");
  EXPECT_EQ(program.block.Bore, 4.0);
}

TEST(ParameterFileComma, CountsInBoxesAreGroupedByTheSystemsSign) {
  Program program;
  program.UseComma();
  program.host.Answer(Button::Cancel);
  EXPECT_EQ(program.Read(std::string(2998, '\n') + "nonsense\n"), 2999);
  EXPECT_EQ(program.host.messages[0].text,
            "Invalid Input Record # - 2.999   Data --> nonsense\r\nFile: engine.prm");
}

// ---------------------------------------------------------------- notes

TEST(ParameterFileNotes, ComeBackToTheLetter) {
  for (const bool comma : {false, true}) {
    Program program;
    if (comma) program.UseComma();
    program.Read("NOTES = Dyno Day 3.5 \xC3\x84\xC3\x97\xC3\x9F 1.25\r\nSecond LINE. 4.5\r\n");
    const std::string notes = "Dyno Day 3.5 \xC3\x84\xC3\x97\xC3\x9F 1.25\r\nSecond LINE. 4.5";
    EXPECT_EQ(program.block.Notes, notes);
    for (int round = 0; round < 3; ++round) program.Read(program.Bytes());
    EXPECT_EQ(program.block.Notes, notes);
  }
}

TEST(ParameterFileNotes, Beyond1MbAreRefusedAsAWhole) {
  std::string notes = "x";
  while (notes.size() < kMostNoteBytes - 101) notes += "\r\n" + std::string(98, 'n');
  notes += std::string(kMostNoteBytes - notes.size(), 'n');
  ASSERT_EQ(ReasonAgainstNotes(notes), "");
  Program program;
  program.Read("Bore = 4.5\r\nNotes = " + notes + "\r\n");
  EXPECT_EQ(program.block.Notes, notes);
  EXPECT_EQ(ReasonAgainstNotes(notes + "n"), kNotesTooLong);
  program.host.Answer(Button::OK);
  program.Read("Bore = 4.25\r\nNotes = " + notes + "n\r\n");
  EXPECT_EQ(program.block.Notes, "");
  EXPECT_EQ(program.block.Bore, 4.25);
  const std::string& text = program.host.messages.back().text;
  EXPECT_THAT(text, HasSubstr(kNotesTooLong));
  EXPECT_THAT(text, HasSubstr("\r\nFile: engine.prm   Record # "));
}

TEST(ParameterFileNotes, WhatTheLimitsTakeTheFileGivesBack) {
  constexpr std::size_t kLongest = kLongestLine - 8;
  const std::string longest(kLongest, 'n');
  for (const std::string& notes : {longest, "first\r\n" + longest, longest + "\r\n" + longest}) {
    ASSERT_EQ(ReasonAgainstNotes(notes), "");
    Program program;
    program.block.Notes = notes;
    program.Read(program.Bytes());
    EXPECT_EQ(program.block.Notes, notes);
  }
  EXPECT_THAT(ReasonAgainstNotes("first\r\n" + longest + "n"),
              HasSubstr("A line of the notes is longer than 64 KB"));
  // A line end counts as the two characters of the file.
  EXPECT_EQ(ReasonAgainstNotes(std::string(kMostNoteBytes / 2 + 1, '\n')), kNotesTooLong);
  EXPECT_EQ(ReasonAgainstNotes(std::string(kMostNoteBytes / 2, '\n')), "");
  EXPECT_NE(ReasonAgainstNotes(std::string(1, '\0')), "");
}

TEST(ParameterFileNotes, EveryLineBehindIsANote) {
  Program program;
  EXPECT_EQ(program.Read("Notes = one\r\nBore = 9\r\n; comment\r\n\r\nnonsense\r\nNotes = two\r\n"),
            6);
  EXPECT_EQ(program.block.Notes, "one\r\nBore = 9\r\n; comment\r\n\r\nnonsense\r\nNotes = two");
  EXPECT_EQ(program.block.Bore, 4.0);
}

TEST(ParameterFileNotes, BeginWithALineBreakWhenNothingStandsBehindTheKey) {
  for (const char* first : {"Notes =", "Notes = "}) {
    Program program;
    program.Read(std::string(first) + "\r\nSecond\r\n");
    EXPECT_EQ(program.block.Notes, "\r\nSecond");
    const std::string bytes = program.Bytes();
    program.Read(bytes);
    EXPECT_EQ(program.block.Notes, "\r\nSecond");
    EXPECT_EQ(program.Bytes(), bytes);
  }
}

TEST(ParameterFileNotes, BeginAtTheNinthCharacter) {
  for (const auto& [line, notes] :
       std::vector<std::pair<std::string, std::string>>{{"Notes = abc", "abc"},
                                                        {"Notes =abc", "bc"},
                                                        {"Notes =a", ""},
                                                        {"Notes = ABC.d", "ABC.d"},
                                                        {"Notes =\xC3\xA4"
                                                         "b",
                                                         "b"},
                                                        {"Notes =  abc", " abc"}}) {
    Program program;
    program.Read(line);
    EXPECT_EQ(program.block.Notes, notes) << line;
  }
}

TEST(ParameterFileNotes, LineBreaksAtTheEndStay) {
  Program program;
  program.block.Notes = "abc\r\n\r\n";
  const std::string bytes = program.Bytes();
  program.Read(bytes);
  EXPECT_EQ(program.block.Notes, "abc\r\n\r\n");
  EXPECT_EQ(program.Bytes(), bytes);
}

// ---------------------------------------------------------------- messages

TEST(ParameterFileMessages, AnUnknownLineCanBePassedOver) {
  Program program;
  program.host.Answer(Button::OK);
  const std::string lines(1233, '\n');
  EXPECT_EQ(program.Read(lines + "Boer = 4.5\r\nBore = 4.5\r\n"), 1235);
  EXPECT_EQ(program.block.Bore, 4.5);
  ASSERT_EQ(program.host.messages.size(), 1U);
  const Message& box = program.host.messages[0];
  EXPECT_EQ(box.icon, Icon::Warning);
  EXPECT_EQ(box.title, "VELDOX - Error Message");
  EXPECT_EQ(box.text, "Invalid Input Record # - 1,234   Data --> Boer = 4.5\r\nFile: engine.prm");
  EXPECT_THAT(box.buttons, ElementsAre(Button::OK, Button::Cancel));
}

TEST(ParameterFileMessages, CancelEndsTheReadingAndKeepsWhatWasRead) {
  Program program;
  program.host.Answer(Button::OK);
  program.host.Answer(Button::Cancel);
  EXPECT_EQ(program.Read("Bore = 4.5\r\nfirst\r\nRod Length = 6\r\nsecond\r\nStroke = 9\r\n"), 4);
  EXPECT_EQ(program.block.Bore, 4.5);
  EXPECT_EQ(program.block.RodLength, 6);
  EXPECT_EQ(program.block.Stroke, 3.25);
  EXPECT_EQ(program.block.AccelRowCount, 11);
}

TEST(ParameterFileMessages, LinesThatAreNoKeys) {
  for (const char* line :
       {"Bore=4.5", "Bore  = 4.5", " Bore = 4.5", "Bor = 4.5", "Bores = 4.5", "= 4.5", " = 4.5",
        " =", "=", "Bore", " ; comment", "VE RPM=0.8", "Text1 = 4"}) {
    Program program;
    program.host.Answer(Button::OK);
    program.Read(line);
    ASSERT_EQ(program.host.messages.size(), 1U) << line;
    EXPECT_EQ(program.host.messages[0].text, std::string("Invalid Input Record # - 1   Data --> ") +
                                                 line + "\r\nFile: engine.prm");
    EXPECT_EQ(program.block.Bore, 4.0) << line;
  }
}

TEST(ParameterFileMessages, AReadingErrorTellsFileRecordLineAndReason) {
  Program program;
  program.host.Answer(Button::OK);
  EXPECT_EQ(program.Read("Bore = 4.5\r\nStroke = 3.x\r\nRod Length = 6\r\n"), 2);
  EXPECT_EQ(program.block.Bore, 4.5);
  EXPECT_EQ(program.block.Stroke, 3.25);
  EXPECT_EQ(program.block.RodLength, 5.7);
  EXPECT_EQ(program.block.AccelRowCount, 11);
  ASSERT_EQ(program.host.messages.size(), 1U);
  const Message& box = program.host.messages[0];
  EXPECT_EQ(box.icon, Icon::Warning);
  EXPECT_EQ(box.title, "VELDOX-Math-Formula-Calculator");
  EXPECT_TRUE(box.text.starts_with(
      "Error Reading Parameter File --- If you have Not edited it, email "
      "support@veldox.example\r\nengine.prm\r\nRecord # 2\r\nData --> Stroke = 3.x\r\nThe value "))
      << box.text;
  EXPECT_THAT(box.text, HasSubstr("3.x\", which is not a number"));
  EXPECT_THAT(box.buttons, ElementsAre(Button::OK));
}

TEST(ParameterFileMessages, ValuesThatTheirMemberCannotHoldAreReadingErrors) {
  for (const char* line : {"Number of Cylinders = 32768", "Number of Cylinders = -32769",
                           "Grid Color = 3000000000", "Bore = 1e999", "Bore = nan", "Bore = inf",
                           "Bore = 0x10", "Bore = 4 5", "Bore = -", "Bore = 4.5.6"}) {
    Program program;
    program.host.Answer(Button::OK);
    program.Read(line);
    EXPECT_EQ(program.block.NumberofCylinders, 8) << line;
    EXPECT_EQ(program.block.GridColor, 16777215) << line;
    EXPECT_EQ(program.block.Bore, 4.0) << line;
  }
}

TEST(ParameterFileMessages, LongLinesAreClippedTo500Characters) {
  Program program;
  // Two bytes a character: none may be cut in two.
  std::string line;
  for (int i = 0; i < 1000; ++i) line += "\xC3\xA4";
  program.host.Answer(Button::OK);
  program.Read(line);
  program.host.Answer(Button::OK);
  program.Read("Bore = " + line);
  const std::string first = "Invalid Input Record # - 1   Data --> ";
  ASSERT_EQ(program.host.messages.size(), 2U);
  const std::string end = "\r\nFile: engine.prm";
  EXPECT_EQ(program.host.messages[0].text, first + line.substr(0, 1000) + "..." + end);
  EXPECT_LT(program.host.messages[1].text.size(), 3000U);
  program.host.Answer(Button::OK);
  program.Read(std::string(500, 'x'));
  EXPECT_EQ(program.host.messages[2].text, first + std::string(500, 'x') + end);
}

TEST(ParameterFileMessages, AFileThatCannotBeOpenedChangesNothing) {
  const TemporaryFolder folder;
  Program program;
  program.block.Notes = "kept";
  program.block.AccelRowCount = 3;
  try {
    program.file.ReadParameterFile(folder / "missing.prm");
    ADD_FAILURE() << "the file was opened";
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::File);
    EXPECT_TRUE(
        error.message().starts_with("Error Reading Parameter File --- If you have Not edited it, "
                                    "email support@veldox.example\r\n"));
    EXPECT_THAT(error.message(), HasSubstr("missing.prm"));
  }
  EXPECT_EQ(program.block.Notes, "kept");
  EXPECT_EQ(program.block.AccelRowCount, 3);
  EXPECT_TRUE(program.host.messages.empty()) << "who reads it shows the box";
}

/// So many lines that are no key.
std::string Nonsense(int lines) {
  std::string text;
  for (int i = 1; i <= lines; ++i) text += "nonsense " + std::to_string(i) + "\r\n";
  return text;
}

TEST(ParameterFileMessages, AFileWhoseFirstTenLinesHoldNoKeyIsRefusedByOneBox) {
  constexpr const char* kRefusal =
      "This is no parameter file: none of its first ten lines begins with a key.\r\n"
      "File: engine.prm";
  Program program;
  program.block.Notes = "kept";
  EXPECT_EQ(program.Refusal(Nonsense(10)), kRefusal);
  EXPECT_EQ(program.Refusal(Nonsense(10) + "Bore = 9\r\n"), kRefusal);
  // Blank lines and comments say nothing.
  EXPECT_EQ(program.Refusal(Nonsense(5) + "; Bore\r\n\r\n   \r\n" + Nonsense(5)), kRefusal);
  EXPECT_EQ(program.block.Notes, "kept");
  EXPECT_EQ(program.block.Bore, 4.0);
  EXPECT_EQ(program.block.AccelRowCount, 11);
  EXPECT_TRUE(program.host.messages.empty()) << "who reads it shows the box";
}

TEST(ParameterFileMessages, WithFewerThanTenLinesEachGetsItsBox) {
  Program program;
  for (int i = 0; i < 9; ++i) program.host.Answer(Button::OK);
  EXPECT_EQ(program.Read(Nonsense(9)), 9);
  EXPECT_EQ(program.host.messages.back().text,
            "Invalid Input Record # - 9   Data --> nonsense 9\r\nFile: engine.prm");
}

TEST(ParameterFileMessages, AnyKeyAmongTheFirstTenLinesMakesAParameterFile) {
  for (const char* key : {"BORE = 4", "Bore = x", "T Gear 3 = 1.5", "Shift RPM 1-2 = 6000",
                          "Road HP = 60 5", "ROad HP = 3000 5", "accelerat kw = 3000 100",
                          "Grid Color R = 12", "Nitrous HP = 5", "Notes = a"}) {
    Program program;
    for (int i = 0; i < (std::string_view(key).ends_with('x') ? 10 : 9); ++i) {
      program.host.Answer(Button::OK);
    }
    program.Read(Nonsense(9) + key + "\r\n");
  }
}

TEST(ParameterFileMessages, AFileWithNulBytesIsRefusedByOneBox) {
  constexpr const char* kRefusal =
      "This is no parameter file: it holds NUL bytes, as no text does.\r\nFile: engine.prm";
  Program program;
  EXPECT_EQ(program.Refusal(std::string("Bore = 9\r\nStroke = 3\0\r\n", 24)), kRefusal);
  EXPECT_EQ(program.Refusal(std::string("\x7F"
                                        "ELF\x02\x01\x01\0\0",
                                        9)),
            kRefusal);
  // UTF-16 without its mark has a NUL beside every letter.
  EXPECT_EQ(program.Refusal(std::string("B\0o\0r\0e\0 \0=\0 \0"
                                        "9\0",
                                        16)),
            kRefusal);
  EXPECT_EQ(program.block.Bore, 4.0);
}

TEST(ParameterFileMessages, Utf16WithItsMarkIsRead) {
  const std::string_view text = "Bore = 4.5\r\nNotes = Day One\r\n";
  for (const bool highFirst : {false, true}) {
    std::string bytes = highFirst ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text) {
      bytes += highFirst ? std::string{'\0', c} : std::string{c, '\0'};
    }
    Program program;
    EXPECT_EQ(program.Read(bytes), 2);
    EXPECT_EQ(program.block.Bore, 4.5);
    EXPECT_EQ(program.block.Notes, "Day One");
  }
}

TEST(ParameterFileMessages, FromTheTwentiethBadRecordOnTheRestIsToldInOneBox) {
  Program program;
  for (int i = 0; i < 20; ++i) program.host.Answer(Button::OK);
  EXPECT_EQ(program.Read("Bore = 4.5\r\n" + Nonsense(1500) + "Stroke = 3\r\n"), 1502);
  EXPECT_EQ(program.block.Bore, 4.5);
  EXPECT_EQ(program.block.Stroke, 3);
  ASSERT_EQ(program.host.messages.size(), 20U);
  EXPECT_EQ(program.host.messages[18].text,
            "Invalid Input Record # - 20   Data --> nonsense 19\r\nFile: engine.prm");
  const Message& rest = program.host.messages[19];
  EXPECT_EQ(rest.title, "VELDOX - Error Message");
  EXPECT_EQ(rest.text,
            "1,481 more records of this file are invalid. The first of them:\r\n"
            "Invalid Input Record # - 21   Data --> nonsense 20\r\nFile: engine.prm");
  EXPECT_THAT(rest.buttons, ElementsAre(Button::OK));
}

TEST(ParameterFileMessages, TorqueRowsThatDoNotRiseAreCountedWithTheBadRecords) {
  Program program;
  std::string rows;
  for (int i = 0; i < 30; ++i) rows += "Acceleration = 3000 400\r\n";
  for (int i = 0; i < 20; ++i) program.host.Answer(Button::OK);
  program.Read(rows);
  EXPECT_THAT(program.host.messages.back().text, StartsWith("10 more records of this file"));
}

TEST(ParameterFileMessages, ALineBeyond64KbEndsTheReading) {
  Program program;
  program.host.Answer(Button::OK);
  program.Read("Bore = 4.5\r\nStroke = " + std::string(100000, '1') + "\r\nRod Length = 6\r\n");
  EXPECT_EQ(program.block.Bore, 4.5);
  EXPECT_EQ(program.block.RodLength, 5.7);
  EXPECT_THAT(program.host.messages[0].text,
              HasSubstr("support@veldox.example\r\nA line of the file is longer than 64 KB.\r\n"
                        "File: engine.prm   Record # 2\r\nData --> Stroke = 111"));
}

// ---------------------------------------------------------------- bad input

/// Answers every box by OK, without limit.
class PatientHost : public TestHost {
 public:
  Button Ask(const Message& message) override {
    ++boxes;
    longestText = std::max(longestText, message.text.size());
    return Button::OK;
  }
  int boxes = 0;
  std::size_t longestText = 0;
};

struct PatientProgram {
  PatientProgram() { context.rules.BuildMessages(); }
  /// Reads; a file that is refused as a whole is a box more.
  void Read(std::string_view bytes, const char* name) {
    try {
      file.ReadBytes(bytes, name);
    } catch (const CommandError& error) {
      EXPECT_EQ(error.kind(), ErrorKind::File);
      host.Ask({Icon::Warning, "", error.message(), {Button::OK}});
    }
  }
  PatientHost host;
  ProgramContext context{host};
  ParameterFile file{context};
};

/// What a reading must leave whatever it was given: a block that can be written, and a
/// file that then reads back without any message.
void ExpectSound(PatientProgram& program) {
  const ParameterBlock& block = program.context.block;
  EXPECT_GE(block.AccelRowCount, 1);
  EXPECT_LE(block.AccelRowCount, kTorqueRows);
  EXPECT_LE(block.RoadMphRowCount, kTorqueRows);
  EXPECT_LE(block.RoadRpmRowCount, kTorqueRows);
  EXPECT_LE(program.host.longestText, 4U * 500U * 2U + 400U);
  std::string bytes;
  ASSERT_NO_THROW(bytes = program.file.Compose().bytes);
  EXPECT_GT(bytes.size(), 10000U);
}

TEST(ParameterFileBadInput, BinaryAndHalfWrittenFiles) {
  Program full;
  FillBlock(full.block);
  const std::string good = full.Bytes();
  std::string everyByte;
  for (int i = 0; i < 1024; ++i) everyByte += static_cast<char>(i);
  const std::vector<std::string> files = {
      "",
      "\n",
      "\r",
      std::string(1, '\0'),
      std::string(5000, '\0'),
      everyByte,
      "Bore = " + std::string(3, '\0'),
      std::string("Bo\0re = 4\n", 10),
      "Notes",
      "Notes =",
      "Acceleration = ",
      "Shift RPM",
      "T Gear",
      "\xEF\xBB\xBF",
      good.substr(0, good.size() / 2),
      good.substr(0, good.size() - 1),
  };
  for (const std::string& bytes : files) {
    PatientProgram program;
    program.Read(bytes, "bad.prm");
    ExpectSound(program);
  }
}

TEST(ParameterFileBadInput, AGoodFileCutAnywhereNeverFails) {
  Program full;
  FillBlock(full.block);
  const std::string good = full.Bytes();
  for (std::size_t length = 0; length < good.size(); length += 97) {
    PatientProgram program;
    program.Read(good.substr(0, length), "cut.prm");
    EXPECT_LE(program.host.boxes, 1) << length;
  }
}

TEST(ParameterFileBadInput, RandomMutationsOfAGoodFile) {
  Program full;
  FillBlock(full.block);
  const std::string good = full.Bytes();
  std::mt19937 random(20240517);
  const auto below = [&](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
  };
  for (int round = 0; round < 300; ++round) {
    std::string bytes = good;
    for (std::size_t changes = 1 + below(30); changes > 0; --changes) {
      const std::size_t place = below(bytes.size());
      switch (below(5)) {
        case 0: bytes[place] = static_cast<char>(below(256)); break;
        case 1: bytes.erase(place, 1 + below(20)); break;
        case 2: bytes.insert(place, 1 + below(5), "=- .\r\n0;"[below(8)]); break;
        case 3: bytes.insert(place, good.substr(below(good.size()), below(60))); break;
        default: bytes.replace(place, 1, "\n"); break;
      }
    }
    PatientProgram program;
    if (round % 2 == 1) program.context.block.DecimalCommaMode = 1;
    program.Read(bytes, "mutated.prm");
    ExpectSound(program);
  }
}

TEST(ParameterFileBadInput, RandomGarbage) {
  std::mt19937 random(4711);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int round = 0; round < 200; ++round) {
    std::string bytes(static_cast<std::size_t>(round) * 37, ' ');
    for (char& c : bytes) c = static_cast<char>(byte(random));
    PatientProgram program;
    program.Read(bytes, "garbage.prm");
    ExpectSound(program);
  }
}

TEST(ParameterFileBadInput, WhatWasReadFromAMutatedFileIsWrittenSoThatItReads) {
  Program full;
  FillBlock(full.block);
  full.block.Notes.clear();
  const std::string good = full.Bytes();
  std::mt19937 random(99);
  std::uniform_int_distribution<std::size_t> place(0, good.size() - 1);
  for (int round = 0; round < 50; ++round) {
    std::string bytes = good;
    for (int i = 0; i < 5; ++i) bytes[place(random)] = "0123456789.-eE"[place(random) % 14];
    PatientProgram program;
    program.Read(bytes, "mutated.prm");
    program.host.boxes = 0;
    // Torque rows are left out: their RPM may have become equal once rounded.
    program.context.block.AccelRowCount = 0;
    const std::string written = program.file.Compose().bytes;
    program.Read(written, "written.prm");
    EXPECT_EQ(program.host.boxes, 0) << round;
  }
}

double SecondsToRead(const std::string& bytes) {
  PatientProgram program;
  const auto start = std::chrono::steady_clock::now();
  program.Read(bytes, "large.prm");
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Far more than a busy machine needs; work that grows with the square would take hours.
TEST(ParameterFileBadInput, LargeFilesTakeLinearTime) {
  constexpr std::size_t kSize = 16U << 20;
  std::string notes = "Notes = start\n";
  while (notes.size() < kSize) notes += "one more line of notes\n";
  std::string torque;
  while (torque.size() < kSize) torque += "Bore = 4.125\n";
  const std::vector<std::string> files = {
      std::string(kSize, 'x'),
      std::string(kSize, ' '),
      std::string(kSize, '\n'),
      "Bore = " + std::string(kSize, '9'),
      "Bore = " + std::string(kSize, ' ') + "4",
      "Acceleration = " + std::string(kSize, ' ') + "4",
      "Shift RPM " + std::string(kSize, '1'),
      "Notes = " + std::string(kSize, 'N'),
      notes,
      torque,
  };
  for (std::size_t i = 0; i < files.size(); ++i) {
    EXPECT_LT(SecondsToRead(files[i]), 20.0) << "file " << i;
  }
}

// ---------------------------------------------------------------- samples

class Samples : public ::testing::TestWithParam<const char*> {};

std::filesystem::path SamplePath(const std::string& name) {
  return std::filesystem::path(VELDOX_SOURCE_DIR) / "samples" / name;
}

TEST_P(Samples, ReadWithoutAMessageAndAreStable) {
  Program program;
  const auto path = SamplePath(GetParam());
  ASSERT_TRUE(std::filesystem::exists(path)) << path;
  const std::string bytes = ReadFile(path);
  EXPECT_EQ(program.file.ReadParameterFile(path), std::ranges::count(bytes, '\n'));
  EXPECT_GE(program.block.AccelRowCount, 10);
  EXPECT_FALSE(program.block.Notes.empty());
  const std::string written = program.Bytes();
  program.Read(written);
  EXPECT_EQ(program.Bytes(), written);
}

TEST_P(Samples, ReadInCommaMode) {
  Program point;
  Program comma;
  comma.UseComma();
  point.file.ReadParameterFile(SamplePath(GetParam()));
  comma.file.ReadParameterFile(SamplePath(GetParam()));
  comma.block.Notes = point.block.Notes;
  ExpectSameValues(point.block, comma.block);
}

TEST_P(Samples, AreConsistentEngines) {
  Program program;
  program.file.ReadParameterFile(SamplePath(GetParam()));
  const ParameterBlock& b = program.block;
  const double sweptVolume = kPi / 4 * b.Bore * b.Bore * b.Stroke;
  EXPECT_NEAR(b.CubicInches, sweptVolume * b.NumberofCylinders, 0.005);
  EXPECT_NEAR(b.RodStrokeRatio, b.RodLength / b.Stroke, 0.00005);
  EXPECT_NEAR(b.BoreStrokeRatio, b.Bore / b.Stroke, 0.00005);
  EXPECT_NEAR(b.StrokeBoreRatio, b.Stroke / b.Bore, 0.00005);
  EXPECT_NEAR(b.AveragePistonSpeed, b.Stroke * b.RPM / 6, 0.05);
  // Half the stroke, rod, piston and what is left above it fill the block.
  EXPECT_NEAR(b.BlockDeckHeight,
              b.Stroke / 2 + b.RodLength + b.PistonCompressionHeight + b.DeckClearance, 0.00005);
  // Volumes above the piston, in cc.
  const double ccPerCubicInch = 1 / 0.061023744;
  const double gasket =
      kPi / 4 * b.HeadGasketBore * b.HeadGasketBore * b.HeadGasket * ccPerCubicInch;
  EXPECT_NEAR(b.HeadGasketCC, gasket, 0.005);
  const double deck = kPi / 4 * b.Bore * b.Bore * b.DeckClearance * ccPerCubicInch;
  const double clearance = b.CombChamberVol + gasket + deck - b.DomeVol + b.RingCC;
  EXPECT_NEAR(b.CompressionRatio, (sweptVolume * ccPerCubicInch + clearance) / clearance, 0.005);
  // Events of the camshaft.
  EXPECT_NEAR(b.IntakeDuration, b.IntakeOpen + 180 + b.IntakeClose, 0.0001);
  EXPECT_NEAR(b.ExhaustDuration, b.ExhaustOpen + 180 + b.ExhaustClose, 0.0001);
  EXPECT_NEAR(b.IntakeCL, b.IntakeDuration / 2 - b.IntakeOpen, 0.0001);
  EXPECT_NEAR(b.ExhaustCL, b.ExhaustDuration / 2 - b.ExhaustClose, 0.0001);
  EXPECT_NEAR(b.LobeSepAngle, (b.IntakeCL + b.ExhaustCL) / 2, 0.0001);
  EXPECT_NEAR(b.ValveLIft, b.CamLIft * b.RockerArmRatio, 0.0001);
  EXPECT_NEAR(b.ExhaustValveLIft, b.ExhaustCamLIft * b.ExhaustRockerArmRatio, 0.0001);
  // The torque at the speed of the greatest power gives that power.
  double power = 0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(b.AccelRowCount); ++i) {
    power = std::max(power, b.AccelTorque[i] * b.AccelRpm[i] / 5252);
    if (i > 0) {
      EXPECT_GT(b.AccelRpm[i], b.AccelRpm[i - 1]);
    }
  }
  EXPECT_NEAR(b.HorsePower, power, 0.05);
  EXPECT_NEAR(b.WeightLeftFront + b.WeightLeftRear + b.WeightRightFront + b.WeightRightRear,
              b.CarWeight, 0.0001);
  EXPECT_NEAR(b.RearGearRatio,
              b.RingGear > 0 ? static_cast<double>(b.RingGear) / b.PinionGear
                             : static_cast<double>(b.RearSprocket) / b.FrontSprocket,
              0.0001);
  EXPECT_NEAR(b.TireRollingRadius, b.TireDiameter / 2, 0.001);
  for (std::size_t gear = 1; gear < b.TGear.size() && b.TGear[gear] > 0; ++gear) {
    EXPECT_LT(b.TGear[gear], b.TGear[gear - 1]);
    EXPECT_GT(b.ShiftRPM[gear], b.LaunchRPM);
  }
}

INSTANTIATE_TEST_SUITE_P(ParameterFile, Samples,
                         ::testing::Values("small_block_drag.prm", "motorcycle.prm",
                                           "road_race_four.prm"),
                         [](const auto& sample) {
                           std::string name = sample.param;
                           name = name.substr(0, name.find('.'));
                           std::erase(name, '_');
                           return name;
                         });

}  // namespace
}  // namespace veldox
