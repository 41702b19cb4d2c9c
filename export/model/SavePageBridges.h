#pragma once

class GUI_WebViewDialog;
class JS_Mediator_SaveFile;
class ZebHost;

/// Gives the page of a dialog the bridge of save options beside the dialog's own, which tells it what is selected if it
/// is a `JS_Mediator_FileDialog`. Owned by the dialog. Call before the page has begun to run. GUI thread.
JS_Mediator_SaveFile* addSaveOptions(ZebHost& host, GUI_WebViewDialog& dialog);
