#pragma once

#include "BenchHost.h"

#include <QJsonObject>

/// Measures the text that the page gets of the live control, without a page. GUI thread.
class TextBench {
public:
    explicit TextBench(int cameras) : m_cameras(cameras) {}

    /// Milliseconds: "build" for the text without the host's answers, "write" for `QJsonDocument` with the same text,
    /// "ask" for the host's answers.
    QJsonObject run();

private:
    BenchHost m_cameras;
};
