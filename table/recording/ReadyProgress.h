#pragma once

class GUI_ProgressDialog;
class QString;
class ZebHost;

/// The busy bar over the camera table while cameras get ready, in the user's colour. Not shown yet; the caller
/// owns it, and so does the table, if there is one.
GUI_ProgressDialog* makeReadyProgressDialog(const QString& label, ZebHost& host);
