#include "core/notes_panel.h"

namespace veldox {

void NotesPanel::Open() {
  Text22.SetText(block().Notes);
  Show();
  Text22.Focus();
}

void NotesPanel::ShowNotes() {
  if (Frame12.visible()) Text22.SetText(block().Notes);
}

void NotesPanel::SaveNotes() {
  if (Text22.text() != block().Notes) {
    block().Notes = Text22.text();
    screen().context().rules.NoteChange();
  }
  Hide();
}

}  // namespace veldox
