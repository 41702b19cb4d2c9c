#pragma once

#include "FakeHost.h"

#include <stdexcept>

/// A host that knows image tools, undo and views too.
class PluginHost : public FakeHost {
public:
    QString activeTool;
    bool canBin = false;
    double rotation = 0.0;
    /// Runs when a plug-in is closed.
    std::function<void()> onClosePlugin = [] {};

    bool isToolActive(const QString& tool) const override { return tool == activeTool; }
    bool isCapable(const QString& capability, DOC_Interface*, int) const override {
        return canBin && capability == QLatin1String("binning");
    }

    void closePlugin(const QString& name) override {
        FakeHost::closePlugin(name);
        onClosePlugin();
    }
    void closePanel() override { Journal::note(QStringLiteral("closePanel")); }
    void closeAuxiliaryPanel() override { Journal::note(QStringLiteral("closeAuxiliaryPanel")); }
    void setWrenRunning(bool running) override {
        Journal::note(running ? QStringLiteral("wren runs") : QStringLiteral("wren ends"));
        FakeHost::setWrenRunning(running);
    }

    DOC_Interface* getCurrentDoc() override { return docs.isEmpty() ? nullptr : docs.begin().value(); }
    void disconnectDocs(const DocKeyList& keys) override {
        QStringList texts;
        for (const DOCKEY key : keys) texts.append(QString::number(key));
        Journal::note(QStringLiteral("disconnectDocs ") % texts.join(QLatin1Char(' ')));
    }
    void setActiveQuickTool(const QString& tool) override { noteTool("setActiveQuickTool", tool); }
    void toolSelect(const QString& tool, bool on) override { noteTool(on ? "toolSelect on" : "toolSelect off", tool); }
    void toolSelectAll(const QString& tool, bool all, bool) override {
        noteTool(all ? "toolSelectAll all" : "toolSelectAll chosen", tool);
    }
    void toolBegin(int, const QString& tool) override { noteTool("toolBegin", tool); }
    void toolEnd(const QString& tool) override { noteTool("toolEnd", tool); }
    void toolApply(const QString& tool) override { noteTool("toolApply", tool); }
    void restartLiveAfterTool(int) override { Journal::note(QStringLiteral("restartLiveAfterTool")); }
    void restartLiveAfterEnd(int) override { Journal::note(QStringLiteral("restartLiveAfterEnd")); }

    void clear() override { Journal::note(QStringLiteral("undo clear")); }
    void beginMacro(const QString& text) override {
        Journal::note(QStringLiteral("undo begin '") % text % QStringLiteral("'"));
    }
    void endMacro() override { Journal::note(QStringLiteral("undo end")); }

    double getRotation(DOCKEY) const override { return rotation; }

private:
    static void noteTool(const char* operation, const QString& tool) {
        Journal::note(QString(QLatin1String(operation) % QLatin1Char(' ') % tool).trimmed());
    }
};
