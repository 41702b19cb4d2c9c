#pragma once

#include <QJsonObject>

/// What saving takes. GUI thread.
class SaveBench {
public:
    /// Milliseconds: pictures of 1,024 x 1,024, as `png`, `pngNoisy`, and `pngOther` by ffmpeg on as many threads, both
    /// with the wait for the disk; `slow` eight cameras that take 50 ms a frame, 64 frames each, and `slowWait` what
    /// one of them takes for its frames; `turn` by how much the event loop, which shows the progress of it, was late at
    /// most while all that went on.
    static QJsonObject run();
    /// MiB by which the process grows at most while 1,000 frames each of so many cameras are saved.
    static QJsonObject memory(int cameras);
};
