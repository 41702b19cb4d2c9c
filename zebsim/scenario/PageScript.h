#pragma once

#include <QJsonValue>
#include <QString>

class QWebView;

/// Evaluates `text` in the page of `view` and answers its value as plain data. An expression answers its value;
/// statements answer what they return. Throws `ScenarioError` when the script throws or is none.
QJsonValue evaluateInPage(QWebView& view, const QString& text);

/// A string as it is written in a script.
QString scriptString(const QString& text);
