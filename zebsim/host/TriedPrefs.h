#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

class Preferences;
class QDialog;
class QVariant;
class ZebPageBridge;
class QWebView;

/// What pages set while the dialog of a family of save options stands: it holds, and is stored only once the dialog is
/// accepted. Otherwise what is stored holds again, whatever has become of the dialog. GUI thread.
class TriedPrefs : public QObject {
    Q_OBJECT

public:
    /// `prefs` must outlive the object.
    explicit TriedPrefs(Preferences& prefs) : m_prefs(prefs) {}

    /// The page of `view`, in its dialog, gets `bridge`. If that is the bridge of such a dialog, it begins to try.
    void beginFor(const QWebView* view, const ZebPageBridge& bridge);
    /// A page sets a preference.
    void set(const QString& key, const QVariant& value);

private:
    struct Trial {
        QObject* dialog;
        QString family;
        QSet<QString> keys = {};
    };

    void end(QObject* dialog, bool isAccepted);

    Preferences& m_prefs;
    /// The innermost comes last.
    QList<Trial> m_trials;
};
