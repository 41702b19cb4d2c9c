#pragma once

class QString;
class SimHost;

/// Whether cameras that are armed or record may be let go: asks `question` and names them, and Enter means no. Who has
/// agreed is told in the log. True when there are none.
bool mayLetGoOfRecording(SimHost& host, const QString& question);

/// Whether the program may end while recordings are being converted in the background: asks when there are some, and
/// Enter means no.
bool mayEndConversion(SimHost& host);
