#pragma once

class QWidget;

/// A key that is held since the dialog before, as Enter, presses no button of `window`, nor one that was meant for that
/// dialog: only one pressed anew does. Before `window` is shown.
void takeFreshKeysOnly(QWidget& window);
