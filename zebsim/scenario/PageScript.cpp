#include "PageScript.h"

#include "ScenarioError.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

namespace {

// The value crosses as text: the engine's own conversion of an element would walk the whole document.
const QString Frame = QStringLiteral(
    "(function () { try { var value = (function () { %1\n}).call(window);"
    " try { return JSON.stringify({value: value}) } catch (cyclic) { return '{}' } }"
    " catch (error) { return JSON.stringify({error: String(error)}) } })()");

QString withoutEnd(const QString& text) {
    static const QRegularExpression end(QStringLiteral("[;\\s]+$"));
    return QString(text).remove(end);
}

QString run(QWebView& view, const QString& body) {
    // Not arg(): the text of the script may hold place markers of its own.
    QString program = Frame;
    program.replace(QLatin1String("%1"), body);
    return view.page()->mainFrame()->evaluateJavaScript(program).toString();
}

}  // namespace

QJsonValue evaluateInPage(QWebView& view, const QString& text) {
    // A syntax error answers nothing at all and has done nothing, so the second form may be tried.
    QString answer = run(view, QLatin1String("return (") % withoutEnd(text) % QLatin1String("\n)"));
    if (answer.isEmpty()) answer = run(view, text);
    if (answer.isEmpty()) throw ScenarioError(QStringLiteral("this is no script: ") % text);
    const QJsonObject object = QJsonDocument::fromJson(answer.toUtf8()).object();
    if (object.contains(QLatin1String("error")))
        throw ScenarioError(QStringLiteral("in the page: ") % object.value(QLatin1String("error")).toString());
    return object.value(QLatin1String("value"));
}

QString scriptString(const QString& text) {
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}
