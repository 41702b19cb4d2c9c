#pragma once

#include "PLG_Common.h"

#include "Camera.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "GUI_ModelessPatternDialog.h"
#include "JS_Mediator_ModelessPatternDialog.h"
#include "support/TestHost.h"

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

    explicit TestPlugin(SimHost* host) {
        setHost(host);
        m_name = QStringLiteral("tool");
        host->appStatus().registerPlugin(this);
    }

    int made = 0;
    std::function<void()> onCreate = [] {};
    /// Runs when the host has closed the plug-in.
    std::function<void()> onDeactivate = [] {};

    void deactivate() override {
        PLG_Common::deactivate();
        const auto work = onDeactivate;  // which may delete the plug-in
        work();
    }

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

/// A plug-in's host with cameras. Update cycles pass without effect.
class PluginHost : public testing::Test, public TestHost {
protected:
    explicit PluginHost(int cameras) : TestHost(connected(cameras)) {
        host.suspendViewer();
        host.flags().set(QStringLiteral("IsUpdateIgnore"), true);
        course.take();
    }

    /// What the host was asked, in order; texts for a readable difference.
    std::vector<std::string> taken() {
        std::vector<std::string> entries;
        for (const QString& entry : course.take()) {
            if (!entry.startsWith(QLatin1String("info: ")) && entry != QLatin1String("notifyPluginShown")) {
                entries.push_back(entry.toStdString());
            }
        }
        return entries;
    }

    MarkedTexts marked;
    Course course;
};

/// With one camera, whose image has 640 x 480 pixels.
class PLG_CommonTest : public PluginHost {
protected:
    PLG_CommonTest() : PluginHost(1) {
        change({{"selected", true}, {"resolution", QVariantList{640, 480}}});
        taken();
    }

    void change(const QVariantMap& members) { camera(1).change(members); }
    void setToolRect(const QRect& rect) {
        doc(1)->image().setToolRect(QStringLiteral("tool"), rect);
        taken();
    }
};
