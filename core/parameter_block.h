#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace veldox {

/// One point of a flow bench table: valve lift in inches and flow in CFM.
struct LiftPair {
  double Lift = 0;
  double Flow = 0;
};

/// One stage of nitrous. Stages 1 to 7 start by gear: gear, horsepower, RPM at the
/// start, percent at the start, RPM of the full shot. Stages 8 to 14 run by time:
/// horsepower, start time, percent at the start, time of the full shot, stop time.
using NitrousStage = std::array<double, 5>;

/// Rows of the acceleration and road tables.
inline constexpr int kTorqueRows = 961;
using TorqueColumn = std::array<double, kTorqueRows>;

/// A torque or road column that starts with the eleven rows of a new block.
constexpr TorqueColumn StartColumn(const std::array<double, 11>& rows) {
  TorqueColumn column{};
  for (std::size_t i = 0; i < rows.size(); ++i) column[i] = rows[i];
  return column;
}

/// Last index of the lift tables. Records stand at 1 to 3600 at most, and a zero behind them.
inline constexpr int kLastLiftIndex = 3601;
/// The most records of a lift file.
inline constexpr int kMostLiftRecords = kLastLiftIndex - 1;
/// Lifts by index; index 0 is the start of the lobe.
using LiftColumn = std::array<double, kLastLiftIndex + 1>;

/// Degrees between the records of a lift file.
struct CamSteps {
  double General = 0;
  double Intake = 0;
  double Exhaust = 0;
};

/// The numbers that all screens share. A member is named after its key in the parameter
/// file; lengths are inches, volumes cubic inches or cc as the screens say, weights pounds,
/// pressures psi or inches of mercury, temperatures degrees Fahrenheit, speeds MPH, as long
/// as no screen is switched to Metric.
struct SharedNumbers {
  // Engine
  double Bore{4.0};
  double Stroke{3.25};
  double RodLength{5.7};
  double CubicInches{326.72564};
  double RPM{6500};
  double BoreIncrease{0};
  double CompressionRatio{13.59405};
  double NewCompressionRatio{0};
  std::int16_t NumberofCylinders{8};
  double RodStrokeRatio{0};
  double BoreStrokeRatio{0};
  double StrokeBoreRatio{0};
  double AveragePistonSpeed{0};
  double BlockDeckHeight{0};
  double PistonCompressionHeight{0};
  std::int16_t CubicinOption{0};
  double PistonWeight{0};
  double RodWeight{0};
  double SmallEndRodWeight{0};
  double HorsePower{555};
  double HorsePowerIncrease{0};
  double CrankDegrees{0};
  double PistonTravel{0};
  double WristPinOffset{0};
  double Torque{444};
  double BMEP{0};
  double JournalDiameter{0};
  std::int16_t Show3Decimals{0};
  std::int16_t AbsoluteValue{0};

  // CR
  double DeckClearance{0};
  double HeadGasket{0};
  double HeadGasketBore{0};
  double HeadGasketCC{0};
  double CombChamberVol{0};
  double DomeVol{0};
  double TotalVol{0};
  double DepthFirstRing{0};
  double TopLandDiameter{0};
  double RingCC{0};
  double PistonDepth{0};
  double CCsPoured{0};
  double DishDepth{0};
  double DishBore{0};
  double DishCC{0};
  double DishRadius{0};

  // ET/MPH/HP
  double MPH{192.453};
  double MPH8{0};
  double MPH60{0};
  double ET{0};
  double ET8{0};
  double ET60{0};
  double HookFactor{0};
  double CarWeight{2350};

  // Blowers
  double MaxCompressionRatio{0};
  double EffectiveCompressionRatio{0};
  double BlowerPressure{0};
  double BlowerEfficiency{0};
  double BlowerGear{0};
  double BlowerRatio{0};
  double BlowerRPM{0};
  double CrankGear{0};
  double ICInTemp{0};
  double ICOutTemp{0};
  double ICPressureLoss{0};
  double BlowerDensityRatio{0};
  double PressureRatio{0};
  std::int16_t NumberofTurbos{0};
  std::int16_t BlowerOption{0};
  std::int16_t Rotary2Stroke{0};
  std::int16_t BlowerGraph{0};
  std::int16_t UseVERPMTable{0};
  std::array<double, 54> VERPM{};
  double BSAC{0};
  std::int16_t UseBSACRPMTable{0};
  std::array<double, 54> BSACRPM{};
  double GraphXMax{0};
  double GraphYMax{0};
  double MaxRPM{8000};

