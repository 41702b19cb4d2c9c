#pragma once

#include "PLG_Common.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>

/// A plug-in that notes how the host drives it.
class StubPlugin : public PLG_Common {
public:
    StubPlugin() { m_name = QStringLiteral("stub"); }

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

    QStringList log;
    std::unique_ptr<QDialog> dialog;
    /// What `prepareOpen` throws.
    std::optional<std::string> refusal;
    int updates = 0;
    int updateMode = -1;
    std::function<void()> onUpdate;
};
