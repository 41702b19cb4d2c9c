#pragma once

class QDialog;

/// A key that is held since the dialog before presses no button of `dialog`: only one pressed anew does.
void takeFreshKeysOnly(QDialog& dialog);
