#pragma once

#include "script/driver.h"

namespace veldox {

class PickList;

/// Works the screens themselves, with no window behind them.
class ModelDriver : public Driver {
 public:
  explicit ModelDriver(Shell& shell) : shell_(shell) {}

  void ChooseMenu(const MenuItem& item) override;
  void Set(TextControl& field, const std::string& text) override;
  void Type(Control& control, const std::vector<Key>& keys) override;
  void Leave(TextControl& field) override;
  void Press(Control& control, Key key) override;
  void Click(Control& control) override;
  void Select(ComboList& list, int row) override;
  void Hover(Screen& screen, Control* control) override;
  bool Picture(Screen&, const std::filesystem::path&) override { return false; }

 private:
  /// Enters a control by tab. False when the field that had the focus kept it.
  bool TabInto(Control& control);
  void TypeKey(Control& control, Key key);
  void TypeIntoField(TextControl& field, Key key);
  void TypeIntoList(PickList& list, Key key);

  Shell& shell_;
  const Control* selected_ = nullptr;  // the field whose text is all selected
};

}  // namespace veldox
