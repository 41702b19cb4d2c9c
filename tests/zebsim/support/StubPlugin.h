#pragma once

#include "PLG_Common.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>

/// A plug-in that notes how the host drives it, and stands as a test says.
class StubPlugin : public PLG_Common {
public:
    explicit StubPlugin(const QString& name = QStringLiteral("stub")) { m_name = name; }

    void prepareOpen() override {
        log.append(QStringLiteral("prepareOpen"));
        if (refusal) {
            throw std::runtime_error(*refusal);
        }
    }
    void activate() override { log.append(QStringLiteral("activate")); }
    void deactivate() override { log.append(QStringLiteral("deactivate")); }
    QDialog* getDialog(bool create) override {
        if (create) {
            log.append(QStringLiteral("getDialog(true)"));
        }
        return dialog.get();
    }
    void showDialog() override { log.append(QStringLiteral("showDialog")); }
    bool isDialogVisible() const override { return dialog && dialog->isVisible(); }
    void updateDialog(int mode) override {
        ++updates;
        updateMode = mode;
        if (onUpdate) {
            onUpdate();
        }
    }

    void preparePanel() override { log.append(QStringLiteral("preparePanel")); }
    QWidget* getPanelWidget() const override { return panel; }
    bool isReselectOnActivate() const override { return reselect; }
    bool isDragging() const override { return dragging; }
    bool isChecked(DOC_Interface* doc, int) override { return doc != nullptr && checked; }
    bool isButtonEnabled() const override { return enabled; }

    QStringList log;
    std::unique_ptr<QDialog> dialog;
    QWidget* panel = nullptr;
    bool reselect = false;
    bool dragging = false;
    bool checked = false;
    bool enabled = true;
    /// What `prepareOpen` throws.
    std::optional<std::string> refusal;
    int updates = 0;
    int updateMode = -1;
    std::function<void()> onUpdate;
};
