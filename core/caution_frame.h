#pragma once

#include "core/screen.h"

namespace veldox {

/// A frame of what asks for care before it is used: windows set it apart from the others.
class CautionFrame : public Frame {
 public:
  using Frame::Frame;
};

}  // namespace veldox
