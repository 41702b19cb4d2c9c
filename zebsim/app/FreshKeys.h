#pragma once

class QWidget;

/// A key that is held since the dialog before, as Enter, presses no button of `window`: only one pressed anew does.
void takeFreshKeysOnly(QWidget& window);
