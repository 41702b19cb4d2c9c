#pragma once

#include <QString>

/// The host's undo stack. GUI thread.
class ZebUndo {
public:
    virtual ~ZebUndo() = default;

    /// Forgets the steps of image tools, whose text is empty.
    virtual void clear() = 0;
    /// What is done until `endMacro` is one step of the stack. Settings of cameras that change meanwhile belong to it,
    /// and are put back camera by camera.
    virtual void beginMacro(const QString& text) = 0;
    virtual void endMacro() = 0;
    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;
};
