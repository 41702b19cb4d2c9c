#pragma once

#include <QString>

class QWidget;

/// Asks the user for a file and writes the rows of the table into it, as UTF-8 with the mark by which spreadsheets know
/// it; nothing when there is none. Runs an event loop; `parent` may go meanwhile. Throws APP_Exception, which names the
/// file, when it could not be written; what stood there before stays. GUI thread.
void saveAsTable(QWidget* parent, const QString& csv);
