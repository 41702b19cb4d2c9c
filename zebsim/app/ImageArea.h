#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

/// The area of the image windows. It tiles them whenever there is more or less room, and says why there are none.
class ImageArea : public QMdiArea {
    Q_OBJECT

public:
    explicit ImageArea(QWidget* parent);

    /// Plain text for an area without windows.
    void setEmptyText(const QString& text);
    /// Lays these windows out in rows, unless one of them fills the area. They stay in this order from now on.
    void tile(const QList<QMdiSubWindow*>& windows);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void tile();

    QList<QPointer<QMdiSubWindow>> m_windows;
    QString m_emptyText;
};