  // Camshafts
  double IntakeOpen{0};
  double IntakeClose{95.5};
  double IntakeDuration{0};
  double IntakeCL{0};
  double ExhaustOpen{0};
  double ExhaustClose{0};
  double ExhaustDuration{320};
  double ExhaustCL{0};
  double LobeSepAngle{0};
  double AdvanceRetard{0};
  double CamLIft{0};
  double ValveLIft{0};
  double RockerArmRatio{1.5};
  double ExhaustCamLIft{0};
  double ExhaustValveLIft{0};
  double ExhaustRockerArmRatio{1.5};

  // Air Flow / Fuel / Exhaust
  double OldDepression{0};
  double NewDepression{0};
  double OldAirFlow{0};
  double BSFC{0};
  double MassAirFlow{0};
  std::int16_t NumberInjectors{0};
  double DutyCycle{0};
  double PulseWidth{0};
  double LbsHour{0};
  double NewLbsHour{0};
  double OldFuelPressure{0};
  double NewFuelPressure{0};
  double InjectorDeadTime{0};
  double FuelPumpFlow{0};
  double IntakeFlow{0};
  double ExhaustFlow{0};
  double IntakeExhaustRatio{0};
  double RPMMaxHorsePower{0};
  double AirFuelRatio{0};
  double VolumetricEfficiency{0.85};
  double FuelFlow{0};
  double CarbSize{0};
  std::int16_t ReportOption8{0};
  double PeakTorqueRPM{5900};
  double PortDiameter{2.25};
  double TubeLength{0};
  double TubeDiameter{0};
  double AffectedRPM{0};
  double CollectorLength{0};
  double CollectorDiameter{0};
  double AirFilterDiameter{0};
  std::int16_t AirFuelOption2{0};
  double IntakeValveSize{0};
  double IntakeValveStemDiameter{0};
  double IntakeBowlCSAPercent{0};
  std::int16_t AirFuelOption1{0};
  double ExhaustValveSize{0};
  double ExhaustValveStemDiameter{0};
  double ExhaustBowlCSAPercent{0};
  std::array<LiftPair, 16> IntakeFlowTable{};
  std::array<LiftPair, 16> ExhaustFlowTable{};
  std::array<LiftPair, 16> IntakeLiftTable{};
  std::array<LiftPair, 16> ExhaustLiftTable{};
  std::int16_t LambdaOption{0};
  double DegreeTDC{0};
  double UserDC{0};
  std::int16_t NumberofIntakeValves{0};
  std::int16_t NumberofExhaustValves{0};
  double TestDepression{0};
  double GraphMaxLift{0};
  double UserVelocityfps{0};
  double CalculateEveryLift{0};
  double ScaleSize{0};
  double ScaleSize2{0};
  double IntakeValveAngle{0};
  double ExhaustValveAngle{0};
  double SeatAngle{0};
  double SeatWidth{0};
  double ExhSeatAngle{0};
  double ExhSeatWidth{0};
  double IntakeMCSA{0};
  double ExhaustMCSA{0};
  double AFAdvanceRetard{0};
  double ExhAdvanceRetard{0};
  double AFLobeSepAngle{0};
  double ValvetoPistonCl{0};
  double HFactor{0};
  std::int16_t AirFuelOption5{0};
  std::int16_t ShowDots{0};
  std::int16_t ShowLargeGrouping{0};
  std::int16_t Circle{0};
  std::int16_t Line{0};
  std::int16_t DOHC{0};
  std::int16_t SingleGrouping{0};
  double IntakeLash{0.024};
  double IntakeOpenBTDC{0};
  double ExhaustLash{0.03};
  double ExhaustOpenBBDC{0};
  double MachValveDiameter{0};
  double MachValveLift{0};
  double MachNumber{0};

