#pragma once

#include <QList>
#include <QVariantMap>

class DOC_Control;
class DOC_Interface;
class ZebHost;

/// Custom information between bridges, files and cameras: an item is a map of `name`, `value`, `unit` and flags, as a
/// camera has it. GUI thread.
namespace customitem {

QString text(const QVariantMap& item, const char* key);
/// A flag that is set is the text "on" of a camera, true of a page or a file.
bool isOn(const QVariantMap& item, const char* key);
void addTo(DOC_Control& control, const QVariantMap& item);

}  // namespace customitem

/// Clears the list of a camera and adds these. When that throws it gets back the list it had, or the exception tells
/// that it did not. One whose list can't be read keeps it. GUI thread.
void replaceCustomInfo(ZebHost& host, DOC_Interface& doc, const QList<QVariantMap>& items);
