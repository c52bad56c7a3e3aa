#pragma once

namespace veldox {

/// Spreads frames that are made from a table over the columns of a window, in their order.
class FrameColumns {
 public:
  /// @param first  the column to begin with, from 0
  /// @param height  how much a column holds, in rows
  FrameColumns(int first, int height) : column_(first), height_(height) {}

  /// The column of the next frame. @param rows  its height
  int ColumnOf(int rows) {
    if (filled_ + rows > height_) {
      ++column_;
      filled_ = 0;
    }
    filled_ += rows;
    return column_;
  }

 private:
  int column_;
  int height_;
  int filled_ = 0;
};

}  // namespace veldox