  // Weather
  double BarometricPressure{29.92};
  double BarometricPressureNew{0};
  double Temperature{59};
  double TemperatureNew{0};
  double Humidity{5};
  double HumidityNew{0};
  double Altitude{0};
  double AltitudeNew{0};
  double CrankPulley{0};
  double AccessoryPulley{0};
  double NewCrankPulley{0};
  double NewAccessoryPulley{0};
  double JetSize{0};
  double MeteringRodSize{0};

  // Compression Gauge
  double DynamicCompressionRatio{7.432};
  double CompressionGauge{0};
  double CrankAngleCG{0};
  double BaseExponent{0};

  // Gears
  std::int16_t FrontSprocket{0};
  std::int16_t RearSprocket{0};
  double RearGearRatio{4.1};
  std::int16_t RingGear{0};
  std::int16_t PinionGear{0};
  double NewRearGearRatio{0};
  double TireDiameter{24};
  double NewTireDiameter{0};
  double TireWidth{0};
  double WheelDiameter{0};
  double AspectRatio{0};

  // Trans Gear Ratios
  std::array<double, 18> TGear{3.25, 2.25, 1.25, 1.0, 0.87};
  double TrackSize{0};
  double TrackTime{0};
  double TurnRadius{0};
  double SkidPadGs{1.54321};
  double LongAcelGs{0};

  // Springs / Torsion Bars / Sway Bars
  double SpringWireDiameter{0};
  double NumberActiveCoils{0};
  double NumberCoils{0};
  double DiameterCoils{0};
  double SpringRate{0};
  double ModulusofRigidity{0};
  double ModulusofTorsion{0};
  double TorsionBarDiameter{0};
  double TorsionBarIntDiameter{0};
  double TorsionBarLength{0};
  double TorsionArmLength{0};
  double TorsionBarRate{0};
  double SwayBarOutDiameter{0};
  double SwayBarIntDiameter{0};
  double SwayBarCenterLength{0};
  double SwayBarArmLength{0};
  double EffectiveArmLength{0};
  double NewSwayBarOutDiameter{0};
  double MainLeafLength{0};
  double MainLeafWidth{0};
  double MainLeafThickness{0};
  double NumberLeafs{0};

  // Chassis
  double WeightLeftFront{0};
  double WeightLeftRear{0};
  double WeightRightFront{0};
  double WeightRightRear{0};
  double PercentWeightLeftFront{0};
  double PercentWeightLeftRear{0};
  double PercentWeightRightFront{0};
  double PercentWeightRightRear{0};
  double CrossWeight{0};
  double PercentCrossWeight{0};
  double WeightFront{0};
  double WeightRear{0};
  double WeightLeft{0};
  double WeightRight{0};
  double PercentWeightFront{0};
  double PercentWeightRear{0};
  double PercentWeightLeft{0};
  double PercentWeightRight{0};
  double WheelBase{0};
  double RaisedWeightFront{0};
  double HeightFrontWheelHub{0};
  double HeightRearWheel{0};
  double HorizontalCG{0};
  double VerticalCG{0};
  double TrackWidth{0};
  double WeightTransfer{0};
  double Ballast{0};
  double BallastX{0};
  double BallastY{0};
  double UnsprungWeightLeftFront{0};
  double UnsprungWeightLeftRear{0};
  double UnsprungWeightRightFront{0};
  double UnsprungWeightRightRear{0};
  double LeftFrontSpringRate{0};
  double RightFrontSpringRate{0};
  double LeftRearSpringRate{0};
  double RightRearSpringRate{0};
  double FrontSwayBarRate{0};
  double RearSwayBarRate{0};
  double LeftFrontSpringMove{0};
  double RightFrontSpringMove{0};
  double LeftRearSpringMove{0};
  double RightRearSpringMove{0};
  double LeftFrontSwayBarMove{0};
  double RightFrontSwayBarMove{0};
  double LeftRearSwayBarMove{0};
  double RightRearSwayBarMove{0};
  double FrontTrackWidth{0};
  double RearTrackWidth{0};
  double FrontRollCenterHeight{0};
  double RearRollCenterHeight{0};
  // What the chassis screen has found of them; no file holds it.
  double LateralCG{0};
  double SprungWeight{0};
  double SprungHorizontalCG{0};
  double SprungLateralCG{0};
  double RollAxisHeight{0};
  double RollAxisToCG{0};
  double RollMoment{0};          ///< foot pounds
  double FrontRollStiffness{0};  ///< foot pounds a degree
  double RearRollStiffness{0};
  double RollAngle{0};  ///< degrees

