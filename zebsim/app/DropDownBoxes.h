#pragma once

#include <QObject>
#include <QRect>
#include <QString>

#include <map>
#include <memory>

class GUI_SelectBox;
class QWidget;
class SimHost;

/// The floating lists over the viewer's window: "partition", "variable" and "variableRegist". GUI thread.
///
/// Rectangles are in the pixels of the window's inside. A list is made when it is first asked for, moves with the
/// window and hides with it.
class DropDownBoxes : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object.
    DropDownBoxes(SimHost& host, QWidget& window);
    ~DropDownBoxes() override;

    /// Opens the list of that key beside `anchor`; an unknown key is ignored. Throws what the cameras throw; the list
    /// is hidden then.
    void show(const QString& key, const QRect& anchor);
    /// An empty key hides all of them.
    void hide(const QString& key);
    bool isShown() const;
    /// Where the list of that key stands; a null rectangle while it is hidden.
    QRect rect(const QString& key) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    GUI_SelectBox& box(const QString& key);

    SimHost& m_host;
    QWidget& m_window;
    std::map<QString, std::unique_ptr<GUI_SelectBox>> m_boxes;
};
