#pragma once

class QMimeData;
class QWidget;

namespace veldox {

class FileTaker;

/// Lets a file be dropped on a window.
void AcceptFiles(QWidget& window, FileTaker& taker);

/// True for what a file manager drags: text boxes leave it to their window.
bool HoldsFiles(const QMimeData& data);

}  // namespace veldox
