#pragma once

#include "SyncCamera.h"

#include <QList>

class ZebHost;

/// The cameras that can lead a chain, in their order. `triggerMode` is that of the first camera.
QList<SyncCamera> masterCandidates(const QList<SyncCamera>& cameras, int triggerMode);

/// The same of documents; asks for the trigger mode only when it decides. May throw what the documents throw.
QList<SyncCamera> masterCandidates(const DocList& docs);

/// The camera that leads: the one that the user prefers, or the first connected head of the first that can. Null
/// without cameras, and outside live mode. May throw what host and documents throw.
DOC_Interface* chooseMaster(ZebHost& host, const DocList& docs);

/// The cameras that the user can choose a master from, as JSON. May throw what host and documents throw.
QString masterCameraList(ZebHost& host);
