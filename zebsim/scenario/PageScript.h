#pragma once

#include <QJsonValue>
#include <QString>

class QWebView;

/// A script to be evaluated in a page. An expression answers its value; statements answer what they return.
class PageScript {
public:
    /// Throws `ScenarioError` when `text` is no script.
    explicit PageScript(const QString& text);

    /// The value as plain data. Throws `ScenarioError` when the script throws.
    QJsonValue run(QWebView& view) const;

private:
    QString m_program;
};

/// A string as it is written in a script.
QString scriptString(const QString& text);
