#pragma once

#include "Course.h"
#include "PLG_Common.h"

#include <QDialog>

/// A plug-in that has a dialog, a panel and no behaviour.
class FakePlugin : public PLG_Common {
public:
    explicit FakePlugin(const QString& name = QStringLiteral("wren")) { m_name = name; }

    QDialog* dialog = nullptr;
    QWidget* panel = nullptr;
    bool reselect = false;
    bool dragging = false;

    QDialog* getDialog(bool) override { return dialog; }
    void preparePanel() override { Course::note(QStringLiteral("preparePanel")); }
    QWidget* getPanelWidget() const override { return panel; }
    bool isReselectOnActivate() const override { return reselect; }
    bool isDragging() const override { return dragging; }
};
