#pragma once

#include <QString>
#include <QStringList>

/// JSON written straight into text, for what is built at every tick; no tree stands in between.
namespace jsontext {

/// Appends `text` as a JSON string, with its quotes.
void appendString(QString& json, const QString& text);

QString string(const QString& text);

/// `[...]` of texts that are JSON already.
QString array(const QStringList& items);

/// `{"name":...,"value":...}`, an entry of a list to choose from.
QString choice(const QString& name, const QString& value);

}  // namespace jsontext
