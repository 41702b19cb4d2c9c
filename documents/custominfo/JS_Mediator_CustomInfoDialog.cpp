#include "JS_Mediator_CustomInfoDialog.h"

#include "BridgeCall.h"
#include "CustomInfoLists.h"
#include "CustomInfoPath.h"
#include "DOC_Control.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "DOC_ReadFileException.h"
#include "GatheredFailures.h"
#include "LogFailure.h"
#include "UTL_Converter.h"
#include "UTL_Exception.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebView>

#include <utility>

namespace {

using customitem::isOn;
using customitem::text;

/// The name of the item that is the camera's comment.
const QString Comments = QStringLiteral("Comments");

QString keyText(const QVariantList& targets) {
    return QVariant(targets).toStringList().join(QLatin1Char(','));
}

QString compact(const QJsonDocument& json) {
    return QString::fromUtf8(json.toJson(QJsonDocument::Compact));
}

}  // namespace

JS_Mediator_CustomInfoDialog::JS_Mediator_CustomInfoDialog(ZebHost* host, bool forTemporary, QObject* parent)
    : JS_Mediator_Dialog(host, QStringLiteral("CustomInfoDialog"), parent), m_forTemporary(forTemporary) {
    qRegisterMetaType<DOCKEY>("DOCKEY");
    logFailure([this] {
        for (const DOCKEY key : keys()) {
            logFailure([this, key] { keep(key); });
        }
    });
}

void JS_Mediator_CustomInfoDialog::keep(DOCKEY key) {
    if (DOC_Interface* doc = host().docManager().getDoc(key, 1)) {
        Kept& kept = m_kept[key];
        logFailure([&] { kept.items = doc->control().getCustomInfoList(); });
        logFailure([&] { kept.comment = doc->image().getComment(); });
    }
}

DocKeyList JS_Mediator_CustomInfoDialog::keys() const {
    const ZebDocManager& docs = host().docManager();
    return m_forTemporary ? docs.getTemporarySaveDocKeys() : docs.getSelectedDocKeys(0);
}

template <typename Work>
void JS_Mediator_CustomInfoDialog::changeEach(const QVariantList& targets, Work work) {
    GatheredFailures failures;
    failures.attempt([&] {
        for (const QVariant& target : targets) {
            bool isKey = false;
            const DOCKEY key = target.toString().toUInt(&isKey);
            if (DOC_Interface* doc = isKey ? host().docManager().getDoc(key, 1) : nullptr) {
                work(*doc);
            }
        }
    });
    failures.attempt([this] { host().docManager().refreshDocList(1); });
    failures.rethrow();
}

template <typename Work>
void JS_Mediator_CustomInfoDialog::change(const char* method, const QVariantList& targets, Work work) {
    call(*this, Change, method, {{"targets", keyText(targets)}}, [&] { changeEach(targets, work); });
}

QString JS_Mediator_CustomInfoDialog::getDeviceInfo() {
    return call(*this, Query, __func__, {}, [this] {
        const DocKeyList cameras = keys();
        const DOCKEY present =
            m_forTemporary ? cameras.value(0, zeb::NoDocKey) : host().docManager().getCurrentDockey(0);
        QJsonArray records;
        QJsonObject chosen;
        for (const DOCKEY key : cameras) {
            DOC_Interface* doc = host().docManager().getDoc(key, 1);
            if (!doc) {
                continue;
            }
            const QJsonObject record{{QStringLiteral("recid"), records.size() + 1},
                                     {QStringLiteral("dockey"), qint64(key)},
                                     {QStringLiteral("name"), doc->control().getCameraName(1)}};
            records.append(record);
            if (key == present) {
                chosen = record;
            }
        }
        return compact(
            QJsonDocument(QJsonObject{{QStringLiteral("Records"), records}, {QStringLiteral("InitSelect"), chosen}}));
    });
}

QString JS_Mediator_CustomInfoDialog::getCustomInfo(DOCKEY dockey) {
    return call(*this, Query, __func__, {{"dockey", dockey}}, [&] {
        QJsonArray items;
        if (DOC_Interface* doc = host().docManager().getDoc(dockey, 1)) {
            for (const QVariantMap& item : doc->control().getCustomInfoList()) {
                items.append(QJsonObject{{QStringLiteral("recid"), items.size() + 1},
                                         {QStringLiteral("dockey"), qint64(dockey)},
                                         {QStringLiteral("name"), text(item, "name")},
                                         {QStringLiteral("value"), text(item, "value")},
                                         {QStringLiteral("unit"), text(item, "unit")},
                                         {QStringLiteral("selected"), isOn(item, "display")},
                                         {QStringLiteral("usefilename"), isOn(item, "usefilename")}});
            }
        }
        return compact(QJsonDocument(items));
    });
}

void JS_Mediator_CustomInfoDialog::addCustomData(const QVariantList& targets, const QVariantMap& custom) {
    QVariantMap added = custom;
    added.insert({{QStringLiteral("display"), true}, {QStringLiteral("usefilename"), true}});
    change(__func__, targets, [&](DOC_Interface& doc) { customitem::addTo(doc.control(), added); });
}

