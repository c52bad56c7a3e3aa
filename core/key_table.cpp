#include "core/key_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "core/appearance.h"
#include "core/numbers.h"
#include "core/text.h"

namespace veldox {

namespace {

using P = ParameterBlock;

constexpr KeyRow Comment(std::string_view line) {
  return {line, KeyForm::Comment, {}, {}};
}

constexpr KeyRow Key(std::string_view key, KeyForm form, KeyMember member, std::string_view owner) {
  return {key, form, member, owner};
}

constexpr KeyRow OnIs(std::int16_t value, KeyRow row) {
  row.onValue = value;
  return row;
}

constexpr KeyRow BlankBehindEquals(KeyRow row) {
  row.blankBehindEquals = true;
  return row;
}

template <double (*Nearest)(double)>
constexpr KeyRow Within(KeyRow row) {
  row.nearest = Nearest;
  return row;
}

template <auto Member>
constexpr KeyRow Table(std::string_view key, TableForm form, int firstRow, std::string_view owner) {
  using Array = std::remove_reference_t<decltype(std::declval<P&>().*Member)>;
  using Element = typename Array::value_type;
  KeyRow row{key, KeyForm::Table, {}, owner, form, &TableNumber<Member>, firstRow};
  row.rows = static_cast<int>(std::tuple_size_v<Array>);
  if constexpr (std::is_same_v<Element, LiftPair>) row.rowWidth = 2;
  if constexpr (std::is_same_v<Element, NitrousStage>) row.rowWidth = 5;
  return row;
}

constexpr KeyRow ColumnOf(std::string_view table, KeyRow row) {
  row.columnOf = table;
  row.rowWidth = 1;
  return row;
}

// clang-format off
constexpr KeyRow kTable[] = {
    Key("Bore", KeyForm::Number, &P::Bore, "Form1.Text1"),
    Key("Stroke", KeyForm::Number, &P::Stroke, "Form1.Text3"),
    Key("Rod Length", KeyForm::Number, &P::RodLength, "Form1.Text4"),
    Key("Cubic Inches", KeyForm::Number, &P::CubicInches, "Form1.Text6"),
    Key("RPM", KeyForm::Integer, &P::RPM, "Form1.Text5"),
    Key("Bore Increase", KeyForm::NumberOrField, &P::BoreIncrease, "Form1.Text26"),
    Key("Compression Ratio", KeyForm::Number, &P::CompressionRatio, "Form1.Text22"),
    Key("New Compression Ratio", KeyForm::FieldText, &P::NewCompressionRatio, "Form1CR.Text29"),
    Key("Number of Cylinders", KeyForm::Integer, &P::NumberofCylinders, "Form1.Text2"),
    Key("Rod Stroke Ratio", KeyForm::NumberOrField, &P::RodStrokeRatio, "Form1.Text12"),
    Key("Bore Stroke Ratio", KeyForm::NumberOrField, &P::BoreStrokeRatio, "Form1.Text11"),
    Key("Stroke Bore Ratio", KeyForm::NumberOrField, &P::StrokeBoreRatio, "Form1.Text16"),
    Key("Average Piston Speed", KeyForm::NumberOrField, &P::AveragePistonSpeed, "Form1.Text13"),
    Key("Block Deck Height", KeyForm::NumberOrField, &P::BlockDeckHeight, "Form1.Text8"),
    Key("Piston Compression Height", KeyForm::NumberOrField, &P::PistonCompressionHeight, "Form1.Text9"),
    Key("Cubicin Option", KeyForm::Integer, &P::CubicinOption, "Form1.Option1"),
    Key("Piston Weight", KeyForm::NumberOrField, &P::PistonWeight, "Form1.Text30"),
    Key("Rod Weight", KeyForm::NumberOrField, &P::RodWeight, "Form1.Text31"),
    Key("Small End Rod Weight", KeyForm::NumberOrField, &P::SmallEndRodWeight, "Form1.Text14"),
    Key("Horse Power", KeyForm::Number, &P::HorsePower, "Form1.Text27"),
    Key("Horse Power Increase", KeyForm::Number, &P::HorsePowerIncrease, "Form1.Text28"),
    Key("Crank Degrees", KeyForm::NumberOrField, &P::CrankDegrees, "Form1.Text47"),
    Key("Piston Travel", KeyForm::NumberOrField, &P::PistonTravel, "Form1.Text48"),
    Key("Wrist Pin Offset", KeyForm::NumberOrField, &P::WristPinOffset, "Form1.Text32"),
    Key("Torque", KeyForm::Number, &P::Torque, "Form1"),
    Key("BMEP", KeyForm::Number, &P::BMEP, "Form1"),
    Key("Journal Diameter", KeyForm::NumberOrField, &P::JournalDiameter, "Form1.Text33"),
    Key("Show 3 Decimals", KeyForm::YesNo, &P::Show3Decimals, "Form1.Check3"),
    Key("Absolute Value", KeyForm::YesNo, &P::AbsoluteValue, "Form1.Check4"),
    Comment(";   Data for CR"),
    Key("Deck Clearance", KeyForm::NumberOrField, &P::DeckClearance, "Form1CR.Text10"),
    Key("Head Gasket", KeyForm::NumberOrField, &P::HeadGasket, "Form1CR.Text14"),
    Key("Head Gasket Bore", KeyForm::NumberOrField, &P::HeadGasketBore, "Form1CR.Text18"),
    Key("Head Gasket CC", KeyForm::NumberOrField, &P::HeadGasketCC, "Form1CR.Text42"),
    Key("Comb Chamber Vol", KeyForm::NumberOrField, &P::CombChamberVol, "Form1CR.Text15"),
    Key("Dome Vol", KeyForm::NumberOrField, &P::DomeVol, "Form1CR.Text16"),
    Key("Total Vol", KeyForm::NumberOrField, &P::TotalVol, "Form1CR.Text21"),
    Key("Depth First Ring", KeyForm::NumberOrField, &P::DepthFirstRing, "Form1CR.Text19"),
    Key("Top Land Diameter", KeyForm::NumberOrField, &P::TopLandDiameter, "Form1CR.Text20"),
    Key("Ring CC", KeyForm::NumberOrField, &P::RingCC, "Form1CR.Text43"),
    Key("Piston Depth", KeyForm::NumberOrField, &P::PistonDepth, "Form1CR.Text22"),
    Key("CCs Poured", KeyForm::NumberOrField, &P::CCsPoured, "Form1CR.Text23"),
    Key("Dish Depth", KeyForm::NumberOrField, &P::DishDepth, "Form1CR.Text6"),
    Key("Dish Bore", KeyForm::NumberOrField, &P::DishBore, "Form1CR.Text5"),
    Key("Dish CC", KeyForm::NumberOrField, &P::DishCC, "Form1CR.Text7"),
    Key("Dish Radius", KeyForm::NumberOrField, &P::DishRadius, "Form1CR.Text8"),
    Comment(";   Data for ET/MPH/HP"),
    Key("MPH", KeyForm::Number, &P::MPH, "Form3.Text3"),
    Key("MPH8", KeyForm::NumberOrField, &P::MPH8, "Form3.Text9"),
    Key("MPH60", KeyForm::NumberOrField, &P::MPH60, "Form3.Text20"),
    Key("ET", KeyForm::NumberOrField, &P::ET, "Form3.Text1"),
    Key("ET8", KeyForm::NumberOrField, &P::ET8, "Form3.Text8"),
    Key("ET60", KeyForm::NumberOrField, &P::ET60, "Form3.Text19"),
    Key("Hook Factor", KeyForm::NumberOrField, &P::HookFactor, "Form3.Text18"),
    Key("Car Weight", KeyForm::Number, &P::CarWeight, "Form3.Text2"),
    Comment(";   Data for Blowers"),
    Key("Max Compression Ratio", KeyForm::FieldText, &P::MaxCompressionRatio, "Form14.Text5"),
    Key("Effective Compression Ratio", KeyForm::NumberOrField, &P::EffectiveCompressionRatio, "Form14.Text6"),
    Key("Blower Pressure", KeyForm::Number, &P::BlowerPressure, "Form14.Text3"),
    Key("Blower Efficiency", KeyForm::FieldText, &P::BlowerEfficiency, "Form14.Text16"),
    Key("Blower Gear", KeyForm::NumberOrField, &P::BlowerGear, "Form14.Text11"),
    Key("Blower Ratio", KeyForm::NumberOrField, &P::BlowerRatio, "Form14.Text12"),
    Key("Blower RPM", KeyForm::IntegerOrField, &P::BlowerRPM, "Form14.Text13"),
    Key("Crank Gear", KeyForm::NumberOrField, &P::CrankGear, "Form14.Text10"),
    Key("IC In Temp", KeyForm::NumberOrField, &P::ICInTemp, "Form14.Text18"),
    Key("IC Out Temp", KeyForm::NumberOrField, &P::ICOutTemp, "Form14.Text19"),
    BlankBehindEquals(Key("IC Pressure Loss", KeyForm::NumberOrField, &P::ICPressureLoss, "Form14.Text20")),
    Key("Blower Density Ratio", KeyForm::NumberOrField, &P::BlowerDensityRatio, "Form14.Text23"),
    Key("Pressure Ratio", KeyForm::NumberOrField, &P::PressureRatio, "Form14.Text17"),
    Key("Number of Turbos", KeyForm::IntegerOrField, &P::NumberofTurbos, "Form14.Text25"),
    Key("Blower Option", KeyForm::Integer, &P::BlowerOption, "Form14.Option1"),
    Key("Rotary 2-Stroke", KeyForm::YesNo, &P::Rotary2Stroke, "Form14.Check2"),
    Key("Blower Graph", KeyForm::YesNo, &P::BlowerGraph, "Form14.Check3"),
    Key("Use VE RPM Table", KeyForm::YesNo, &P::UseVERPMTable, "Form14.Check4"),
    Table<&P::VERPM>("VE RPM", TableForm::Fields, 0, "Form14"),
    Key("BSAC", KeyForm::FieldText, &P::BSAC, "Form14.Text30"),
    Key("Use BSAC RPM Table", KeyForm::YesNo, &P::UseBSACRPMTable, "Form14.Check5"),
    Table<&P::BSACRPM>("BSAC RPM", TableForm::Fields, 0, "Form14"),
    Key("Graph X Max", KeyForm::FieldText, &P::GraphXMax, "Form14.Text31"),
    Key("Graph Y Max", KeyForm::FieldText, &P::GraphYMax, "Form14.Text32"),
    Key("Max RPM", KeyForm::Integer, &P::MaxRPM, "Form14.Text33"),
    Comment(";   Data for Camshafts"),
    Key("Intake Open", KeyForm::NumberOrField, &P::IntakeOpen, "Form2.Text1"),
    Key("Intake Close", KeyForm::Number, &P::IntakeClose, "Form2.Text2"),
    Key("Intake Duration", KeyForm::NumberOrField, &P::IntakeDuration, "Form2.Text6"),
    Key("Intake CL", KeyForm::NumberOrField, &P::IntakeCL, "Form2.Text5"),
    Key("Exhaust Open", KeyForm::NumberOrField, &P::ExhaustOpen, "Form2.Text3"),
    Key("Exhaust Close", KeyForm::NumberOrField, &P::ExhaustClose, "Form2.Text4"),
    Key("Exhaust Duration", KeyForm::NumberOrField, &P::ExhaustDuration, "Form2.Text9"),
    Key("Exhaust CL", KeyForm::NumberOrField, &P::ExhaustCL, "Form2.Text8"),
    Key("Lobe Sep Angle", KeyForm::NumberOrField, &P::LobeSepAngle, "Form2.Text10"),
    Key("Advance Retard", KeyForm::NumberOrField, &P::AdvanceRetard, "Form2.Text11"),
    Key("Cam LIft", KeyForm::NumberOrField, &P::CamLIft, "Form2.Text12"),
    Key("Valve LIft", KeyForm::NumberOrField, &P::ValveLIft, "Form2.Text13"),
    Key("Rocker Arm Ratio", KeyForm::NumberOrField, &P::RockerArmRatio, "Form2.Text14"),
    Key("Exhaust Cam LIft", KeyForm::NumberOrField, &P::ExhaustCamLIft, "Form2.Text20"),
    Key("Exhaust Valve LIft", KeyForm::NumberOrField, &P::ExhaustValveLIft, "Form2.Text21"),
    Key("Exhaust Rocker Arm Ratio", KeyForm::NumberOrField, &P::ExhaustRockerArmRatio, "Form2.Text22"),
    Comment(";   Data for Air Flow / Fuel / Exhaust"),
    Key("Old Depression", KeyForm::NumberOrField, &P::OldDepression, "Form4.Text15"),
    Key("New Depression", KeyForm::NumberOrField, &P::NewDepression, "Form4.Text16"),
    Key("Old AirFlow", KeyForm::NumberOrField, &P::OldAirFlow, "Form4.Text17"),
    Key("BSFC", KeyForm::NumberOrField, &P::BSFC, "Form4.Text10"),
    Key("Mass Air Flow", KeyForm::NumberOrField, &P::MassAirFlow, "Form4.Text81"),
    Key("Number Injectors", KeyForm::IntegerOrField, &P::NumberInjectors, "Form4.Text14"),
    Key("Duty Cycle", KeyForm::NumberOrField, &P::DutyCycle, "Form4.Text12"),
    Key("Pulse Width", KeyForm::NumberOrField, &P::PulseWidth, "Form4.Text41"),
    Key("Lbs Hour", KeyForm::NumberOrField, &P::LbsHour, "Form4.Text6"),
    Key("New Lbs Hour", KeyForm::NumberOrField, &P::NewLbsHour, "Form4.Text13"),
    Key("Old Fuel Pressure", KeyForm::NumberOrField, &P::OldFuelPressure, "Form4.Text8"),
    Key("New Fuel Pressure", KeyForm::NumberOrField, &P::NewFuelPressure, "Form4.Text9"),
    Key("Injector Dead Time", KeyForm::NumberOrField, &P::InjectorDeadTime, "Form4.Text82"),
    Key("Fuel Pump Flow", KeyForm::NumberOrField, &P::FuelPumpFlow, "Form4.Text28"),
    Key("Intake Flow", KeyForm::NumberOrField, &P::IntakeFlow, "Form4.Text19"),
    Key("Exhaust Flow", KeyForm::NumberOrField, &P::ExhaustFlow, "Form4.Text20"),
    Key("Intake Exhaust Ratio", KeyForm::NumberOrField, &P::IntakeExhaustRatio, "Form4.Text21"),
    Key("RPM Max Horse Power", KeyForm::IntegerOrField, &P::RPMMaxHorsePower, "Form4.Text27"),
    Key("Air Fuel Ratio", KeyForm::NumberOrField, &P::AirFuelRatio, "Form4.Text30"),
    Key("Volumetric Efficiency", KeyForm::Number, &P::VolumetricEfficiency, "Form4.Text11"),
    Key("Fuel Flow", KeyForm::NumberOrField, &P::FuelFlow, "Form4.Text31"),
    Key("Carb Size", KeyForm::NumberOrField, &P::CarbSize, "Form4.Text5"),
    Key("Report Option8", KeyForm::Integer, &P::ReportOption8, "Form4.Option8"),
    Key("Peak Torque RPM", KeyForm::IntegerOrField, &P::PeakTorqueRPM, "Form4.Text32"),
    Key("Port Diameter", KeyForm::NumberOrField, &P::PortDiameter, "Form4.Text33"),
    Key("Tube Length", KeyForm::NumberOrField, &P::TubeLength, "Form4.Text22"),
    Key("Tube Diameter", KeyForm::NumberOrField, &P::TubeDiameter, "Form4.Text23"),
    Key("Affected RPM", KeyForm::IntegerOrField, &P::AffectedRPM, "Form4.Text24"),
    Key("Collector Length", KeyForm::NumberOrField, &P::CollectorLength, "Form4.Text25"),
    Key("Collector Diameter", KeyForm::NumberOrField, &P::CollectorDiameter, "Form4.Text26"),
    Key("Air Filter Diameter", KeyForm::NumberOrField, &P::AirFilterDiameter, "Form4.Text35"),
    Key("AirFuel Option2", KeyForm::Integer, &P::AirFuelOption2, "Form4.Option2"),
    Key("Intake Valve Size", KeyForm::FieldText, &P::IntakeValveSize, "Form4.Text42"),
    Key("Intake Valve Stem Diameter", KeyForm::FieldText, &P::IntakeValveStemDiameter, "Form4.Text43"),
    Key("Intake Bowl CSA Percent", KeyForm::FieldText, &P::IntakeBowlCSAPercent, "Form4.Text44"),
    Key("AirFuel Option1", KeyForm::Integer, &P::AirFuelOption1, "Form4.Option1"),
    Table<&P::IntakeFlowTable>("IntakeFlow", TableForm::Pairs, 0, "Form4"),
    Key("Exhaust Valve Size", KeyForm::FieldText, &P::ExhaustValveSize, "Form4.Text45"),
    Key("Exhaust Valve Stem Diameter", KeyForm::FieldText, &P::ExhaustValveStemDiameter, "Form4.Text46"),
    Key("Exhaust Bowl CSA Percent", KeyForm::FieldText, &P::ExhaustBowlCSAPercent, "Form4.Text47"),
    Table<&P::ExhaustFlowTable>("ExhaustFlow", TableForm::Pairs, 0, "Form4"),
    Table<&P::IntakeLiftTable>("IntakeLift", TableForm::Pairs, 0, "Form4"),
    Table<&P::ExhaustLiftTable>("ExhaustLift", TableForm::Pairs, 0, "Form4"),
    Key("Lambda Option", KeyForm::Integer, &P::LambdaOption, "Form4.Option7"),
    Key("Degree TDC", KeyForm::FieldText, &P::DegreeTDC, "Form4.Text64"),
    Key("User DC", KeyForm::FieldText, &P::UserDC, "Form4.Text61"),
    Key("Number of Intake Valves", KeyForm::IntegerOrField, &P::NumberofIntakeValves, "Form4.Text62"),
    Key("Number of Exhaust Valves", KeyForm::IntegerOrField, &P::NumberofExhaustValves, "Form4.Text63"),
    Key("Test Depression", KeyForm::FieldText, &P::TestDepression, "Form4.Text70"),
    Key("Graph Max Lift", KeyForm::FieldText, &P::GraphMaxLift, "Form4.Text67"),
    Key("User Velocity fps", KeyForm::FieldText, &P::UserVelocityfps, "Form4.Text83"),
    Key("Calculate Every x.xx lift", KeyForm::FieldText, &P::CalculateEveryLift, "Form4.Text68"),
    Key("Scale Size", KeyForm::FieldText, &P::ScaleSize, "Form4.Text65"),
    Key("Scale Size 2", KeyForm::FieldText, &P::ScaleSize2, "Form4.Text66"),
    Key("Intake Valve Angle", KeyForm::FieldText, &P::IntakeValveAngle, "Form4.Text72"),
    Key("Exhaust Valve Angle", KeyForm::FieldText, &P::ExhaustValveAngle, "Form4.Text73"),
    Key("Seat Angle", KeyForm::FieldText, &P::SeatAngle, "Form4.Text120"),
    Key("Seat Width", KeyForm::FieldText, &P::SeatWidth, "Form4.Text121"),
    Key("Exh Seat Angle", KeyForm::FieldText, &P::ExhSeatAngle, "Form4.Text122"),
    Key("Exh Seat Width", KeyForm::FieldText, &P::ExhSeatWidth, "Form4.Text123"),
    Key("Intake MCSA", KeyForm::FieldText, &P::IntakeMCSA, "Form4.Text89"),
    Key("Exhaust MCSA", KeyForm::FieldText, &P::ExhaustMCSA, "Form4.Text90"),
    Key("A-F Advance Retard", KeyForm::FieldText, &P::AFAdvanceRetard, "Form4.Text74"),
    Key("Exh Advance Retard", KeyForm::FieldText, &P::ExhAdvanceRetard, "Form4.Text75"),
    Key("A-F Lobe Sep Angle", KeyForm::FieldText, &P::AFLobeSepAngle, "Form4.Text76"),
    Key("Valve to Piston Cl", KeyForm::FieldText, &P::ValvetoPistonCl, "Form4.Text77"),
    ColumnOf("IntakeLift", Table<&P::IntakeLiftTable>("Lift Table", TableForm::Fields, 0, "Form4")),
    Key("H Factor", KeyForm::FieldText, &P::HFactor, "Form4.Text114"),
    Key("AirFuel Option5", KeyForm::Integer, &P::AirFuelOption5, "Form4.Option5"),
    Key("Show Dots", KeyForm::YesNo, &P::ShowDots, "Form4.Check1(0)"),
    Key("Show Large Grouping", KeyForm::YesNo, &P::ShowLargeGrouping, "Form4.Check1(1)"),
    Key("Circle", KeyForm::YesNo, &P::Circle, "Form4.Check1(2)"),
    Key("Line", KeyForm::YesNo, &P::Line, "Form4.Check1(3)"),
    Key("DOHC", KeyForm::YesNo, &P::DOHC, "Form4.Check1(5)"),
    Key("Single Grouping", KeyForm::YesNo, &P::SingleGrouping, "Form4.Check1(7)"),
    Key("Intake Lash", KeyForm::NumberOrField, &P::IntakeLash, "Form2.Text23"),
    Key("Intake Open BTDC", KeyForm::FieldText, &P::IntakeOpenBTDC, "Form4.Text85"),
    Key("Exhaust Lash", KeyForm::NumberOrField, &P::ExhaustLash, "Form2.Text24"),
    Key("Exhaust Open BBDC", KeyForm::FieldText, &P::ExhaustOpenBBDC, "Form4.Text87"),
    Key("Mach Valve Diameter", KeyForm::NumberOrField, &P::MachValveDiameter, "Form4.Text54"),
    Key("Mach Valve Lift", KeyForm::NumberOrField, &P::MachValveLift, "Form4.Text55"),
    Key("Mach Number", KeyForm::NumberOrField, &P::MachNumber, "Form4.Text56"),
    Comment(";   Data for Weather"),
    Key("Barometric Pressure", KeyForm::Number, &P::BarometricPressure, "Form7.Text10"),
    Key("Barometric Pressure New", KeyForm::NumberOrField, &P::BarometricPressureNew, "Form7.Text1"),
    Key("Temperature", KeyForm::Number, &P::Temperature, "Form7.Text11"),
    Key("Temperature New", KeyForm::NumberOrField, &P::TemperatureNew, "Form7.Text3"),
    Key("Humidity", KeyForm::Number, &P::Humidity, "Form7.Text12"),
    Key("Humidity New", KeyForm::NumberOrField, &P::HumidityNew, "Form7.Text4"),
    Key("Altitude", KeyForm::NumberOrField, &P::Altitude, "Form7.Text8"),
    Key("Altitude New", KeyForm::NumberOrField, &P::AltitudeNew, "Form7.Text9"),
    Key("Crank Pulley", KeyForm::NumberOrField, &P::CrankPulley, "Form7.Text26"),
    Key("Accessory Pulley", KeyForm::NumberOrField, &P::AccessoryPulley, "Form7.Text27"),
    Key("New Crank Pulley", KeyForm::NumberOrField, &P::NewCrankPulley, "Form7.Text28"),
    Key("New Accessory Pulley", KeyForm::NumberOrField, &P::NewAccessoryPulley, "Form7.Text29"),
    Key("Jet Size", KeyForm::NumberOrField, &P::JetSize, "Form7.Text19"),
    Key("Metering Rod Size", KeyForm::NumberOrField, &P::MeteringRodSize, "Form7.Text21"),
    Comment(";   Data for Compression Gauge"),
    Key("Dynamic Compression Ratio", KeyForm::Number, &P::DynamicCompressionRatio, "Form12.Text45"),
    Key("Compression Gauge", KeyForm::NumberOrField, &P::CompressionGauge, "Form12.Text35"),
    Key("Crank Angle CG", KeyForm::Number, &P::CrankAngleCG, "Form12.Text10"),
    Key("Base Exponent", KeyForm::Number, &P::BaseExponent, "Form12.Combo1"),
    Comment(";   Data for Gears"),
    Key("Front Sprocket", KeyForm::IntegerOrField, &P::FrontSprocket, "Form5.Text60"),
    Key("Rear Sprocket", KeyForm::IntegerOrField, &P::RearSprocket, "Form5.Text61"),
    Key("Rear Gear Ratio", KeyForm::Number, &P::RearGearRatio, "Form5.Text18"),
    Key("Ring Gear", KeyForm::IntegerOrField, &P::RingGear, "Form5.Text29"),
    Key("Pinion Gear", KeyForm::IntegerOrField, &P::PinionGear, "Form5.Text30"),
    Key("New Rear Gear Ratio", KeyForm::NumberOrField, &P::NewRearGearRatio, "Form5.Text34"),
    Key("Tire Diameter", KeyForm::Number, &P::TireDiameter, "Form5.Text21"),
    Key("New Tire Diameter", KeyForm::NumberOrField, &P::NewTireDiameter, "Form5.Text35"),
    Key("Tire Width", KeyForm::NumberOrField, &P::TireWidth, "Form5.Text28"),
    Key("Wheel Diameter", KeyForm::NumberOrField, &P::WheelDiameter, "Form5.Text36"),
    Key("Aspect Ratio", KeyForm::NumberOrField, &P::AspectRatio, "Form5.Text37"),
    Comment(";   Trans Gear Ratios"),
    Table<&P::TGear>("T Gear", TableForm::GearIndexed, 0, "Form5"),
    Key("Track Size", KeyForm::NumberOrField, &P::TrackSize, "Form5.Text31"),
    Key("Track Time", KeyForm::NumberOrField, &P::TrackTime, "Form5.Text32"),
    Key("Turn Radius", KeyForm::NumberOrField, &P::TurnRadius, "Form5.Text38"),
    Key("Skid Pad Gs", KeyForm::Number, &P::SkidPadGs, "Form5.Text33"),
    Key("Long Acel Gs", KeyForm::NumberOrField, &P::LongAcelGs, "Form13.Text50"),
    Comment(";   Data for Springs / Torsion Bars / Sway Bars"),
    Key("Spring Wire Diameter", KeyForm::NumberOrField, &P::SpringWireDiameter, "Form16.Text1"),
    Key("Number Active Coils", KeyForm::NumberOrField, &P::NumberActiveCoils, "Form16.Text2"),
    Key("Number Coils", KeyForm::NumberOrField, &P::NumberCoils, "Form16.Text22"),
    Key("Diameter Coils", KeyForm::NumberOrField, &P::DiameterCoils, "Form16.Text3"),
    Key("Spring Rate", KeyForm::NumberOrField, &P::SpringRate, "Form16.Text4"),
    Key("Modulus of Rigidity", KeyForm::IntegerOrField, &P::ModulusofRigidity, "Form16.Text18"),
    Key("Modulus of Torsion", KeyForm::IntegerOrField, &P::ModulusofTorsion, "Form16.Text26"),
    Key("Torsion Bar Diameter", KeyForm::NumberOrField, &P::TorsionBarDiameter, "Form16.Text5"),
    Key("Torsion Bar Int Diameter", KeyForm::NumberOrField, &P::TorsionBarIntDiameter, "Form16.Text25"),
    Key("Torsion Bar Length", KeyForm::NumberOrField, &P::TorsionBarLength, "Form16.Text6"),
    Key("Torsion Arm Length", KeyForm::NumberOrField, &P::TorsionArmLength, "Form16.Text8"),
    Key("Torsion Bar Rate", KeyForm::NumberOrField, &P::TorsionBarRate, "Form16.Text9"),
    Key("Sway Bar Out Diameter", KeyForm::NumberOrField, &P::SwayBarOutDiameter, "Form16.Text10"),
    Key("Sway Bar Int Diameter", KeyForm::NumberOrField, &P::SwayBarIntDiameter, "Form16.Text11"),
    Key("Sway Bar Center Length", KeyForm::NumberOrField, &P::SwayBarCenterLength, "Form16.Text12"),
    Key("Sway Bar Arm Length", KeyForm::NumberOrField, &P::SwayBarArmLength, "Form16.Text13"),
    Key("Effective Arm Length", KeyForm::NumberOrField, &P::EffectiveArmLength, "Form16.Text14"),
    Key("New Sway Bar Out Diameter", KeyForm::NumberOrField, &P::NewSwayBarOutDiameter, "Form16.Text16"),
    Key("Main Leaf Length", KeyForm::NumberOrField, &P::MainLeafLength, "Form16.Text33"),
    Key("Main Leaf Width", KeyForm::NumberOrField, &P::MainLeafWidth, "Form16.Text34"),
    Key("Main Leaf Thickness", KeyForm::NumberOrField, &P::MainLeafThickness, "Form16.Text35"),
    Key("Number Leafs", KeyForm::NumberOrField, &P::NumberLeafs, "Form16.Text36"),
    Comment(";   Data for Chassis"),
    Key("Weight Left Front", KeyForm::NumberOrField, &P::WeightLeftFront, "Form6.Text1"),
    Key("Weight Left Rear", KeyForm::NumberOrField, &P::WeightLeftRear, "Form6.Text3"),
    Key("Weight Right Front", KeyForm::NumberOrField, &P::WeightRightFront, "Form6.Text2"),
    Key("Weight Right Rear", KeyForm::NumberOrField, &P::WeightRightRear, "Form6.Text4"),
    Key("Percent Weight Left Front", KeyForm::NumberOrField, &P::PercentWeightLeftFront, "Form6.Text5"),
    Key("Percent Weight Left Rear", KeyForm::NumberOrField, &P::PercentWeightLeftRear, "Form6.Text7"),
    Key("Percent Weight Right Front", KeyForm::NumberOrField, &P::PercentWeightRightFront, "Form6.Text6"),
    Key("Percent Weight Right Rear", KeyForm::NumberOrField, &P::PercentWeightRightRear, "Form6.Text8"),
    Key("Cross Weight", KeyForm::NumberOrField, &P::CrossWeight, "Form6.Text18"),
    Key("Percent Cross Weight", KeyForm::NumberOrField, &P::PercentCrossWeight, "Form6.Text19"),
    Key("Weight Front", KeyForm::NumberOrField, &P::WeightFront, "Form6.Text10"),
    Key("Weight Rear", KeyForm::NumberOrField, &P::WeightRear, "Form6.Text11"),
    Key("Weight Left", KeyForm::NumberOrField, &P::WeightLeft, "Form6.Text12"),
    Key("Weight Right", KeyForm::NumberOrField, &P::WeightRight, "Form6.Text13"),
    Key("Percent Weight Front", KeyForm::NumberOrField, &P::PercentWeightFront, "Form6.Text14"),
    Key("Percent Weight Rear", KeyForm::NumberOrField, &P::PercentWeightRear, "Form6.Text15"),
    Key("Percent Weight Left", KeyForm::NumberOrField, &P::PercentWeightLeft, "Form6.Text16"),
    Key("Percent Weight Right", KeyForm::NumberOrField, &P::PercentWeightRight, "Form6.Text17"),
    Key("Wheel Base", KeyForm::NumberOrField, &P::WheelBase, "Form6.Text20"),
    Key("Raised Weight Front", KeyForm::NumberOrField, &P::RaisedWeightFront, "Form6.Text22"),
    Key("Height Front Wheel Hub", KeyForm::NumberOrField, &P::HeightFrontWheelHub, "Form6.Text23"),
    Key("Height Rear Wheel", KeyForm::NumberOrField, &P::HeightRearWheel, "Form6.Text24"),
    Key("Horizontal CG", KeyForm::NumberOrField, &P::HorizontalCG, "Form6.Text25"),
    Key("Vertical CG", KeyForm::NumberOrField, &P::VerticalCG, "Form6.Text26"),
    Key("Track Width", KeyForm::NumberOrField, &P::TrackWidth, "Form6.Text21"),
    Key("Weight Transfer", KeyForm::NumberOrField, &P::WeightTransfer, "Form6.Text37"),
    Key("Ballast", KeyForm::NumberOrField, &P::Ballast, "Form6.Text39"),
    Key("Ballast X", KeyForm::NumberOrField, &P::BallastX, "Form6.Text40"),
    Key("Ballast Y", KeyForm::NumberOrField, &P::BallastY, "Form6.Text41"),
    Key("Unsprung Weight Left Front", KeyForm::NumberOrField, &P::UnsprungWeightLeftFront, "Form6.Text27"),
    Key("Unsprung Weight Left Rear", KeyForm::NumberOrField, &P::UnsprungWeightLeftRear, "Form6.Text29"),
    Key("Unsprung Weight Right Front", KeyForm::NumberOrField, &P::UnsprungWeightRightFront, "Form6.Text28"),
    Key("Unsprung Weight Right Rear", KeyForm::NumberOrField, &P::UnsprungWeightRightRear, "Form6.Text30"),
    Key("Left Front Spring Rate", KeyForm::NumberOrField, &P::LeftFrontSpringRate, "Form6.Text83"),
    Key("Right Front Spring Rate", KeyForm::NumberOrField, &P::RightFrontSpringRate, "Form6.Text84"),
    Key("Left Rear Spring Rate", KeyForm::NumberOrField, &P::LeftRearSpringRate, "Form6.Text85"),
    Key("Right Rear Spring Rate", KeyForm::NumberOrField, &P::RightRearSpringRate, "Form6.Text86"),
    Key("Front Sway Bar Rate", KeyForm::NumberOrField, &P::FrontSwayBarRate, "Form6.Text111"),
    Key("Rear Sway Bar Rate", KeyForm::NumberOrField, &P::RearSwayBarRate, "Form6.Text112"),
    Key("Left Front Spring Move", KeyForm::NumberOrField, &P::LeftFrontSpringMove, "Form6.Text95"),
    Key("Right Front Spring Move", KeyForm::NumberOrField, &P::RightFrontSpringMove, "Form6.Text96"),
    Key("Left Rear Spring Move", KeyForm::NumberOrField, &P::LeftRearSpringMove, "Form6.Text97"),
    Key("Right Rear Spring Move", KeyForm::NumberOrField, &P::RightRearSpringMove, "Form6.Text98"),
    Key("Left Front Sway Bar Move", KeyForm::NumberOrField, &P::LeftFrontSwayBarMove, "Form6.Text103"),
    Key("Right Front Sway Bar Move", KeyForm::NumberOrField, &P::RightFrontSwayBarMove, "Form6.Text104"),
    Key("Left Rear Sway Bar Move", KeyForm::NumberOrField, &P::LeftRearSwayBarMove, "Form6.Text105"),
    Key("Right Rear Sway Bar Move", KeyForm::NumberOrField, &P::RightRearSwayBarMove, "Form6.Text106"),
    Key("Front Track Width", KeyForm::NumberOrField, &P::FrontTrackWidth, "Form6.Text113"),
    Key("Rear Track Width", KeyForm::NumberOrField, &P::RearTrackWidth, "Form6.Text114"),
    Key("Front Roll Center Height", KeyForm::NumberOrField, &P::FrontRollCenterHeight, "Form6.Text33"),
    Key("Rear Roll Center Height", KeyForm::NumberOrField, &P::RearRollCenterHeight, "Form6.Text34"),
    Comment(";   --"),
    Key("Type Curve", KeyForm::IntegerOrField, &P::TypeCurve, "Form3.Text16"),
    Key("Start Degrees", KeyForm::NumberOrField, &P::StartDegrees, "Form1.Text40"),
    Key("End Degrees", KeyForm::NumberOrField, &P::EndDegrees, "Form1.Text41"),
    Key("Every X Degrees", KeyForm::NumberOrField, &P::EveryXDegrees, "Form1.Text39"),
    Key("Start Seconds", KeyForm::NumberOrField, &P::StartSeconds, "Form5.Text42"),
    Key("End Seconds", KeyForm::NumberOrField, &P::EndSeconds, "Form5.Text43"),
    Key("Every X Seconds", KeyForm::NumberOrField, &P::EveryXSeconds, "Form5.Text44"),
    Comment(";   Acceleration / Top Speed"),
    Key("Tire Rolling Resistance", KeyForm::Number, &P::TireRollingResistance, "Form13.Text66"),
    Key("Coefficient of Drag", KeyForm::NumberOrField, &P::CoefficientofDrag, "Form13.Text64"),
    Key("Frontal Area", KeyForm::NumberOrField, &P::FrontalArea, "Form13.Text65"),
    Key("Veh Width", KeyForm::NumberOrField, &P::VehWidth, "Form13.Text10"),
    Key("Track BP", KeyForm::Number, &P::TrackBP, "Form13.Text73"),
    Key("Shift Torque", KeyForm::Number, &P::ShiftTorque, "Form13.Text72"),
    Key("Veh Height", KeyForm::NumberOrField, &P::VehHeight, "Form13.Text11"),
    Key("Percent Drive Train Power Loss", KeyForm::NumberOrField, &P::PercentDriveTrainPowerLoss, "Form13.Text47"),
    Key("Percent Rear End Power Loss", KeyForm::NumberOrField, &P::PercentRearEndPowerLoss, "Form13.Text28"),
    Key("Tire Rolling Radius", KeyForm::NumberOrField, &P::TireRollingRadius, "Form13.Text49"),
    Key("Dyno Correction", KeyForm::NumberOrField, &P::DynoCorrection, "Form13.Text67"),
    Key("Launch RPM", KeyForm::IntegerOrField, &P::LaunchRPM, "Form13.Text69"),
    Table<&P::ShiftRPM>("Shift RPM", TableForm::GearChangeRpm, 1, "Form13"),
    Table<&P::ShiftTime>("Shift Time", TableForm::GearChangeTime, 1, "Form13"),
    Table<&P::PowerLoss>("Power Loss", TableForm::GearIndexed, 0, "Form13"),
    Table<&P::TireGrowth>("Tire Growth", TableForm::GearIndexed, 0, "Form13"),
    Key("Trans Gear", KeyForm::IntegerOrField, &P::TransGear, "Form13.Text12"),
    Key("RollOut", KeyForm::NumberOrField, &P::RollOut, "Form13.Text29"),
    Key("Coefficient of Mu", KeyForm::NumberOrField, &P::CoefficientofMu, "Form13.Text42"),
    Key("Converter Stall Speed", KeyForm::IntegerOrField, &P::ConverterStallSpeed, "Form13.Text30"),
    Key("Torque Multiplier", KeyForm::NumberOrField, &P::TorqueMultiplier, "Form13.Text31"),
    Key("Wind Speed", KeyForm::FieldText, &P::WindSpeed, "Form13.Text37"),
    Key("Wind Direction", KeyForm::FieldText, &P::WindDirection, "Form13.Text38"),
    Key("Automatic Trans", KeyForm::YesNo, &P::AutomaticTrans, "Form13.Check1"),
    Key("Converter Slippage", KeyForm::NumberOrField, &P::ConverterSlippage, "Form13.Text41"),
    Key("Primary Drive", KeyForm::NumberOrField, &P::PrimaryDrive, "Form13.Text62"),
    Key("Use Primary Drive", KeyForm::YesNo, &P::UsePrimaryDrive, "Form13.Check2"),
    Key("Hood Scoop", KeyForm::YesNo, &P::HoodScoop, "Form13.Check4"),
    Key("RPM Acce Rate", KeyForm::YesNo, &P::RPMAcceRate, "Form13.Check7"),
    Comment(";   Acceleration / Top Speed - CVT Constant Velocity Trans"),
    Key("CVT RPM", KeyForm::FieldText, &P::CVTRPM, "Form13.Text77"),
    Key("CVT Power Loss", KeyForm::FieldText, &P::CVTPowerLoss, "Form13.Text78"),
    Comment(";   Acceleration / Top Speed - Nitrous Data"),
    Table<&P::NitrousMS>("Nitrous MS", TableForm::NitrousStages, 0, "Form13"),
    Key("Nitrous", KeyForm::YesNo, &P::Nitrous, "Form13.Check3"),
    Key("Nitrous RWHP", KeyForm::YesNo, &P::NitrousRWHP, "Form13.Check5"),
    Comment(";   Acceleration / Top Speed - Throttle Stop"),
    Key("Throttle Stop", KeyForm::YesNo, &P::ThrottleStop, "Form13.Check6"),
    Key("Throttle Stop RPM", KeyForm::Integer, &P::ThrottleStopRPM, "Form13.Text79"),
    Key("Throttle Stop Time", KeyForm::FieldText, &P::ThrottleStopTime, "Form13.Text80"),
    Comment(";   Acceleration / Top Speed - Graphing and Dyno Sheet / Text Report"),
    Key("Dyno BP", KeyForm::Number, &P::DynoBP, "Form13.Text83"),
    Key("Dyno VP", KeyForm::Number, &P::DynoVP, "Form13.Text84"),
    Key("Dyno Temp", KeyForm::Number, &P::DynoTemp, "Form13.Text85"),
    Key("Smooth HP Graph", KeyForm::FieldLiteral, &P::SmoothHPGraph, "Form13.Text40"),
    Key("Graph Dyno X High", KeyForm::FieldText, &P::GraphDynoXHigh, "Form13.Text7"),
    Key("Graph Dyno Y High", KeyForm::FieldText, &P::GraphDynoYHigh, "Form13.Text39"),
    Key("Graph Dyno Y Low", KeyForm::FieldText, &P::GraphDynoYLow, "Form13.Text3"),
    Key("Coast Gs", KeyForm::YesNo, &P::CoastGs, "Form13.Check8"),
    Key("Compact Text Report", KeyForm::YesNo, &P::CompactTextReport, "Form13.Check9"),
    Comment(";   2 Stroke Exhaust"),
    Key("Exhaust Port Width", KeyForm::NumberOrField, &P::ExhaustPortWidth, "Form11.Text3"),
    Key("Exhaust Port Height", KeyForm::NumberOrField, &P::ExhaustPortHeight, "Form11.Text4"),
    Key("Exhaust Gas Temp", KeyForm::NumberOrField, &P::ExhaustGasTemp, "Form11.Text15"),
    Key("Speed of Sound", KeyForm::NumberOrField, &P::SpeedofSound, "Form11.Text7"),
    Key("Power KW", KeyForm::NumberOrField, &P::PowerKW, "Form11.Text6"),
    Key("Konstant K0", KeyForm::NumberOrField, &P::KonstantK0, "Form11.Text26"),
    Key("Konstant K1", KeyForm::NumberOrField, &P::KonstantK1, "Form11.Text28"),
    Key("Konstant K2", KeyForm::NumberOrField, &P::KonstantK2, "Form11.Text29"),
    Key("Horn Coeff", KeyForm::NumberOrField, &P::HornCoeff, "Form11.Text14"),
    Key("Angel 1", KeyForm::NumberOrField, &P::Angel1, "Form11.Text30"),
    Key("Angel 2", KeyForm::NumberOrField, &P::Angel2, "Form11.Text31"),
    Key("Length 3", KeyForm::NumberOrField, &P::Length3, "Form11.Text34"),
    Key("Length 7", KeyForm::NumberOrField, &P::Length7, "Form11.Text35"),
    Key("Diameter 1", KeyForm::NumberOrField, &P::Diameter1, "Form11.Text32"),
    Key("Diameter 3", KeyForm::NumberOrField, &P::Diameter3, "Form11.Text33"),
    Comment(";   2 stroke Port Timing Form"),
    Key("2 S Exhaust Distance", KeyForm::NumberOrField, &P::TwoSExhaustDistance, "Form18.Text48"),
    Key("2 S Boost Distance", KeyForm::NumberOrField, &P::TwoSBoostDistance, "Form18.Text8"),
    Key("2 S Transfer Distance", KeyForm::NumberOrField, &P::TwoSTransferDistance, "Form18.Text13"),
    Key("2 S Exhaust Degrees", KeyForm::NumberOrField, &P::TwoSExhaustDegrees, "Form18.Text47"),
    Key("2 S Boost Degrees", KeyForm::NumberOrField, &P::TwoSBoostDegrees, "Form18.Text9"),
    Key("2 S Transfer Degrees", KeyForm::NumberOrField, &P::TwoSTransferDegrees, "Form18.Text14"),
    Key("2 S Exhaust Port Area", KeyForm::FieldText, &P::TwoSExhaustPortArea, "Form18.Text23"),
    Key("2 S Boost Port Area", KeyForm::FieldText, &P::TwoSBoostPortArea, "Form18.Text24"),
    Key("2 S Transfer Port Area", KeyForm::FieldText, &P::TwoSTransferPortArea, "Form18.Text25"),
    Key("Squish Ratio", KeyForm::FieldText, &P::SquishRatio, "Form18.Text37"),
    Key("Squish Clearance", KeyForm::FieldText, &P::SquishClearance, "Form18.Text38"),
    Comment(";   Nitrous"),
    Key("Fuel Pressure", KeyForm::NumberOrField, &P::FuelPressure, "Form17.Text1"),
    Key("Nitrous Pressure", KeyForm::NumberOrField, &P::NitrousPressure, "Form17.Text2"),
    Key("Nitrous Jet Size", KeyForm::NumberOrField, &P::NitrousJetSize, "Form17.Text3"),
    Key("Number Nitrous Jets", KeyForm::IntegerOrField, &P::NumberNitrousJets, "Form17.Text4"),
    Key("Nitrous Option", KeyForm::Integer, &P::NitrousOption, "Form17.Option1"),
    Key("Specific Gravity Gas", KeyForm::NumberOrField, &P::SpecificGravityGas, "Form17.Text6"),
    Key("Specific Gravity Methanol", KeyForm::NumberOrField, &P::SpecificGravityMethanol, "Form17.Text12"),
    Key("Specific Gravity Ethanol", KeyForm::NumberOrField, &P::SpecificGravityEthanol, "Form17.Text13"),
    Key("Specific Gravity E85", KeyForm::NumberOrField, &P::SpecificGravityE85, "Form17.Text15"),
    Key("Fuel Jet Size", KeyForm::NumberOrField, &P::FuelJetSize, "Form17.Text19"),
    Key("Number Fuel Jets", KeyForm::IntegerOrField, &P::NumberFuelJets, "Form17.Text7"),
    Key("Fuel Jet Size S2", KeyForm::NumberOrField, &P::FuelJetSizeS2, "Form17.Text10"),
    Key("Number Fuel Jets S2", KeyForm::IntegerOrField, &P::NumberFuelJetsS2, "Form17.Text9"),
    Comment(";   Cam Generation"),
    Table<&P::CamGenL>("Cam Gen L", TableForm::Smart, 0, "Form33"),
    Table<&P::CamGenD>("Cam Gen D", TableForm::Smart, 0, "Form33"),
    Table<&P::CamGenO>("Cam Gen O", TableForm::Smart, 0, "Form33"),
    Table<&P::CamGenC>("Cam Gen C", TableForm::Smart, 0, "Form33"),
    Table<&P::CamGenAsymO>("Cam Gen Asym O", TableForm::Smart, 0, "Form33"),
    Table<&P::CamGenAsymC>("Cam Gen Asym C", TableForm::Smart, 0, "Form33"),
    Key("M E Ratio", KeyForm::FieldText, &P::MERatio, "Form33.Text21"),
    Key("Asymmetrical Zero Durat", KeyForm::FieldText, &P::AsymmetricalZeroDurat, "Form33.Text20"),
    Key("Tappet Bucket Diameter", KeyForm::FieldText, &P::TappetBucketDiameter, "Form33.Text5"),
    Key("Tappet Max Velocity", KeyForm::FieldText, &P::TappetMaxVelocity, "Form33.Text1"),
    Key("Asymmetrical", KeyForm::YesNo, &P::Asymmetrical, "Form33.Check2"),
    Key("Output S96", KeyForm::YesNo, &P::OutputS96, "Form33.Check3"),
    Key("Lash Ramp Option", KeyForm::Integer, &P::LashRampOption, "Form33.Option1"),
    Key("Generation Method Option", KeyForm::Integer, &P::GenerationMethodOption, "Form33.Option2"),
    Comment(";   User Selected Graph Options"),
    Key("Graph Heads", KeyForm::YesNo, &P::GraphHeads, "Main.Graph_Head"),
    Key("Graph Logo", KeyForm::YesNo, &P::GraphLogo, "Main.Graph_Logo"),
    Key("Move Grid Lines", KeyForm::YesNo, &P::MoveGridLines, "Main.Graph_Move_Grid"),
    Key("Graph Line Color", KeyForm::YesNo, &P::GraphLineColor, "Main.Graph_Line_Color"),
    Key("Grid Switch", KeyForm::Integer, &P::GridSwitch, "Main.Option5"),
    Key("Large Lines", KeyForm::YesNo, &P::LargeLines, "Main.Check1"),
    Key("Caption Top", KeyForm::Integer, &P::CaptionTop, "Main.Option1"),
    Key("Caption Side", KeyForm::Integer, &P::CaptionSide, "Main.Option2"),
    Key("Graph Font Size", KeyForm::Integer, &P::GraphFontSize, "Main.Option3"),
    Key("Company Name Location", KeyForm::Integer, &P::CompanyNameLocation, "Main.Option4"),
    Key("Semi Grid Cross Lines", KeyForm::YesNo, &P::SemiGridCrossLines, "Main.Check3"),
    Key("Semi Grid Box Lines", KeyForm::YesNo, &P::SemiGridBoxLines, "Main.Check4"),
    Key("Grid Color", KeyForm::Integer, &P::GridColor, "Main.Grid_Color"),
    Key("Solid Switch", KeyForm::Integer, &P::SolidSwitch, "Main.Solid_Line"),
    Key("Graph Line Width", KeyForm::Integer, &P::GraphLineWidth, "Main.Text23"),
    Key("Graph Font Color", KeyForm::Integer, &P::GraphFontColor, "Main.FontColor"),
    Key("Graph BackGround Color", KeyForm::Integer, &P::GraphBackGroundColor, "Main.BGColor"),
    Comment(";   The following 2 parameters must be in THIS Order"),
    Key("Custom Graph Width", KeyForm::Integer, &P::CustomGraphWidth, "Main.Text14"),
    Key("Custom Graph Height", KeyForm::Integer, &P::CustomGraphHeight, "Main.Text24"),
    Key("Custom Grid Line Count x", KeyForm::Integer, &P::CustomGridLineCountx, "Main.Text19"),
    Key("Custom Grid Line Count y", KeyForm::Integer, &P::CustomGridLineCounty, "Main.Text20"),
    Key("Draw Line Color", KeyForm::Integer, &P::DrawLineColor, "Main.DrawLn"),
    Key("Draw Line Width", KeyForm::Integer, &P::DrawLineWidth, "Main.Text21"),
    Key("Draw Switch", KeyForm::YesNo, &P::DrawSwitch, "Form8.Check1"),
    Comment(";   User Selected GUI Options -- Keep This Order"),
    Within<&NearestColor>(Key("Quit BackGround Color", KeyForm::Integer, &P::QuitBackGroundColor, "Main")),
    Within<&NearestColor>(Key("BackGround Color", KeyForm::Integer, &P::BackGroundColor, "Main")),
    Within<&NearestStyle>(Key("Option Check Box Style", KeyForm::Integer, &P::OptionCheckBoxStyle, "Main.Combo5")),
    Key("Large Screen", KeyForm::YesNo, &P::LargeScreen, "Main"),
    Key("Full Screen", KeyForm::YesNo, &P::FullScreen, "Main"),
    Key("Entry Box Font Name", KeyForm::Text, &P::EntryBoxFontName, "Main"),
    Within<&NearestFontSize>(Key("Entry Box Font Size", KeyForm::Integer, &P::EntryBoxFontSize, "Main")),
    Key("Entry Box Font Bold", KeyForm::Flag, &P::EntryBoxFontBold, "Main"),
    Key("Entry Box Font Italic", KeyForm::Flag, &P::EntryBoxFontItalic, "Main"),
    Within<&NearestAlignment>(Key("Entry Box Alignment", KeyForm::Integer, &P::EntryBoxAlignment, "Main.Combo3")),
    Within<&NearestStyle>(Key("Entry Box Style", KeyForm::Integer, &P::EntryBoxStyle, "Main.Combo4")),
    Key("Label Box Font Name", KeyForm::Text, &P::LabelBoxFontName, "Main"),
    Within<&NearestFontSize>(Key("Label Box Font Size", KeyForm::Integer, &P::LabelBoxFontSize, "Main")),
    Key("Label Box Font Bold", KeyForm::Flag, &P::LabelBoxFontBold, "Main"),
    Key("Label Box Font Italic", KeyForm::Flag, &P::LabelBoxFontItalic, "Main"),
    Within<&NearestColor>(Key("Label Box Color", KeyForm::Integer, &P::LabelBoxColor, "Main")),
    Key("Command Button Font Name", KeyForm::Text, &P::CommandButtonFontName, "Main"),
    Within<&NearestFontSize>(Key("Command Button Font Size", KeyForm::Integer, &P::CommandButtonFontSize, "Main")),
    Key("Command Button Font Bold", KeyForm::Flag, &P::CommandButtonFontBold, "Main"),
    Key("Command Button Font Italic", KeyForm::Flag, &P::CommandButtonFontItalic, "Main"),
    Key("Help Box Font Name", KeyForm::Text, &P::HelpBoxFontName, "Main"),
    Within<&NearestFontSize>(Key("Help Box Font Size", KeyForm::Integer, &P::HelpBoxFontSize, "Main")),
    Key("Help Box Font Bold", KeyForm::Flag, &P::HelpBoxFontBold, "Main"),
    Key("Help Box Font Italic", KeyForm::Flag, &P::HelpBoxFontItalic, "Main"),
    Within<&NearestColor>(Key("Help Box Font Color", KeyForm::Integer, &P::HelpBoxFontColor, "Main")),
    Within<&NearestColor>(Key("Help BackGround Color", KeyForm::Integer, &P::HelpBackGroundColor, "Main")),
    OnIs(-1, Key("Metric Mode", KeyForm::OnOff, &P::MetricMenuOn, "Main.Metric")),
    Key("Print Heads", KeyForm::OnOff, &P::PrintHeads, "Main.Print_CI"),
};
// clang-format on

}  // namespace

std::span<const KeyRow> KeyTable() {
  return kTable;
}

const KeyRow* FindKey(std::string_view key) {
  static const std::unordered_map<std::string, const KeyRow*> kRows = [] {
    std::unordered_map<std::string, const KeyRow*> rows;
    for (const KeyRow& row : kTable) {
      if (row.form != KeyForm::Comment) rows.emplace(Lower(row.key), &row);
    }
    return rows;
  }();
  const auto found = kRows.find(Lower(key));
  return found == kRows.end() ? nullptr : found->second;
}

const KeyRow* FindKeyOfSlot(ParameterBlock& block, const void* slot) {
  static const std::unordered_map<std::ptrdiff_t, const KeyRow*> kRows = [] {
    std::unordered_map<std::ptrdiff_t, const KeyRow*> rows;
    const auto model = std::make_unique<ParameterBlock>();
    const auto add = [&](const void* place, const KeyRow& row) {
      rows.emplace(static_cast<const char*>(place) - reinterpret_cast<const char*>(model.get()),
                   &row);
    };
    for (const KeyRow& row : kTable) {
      std::visit(
          [&](auto member) {
            if constexpr (!std::is_same_v<decltype(member), std::monostate>) {
              add(&((*model).*member), row);
            }
          },
          row.member);
      if (row.cell == nullptr) continue;
      for (int i = 0; i < row.rows; ++i) {
        for (int j = 0; j < row.rowWidth; ++j) add(&row.cell(*model, i, j), row);
      }
    }
    return rows;
  }();
  const auto found =
      kRows.find(static_cast<const char*>(slot) - reinterpret_cast<const char*>(&block));
  return found == kRows.end() ? nullptr : found->second;
}

std::string KeyValueText(const KeyRow& row, ParameterBlock& block, int index) {
  if (row.form == KeyForm::Table) {
    std::string text;
    for (int column = 0; column < row.rowWidth; ++column) {
      if (column > 0) text += ' ';
      text += FormatShortest(row.cell(block, index, column));
    }
    return text;
  }
  return std::visit(
      [&](auto member) -> std::string {
        using Member = decltype(member);
        if constexpr (std::is_same_v<Member, std::monostate>) {
          return {};
        } else if constexpr (std::is_same_v<Member, std::string P::*>) {
          return block.*member;
        } else {
          return FormatShortest(static_cast<double>(block.*member));
        }
      },
      row.member);
}

}  // namespace veldox
