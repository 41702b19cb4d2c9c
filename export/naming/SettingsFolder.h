#pragma once

#include <QString>

class ZebHost;

/// Where dialogs for files of camera settings begin: in the folder of the last one, if it is still there, else in the
/// one that such files go to unless the user wants another, which need not be there. GUI thread.
QString settingsFolder(const ZebHost& host);

/// `folder` is that of the last file from now on. GUI thread.
void rememberSettingsFolder(ZebHost& host, const QString& folder);
