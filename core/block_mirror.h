#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/parameter_block.h"

namespace veldox {

/// What has changed in the shared values: what each place held before.
struct BlockChange {
  /// A number of a screen's own that a field shows.
  struct OwnNumber {
    double* place;
    double before;
  };
  std::vector<std::uint32_t> words;  ///< places in the numbers, each of eight bytes, ascending
  std::vector<std::uint64_t> before;
  std::vector<std::pair<std::size_t, std::string>> texts;  ///< by their places in the list
  std::vector<OwnNumber> own;

  bool empty() const { return words.empty() && texts.empty() && own.empty(); }
  std::size_t Bytes() const;
  /// Takes over what has changed later; where both have a place, what it held first counts.
  void Append(BlockChange later);
};

/// Finds out what has changed in the shared values, whoever wrote them, by comparing them with
/// how they stood before. The comparison takes some ten microseconds.
class BlockMirror {
 public:
  explicit BlockMirror(ParameterBlock& block);

  /// A number outside the block that changes are looked for in as well.
  void Watch(double& own) { own_.push_back({&own, own}); }
  /// What has changed since the last time.
  BlockChange Take();
  /// Puts back what a change tells, and makes it tell how the values stood until now.
  void Swap(BlockChange& change);
  /// True when a value is another one than the change tells.
  bool Differs(const BlockChange& change) const;

 private:
  struct Own {
    double* place;
    double value;
  };
  ParameterBlock& block_;
  std::unique_ptr<ParameterBlock> mirror_;
  std::vector<Own> own_;
};

}  // namespace veldox
