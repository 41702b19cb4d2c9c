#pragma once

#include "NameFamilies.h"
#include "ZebTypes.h"

#include <QString>
#include <QVariant>

#include <functional>

/// A camera as its files are called after it.
struct NamedCamera {
    QString name;
    /// Of its device and of its head, from 1.
    int number = 1;
    int head = 1;
    DeviceCounts counts;
};

/// What a camera adds to the names of its files, by six preferences of the family that `type` belongs to. Pure.
///
/// `filenameadddetail`: whether it adds anything. `filenameadddetails`: what, and in which order, split at ",": "name"
/// of the camera, "number" text, "text" of the user's own. `filenameadddetailsconnect` joins them. `filenameaddnumber`:
/// whether the number text is among them; its digits are those of the file name. `filenameaddtextvalue` is the user's
/// text. `filenameseqdigits`, the digits of a frame's number, is for whoever writes a file a frame.
zeb::FileNameDetails fileNameDetails(const std::function<QVariant(const QString&)>& pref, int type, bool isFileMode,
                                     const NamedCamera& camera, int session);

/// What of a camera's name stands in names of files, at most 150 bytes: neither control characters nor what hides a
/// file or can't be seen at the ends.
QString nameInFiles(QString name);