  // Curve and degree ranges
  std::int16_t TypeCurve{2};
  double StartDegrees{0};
  double EndDegrees{0};
  double EveryXDegrees{0};
  double StartSeconds{0};
  double EndSeconds{0};
  double EveryXSeconds{0};

  // Acceleration / Top Speed
  double TireRollingResistance{0};
  double CoefficientofDrag{0.34};
  double FrontalArea{19.4};
  double VehWidth{0};
  double TrackBP{29.92126};
  double ShiftTorque{0};
  double VehHeight{0};
  double PercentDriveTrainPowerLoss{0};
  double PercentRearEndPowerLoss{0};
  double TireRollingRadius{12};
  double DynoCorrection{0};
  double LaunchRPM{0};
  std::array<double, 18> ShiftRPM{};
  std::array<double, 18> ShiftTime{};
  std::array<double, 18> PowerLoss{};
  std::array<double, 18> TireGrowth{};
  std::int16_t TransGear{0};
  double RollOut{0};
  double CoefficientofMu{0};
  double ConverterStallSpeed{0};
  double TorqueMultiplier{0};
  double WindSpeed{0};
  double WindDirection{0};
  std::int16_t AutomaticTrans{0};
  double ConverterSlippage{3.25};
  double PrimaryDrive{2};
  std::int16_t UsePrimaryDrive{0};
  std::int16_t HoodScoop{0};
  std::int16_t RPMAcceRate{0};

  // Acceleration / Top Speed - CVT Constant Velocity Trans
  double CVTRPM{0};
  double CVTPowerLoss{0};

  // Acceleration / Top Speed - Nitrous Data
  std::array<NitrousStage, 14> NitrousMS{};
  std::int16_t Nitrous{0};
  std::int16_t NitrousRWHP{0};

  // Acceleration / Top Speed - Throttle Stop
  std::int16_t ThrottleStop{0};
  double ThrottleStopRPM{0};
  double ThrottleStopTime{0};

  // Acceleration / Top Speed - Graphing and Dyno Sheet / Text Report
  double DynoBP{0};
  double DynoVP{0};
  double DynoTemp{0};
  double GraphDynoXHigh{0};
  double GraphDynoYHigh{0};
  double GraphDynoYLow{0};
  std::int16_t CoastGs{0};
  std::int16_t CompactTextReport{0};

  // 2 Stroke Exhaust
  double ExhaustPortWidth{0};
  double ExhaustPortHeight{0};
  double ExhaustGasTemp{0};
  double SpeedofSound{0};
  double PowerKW{0};
  double KonstantK0{0};
  double KonstantK1{0};
  double KonstantK2{0};
  double HornCoeff{0};
  double Angel1{0};
  double Angel2{0};
  double Length3{0};
  double Length7{0};
  double Diameter1{0};
  double Diameter3{0};

  // 2 stroke Port Timing Form
  double TwoSExhaustDistance{0};
  double TwoSBoostDistance{0};
  double TwoSTransferDistance{0};
  double TwoSExhaustDegrees{0};
  double TwoSBoostDegrees{0};
  double TwoSTransferDegrees{0};
  double TwoSExhaustPortArea{0};
  double TwoSBoostPortArea{0};
  double TwoSTransferPortArea{0};
  double SquishRatio{0};
  double SquishClearance{0};

  // Nitrous
  double FuelPressure{0};
  double NitrousPressure{0};
  double NitrousJetSize{0};
  std::int16_t NumberNitrousJets{0};
  std::int16_t NitrousOption{0};
  double SpecificGravityGas{0};
  double SpecificGravityMethanol{0};
  double SpecificGravityEthanol{0};
  double SpecificGravityE85{0};
  double FuelJetSize{0};
  std::int16_t NumberFuelJets{0};
  double FuelJetSizeS2{0};
  std::int16_t NumberFuelJetsS2{0};

