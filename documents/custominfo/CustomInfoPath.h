#pragma once

#include <QString>

class QWidget;
class ZebHost;

/// Ask the user for a file of custom information to read, or to write, in the folder of the last one. An empty text
/// when there is none. Each runs an event loop; `parent` may go meanwhile, the host must not. GUI thread.
QString chooseCustomInfoToRead(ZebHost& host, QWidget* parent);
QString chooseCustomInfoToWrite(ZebHost& host, QWidget* parent);
