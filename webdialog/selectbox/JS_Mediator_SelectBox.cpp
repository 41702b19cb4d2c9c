#include "JS_Mediator_SelectBox.h"

#include "BridgeCall.h"
#include "CurrentCamera.h"
#include "DOC_Control.h"
#include "DOC_Interface.h"
#include "DocumentGuard.h"
#include "PrefsDialog.h"
#include "TextKey.h"
#include "ZebCameraOps.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// The row of the box that leads to the settings of variable recording, in the place of a channel.
const QString GoVariable = QStringLiteral("go-variable");

QJsonArray channelInfos(DOC_Control& control) {
    QJsonArray channels;
    for (int channel = 1; channel <= zeb::VariableChannels; ++channel) {
        const zeb::VariableChannelInfo info = control.getVariableChannelInfo(channel);
        channels.append(QJsonObject{{QStringLiteral("Value"), QString::number(channel)},
                                    {QStringLiteral("VariableInfo"), info.text},
                                    {QStringLiteral("Settable"), info.settable}});
    }
    return channels;
}

}  // namespace

JS_Mediator_SelectBox::JS_Mediator_SelectBox(ZebHost* host, QObject* parent)
    : JS_Mediator(host, QStringLiteral("items"), parent) {
    qRegisterMetaType<PARTITIONNUMBER>("PARTITIONNUMBER");
}

void JS_Mediator_SelectBox::showPartitions() {
    DOC_Interface* doc = currentCamera(host());
    if (!doc) {
        return;
    }
    QVariantList names;
    const PARTITIONNUMBER count = doc->control().getPartitionCount(0, 0);
    for (PARTITIONNUMBER i = 1; i <= count; ++i) {
        names.append(doc->getPartitionName(i));
    }
    if (host().isLiveMode()) {
        names << QString() << host().translate(TextKey("Setting..."));
    }
    Q_EMIT signalShowPartition(names);
}

void JS_Mediator_SelectBox::showVariables(const QString& value) {
    Q_EMIT signalShowVariable(variablesJson(value));
}

void JS_Mediator_SelectBox::showVariablesToRegister(const QString& value) {
    Q_EMIT signalShowVariableRegist(variablesJson(value));
}

QString JS_Mediator_SelectBox::variablesJson(const QString& value) const {
    DOC_Interface* doc = currentCamera(host());
    const bool supported = doc && doc->control().isFunctionSupported(zeb::FunctionVariable, 1);
    const unsigned int current = supported ? host().cameraOps().getCurrentVariable() : 0;
    const QJsonObject list{
        {QStringLiteral("SupportedVariable"), supported},
        {QStringLiteral("SelectValue"), value.isEmpty() ? QString::number(current) : value},
        {QStringLiteral("ChannelInfos"), supported ? channelInfos(doc->control()) : QJsonArray()},
    };
    return QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
}

/// The frame of all choices.
template <typename Work>
void JS_Mediator_SelectBox::choice(const char* method, const QString& value, Work&& work) {
    const auto choose = [&] {
        call(*this, Change, method, {{"value", value}}, [&] {
            Q_EMIT close();
            work();
        });
    };
    if (m_owner) {
        const QString name = QLatin1String("JS_Mediator_SelectBox::") % QLatin1String(method);
        m_owner->runCall(Exclusive, name, {{"value", value}}, choose);
    } else {
        choose();
    }
}

void JS_Mediator_SelectBox::slotNotifyPartition(const QString& value) {
    choice("slotNotifyPartition", value, [&] {
        DOC_Interface* doc = currentCamera(host());
        if (!doc) {
            return;
        }
        const PARTITIONNUMBER number = value.toUInt();
        if (number < 1) {
            return;
        }
        if (number <= doc->control().getPartitionCount(0, 0)) {
            choosePartition(number);
        } else if (host().isLiveMode()) {
            runPrefsDialog(host(), QStringLiteral("s_record"));
        }
    });
}

void JS_Mediator_SelectBox::choosePartition(PARTITIONNUMBER number) {
    host().cameraOps().setPartition(number, 1);
    ZebDocManager& docs = host().docManager();
    for (const DOCKEY key : docs.getSelectedDocKeys(0)) {
        if (DOC_Interface* doc = docs.getDoc(key, 1)) {
            doc->control().applyPartition(0);
        }
    }
}

void JS_Mediator_SelectBox::slotNotifyVariable(const QString& value) {
    choice("slotNotifyVariable", value, [&] {
        // The settings of variable recording are a page of the plug-in `livecontrol`, which offers no way to it here.
        if (value == GoVariable) {
            return;
        }
        DocumentGuard guard(host());
        host().cameraOps().setVariable(value.toUInt());
        guard.release();
    });
}

PARTITIONNUMBER JS_Mediator_SelectBox::getCurrentPartition() {
    return call(*this, Plain, __func__, {}, [this] { return currentPartition(host()); });
}

void JS_Mediator_SelectBox::slotNotifyVariableRegist(const QString& value) {
    // What is registered in the channel is known to the plug-in `livecontrol` alone, which offers no way to it here.
    choice("slotNotifyVariableRegist", value, [] {});
}
