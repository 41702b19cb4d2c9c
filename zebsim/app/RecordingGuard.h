#pragma once

class QString;
class SimHost;

/// Whether cameras that are armed or record may be let go: asks `question`, and Enter means no. True when there are
/// none.
bool mayLetGoOfRecording(SimHost& host, const QString& question);