  // Cam Generation
  std::array<double, 25> CamGenL{};
  std::array<double, 24> CamGenD{};
  std::array<double, 24> CamGenO{};
  std::array<double, 24> CamGenC{};
  std::array<double, 24> CamGenAsymO{};
  std::array<double, 24> CamGenAsymC{};
  double MERatio{0};
  double AsymmetricalZeroDurat{0};
  double TappetBucketDiameter{0};
  double TappetMaxVelocity{0};
  std::int16_t Asymmetrical{0};
  std::int16_t OutputS96{0};
  std::int16_t LashRampOption{0};
  std::int16_t GenerationMethodOption{0};

  // User Selected Graph Options
  std::int16_t GraphHeads{0};
  std::int16_t GraphLogo{0};
  std::int16_t MoveGridLines{0};
  std::int16_t GraphLineColor{0};
  std::int16_t GridSwitch{1};
  std::int16_t LargeLines{0};
  std::int16_t CaptionTop{0};
  std::int16_t CaptionSide{0};
  std::int16_t GraphFontSize{0};
  std::int16_t CompanyNameLocation{0};
  std::int16_t SemiGridCrossLines{0};
  std::int16_t SemiGridBoxLines{0};
  std::int32_t GridColor{16777215};
  std::int16_t SolidSwitch{1};
  std::int16_t GraphLineWidth{0};
  std::int32_t GraphFontColor{0};
  std::int32_t GraphBackGroundColor{0};

  // Graph size and drawing
  std::int16_t CustomGraphWidth{6};
  std::int16_t CustomGraphHeight{6};
  std::int16_t CustomGridLineCountx{10};
  std::int16_t CustomGridLineCounty{10};
  std::int32_t DrawLineColor{99999};
  std::int16_t DrawLineWidth{1};
  std::int16_t DrawSwitch{0};

  // User Selected GUI Options
  std::int32_t QuitBackGroundColor{0};
  std::int32_t BackGroundColor{0};
  std::int16_t OptionCheckBoxStyle{1};
  std::int16_t LargeScreen{0};
  std::int16_t FullScreen{0};
  std::int16_t EntryBoxFontSize{0};
  std::int16_t EntryBoxFontBold{0};
  std::int16_t EntryBoxFontItalic{0};
  std::int16_t EntryBoxAlignment{2};
  std::int16_t EntryBoxStyle{1};
  std::int16_t LabelBoxFontSize{0};
  std::int16_t LabelBoxFontBold{0};
  std::int16_t LabelBoxFontItalic{0};
  std::int32_t LabelBoxColor{0};
  std::int16_t CommandButtonFontSize{0};
  std::int16_t CommandButtonFontBold{0};
  std::int16_t CommandButtonFontItalic{0};
  std::int16_t HelpBoxFontSize{0};
  std::int16_t HelpBoxFontBold{0};
  std::int16_t HelpBoxFontItalic{0};
  std::int32_t HelpBoxFontColor{0};
  std::int32_t HelpBackGroundColor{0};
  std::int16_t MetricMenuOn{0};
  std::int16_t PrintHeads{0};

  // Torque and road tables, rows 0 to count - 1
  std::int16_t AccelRowCount{11};
  std::int16_t RoadMphRowCount{11};
  std::int16_t RoadRpmRowCount{11};
  TorqueColumn AccelRpm =
      StartColumn({5000, 5500, 6000, 6500, 7000, 7500, 8000, 8500, 9000, 9500, 10000});
  TorqueColumn AccelTorque = StartColumn({700, 720, 750, 780, 810, 840, 820, 815, 780, 737, 685});
  TorqueColumn AccelFuel{};
  TorqueColumn AccelBsfc{};
  TorqueColumn AccelAirFuel{};
  TorqueColumn AccelScfm{};
  TorqueColumn AccelBsac{};
  TorqueColumn RoadMph =
      StartColumn({21.51, 23.47, 25.67, 28.11, 30, 32.27, 34.22, 36.67, 39.11, 40.09, 42.05});
  TorqueColumn RoadMphTime = StartColumn(
      {1.6829, 1.8356, 2.0061, 2.192, 2.3341, 2.5083, 2.6635, 2.8677, 3.0899, 3.1848, 3.3879});
  TorqueColumn RoadRpm =
      StartColumn({2200, 2400, 2625, 2875, 3068.3, 3300, 3500, 3750, 4000, 4100, 4300});
  TorqueColumn RoadRpmTime = StartColumn(
      {1.6829, 1.8356, 2.0061, 2.192, 2.3341, 2.5083, 2.6635, 2.8677, 3.0899, 3.1848, 3.3879});

