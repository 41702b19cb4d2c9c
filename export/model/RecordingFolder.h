#pragma once

class ZebHost;

/// Asks the user for a folder, and opens the recordings of which files in it tell. False when there is no such folder
/// or file. Runs event loops. GUI thread.
bool openRecordingFolder(ZebHost& host);
