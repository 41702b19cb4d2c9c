#pragma once

class QString;
class ZebHost;

/// The work of `JS_Mediator::openPrefsDialog`, with its lines in the log: runs the host's dialog of preferences at the
/// page of that name, with the cameras at rest in live mode. Answers a `QDialog::DialogCode`, 0 when there is no such
/// dialog. Throws what the host throws.
int runPrefsDialog(ZebHost& host, const QString& page);
