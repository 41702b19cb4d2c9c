#pragma once

#include <QLabel>

/// A plain text in one line that gives way where room is short: its end is left out then, and the tool tip has it
/// whole.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent);

    /// `whole` may have several lines.
    void setTexts(const QString& line, const QString& whole);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
