#pragma once

#include <QJsonObject>
#include <QPoint>
#include <QString>
#include <Qt>

#include <functional>

class QWebView;
class QWindow;

/// How `PageInput::click` clicks.
struct ClickOptions {
    enum Part { Whole, PressOnly, ReleaseOnly };

    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers;
    bool twice = false;
    Part part = Whole;
};

/// The mouse on a page as it comes from the window system. Every operation throws `ScenarioError` when the
/// element is not there, is not shown, or stays under something else.
class PageInput {
public:
    /// `stop` ends a wait that would never end by itself.
    PageInput(QWebView& page, std::function<bool()> stop);

    void click(const QString& selector, const ClickOptions& options);
    /// Presses on one element, holds, moves to the other and lets go there.
    void drag(const QString& from, const QString& to);
    /// Opens the drop-down by a click and clicks the entry of that value, or of that text. Throws too when it has none.
    void choose(const QString& selector, const QString& value);

private:
    /// Moves the mouse to the element, until it lies still under it. Answers where that is.
    QPoint aim(const QString& selector);
    /// Where the middle of the element lies in the window, after it was scrolled to.
    QPoint locate(const QString& selector);
    QJsonObject look(const QString& selector, int step);
    void turn(const QString& selector);
    QWindow& window() const;

    QWebView& m_view;
    std::function<bool()> m_givenUp;
};
