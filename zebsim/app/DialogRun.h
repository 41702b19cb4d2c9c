#pragma once

#include <QSize>

class QDialog;
class SimHost;

/// Gives the dialog the host's style and runs it until the user has closed it, then deletes it. Answers its result.
int runDialog(SimHost& host, QDialog* dialog);
/// Makes it as large as that, in points, or as its screen has room for.
void resizeOnScreen(QDialog& dialog, const QSize& size);
