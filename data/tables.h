#pragma once

#include <span>
#include <string_view>

namespace veldox {

/// A row of a table of published figures.
struct TableRow {
  enum class Kind {
    Header,    ///< heads the rows below it; without a name it sets them apart
    Figures,   ///< a name with its figures
    NameOnly,  ///< a name whose figures are not verified
  };
  Kind kind;
  std::string_view name;
  std::string_view figures;  ///< the figures as they stand in the file, single blanks between them
  std::string_view source;   ///< where the figures come from
  std::span<const std::string_view> cells{};  ///< the figures one by one, some perhaps empty
};

/// The rows that belong together, in the order of the file. A group may have no rows, and such a
/// one no name.
struct TableGroup {
  std::string_view name;
  std::span<const TableRow> rows;
  std::string_view list{};  ///< the list it stands in, where the table has several
};

/// Production engines by make: bore, stroke and rod length in inches (a rod length of 0.0 is
/// not known), number of cylinders. Made from engines.tsv by the build.
std::span<const TableGroup> EngineTable();

/// Transmissions by list: the ratios from first gear up. What is known of the primary drive and of
/// the final drive stands in the name, as does the torque capacity. Made from gearboxes.tsv.
std::span<const TableGroup> GearboxTable();

/// Vehicles by list ("american" and "other") and make: the coefficient of drag and, where it is
/// known, the frontal area in square feet. Made from drag.tsv.
std::span<const TableGroup> DragTable();

/// Units by the heading over them: index of the unit's option button, that of the unit it comes
/// of (empty for one that others come of), and the steps from that unit to this one, such as
/// "- 32 * 5 / 9", taken from left to right. Made from units.tsv.
std::span<const TableGroup> UnitTable();

/// Conversion charts by quantity: number of the chart's button, options of the units from which
/// and to which it converts, its step, the decimals of what it converts to, and the heads of both
/// columns. Made from conversions.tsv.
std::span<const TableGroup> ConversionTable();

/// Drills by number and by letter, each with its diameter in inches. Made from drills.tsv.
std::span<const TableGroup> DrillTable();

/// Taps of the coarse and of the fine thread: threads an inch and drill. Made from taps.tsv.
std::span<const TableGroup> TapTable();

/// Taps of taper pipe threads: threads an inch, drill, and outside diameter of the pipe in inches.
/// Made from pipe_taps.tsv.
std::span<const TableGroup> PipeTapTable();

/// Metric taps: pitch and drill in millimetres. Made from metric_taps.tsv.
std::span<const TableGroup> MetricTapTable();

/// Dash sizes: inside diameter of the hose and outside diameter of the tube as fractions of an
/// inch, and thread of the fitting. Hose and thread may be empty. Made from dash_sizes.tsv.
std::span<const TableGroup> DashTable();

/// Numbers of steels by family, each with what they are alloyed with. Made from steels.tsv.
std::span<const TableGroup> SteelTable();

}  // namespace veldox
