#pragma once

#include "PLG_Common.h"

#include "GUI_ModelessPatternDialog.h"
#include "JS_Mediator_ModelessPatternDialog.h"
#include "PluginDoc.h"
#include "PluginHost.h"

#include <gmock/gmock.h>

/// A plug-in of which a test chooses what it is.
class TestPlugin : public PLG_Common {
public:
    using PLG_Common::m_attributeL;
    using PLG_Common::m_buttonType;
    using PLG_Common::m_closeOnModeChange;
    using PLG_Common::m_modeMask;
    using PLG_Common::m_name;
    using PLG_Common::m_pauseLiveForDialog;
    using PLG_Common::m_quickKind;
    using PLG_Common::m_rules;
    using PLG_Common::m_selectKind;
    using PLG_Common::m_toolActive;
    using PLG_Common::m_toolKind;

    explicit TestPlugin(ZebHost* host) {
        setHost(host);
        m_name = QStringLiteral("tool");
    }

    int made = 0;
    std::function<void()> onCreate = [] {};

    QDialog* createDialog(bool) override {
        ++made;
        ZebHost* host = m_host;
        onCreate();
        auto* bridge = new JS_Mediator_ModelessPatternDialog(host, QStringLiteral("page"), this);
        return new GUI_ModelessPatternDialog(host, QStringLiteral("Tool"), QString(), bridge, this);
    }

    GUI_ModelessPatternDialog* shownDialog() {
        auto* dialog = static_cast<GUI_ModelessPatternDialog*>(getDialog(true));
        showDialog();
        return dialog;
    }
};

class PLG_CommonTest : public testing::Test {
protected:
    PLG_CommonTest() {
        host.docs[1] = &doc;
        host.connectedKeys = {1};
    }

    /// What the host was asked, in order; texts for a readable difference.
    std::vector<std::string> taken() {
        std::vector<std::string> entries;
        for (const QString& entry : journal.take())
            if (!entry.startsWith(QLatin1String("info: ")) && entry != QLatin1String("notifyPluginShown"))
                entries.push_back(entry.toStdString());
        return entries;
    }

    PluginHost host;
    PluginDoc doc{1};
    Journal journal;
};
