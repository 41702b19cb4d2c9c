#pragma once

#include "CameraFrame.h"
#include "CameraState.h"
#include "FrameMetadata.h"
#include "Recording.h"
#include "TimeSteps.h"

#include <memory>
#include <vector>

class Camera;
class CameraBank;
class Clock;
struct RecordingInformation;

/// What one partition of a camera gives to a save: its selected range, as it stood when the save was asked for. Once it
/// has its name, any thread may use it.
class SaveSource {
public:
    SaveSource(std::shared_ptr<Camera> camera, const Recording& recording, QString name);

    DOCKEY key() const { return m_key; }
    PARTITIONNUMBER partition() const { return m_recording.partition; }
    /// What it is called in lists and in pictures.
    const QString& name() const { return m_state.name; }
    void setName(const QString& name) { m_state.name = name; }
    /// What its user has noted on the camera, in one line.
    QString comment() const;
    const Recording& recording() const { return m_recording; }
    QSize resolution() const { return m_recording.resolution; }
    /// That the camera fills of a channel.
    int bits() const;
    int frames() const { return static_cast<int>(m_recording.selectedCount()); }
    /// What the range's frame number `index`, from 0 on, shows.
    CameraFrame frame(int index) const;
    /// The same with its time from the trigger, wherever the zero point is.
    CameraFrame frameFromTrigger(int index) const;
    /// The range on the time of the trigger.
    TimedRange range() const;
    /// What is known of it, without files.
    RecordingInformation information() const;
    FrameMetadata metadata(int index) const { return FrameMetadata::recorded(m_recording, frame(index)); }
    /// It lies in files, and which those are; no link leads to their folder.
    bool isFile() const { return m_recording.pictures != nullptr; }
    QStringList files() const;
    /// Why it can't be read any more, as far as that is known without asking the camera; empty when it can.
    QString absence(const CameraBank& cameras) const;
    /// Has the camera hand that frame over. Throws `CameraError` when it is not there any more, does not answer, or has
    /// lost the recording; of one in files when its picture can't be read.
    void read(const CameraBank& cameras, int index) const;
    /// That by which the camera's waiting goes.
    Clock& clock() const;
    /// All of it stands in files. GUI thread.
    void noteSaved() const;

private:
    /// Of frames counted as in the memory.
    QString absence(const CameraBank& cameras, int first, int last) const;
    void readPicture(int frame) const;

    std::shared_ptr<Camera> m_camera;
    DOCKEY m_key;
    CameraState m_state;
    /// What the camera itself is called.
    QString m_ownName;
    Recording m_recording;
};

using SaveSources = std::vector<SaveSource>;

/// What the connected cameras have recorded, in the order of their keys and then of their partitions. GUI thread.
SaveSources saveSources(const CameraBank& cameras);
/// The same of these cameras, in the order of `keys`.
SaveSources saveSources(const CameraBank& cameras, const DocKeyList& keys);
