#include "PresetLoad.h"

#include "APP_Exception.h"
#include "CamerasInTurn.h"
#include "ConnectedDocs.h"
#include "DOC_Control.h"
#include "DOC_Head.h"
#include "DOC_Interface.h"
#include "DOC_Lock.h"
#include "NamedFailure.h"
#include "TextKey.h"
#include "ZebDocManager.h"
#include "ZebHost.h"

#include <algorithm>

namespace {

DocList connectedHeads(DOC_Interface& doc) {
    DocList heads = deviceOf(doc).getHeadDocs(0);
    heads.erase(std::remove_if(heads.begin(), heads.end(),
                               [](const DOC_Interface* head) { return head == nullptr || !head->isConnected(); }),
                heads.end());
    return heads;
}

DocKeyList chosenOf(const PresetNumbers& numbers) {
    DocKeyList keys;
    for (auto each = numbers.begin(); each != numbers.end(); ++each) {
        if (each.value() > 0) {
            keys.append(each.key());
        }
    }
    return keys;
}

}  // namespace

bool isDeviceLocked(DOC_Interface& doc) {
    const DocList heads = connectedHeads(doc);
    return std::any_of(heads.begin(), heads.end(), [](DOC_Interface* head) { return head->lock().isParamLocked(); });
}

void PresetLoad::run(const PresetNumbers& numbers) {
    const int mode = m_host.getOperatingMode();
    GatheredFailures left;
    PresetNumbers asked;
    DocKeyList reboots;
    try {
        asked = loadable(numbers, left);
        reboots = rebooting(asked);
    } catch (...) {
        throw std::runtime_error(QString(currentFailureText() % notReached(m_host, chosenOf(numbers))).toStdString());
    }
    if (!userAgrees(reboots)) {
        return;
    }
    if (m_host.getOperatingMode() != mode) {
        throw APP_Exception(TextKey("The mode has changed. No preset was loaded."));
    }
    const PresetNumbers chosen = loadable(asked, left);
    left.attempt([&] {
        forEachCameraInTurn(m_host, TextKey("Loading preset: %1 (%2 of %3)"), chosen.keys(), [&](DOC_Interface& doc) {
            load(doc, chosen.value(doc.getKey()), reboots.contains(doc.getKey()));
        });
    });
    left.rethrow();
}

/// Those of `numbers` that can be loaded; `left` is told why others can't. One that is gone is passed over in silence.
PresetNumbers PresetLoad::loadable(const PresetNumbers& numbers, GatheredFailures& left) const {
    PresetNumbers loadable;
    for (auto each = numbers.begin(); each != numbers.end(); ++each) {
        DOC_Interface* doc = each.value() > 0 ? m_host.docManager().getDoc(each.key(), 1) : nullptr;
        if (doc == nullptr) {
            continue;
        }
        onCamera(*doc, [&] {
            const QString reason = !doc->isConnected()    ? TextKey("the camera is not connected")
                                   : isDeviceLocked(*doc) ? TextKey("the camera is locked")
                                                          : QString();
            if (reason.isEmpty()) {
                loadable.insert(each.key(), each.value());
            } else {
                left.note(namedFailure(reason, *doc));
            }
        });
    }
    return loadable;
}

DocKeyList PresetLoad::rebooting(const PresetNumbers& numbers) const {
    DocKeyList keys;
    for (DOC_Interface* doc : docsOf(m_host.docManager(), numbers.keys())) {
        onCamera(*doc, [&] {
            if (doc->control().presetNeedsReboot()) {
                keys.append(doc->getKey());
            }
        });
    }
    return keys;
}

bool PresetLoad::userAgrees(const DocKeyList& rebooting) const {
    if (rebooting.isEmpty()) {
        return true;
    }
    QString question =
        m_host.translate(TextKey("The following camera preset is loaded after rebooting. Please restart the camera."));
    question += QLatin1Char('\n');
    for (DOC_Interface* doc : docsOf(m_host.docManager(), rebooting)) {
        onCamera(*doc, [&] { question += QStringLiteral("\n ") % doc->getDisplayName(); });
    }
    return m_host.confirm(question);
}

void PresetLoad::load(DOC_Interface& doc, int number, bool reboots) {
    const DOCKEY key = doc.getKey();
    if (reboots) {
        doc.markRebooting(0, key);
    }
    doc.control().loadCameraPreset(number);
    doc.head().refreshAfterPreset(0);
    for (DOC_Interface* head : doc.control().isMultiHead() ? connectedHeads(doc) : DocList()) {
        if (head->getKey() != key) {
            head->head().refreshAfterPreset(0);
        }
    }
    if (reboots) {
        m_host.docManager().disconnectDoc(key, 0);
    }
}
