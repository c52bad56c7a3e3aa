#include "core/journal.h"

#include <algorithm>

namespace veldox {

void Recording::Append(Recording later) {
  std::unordered_set<const void*> known;
  for (const auto& place : places_) known.insert(place->place());
  for (auto& place : later.places_) {
    const bool goesAlong = scope_ != Scope::Between || place->aspect() != Aspect::Look;
    if (goesAlong && known.insert(place->place()).second) places_.push_back(std::move(place));
  }
  if (scope_ == Scope::Between) known_ = std::move(known);
  block_.Append(std::move(later.block_));
}

void Recording::SwapPlaces() {
  for (const auto& place : places_) place->Swap();
}

std::size_t Recording::Bytes() const {
  std::size_t bytes = sizeof(*this) + places_.capacity() * sizeof(places_[0]) + block_.Bytes();
  for (const auto& place : places_) bytes += place->Bytes();
  return bytes;
}

BlockMirror& Journal::mirror() {
  if (mirror_ == nullptr) {
    mirror_ = std::make_unique<BlockMirror>(block_);
    for (double* own : watched_) mirror_->Watch(*own);
  }
  return *mirror_;
}

bool Journal::Differs(Recording& recording) {
  const auto& places = recording.places();
  return std::any_of(places.begin(), places.end(),
                     [](const auto& place) {
                       const bool counts =
                           place->aspect() == Aspect::Data || place->aspect() == Aspect::Graph;
                       return counts && place->Differs();
                     }) ||
         mirror().Differs(recording.block());
}

}  // namespace veldox
