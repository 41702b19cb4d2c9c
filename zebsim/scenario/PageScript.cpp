#include "PageScript.h"

#include "ScenarioError.h"

#include <QJSEngine>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

namespace {

const QString Body = QStringLiteral("(function () { %1\n})");
// The value crosses as text: the engine's own conversion of an element would walk the whole document.
const QString Frame = QStringLiteral(
    "(function () { try { var value = %1.call(window);"
    " try { return JSON.stringify({value: value}) } catch (cyclic) { return '{}' } }"
    " catch (error) { return JSON.stringify({error: String(error)}) } })()");

/// Not arg(): the text of a script may hold place markers of its own.
QString filled(QString pattern, const QString& text) {
    return pattern.replace(QLatin1String("%1"), text);
}

QString withoutEnd(QString text) {
    static const QRegularExpression end(QStringLiteral("[;\\s]+$"));
    return text.remove(end);
}

}  // namespace

PageScript::PageScript(const QString& text) {
    // Not tried in the page itself, which would report the error to its user.
    QJSEngine parser;
    QString body = filled(Body, QLatin1String("return (") % withoutEnd(text) % QLatin1String("\n)"));
    if (parser.evaluate(body).isError()) {
        body = filled(Body, text);
        const QJSValue asStatements = parser.evaluate(body);
        if (asStatements.isError()) {
            throw ScenarioError(QStringLiteral("this is no script: %1: %2").arg(text, asStatements.toString()));
        }
    }
    m_program = filled(Frame, body);
}

QJsonValue PageScript::run(QWebView& view) const {
    const QString answer = view.page()->mainFrame()->evaluateJavaScript(m_program).toString();
    const QJsonObject object = QJsonDocument::fromJson(answer.toUtf8()).object();
    if (object.contains(QLatin1String("error"))) {
        throw ScenarioError(QStringLiteral("in the page: ") % object.value(QLatin1String("error")).toString());
    }
    return object.value(QLatin1String("value"));
}

QString scriptString(const QString& text) {
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}
