#pragma once

#include "Course.h"
#include "ScriptedDesk.h"
#include "SimHost.h"
#include "SteppedClock.h"

#include <QTemporaryDir>

class Camera;

/// A desk that tells of each box before it is answered, by its kind and its text.
class ToldDesk : public ScriptedDesk {
public:
    Answer show(const Message& message) override;

    std::function<void(const char* kind, const QString& text)> tell;
};

/// What a host does not own.
struct HostParts {
    QTemporaryDir folder;
    SteppedClock stepped;
    ToldDesk desk;
};

/// The host with cameras of the standard model, all of them connected. What it is asked to do stands in the course, as
/// "setPrefInt a/b 5", and can fail then. A text that it has translated reads "<text>".
class FaultyHost : public HostParts, public SimHost {
public:
    explicit FaultyHost(int cameras = 0);

    /// Name of an operation that throws its name.
    QString failing;

    Camera& camera(DOCKEY key) { return *cameras().find(key); }
    DOC_Interface* doc(DOCKEY key) { return docManager().getDoc(key, 1); }
    void enterMode(int mode) { appStatus().enterMode(mode); }

    QString translate(const QString& text) const override;
    void errorHandler(const std::exception& e) override;
    void showDropDownBox(const QString& key, const QRect& anchor) override;
    void hideDropDownBox(const QString& key) override;
    void hideDropDownBoxAt(const QString& key, const QPoint& point) override;

protected:
    /// Notes an operation, and throws when it is the one that fails.
    void tell(const QString& operation, const QVariantList& args = {}) const;
};
