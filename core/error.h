#pragma once

#include <exception>
#include <string>
#include <utility>

namespace veldox {

class Control;

/// What went wrong inside a command.
enum class ErrorKind {
  NotANumber,
  DivisionByZero,
  Overflow,
  IndexOutOfRange,
  InvalidArgument,
  File,
  Cancelled,
};

/// The one exception that ends a command. What the command wrote before stays
/// written; the shell shows one box, marks the control and gives it the focus.
/// `Cancelled` (a file dialog left by Cancel) ends the command in silence.
class CommandError : public std::exception {
 public:
  /// @param message  plain words for the user, without the field's label when `control` is given
  /// @param control  the control at fault, or null where none is known
  CommandError(ErrorKind kind, std::string message, Control* control = nullptr)
      : kind_(kind), message_(std::move(message)), control_(control) {}

  ErrorKind kind() const { return kind_; }
  const std::string& message() const { return message_; }
  Control* control() const { return control_; }
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  ErrorKind kind_;
  std::string message_;
  Control* control_;
};

}  // namespace veldox
