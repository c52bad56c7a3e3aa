#pragma once

#include "core/screen_part.h"

namespace veldox {

/// The notes of the parameter file, edited in the launcher's place.
class NotesPanel : public ScreenPart {
 public:
  explicit NotesPanel(Screen& screen) : ScreenPart(screen) { SetFrames({&Frame12}); }

  /// Opens the panel on the notes as they are kept.
  void Open();
  /// Shows the notes that a file has brought, where the panel is open.
  void ShowNotes();

 private:
  void SaveNotes();
  void DropNotes() { Hide(); }

 public:
  Frame Frame12{screen(), "Frame12", "Edit Parameter File Notes"};
  TextArea Text22{Frame12, "Text22", "Notes"};
  Command Command11{Frame12, "Command11", "Exit / Save Notes",
                    "Keep the notes as they stand here and close this panel.",
                    CommandWork([this] { SaveNotes(); }, CommandRole::Closes)};
  Command Command12{Frame12, "Command12", "Exit / Don't Save Notes",
                    "Close this panel and leave the notes as they were.",
                    CommandWork([this] { DropNotes(); }, CommandRole::Closes)};
};

}  // namespace veldox