void JS_Mediator_CustomInfoDialog::deleteCustomData(const QVariantList& targets, const QVariantList& customs) {
    change(__func__, targets, [&](DOC_Interface& doc) {
        for (const QVariant& custom : customs) {
            doc.control().removeCustomInfo(text(custom.toMap(), "name"));
        }
    });
}

void JS_Mediator_CustomInfoDialog::editCustomData(const QVariantList& targets, const QVariantMap& custom) {
    const QString old = text(custom, "oldname");
    const QString name = text(custom, "name");
    change(__func__, targets, [&](DOC_Interface& doc) {
        if (name != old) {
            doc.control().renameCustomInfo(old, name);
        }
        doc.control().updateCustomInfo(name, text(custom, "value"), text(custom, "unit"), isOn(custom, "display"),
                                       isOn(custom, "usefilename"));
    });
}

void JS_Mediator_CustomInfoDialog::enableCustomData(const QVariantList& targets, const QVariantList& customs) {
    QHash<QString, bool> shown;
    for (const QVariant& custom : customs) {
        shown.insert(text(custom.toMap(), "name"), isOn(custom.toMap(), "selected"));
    }
    change(__func__, targets, [&](DOC_Interface& doc) {
        for (const QVariantMap& item : doc.control().getCustomInfoList()) {
            const QString name = text(item, "name");
            if (shown.contains(name)) {
                doc.control().updateCustomInfo(name, text(item, "value"), text(item, "unit"), shown.value(name),
                                               isOn(item, "usefilename"));
            }
        }
    });
}

void JS_Mediator_CustomInfoDialog::restore(DOC_Interface& doc, const QVariantList& customs) {
    QList<QVariantMap> items;
    std::optional<QString> comment;
    for (const QVariant& custom : customs) {
        QVariantMap item = custom.toMap();
        if (text(item, "name") == Comments) {
            comment = text(item, "value");
        } else {
            item.insert({{QStringLiteral("display"), isOn(item, "selected")}, {QStringLiteral("usefilename"), true}});
            items.append(item);
        }
    }
    replaceCustomInfo(host(), doc, items);
    if (comment) {
        doc.image().setComment(*comment);
    }
}

void JS_Mediator_CustomInfoDialog::restoreCustomData(const QVariantList& targets, const QVariantList& customs) {
    change(__func__, targets, [&](DOC_Interface& doc) { restore(doc, customs); });
}

void JS_Mediator_CustomInfoDialog::load(const QVariantList& targets) {
    call(*this, Change, __func__, {{"targets", keyText(targets)}}, [&] {
        // In another mode the lists are others than those that the user has seen.
        const int mode = host().getOperatingMode();
        const QString path = chooseCustomInfoToRead(host(), view());
        if (path.isEmpty() || host().getOperatingMode() != mode) {
            return;
        }
        QList<QVariantMap> items;
        try {
            UTL_Converter::xml2CustomInfo(path, items, DialogDialect);
        } catch (const UTL_Exception&) {
            throw DOC_ReadFileException(path);
        }
        const QVariantList customs(items.begin(), items.end());
        changeEach(targets, [&](DOC_Interface& doc) { restore(doc, customs); });
    });
}

void JS_Mediator_CustomInfoDialog::save(const QVariantList& customs) {
    call(*this, Action, __func__, {}, [&] {
        const QString path = chooseCustomInfoToWrite(host(), view());
        if (path.isEmpty()) {
            return;
        }
        QList<QVariantMap> items;
        for (const QVariant& custom : customs) {
            items.append(custom.toMap());
        }
        try {
            UTL_Converter::customInfo2xml(items, path, host().getVersionText(), DialogDialect);
        } catch (const UTL_Exception& failure) {
            // The log has a line for a file that can't be opened, and nobody is told.
            if (failure.errorCode() != UTL_Converter::NotOpened) {
                throw;
            }
        }
    });
}

void JS_Mediator_CustomInfoDialog::cancel() {
    call(*this, Updating, __func__, {}, [this] {
        GatheredFailures failures;
        for (const DOCKEY key : m_kept.keys()) {
            failures.attempt([&] {
                if (DOC_Interface* doc = host().docManager().getDoc(key, 1)) {
                    putBack(*doc, m_kept.value(key));
                }
                m_kept.remove(key);
            });
        }
        failures.attempt([this] { host().docManager().refreshDocList(1); });
        failures.rethrow();
    });
}

void JS_Mediator_CustomInfoDialog::putBack(DOC_Interface& doc, const Kept& kept) {
    if (kept.items && doc.control().getCustomInfoList() != *kept.items) {
        replaceCustomInfo(host(), doc, *kept.items);
    }
    if (kept.comment && doc.image().getComment() != *kept.comment) {
        doc.image().setComment(*kept.comment);
    }
}

void JS_Mediator_CustomInfoDialog::setSelectedDeviceItems(const QVariantList& ids) {
    if (ids.size() <= 1) {
        m_currentRecord = ids.isEmpty() ? 0 : ids.first().toInt();
    }
}
