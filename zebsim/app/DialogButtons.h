#pragma once

#include "UiText.h"

class QDialog;
class QDialogButtonBox;

/// Buttons that accept and reject `dialog`, in the user's language; the caller lays them out.
QDialogButtonBox* addOkCancel(QDialog& dialog, const QString& accept = uiText("OK"));
