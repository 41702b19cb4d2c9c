#pragma once

#include <QJsonValue>
#include <QString>
#include <QVariantMap>

#include <functional>

class QDialog;
class QImage;
class PageScript;
class QWebView;
class QWindow;
class Simulator;
struct ClickOptions;

/// The plug-in's table as a user has it before him. What he does by mouse and keyboard he does to the page of the modal
/// dialog that stands, if there is one. Every operation but `open` throws `ScenarioError` while there is neither. GUI
/// thread.
class TableDriver {
public:
    /// `stop` ends waits that would never end by themselves.
    TableDriver(Simulator& simulator, std::function<bool()> stop);

    /// Presses the plug-in's button and waits for the first update of the page. False when the table stays closed.
    bool open();
    /// Closes the window. False when it stays open.
    bool close();

    /// The value of a script in the page, after the update cycle that it asked for.
    QJsonValue page(const QString& text);
    /// Whether the script's value counts as true.
    bool isTrue(const PageScript& script) const;
    void click(const QString& selector, const ClickOptions& options);
    void drag(const QString& from, const QString& to);
    /// As `PageInput::choose`.
    void choose(const QString& selector, const QString& value);
    void type(const QString& text);
    /// Brings the text to the clipboard and pastes it by the keys.
    void paste(const QString& text);

    /// "minimise", "restore", "activate", or a geometry as "x,y,w,h".
    void window(const QString& what);
    /// What a screen reader gets of the window that the user's keys go to, as `accessibleTree` tells it.
    QVariantMap accessible() const;
    /// Saves what the table shows, in the format of the suffix. Answers the whole path.
    QString shot(const QString& path);

    /// Waits for the update cycle that stands in the event loop, if there is one.
    void settle();

private:
    QDialog* dialog() const;
    QDialog& shownDialog() const;
    /// The modal dialog that stands, or else the table's.
    QDialog& frontDialog() const;
    QWebView& view() const;
    /// Of the page that the user's mouse works.
    QWebView& front() const;
    /// The window that the user's keys go to.
    QWindow& keyWindow() const;
    void pressButton();
    void place(const QString& geometry);
    QImage stillPicture() const;

    Simulator& m_simulator;
    std::function<bool()> m_givenUp;
};
