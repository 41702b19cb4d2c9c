#pragma once

#include "JS_Mediator.h"

/// What a page in which a camera is named knows of the user's list of names, beside the bridge of its dialog. GUI
/// thread.
class JS_Mediator_AutoCameraName : public JS_Mediator {
    Q_OBJECT

public:
    explicit JS_Mediator_AutoCameraName(ZebHost* host, QObject* parent = nullptr);

public Q_SLOTS:
    bool existsAutoCompleteFile();
    /// JSON array of objects with `label`, a name, and `category`, empty for names that have none; these come first.
    /// The others are in the order of the categories.
    QString autoCompleteCameraList();

private:
    QString path() const;
};