  // Lift tables, filled from cam files (cam/lift_file.h), in the units of the file
  LiftColumn IntakeCamLift{};    ///< at the lobe
  LiftColumn IntakeValveLift{};  ///< times the rocker ratio less the lash, not below 0
  LiftColumn ExhaustCamLift{};
  LiftColumn ExhaustValveLift{};
  std::int16_t IntakeLiftCount{0};   ///< last index in use, the closing zero's; 0 for no table
  std::int16_t ExhaustLiftCount{0};  ///< the same of the exhaust
  CamSteps CamStepDegrees;
  /// 1: of a Cam Doctor file. Its rows begin at index 0, the closing zero stands one before the
  /// counts, and its steps are cam degrees.
  std::int16_t LiftsOfCamDoctor{0};

  // Values without a record of their own in the file
  double RodLength2{6.2};
  double BalancerDiameter{6.75};  ///< inches
  double Overlap{0};              ///< crank degrees
  double PistonArea{0};

  // Switches and work values of the program
  std::int16_t DecimalCommaMode{0};
  std::int16_t MetricSwitch{0};  ///< 1 while a screen's "Metric" box is ticked
  double MetricFactor{1};        ///< factor of the last toggle: 25.4 or 1 / 25.4
  std::int16_t FormsCleared{0};  ///< 1 from Clear on: openers no longer copy values
};

/// The texts that all screens share.
struct SharedTexts {
  std::string SmoothHPGraph;
  std::string EntryBoxFontName;
  std::string LabelBoxFontName;
  std::string CommandButtonFontName;
  std::string HelpBoxFontName;

  // Of the lift tables
  std::string CamFileHeader;    ///< comment lines that a conversion writes again
  std::string CurrentFileName;  ///< path of the lift file
  std::string CamFileTitle;     ///< its name without the folder

  std::string Notes;

  // The company block of printed pages
  std::string CompanyName;
  std::string CompanyAddress;
  std::string CompanyCity;
  std::string CompanyPhone;
  std::string CompanyWebSite;

  std::string ParameterFileName;
};

/// Where the user is and what is to be saved: what undoing a step does not put back.
struct ProgramMarks {
  std::int16_t DataChanged{0};        ///< 1 when something was changed since the last Read or Write
  std::int16_t OptionFieldActive{0};  ///< 1 while an option field of the main window has the focus
  std::int16_t FieldMouseDown{0};     ///< 1 between mouse press and release on a field
  std::int16_t ExitInProgress{0};
  std::int16_t ExitFromWindowClose{0};  ///< kWindowCloseMarker when the window's close box asked
  std::string CurrentScreenTag;
};

/// The one store of values that all screens share. What changes in it is found by comparing:
/// the numbers as plain memory, the texts one by one (`core/block_mirror.h`).
struct ParameterBlock : SharedNumbers, SharedTexts, ProgramMarks {};

/// One number of a table by its row and column. @throws std::out_of_range beyond the bounds
template <auto Member>
double& TableNumber(ParameterBlock& block, int row, int column) {
  auto& element = (block.*Member).at(static_cast<std::size_t>(row));
  using Element = std::remove_reference_t<decltype(element)>;
  if constexpr (std::is_same_v<Element, double>) {
    return element;
  } else if constexpr (std::is_same_v<Element, LiftPair>) {
    return column == 0 ? element.Lift : element.Flow;
  } else {
    return element.at(static_cast<std::size_t>(column));
  }
}

}  // namespace veldox
