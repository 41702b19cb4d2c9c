#pragma once

#include "BenchHost.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QObject>
#include <QSize>

class QWebView;

/// Measures the opening of the table against a page that has nothing to do but to show the same. GUI thread.
class StartBench : public QObject {
    Q_OBJECT

public:
    explicit StartBench(int cameras) : m_cameras(cameras) {}

    /// Milliseconds: "open" from the press of the button to the first rows that are painted, the fade not counted;
    /// "plain" for a page of the same size with the same libraries, style sheets and markup, without our script.
    QJsonObject run();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double timeTable();
    double timePlainPage();
    bool hasRows() const;
    double elapsed() const { return double(m_clock.nsecsElapsed()) / 1e6; }

    BenchHost m_cameras;
    QElapsedTimer m_clock;
    QWebView* m_view = nullptr;
    double m_painted = 0;
    /// Of the table as it was painted first.
    QString m_markup;
    QSize m_size;
};
