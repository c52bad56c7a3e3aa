#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/host.h"

namespace veldox {

/// Tells the bad records of a file: the first ones in a box each, all others together in one.
class BadRecords {
 public:
  /// The records that are told one by one.
  static constexpr int kMostBoxes = 19;

  /// @param host     shows the boxes
  /// @param title    of every box
  /// @param counted  the text of the last box
  BadRecords(Host& host, std::string title,
             std::function<std::string(int count, const std::string& first)> counted)
      : host_(host), title_(std::move(title)), counted_(std::move(counted)) {}

  /// Tells a record, or counts it where enough of them were told.
  /// @return the answer; OK for one that is only counted
  Button Tell(std::string text, std::vector<Button> buttons) {
    if (++records_ <= kMostBoxes) return Show(std::move(text), std::move(buttons));
    if (firstFurther_.empty()) firstFurther_ = std::move(text);
    return Button::OK;
  }

  /// Tells what was only counted, when the file has been read.
  void TellFurther() {
    const int further = records_ - kMostBoxes;
    if (further <= 0) return;
    Show(further > 1 ? counted_(further, firstFurther_) : firstFurther_, {Button::OK});
  }

 private:
  Button Show(std::string text, std::vector<Button> buttons) {
    return host_.Ask({Icon::Warning, title_, std::move(text), std::move(buttons)});
  }

  Host& host_;
  std::string title_;
  std::function<std::string(int, const std::string&)> counted_;
  int records_ = 0;
  std::string firstFurther_;  // the first that had no box of its own
};

}  // namespace veldox
