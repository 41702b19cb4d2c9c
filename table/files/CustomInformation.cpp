#include "CustomInformation.h"

#include "CustomInfoLists.h"
#include "CustomInfoPath.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DOC_ReadFileException.h"
#include "NamedFailure.h"
#include "UTL_Converter.h"
#include "UTL_Exception.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

namespace {

constexpr int LettersInLog = 200;

using customitem::isOn;
using customitem::text;

QString jsonOf(const QList<QVariantMap>& items, bool withNumbers) {
    QJsonArray array;
    for (const QVariantMap& item : items.mid(0, zeb::MostCustomItems)) {
        QJsonObject object{{QStringLiteral("name"), text(item, "name")},
                           {QStringLiteral("value"), text(item, "value")},
                           {QStringLiteral("unit"), text(item, "unit")},
                           {QStringLiteral("display"), isOn(item, "display")}};
        if (withNumbers) {
            object.insert(QStringLiteral("recid"), array.size() + 1);
        }
        array.append(object);
    }
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

/// Nothing for a text that is no array. The page has one flag for both.
std::optional<QList<QVariantMap>> itemsOf(const QString& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isArray()) {
        qWarning() << "No list of custom information:" << json.left(LettersInLog);
        return std::nullopt;
    }
    QList<QVariantMap> items;
    for (const QJsonValue entry : document.array()) {
        if (entry.isObject() && items.size() < zeb::MostCustomItems) {
            QVariantMap item = entry.toObject().toVariantMap();
            const bool isShown = isOn(item, "display");
            item.insert({{QStringLiteral("display"), isShown}, {QStringLiteral("usefilename"), isShown}});
            items.append(item);
        }
    }
    return items;
}

}  // namespace

QString CustomInformation::listOf(DOCKEY key, bool withNumbers) const {
    DOC_Interface* doc = m_host.isFileMode() ? nullptr : m_host.docManager().getDoc(key, 1);
    return jsonOf(doc && doc->isConnected() ? doc->control().getCustomInfoList() : QList<QVariantMap>(), withNumbers);
}

void CustomInformation::setLists(const DocKeyList& keys, const QString& json) {
    const auto items = itemsOf(json);
    if (m_host.isFileMode() || !items) {
        return;
    }
    for (const DOCKEY key : keys) {
        DOC_Interface* doc = m_host.docManager().getDoc(key, 1);
        if (doc) {
            onCamera(*doc, [&] {
                if (doc->isConnected()) {
                    replaceCustomInfo(m_host, *doc, *items);
                }
            });
        }
    }
}

QString CustomInformation::read(QWidget* parent) {
    const QString path = m_host.isFileMode() ? QString() : chooseCustomInfoToRead(m_host, parent);
    QList<QVariantMap> items;
    if (!path.isEmpty() && !m_host.isFileMode()) {
        try {
            UTL_Converter::xml2CustomInfo(path, items);
        } catch (const UTL_Exception&) {
            throw DOC_ReadFileException(path);
        }
    }
    return jsonOf(items, true);
}

void CustomInformation::write(QWidget* parent, const QString& json) {
    const auto items = itemsOf(json);
    const QString path = m_host.isFileMode() || !items ? QString() : chooseCustomInfoToWrite(m_host, parent);
    if (!path.isEmpty() && !m_host.isFileMode()) {
        UTL_Converter::customInfo2xml(*items, path, m_host.getVersionText());
    }
}
