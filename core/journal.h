#pragma once

#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/block_mirror.h"

namespace veldox {

class Control;
class Screen;

/// What something that a program's state is made of tells.
enum class Aspect {
  Data,   ///< a text, a box, an option, a caption, an open report
  Graph,  ///< what the grapher shows
  Work,   ///< goes with the data and is no change by itself
  Look,   ///< what is shown and can be worked: no change by itself, and no opening's doing
  Place,  ///< where the user is: focus, open panels and screens, help sentences, marks
};

/// Whose a piece of the state is.
struct StateOwner {
  // NOLINTBEGIN(google-explicit-constructor): either is an owner
  StateOwner(Control* itsControl) : control(itsControl) {}
  StateOwner(Screen* itsScreen) : screen(itsScreen) {}
  StateOwner(std::nullptr_t) {}
  // NOLINTEND(google-explicit-constructor)
  Control* control = nullptr;
  Screen* screen = nullptr;
};

/// What a piece of the state takes beyond its own size, in bytes.
template <class T>
std::size_t HeapBytes(const T& value) {
  if constexpr (requires { value.HeapBytes(); }) {
    return value.HeapBytes();
  } else {
    return 0;
  }
}
inline std::size_t HeapBytes(const std::string& text) {
  return text.capacity() > std::string().capacity() ? text.capacity() + 1 : 0;
}
template <class T>
std::size_t HeapBytes(const std::vector<T>& values) {
  // NOLINTNEXTLINE(bugprone-sizeof-expression): what a vector holds may be pointers
  std::size_t bytes = values.capacity() * sizeof(T);
  for (const T& value : values) bytes += HeapBytes(value);
  return bytes;
}

/// A place of the state and what it held before it was first changed.
class KeptPlace {
 public:
  KeptPlace(const void* place, StateOwner owner, Aspect aspect)
      : place_(place), owner_(owner), aspect_(aspect) {}
  KeptPlace(const KeptPlace&) = delete;
  KeptPlace& operator=(const KeptPlace&) = delete;
  virtual ~KeptPlace() = default;

  const void* place() const { return place_; }
  const StateOwner& owner() const { return owner_; }
  Aspect aspect() const { return aspect_; }
  /// Exchanges what the place holds for what is kept.
  virtual void Swap() = 0;
  /// False where the place holds what it held before.
  virtual bool Differs() const = 0;
  virtual std::size_t Bytes() const = 0;

 private:
  const void* place_;
  StateOwner owner_;
  Aspect aspect_;
};

/// The changes of a stretch of time, which can be taken back and made again.
class Recording {
 public:
  enum class Scope {
    DryRun,   ///< everything
    Step,     ///< all but where the user is
    Between,  ///< what happens between the steps: data alone
  };
  explicit Recording(Scope scope) : scope_(scope) {}

  Scope scope() const { return scope_; }
  const std::vector<std::unique_ptr<KeptPlace>>& places() const { return places_; }
  BlockChange& block() { return block_; }
  /// Nothing at all was changed.
  bool empty() const { return places_.empty() && block_.empty(); }
  /// Whether a change of this kind is recorded, and this one is the first of its place.
  bool Wants(const void* place, Aspect aspect) {
    const bool isData = aspect == Aspect::Data || aspect == Aspect::Graph || aspect == Aspect::Work;
    if (scope_ == Scope::Between && !isData) return false;
    if (scope_ == Scope::Step && aspect == Aspect::Place) return false;
    return known_.insert(place).second;
  }
  void Add(std::unique_ptr<KeptPlace> place) { places_.push_back(std::move(place)); }
  /// Takes over what has changed later; what a place held first counts.
  void Append(Recording later);
  /// Exchanges what all places hold, those in the shared values apart, for what is kept.
  void SwapPlaces();
  std::size_t Bytes() const;
  /// Nothing more will be recorded but what `Append` brings.
  void Close() { known_ = {}; }

 private:
  Scope scope_;
  std::vector<std::unique_ptr<KeptPlace>> places_;
  std::unordered_set<const void*> known_;
  BlockChange block_;
};

/// Takes down what is about to change in the program's state, so that it can be put back exactly:
/// nothing is copied that does not change. Whatever is part of the state is changed through
/// `Assign`, or after `Keep`; the shared values and the numbers that fields show are found by
/// comparing (BlockMirror), since commands write them as plain numbers.
class Journal {
 public:
  explicit Journal(ParameterBlock& block) : block_(block) {}
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  /// True while a command runs only to tell what it would do: nobody is told of anything.
  bool isDry() const {
    return recording_ != nullptr && recording_->scope() == Recording::Scope::DryRun;
  }

  /// Called before something changes in a place.
  template <class T>
  void Keep(T& place, StateOwner owner, Aspect aspect) {
    if (Wants(&place, aspect)) {
      recording_->Add(std::make_unique<Was<T>>(place, place, owner, aspect));
    }
  }
  /// Puts another value into a place.
  template <class T, class V>
  void Assign(T& place, V&& value, StateOwner owner, Aspect aspect) {
    if (Wants(&place, aspect)) {
      recording_->Add(std::make_unique<Was<T>>(place, std::exchange(place, std::forward<V>(value)),
                                               owner, aspect));
    } else {
      place = std::forward<V>(value);
    }
  }

  /// A number outside the block that a field shows; called at construction.
  void Watch(double& own) { watched_.push_back(&own); }
  /// What has changed in the shared values since they were last asked for goes into a recording.
  void TakeBlockInto(Recording& recording) { recording.block().Append(mirror().Take()); }
  BlockMirror& mirror();

  /// Records into this from now on; null for nowhere. @return where it was recorded before
  Recording* Record(Recording* recording) { return std::exchange(recording_, recording); }

  /// Exchanges the state that a recording keeps for the present one.
  void Swap(Recording& recording) {
    recording.SwapPlaces();
    mirror().Swap(recording.block());
  }
  /// True when what a recording holds makes a difference to the data.
  bool Differs(Recording& recording);

 private:
  template <class T>
  class Was : public KeptPlace {
   public:
    Was(T& place, T before, StateOwner owner, Aspect aspect)
        : KeptPlace(&place, owner, aspect), at_(place), before_(std::move(before)) {}
    void Swap() override { std::swap(at_, before_); }
    bool Differs() const override {
      if constexpr (requires { at_.SameAs(before_); }) {
        return !at_.SameAs(before_);
      } else if constexpr (std::is_scalar_v<T> || std::same_as<T, std::string> ||
                           std::same_as<T, std::vector<std::string>>) {
        return at_ != before_;
      } else {
        return true;
      }
    }
    std::size_t Bytes() const override { return sizeof(*this) + HeapBytes(before_); }

   private:
    T& at_;
    T before_;
  };

  bool Wants(const void* place, Aspect aspect) {
    return recording_ != nullptr && recording_->Wants(place, aspect);
  }

  ParameterBlock& block_;
  std::unique_ptr<BlockMirror> mirror_;
  std::vector<double*> watched_;
  Recording* recording_ = nullptr;
};

}  // namespace veldox
